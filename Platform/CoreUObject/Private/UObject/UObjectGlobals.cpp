#include "UObject/UObjectGlobals.h"

#include "UObject/CoreUObjectLog.h"
#include "UObject/ObjectLifetime.h"
#include "UObject/ObjectTable.h"
#include "UObject/UnrealType.h"

FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;
FCoreUObjectDelegates::FOnObjectModified FCoreUObjectDelegates::OnObjectModified;

namespace
{
TArray<const FObjectInitializer*>& InitializerStack()
{
	static TArray<const FObjectInitializer*> Stack;
	return Stack;
}

/** The nearest class with a C++ constructor. */
const UClass* NativeClassOf(const UClass* Class)
{
	while (!Class->HasAnyClassFlags(CLASS_Native))
	{
		Class = Class->GetSuperClass();
	}
	return Class;
}

/** Properties that a class made at run time has beyond its native parent. */
template <typename OperationType>
void ForEachDynamicProperty(const UClass* Class, OperationType Operation)
{
	for (const UStruct* Struct = Class; !static_cast<const UClass*>(Struct)->HasAnyClassFlags(CLASS_Native);
		 Struct = Struct->GetSuperStruct())
	{
		for (const FProperty* Property : TFieldRange<FProperty>(Struct, EFieldIteratorFlags::ExcludeSuper))
		{
			Operation(*Property);
		}
	}
}

/** A native class has set its values in the constructor; all others, and copies of a template, take them over. */
void InitializeProperties(UObject* Object, UObject* Template)
{
	const UClass* const Class = Object->GetClass();
	ForEachDynamicProperty(Class, [Object](const FProperty& Property) { Property.InitializeValue_InContainer(Object); });
	const UObject* Source = Template;
	if (!Source && !Class->HasAnyClassFlags(CLASS_Native))
	{
		Source = Object->GetArchetype();
	}
	if (!Source)
	{
		return;
	}
	for (const FProperty* Property : TFieldRange<FProperty>(Source->GetClass()))
	{
		if (Class->IsChildOf(Property->GetOwnerClass()) &&
			(!Property->HasAnyPropertyFlags(CPF_Transient | CPF_DuplicateTransient) || !Template))
		{
			Property->CopyCompleteValue_InContainer(Object, Source);
		}
	}
}

void CheckConstruction(const FStaticConstructObjectParameters& Params)
{
	const UClass* const Class = Params.Class;
	checkf(Class && Class->ClassConstructor, TEXT("NewObject of a class that cannot make objects: %s"), *GetFullNameSafe(Class));
	const bool bDefaultObject = (Params.SetFlags & RF_ClassDefaultObject) != RF_NoFlags;
	if (Class->HasAnyClassFlags(CLASS_Abstract) && !bDefaultObject)
	{
		UE_LOG(LogObj, Fatal, TEXT("Cannot create an object of the abstract class %s"), *Class->GetPathName());
	}
	if (!Params.Outer && !Class->IsChildOf(UPackage::StaticClass()))
	{
		UE_LOG(LogObj, Fatal, TEXT("NewObject of class %s called with a null outer object"), *Class->GetName());
	}
}

/** Fresh zeroed memory, or that of the object which has the name now. */
void* AllocateObject(const FStaticConstructObjectParameters& Params, FName Name)
{
	UObject* const Existing = FObjectTable::Get().FindInOuter(Params.Outer, Name);
	const SIZE_T Size = SIZE_T(Params.Class->GetPropertiesSize());
	void* Memory = Existing;
	if (Existing)
	{
		if (Existing->GetClass() != Params.Class)
		{
			UE_LOG(LogObj, Fatal, TEXT("Cannot replace existing object of a different class. New class: %s. Existing object: %s"),
				*Params.Class->GetName(), *Existing->GetFullName());
		}
		Existing->BeginDestroy();
		Existing->FinishDestroy();
		DestructObject(Existing);
	}
	else
	{
		Memory = FMemory::Malloc(Size, uint32(Params.Class->GetMinAlignment()));
	}
	return FMemory::Memzero(Memory, Size);
}
}

