#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Math/MathFwd.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"
#include "UObject/Field.h"
#include "UObject/Object.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/ReflectedTypeAccessors.h"

class FProperty;
class FOutputDevice;
class FReferenceCollector;
struct FDateTime;
struct FGuid;
struct FTimespan;

namespace EIncludeSuperFlag
{
enum Type
{
	ExcludeSuper,
	IncludeSuper,
};
}

namespace UECodeGen
{
class FRegistration;
}

/** A named thing of reflection that is an object itself: an enumeration, a structure, a class, a function. */
class COREUOBJECT_API UField : public UObject, public FFieldMetaData
{
public:
	DECLARE_CLASS(UField, UObject)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UField)

	/** The next function of the same class. */
	UField* Next = nullptr;

	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;
	/** The metadata DisplayName, otherwise the name made readable. */
	FText GetDisplayNameText() const;
	/** The metadata ToolTip, otherwise the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};

class COREUOBJECT_API UEnum : public UField
{
public:
	DECLARE_CLASS(UEnum, UField)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UEnum)

	enum class ECppForm
	{
		/** enum E { A }; entries are "A". */
		Regular,
		/** namespace E { enum Type { A }; } entries are "E::A". */
		Namespaced,
		/** enum class E { A }; entries are "E::A". */
		EnumClass,
	};

	/** What C++ calls it, e.g. "EColour::Type". */
	FString CppType;

	/** Replaces all entries. A _MAX entry is added unless there is one or bAddMaxKeyIfMissing is false. */
	bool SetEnums(TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, bool bAddMaxKeyIfMissing = true);
	ECppForm GetCppForm() const { return CppForm; }

	int32 NumEnums() const { return Names.Num(); }
	/** The full name of an entry, e.g. "EColour::Red"; NAME_None outside of the range. */
	FName GetNameByIndex(int32 Index) const;
	FName GetNameByValue(int64 InValue) const;
	/** The short name of an entry, e.g. "Red"; empty outside of the range. */
	FString GetNameStringByIndex(int32 InIndex) const;
	FString GetNameStringByValue(int64 InValue) const;
	FText GetDisplayNameTextByIndex(int32 InIndex) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetToolTipTextByIndex(int32 InIndex) const;
	int64 GetValueByIndex(int32 Index) const;
	/** INDEX_NONE for a name that is no entry; short and full names are known. */
	int64 GetValueByName(FName InName) const;
	int64 GetValueByNameString(const FString& SearchString) const;
	int32 GetIndexByName(FName InName) const;
	int32 GetIndexByNameString(const FString& SearchString) const;
	int32 GetIndexByValue(int64 InValue) const;
	bool IsValidEnumValue(int64 InValue) const { return GetIndexByValue(InValue) != INDEX_NONE; }
	bool IsValidEnumName(FName InName) const { return GetIndexByName(InName) != INDEX_NONE; }
	int64 GetMaxEnumValue() const;
	bool ContainsExistingMax() const;
	/** "Entry" as "Enum::Entry", by the form of the enumeration. */
	FString GenerateFullEnumName(const TCHAR* InEnumName) const;

	using FFieldMetaData::FindMetaData;
	using FFieldMetaData::GetMetaData;
	using FFieldMetaData::HasMetaData;
	using FFieldMetaData::SetMetaData;
	/** Metadata of one entry, such as "DisplayName" or "Hidden". */
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;
	FString GetMetaData(const TCHAR* Key, int32 NameIndex) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex);

private:
	TArray<TPair<FName, int64>> Names;
	ECppForm CppForm = ECppForm::Regular;
};

/** Something with properties: a structure, a class, the parameters of a function. */
class COREUOBJECT_API UStruct : public UField
{
public:
	DECLARE_CLASS(UStruct, UField)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UStruct)
	~UStruct() override;

	/** First function of a class, in declared order. */
	UField* Children = nullptr;
	/** First property of its own, in declared order. */
	FField* ChildProperties = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	virtual void SetSuperStruct(UStruct* NewSuperStruct);
	/** Appends a property, or a further one behind the earlier ones. The structure owns it from here on. */
	void AddCppProperty(FProperty* Property);
	/**
	 * Gives all own properties without a native place theirs, behind the parent's, and settles the size. Call it after the
	 * last AddCppProperty.
	 */
	virtual void StaticLink(bool bRelinkExistingProperties = false);

	int32 GetStructureSize() const { return Align(PropertiesSize, MinAlignment); }
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	bool IsChildOf(const UStruct* SomeBase) const;
	template <typename T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}
	FProperty* FindPropertyByName(FName InName) const;
	/** "A", "U", "F" or nothing. */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }

	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;

	/** Reads a metadata key of this or the nearest parent that has it. */
	bool GetBoolMetaDataHierarchical(const FName& Key) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	/** Tells the collector what the reflected members of a structure or object refer to. */
	void AddReferencesOf(void* Container, FReferenceCollector& Collector) const;
	/** Those of its own properties that may refer to objects strongly. */
	const TArray<FProperty*>& GetOwnReferenceProperties() const;

protected:
	UStruct* SuperStruct = nullptr;

private:
	FProperty* LastOwnProperty = nullptr;
	mutable TArray<FProperty*> OwnReferences;
	mutable bool bOwnReferencesKnown = false;
};

