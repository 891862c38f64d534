#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"
#include "UObject/Object.h"

class FField;
class UField;
class UStruct;

/** The type of a field: its name without prefix ("IntProperty") and its bits for casts. */
class COREUOBJECT_API FFieldClass
{
public:
	FFieldClass(const TCHAR* Name, EClassCastFlags Id, FFieldClass* Super);

	FString GetName() const { return Name.ToString(); }
	FName GetFName() const { return Name; }
	EClassCastFlags GetId() const { return Id; }
	EClassCastFlags GetCastFlags() const { return CastFlags; }
	bool HasAnyCastFlags(EClassCastFlags InCastFlags) const { return (CastFlags & InCastFlags) != CASTCLASS_None; }
	bool HasAllCastFlags(EClassCastFlags InCastFlags) const { return (CastFlags & InCastFlags) == InCastFlags; }
	bool IsChildOf(const FFieldClass* Other) const { return HasAllCastFlags(Other->Id); }
	FFieldClass* GetSuperClass() const { return SuperClass; }

private:
	FName Name;
	EClassCastFlags Id;
	EClassCastFlags CastFlags;
	FFieldClass* SuperClass;
};

/** The owner of a field: an object (a structure, a class, a function) or another field (a container). */
class COREUOBJECT_API FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(std::nullptr_t) {}
	FFieldVariant(FField* InField)
		: Field(InField)
	{
	}
	FFieldVariant(UObject* InObject)
		: Object(InObject)
	{
	}

	bool IsUObject() const { return Object != nullptr; }
	bool IsValid() const { return Object || Field; }
	UObject* ToUObject() const { return Object; }
	FField* ToField() const { return Field; }
	FString GetPathName() const;

private:
	FField* Field = nullptr;
	UObject* Object = nullptr;
};

/** The editor's notes on a field by key, e.g. "ToolTip", "Category", "CPP_Default_Size". Keys ignore case. */
class COREUOBJECT_API FFieldMetaData
{
public:
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	const FString* FindMetaData(const TCHAR* Key) const { return FindMetaData(FName(Key)); }
	const FString* FindMetaData(const FName& Key) const { return MetaDataMap.Find(Key); }
	/** The empty text if there is no such key. */
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	/** True for a key with the value "true" or with no value. */
	bool GetBoolMetaData(const TCHAR* Key) const { return GetBoolMetaData(FName(Key)); }
	bool GetBoolMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* Value) { MetaDataMap.Add(FName(Key), FString(Value)); }
	void SetMetaData(const FName& Key, const TCHAR* Value) { MetaDataMap.Add(Key, FString(Value)); }

private:
	TMap<FName, FString> MetaDataMap;
};

#define DECLARE_FIELD(TClass, TSuperClass, TCastFlag) \
public: \
	using Super = TSuperClass; \
	using ThisClass = TClass; \
	static constexpr EClassCastFlags StaticClassCastFlagsPrivate() \
	{ \
		return TCastFlag; \
	} \
	static FFieldClass* StaticClass();

/** Root of what structures, classes and functions are made of besides objects: in 5.0 that is properties. */
class COREUOBJECT_API FField : public FFieldMetaData
{
	DECLARE_FIELD(FField, FField, CASTCLASS_None)

	FField(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags);
	virtual ~FField();
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	FFieldClass* GetClass() const { return ClassPrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	FName GetFName() const { return NamePrivate; }
	EObjectFlags GetFlags() const { return FlagsPrivate; }
	/** "/Script/Module.Class:Property". */
	FString GetPathName() const;
	/** "IntProperty /Script/Module.Class:Property". */
	FString GetFullName() const;

	bool IsA(const FFieldClass* FieldType) const { return ClassPrivate->IsChildOf(FieldType); }
	template <typename T>
	bool IsA() const
	{
		return ClassPrivate->HasAllCastFlags(T::StaticClassCastFlagsPrivate());
	}

	FFieldVariant GetOwnerVariant() const { return Owner; }
	/** The owner if it is an object of that class, otherwise null. */
	template <typename T>
	T* GetOwner() const;
	/** The object at the top of the chain of owners. */
	UObject* GetOwnerUObject() const;
	/** The structure that holds the field, through containers. */
	UStruct* GetOwnerStruct() const;
	UClass* GetOwnerClass() const;

	/** The metadata DisplayName, otherwise the name made readable. */
	FText GetDisplayNameText() const;
	/** The metadata ToolTip, otherwise the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

	FField* Next = nullptr;

private:
	FFieldClass* ClassPrivate;
	FFieldVariant Owner;
	FName NamePrivate;
	EObjectFlags FlagsPrivate;
};

template <typename FieldType>
FORCEINLINE FieldType* CastField(FField* Src)
{
	return Src && Src->IsA<FieldType>() ? static_cast<FieldType*>(Src) : nullptr;
}

template <typename FieldType>
FORCEINLINE const FieldType* CastField(const FField* Src)
{
	return Src && Src->IsA<FieldType>() ? static_cast<const FieldType*>(Src) : nullptr;
}

template <typename FieldType>
FORCEINLINE FieldType* CastFieldChecked(FField* Src)
{
	check(Src && Src->IsA<FieldType>());
	return static_cast<FieldType*>(Src);
}

template <typename FieldType>
FORCEINLINE const FieldType* CastFieldChecked(const FField* Src)
{
	check(Src && Src->IsA<FieldType>());
	return static_cast<const FieldType*>(Src);
}

template <typename FieldType>
FORCEINLINE const FieldType* ExactCastField(const FField* Src)
{
	return Src && Src->GetClass() == FieldType::StaticClass() ? static_cast<const FieldType*>(Src) : nullptr;
}

template <typename FieldType>
FORCEINLINE FieldType* ExactCastField(FField* Src)
{
	return Src && Src->GetClass() == FieldType::StaticClass() ? static_cast<FieldType*>(Src) : nullptr;
}

template <typename T>
T* FField::GetOwner() const
{
	if (Owner.IsUObject())
	{
		UObject* const Object = Owner.ToUObject();
		return Object->IsA(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
	}
	return nullptr;
}