const FObjectInitializer& FObjectInitializer::Get()
{
	checkf(InitializerStack().Num(), TEXT("An object is constructed without NewObject"));
	return *InitializerStack().Last();
}

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	CheckConstruction(Params);
	const FName Name = Params.Name.IsNone() ? MakeUniqueObjectName(Params.Outer, Params.Class) : Params.Name;
	void* const Memory = AllocateObject(Params, Name);
	UObject* const Object = static_cast<UObject*>(Memory);

	const FObjectInitializer Initializer(Object);
	InitializerStack().Push(&Initializer);
	FObjectTable::Get().BeginConstruction(Memory, {const_cast<UClass*>(Params.Class), Params.Outer, Name, Params.SetFlags});
	NativeClassOf(Params.Class)->ClassConstructor(Memory, Initializer);
	InitializerStack().Pop();

	InitializeProperties(Object, Params.Template);
	Object->PostInitProperties();
	return Object;
}

void DestructObject(UObject* Object)
{
	ForEachDynamicProperty(
		Object->GetClass(), [Object](const FProperty& Property) { Property.DestroyValue_InContainer(Object); });
	// The destructor is virtual in the root, which only this function may ask for it.
	Object->~UObject();
}

UPackage* GetTransientPackage()
{
	static UPackage* const Package = []
	{
		UPackage* const NewPackage = CreatePackage(TEXT("/Engine/Transient"));
		NewPackage->SetFlags(RF_Transient);
		NewPackage->AddToRoot();
		return NewPackage;
	}();
	return Package;
}

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName)
{
	// Names are given out once, also after the object is gone: a counter for each base makes that, and finds them fast.
	static TMap<FName, int32>& NextNumbers = *new TMap<FName, int32>;
	const FName Base(BaseName.IsNone() ? Class->GetFName() : BaseName, NAME_NO_NUMBER_INTERNAL);
	int32& NextNumber = NextNumbers.FindOrAdd(Base, 0);
	FName Name;
	do
	{
		Name = FName(Base, NAME_EXTERNAL_TO_INTERNAL(NextNumber++));
	} while (FObjectTable::Get().FindInOuter(Outer, Name));
	return Name;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	return static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), InOuter, FName(PackageName)));
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FName Name(PackageName);
	// The class first: making it may make the very package that is wanted.
	FStaticConstructObjectParameters Params(UPackage::StaticClass());
	UObject* const Existing = FObjectTable::Get().FindInOuter(nullptr, Name);
	if (Existing)
	{
		return static_cast<UPackage*>(Existing);
	}
	Params.Name = Name;
	Params.SetFlags = RF_Public;
	return static_cast<UPackage*>(StaticConstructObject_Internal(Params));
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects)
{
	for (const FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && (Item.Object->GetOuter() == Outer || (bIncludeNestedObjects && Item.Object->IsIn(Outer))))
		{
			Results.Add(Item.Object);
		}
	}
}

void GetObjectsOfClass(
	const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags)
{
	for (const FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		const UClass* const Class = Item.Object ? Item.Object->GetClass() : nullptr;
		if (Class && !Item.Object->HasAnyFlags(ExcludeFlags) &&
			(Class == ClassToLookFor || (bIncludeDerivedClasses && Class->IsChildOf(ClassToLookFor))))
		{
			Results.Add(Item.Object);
		}
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	for (const FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && Item.Object->IsA<UClass>())
		{
			UClass* const Class = static_cast<UClass*>(Item.Object);
			if (Class != ClassToLookFor &&
				(bRecursive ? Class->IsChildOf(ClassToLookFor) : Class->GetSuperClass() == ClassToLookFor))
			{
				Results.Add(Class);
			}
		}
	}
}