/** A structure. A native one leaves construction, copy and comparison to C++, a made one does it property by property. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
public:
	DECLARE_CLASS(UScriptStruct, UStruct)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UScriptStruct)

	/** What C++ knows of a native structure. Missing operations are null. */
	struct ICppStructOps
	{
		int32 Size;
		int32 Alignment;
		void (*Construct)(void* Dest);
		void (*Destruct)(void* Dest);
		void (*Copy)(void* Dest, const void* Src);
		bool (*Identical)(const void* A, const void* B);
		uint32 (*GetTypeHash)(const void* Src);
		/** For structures with a text form of their own, such as FGuid. */
		void (*ExportText)(FString& ValueStr, const void* Src);
		bool (*ImportText)(const TCHAR*& Buffer, void* Dest);
	};

	EStructFlags StructFlags = STRUCT_NoFlags;

	const ICppStructOps* GetCppStructOps() const { return CppStructOps; }
	FString GetStructCPPName() const { return FString(GetPrefixCPP()) + GetName(); }

	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	/** Back to what InitializeStruct makes. */
	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;
	uint32 GetStructTypeHash(const void* Src) const;
	/** "(X=1.000000,Y=2.000000)". Defaults, if given, leave out the members that are equal. */
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
		UObject* ExportRootScope) const;
	/** Takes the members that Buffer names and leaves the others. Returns the place after the value, null on failure. */
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
		const FString& StructName) const;

private:
	friend class UECodeGen::FRegistration;

	const ICppStructOps* CppStructOps = nullptr;
};

/** A reflected function. Its properties are parameters and return value, laid out as one block. */
class COREUOBJECT_API UFunction : public UStruct
{
public:
	DECLARE_CLASS(UFunction, UStruct)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UFunction)

	EFunctionFlags FunctionFlags = FUNC_None;
	/** Parameters and return value. */
	uint8 NumParms = 0;
	uint16 ParmsSize = 0;
	/** MAX_uint16 if nothing is returned. */
	uint16 ReturnValueOffset = MAX_uint16;

	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) != FUNC_None; }
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) == FlagsToCheck; }
	/** Null if nothing is returned. */
	FProperty* GetReturnProperty() const;
	FNativeFuncPtr GetNativeFunc() const { return Func; }
	void SetNativeFunc(FNativeFuncPtr InFunc) { Func = InFunc; }
	void Invoke(UObject* Object, FFrame& Stack);
	const TCHAR* GetPrefixCPP() const override { return TEXT(""); }
	/** Places the parameters and counts them. */
	void StaticLink(bool bRelinkExistingProperties = false) override;

private:
	FNativeFuncPtr Func = nullptr;
};

class COREUOBJECT_API UClass : public UStruct
{
public:
	DECLARE_CLASS(UClass, UStruct)
	DEFINE_DEFAULT_CONSTRUCTOR_CALL(UClass)

	using ClassConstructorType = void (*)(void* Memory, const FObjectInitializer& ObjectInitializer);
	using ClassAddReferencedObjectsType = void (*)(UObject* InThis, FReferenceCollector& Collector);

	ClassConstructorType ClassConstructor = nullptr;
	ClassAddReferencedObjectsType ClassAddReferencedObjects = nullptr;
	EClassFlags ClassFlags = CLASS_None;
	EClassCastFlags ClassCastFlags = CASTCLASS_None;
	/** Ini file of the properties marked Config, e.g. "Editor". */
	FName ClassConfigName;

	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != CLASS_None; }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == FlagsToCheck; }
	bool HasAnyCastFlag(EClassCastFlags FlagToCheck) const { return (ClassCastFlags & FlagToCheck) != CASTCLASS_None; }
	UClass* GetSuperClass() const { return static_cast<UClass*>(SuperStruct); }
	void SetSuperStruct(UStruct* NewSuperStruct) override;
	/** Takes over from the parent what a class made at run time needs before StaticLink: constructor, flags. */
	void Bind();
	const TCHAR* GetPrefixCPP() const override;

	/** The object that holds the class's first values, made at the first call. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template <typename T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	FName GetDefaultObjectName() const;
	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;
	/** Adds a function whose outer is the class. */
	void AddFunctionToFunctionMap(UFunction* Function, FName FunctionName);
	void RemoveFunctionFromFunctionMap(UFunction* Function);

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	void FinishDestroy() override;

private:
	TMap<FName, UFunction*> FuncMap;
	UField* LastFunction = nullptr;
	mutable UObject* ClassDefaultObject = nullptr;
};

/** The structure of a type that reflects itself; specialised for the types of Core, which do not. */
template <typename T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return T::StaticStruct(); }
};

#define FOREACH_BASE_STRUCTURE(Op) \
	Op(FVector) Op(FVector2D) Op(FRotator) Op(FLinearColor) Op(FColor) Op(FGuid) Op(FIntPoint) Op(FDateTime) Op(FTimespan)

#define DECLARE_BASE_STRUCTURE(TStruct) \
	template <> \
	struct TBaseStructure<TStruct> \
	{ \
		COREUOBJECT_API static UScriptStruct* Get(); \
	};

FOREACH_BASE_STRUCTURE(DECLARE_BASE_STRUCTURE)
#undef DECLARE_BASE_STRUCTURE
