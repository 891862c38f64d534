#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/Package.h"

class FProperty;

namespace ECastCheckedType
{
enum Type
{
	NullAllowed,
	NullChecked,
};
}

/** As an outer: look in all packages. No object has this address, which is aligned as any. */
#define ANY_PACKAGE reinterpret_cast<UPackage*>(-16)

/** How an object is built: handed to its constructor, so that this can know class and place. */
class COREUOBJECT_API FObjectInitializer
{
public:
	explicit FObjectInitializer(UObject* InObj)
		: Obj(InObj)
	{
	}

	/** The object under construction now. Outside of NewObject there is none, which is fatal. */
	static const FObjectInitializer& Get();

	UObject* GetObj() const { return Obj; }
	UClass* GetClass() const { return Obj->GetClass(); }

private:
	UObject* Obj;
};

struct FStaticConstructObjectParameters
{
	explicit FStaticConstructObjectParameters(const UClass* InClass)
		: Class(InClass)
	{
	}

	const UClass* Class;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	/** Whose values the object takes over; null for the class default object's. */
	UObject* Template = nullptr;
};

/**
 * Makes an object. Without a name it is called "Class_N". If the outer has an object of that name and class, that one is
 * destroyed and the new one takes its address; one of another class is fatal, and so is an abstract class.
 */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

COREUOBJECT_API UPackage* GetTransientPackage();

template <class T>
T* NewObject(
	UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr)
{
	checkf(Class && Class->IsChildOf(T::StaticClass()), TEXT("NewObject of class %s is asked for as %s"), *GetNameSafe(Class),
		*T::StaticClass()->GetName());
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

template <class T>
T* NewObject(UObject* Outer = GetTransientPackage())
{
	return NewObject<T>(Outer, T::StaticClass());
}

template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template);
}

/** A name that no object of the outer has: "BaseName_N", without a base name that of the class. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName = NAME_None);
/** The package of that name ("/Game/Dir/Name"), made if there is none. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);

/**
 * Looks for an object in memory.
 *
 * @param Class  Null for any class; otherwise objects of it and of classes derived from it (with ExactClass only of it).
 * @param InOuter  Where to look; ANY_PACKAGE for the first object of that short name; null if Name is a whole path.
 * @param Name  "Name", "Package.Object", "Package.Object:Sub", or with the class before it: "Class'Path'".
 */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass = false);
/** As StaticFindObject. Given only a package it means the object of the package's short name. A Warning tells of a failure. */
COREUOBJECT_API UObject* StaticLoadObject(
	UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = 0);
COREUOBJECT_API UClass* StaticLoadClass(
	UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = 0);

template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, ExactClass));
}

template <class T>
T* FindObjectFast(UObject* Outer, FName Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass));
}

template <class T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = 0)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags));
}

template <class T>
UClass* LoadClass(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = 0)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags);
}

template <class T>
const T* GetDefault()
{
	return T::StaticClass()->template GetDefaultObject<T>();
}

template <class T>
T* GetMutableDefault()
{
	return T::StaticClass()->template GetDefaultObject<T>();
}

/** Neither null nor marked as garbage. */
FORCEINLINE bool IsValid(const UObject* Test)
{
	return Test && IsValidChecked(Test);
}

COREUOBJECT_API void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true);
COREUOBJECT_API void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results,
	bool bIncludeDerivedClasses = true, EObjectFlags ExcludeFlags = RF_ClassDefaultObject);
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);

/** Makes the types that libraries brought along known, with their default objects. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects(FName Package = NAME_None, bool bCanProcessNewlyLoadedObjects = true);

/** What the editor keeps through a collection. */
constexpr EObjectFlags GARBAGE_COLLECTION_KEEPFLAGS = RF_Standalone;

/**
 * Destroys what neither the root set, nor FGCObjects, nor objects with one of KeepFlags refer to. Inside an FGCScopeGuard it only
 * makes a request. Fatal within another collection.
 */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
/** Collects if nothing guards against it. @return Whether it did. */
COREUOBJECT_API bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
/** Asks the frame to collect at its end. */
COREUOBJECT_API void RequestGarbageCollection();
/** For the frame: collects if somebody asked for it and nothing guards against it. */
COREUOBJECT_API bool CollectRequestedGarbage();
COREUOBJECT_API bool IsGarbageCollecting();

/** Takes the references of an object. Those to objects marked as garbage become null. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template <class UObjectType>
	void AddReferencedObject(
		UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleReference(reinterpret_cast<UObject*&>(const_cast<std::remove_const_t<UObjectType>*&>(Object)));
	}
	template <class UObjectType>
	void AddReferencedObject(TObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr)
	{
		HandleReference(reinterpret_cast<UObject*&>(Object));
	}
	template <class UObjectType>
	void AddReferencedObjects(TArray<UObjectType*>& Objects, const UObject* ReferencingObject = nullptr)
	{
		for (UObjectType*& Object : Objects)
		{
			AddReferencedObject(Object, ReferencingObject);
		}
	}
	/** A reference to garbage in a set stays until the object is destroyed: it is not nulled, as that would change its hash. */
	template <class UObjectType>
	void AddReferencedObjects(TSet<UObjectType*>& Objects, const UObject* ReferencingObject = nullptr)
	{
		for (UObjectType* Object : Objects)
		{
			HandleFixedReference(const_cast<std::remove_const_t<UObjectType>*>(Object));
		}
	}
	template <class KeyType, class ValueType>
	void AddReferencedObjects(TMap<KeyType*, ValueType>& Objects, const UObject* ReferencingObject = nullptr)
	{
		for (auto& Pair : Objects)
		{
			HandleFixedReference(const_cast<std::remove_const_t<KeyType>*>(Pair.Key));
			if constexpr (std::is_pointer_v<ValueType>)
			{
				AddReferencedObject(Pair.Value, ReferencingObject);
			}
		}
	}
	template <class KeyType, class ValueType>
	void AddReferencedObjects(TMap<KeyType, ValueType*>& Objects, const UObject* ReferencingObject = nullptr)
	{
		for (auto& Pair : Objects)
		{
			AddReferencedObject(Pair.Value, ReferencingObject);
		}
	}

	/** Keeps the object without touching the place of the reference. */
	virtual void HandleFixedReference(UObject* Object) = 0;

protected:
	virtual void HandleReference(UObject*& Object) = 0;
};

/** What the object system tells others. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	/** Before and after each collection. */
	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	static FSimpleMulticastDelegate& GetPostGarbageCollect();

	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, struct FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectModified, UObject*);
	static FOnObjectModified OnObjectModified;
};
