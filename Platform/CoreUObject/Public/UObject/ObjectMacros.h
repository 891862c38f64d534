#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"
#include "UObject/Script.h"

/** Parts of a header under "#if !CPP" are for the header tool alone. */
#define CPP 1

class FObjectInitializer;
class UClass;
class UEnum;
class UObject;
class UScriptStruct;

/** Flags of an object. The values are part of the script interface. */
enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001,
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_LoadCompleted = 0x00200000,
	RF_DuplicateTransient = 0x00800000,
	RF_PendingKill = 0x20000000,
	RF_Garbage = 0x40000000,
};
ENUM_CLASS_FLAGS(EObjectFlags)

/** Flags that the object table keeps beside an object, out of reach of scripts. */
enum class EInternalObjectFlags : int32
{
	None = 0,
	/** Compiled into a library: never collected. */
	Native = 1 << 25,
	/** Found by nobody in the collection that runs now. */
	Unreachable = 1 << 28,
	RootSet = 1 << 30,
};
ENUM_CLASS_FLAGS(EInternalObjectFlags)

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000,
	CLASS_Abstract = 0x00000001,
	CLASS_DefaultConfig = 0x00000002,
	CLASS_Config = 0x00000004,
	CLASS_Transient = 0x00000008,
	CLASS_Native = 0x00000080,
	CLASS_NotPlaceable = 0x00000200,
	CLASS_EditInlineNew = 0x00001000,
	CLASS_CollapseCategories = 0x00002000,
	CLASS_Interface = 0x00004000,
	CLASS_Const = 0x00010000,
	CLASS_CompiledFromBlueprint = 0x00040000,
	CLASS_MinimalAPI = 0x00080000,
	CLASS_RequiredAPI = 0x00100000,
	CLASS_DefaultToInstanced = 0x00200000,
	CLASS_Hidden = 0x01000000,
	CLASS_Deprecated = 0x02000000,
	CLASS_HideDropDown = 0x04000000,
	CLASS_Intrinsic = 0x10000000,
	CLASS_Constructed = 0x20000000,
	CLASS_NewerVersionExists = 0x80000000,

	/** What a class takes over from its parent. */
	CLASS_Inherit =
		CLASS_Transient | CLASS_Config | CLASS_NotPlaceable | CLASS_Const | CLASS_DefaultToInstanced | CLASS_Interface,
};
ENUM_CLASS_FLAGS(EClassFlags)

/** One bit per reflection class; a class has its own and those of its parents, which makes casts between them a bit test. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0x0000000000000000,
	CASTCLASS_UField = 0x0000000000000001,
	CASTCLASS_FInt8Property = 0x0000000000000002,
	CASTCLASS_UEnum = 0x0000000000000004,
	CASTCLASS_UStruct = 0x0000000000000008,
	CASTCLASS_UScriptStruct = 0x0000000000000010,
	CASTCLASS_UClass = 0x0000000000000020,
	CASTCLASS_FByteProperty = 0x0000000000000040,
	CASTCLASS_FIntProperty = 0x0000000000000080,
	CASTCLASS_FFloatProperty = 0x0000000000000100,
	CASTCLASS_FUInt64Property = 0x0000000000000200,
	CASTCLASS_FClassProperty = 0x0000000000000400,
	CASTCLASS_FUInt32Property = 0x0000000000000800,
	CASTCLASS_FNameProperty = 0x0000000000002000,
	CASTCLASS_FStrProperty = 0x0000000000004000,
	CASTCLASS_FProperty = 0x0000000000008000,
	CASTCLASS_FObjectProperty = 0x0000000000010000,
	CASTCLASS_FBoolProperty = 0x0000000000020000,
	CASTCLASS_FUInt16Property = 0x0000000000040000,
	CASTCLASS_UFunction = 0x0000000000080000,
	CASTCLASS_FStructProperty = 0x0000000000100000,
	CASTCLASS_FArrayProperty = 0x0000000000200000,
	CASTCLASS_FInt64Property = 0x0000000000400000,
	CASTCLASS_FNumericProperty = 0x0000000001000000,
	CASTCLASS_FObjectPropertyBase = 0x0000000004000000,
	CASTCLASS_FWeakObjectProperty = 0x0000000008000000,
	CASTCLASS_FTextProperty = 0x0000000040000000,
	CASTCLASS_FInt16Property = 0x0000000080000000,
	CASTCLASS_FDoubleProperty = 0x0000000100000000,
	CASTCLASS_UPackage = 0x0000000400000000,
	CASTCLASS_FMapProperty = 0x0000400000000000,
	CASTCLASS_FSetProperty = 0x0000800000000000,
	CASTCLASS_FEnumProperty = 0x0001000000000000,
};
ENUM_CLASS_FLAGS(EClassCastFlags)

enum EStructFlags : uint32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
	STRUCT_IdenticalNative = 0x00000002,
	STRUCT_NoExport = 0x00000008,
	STRUCT_Atomic = 0x00000010,
	STRUCT_Immutable = 0x00000020,
	STRUCT_RequiredAPI = 0x00000200,
};
ENUM_CLASS_FLAGS(EStructFlags)

/** How a property may be seen, edited and passed. The values are part of the script interface. */
enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ZeroConstructor = 0x0000000000000200,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	CPF_NoClear = 0x0000000002000000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_Deprecated = 0x0000000020000000,
	CPF_IsPlainOldData = 0x0000000040000000,
	CPF_Interp = 0x0000000200000000,
	CPF_NonTransactional = 0x0000000400000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_NoDestructor = 0x0000001000000000,
	CPF_AssetRegistrySearchable = 0x0000010000000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_Protected = 0x0000080000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_UObjectWrapper = 0x0004000000000000,
	CPF_HasGetValueTypeHash = 0x0008000000000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,

	CPF_ParmFlags = CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_ReferenceParm | CPF_ConstParm,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

// What the header tool reads. The compiler sees nothing of it but the bodies, which the tool wrote into <Header>.generated.h.
#define UPROPERTY(...)
#define UFUNCTION(...)
#define UPARAM(...)
#define UMETA(...)
#define UENUM(...)
#define UCLASS(...)
#define USTRUCT(...)

#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_UCLASS_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY_LEGACY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()

/** What every object class declares. The header tool writes it for reflected headers. */
#define DECLARE_CLASS(TClass, TSuperClass) \
public: \
	using Super = TSuperClass; \
	using ThisClass = TClass; \
	static UClass* StaticClass();

/** As DECLARE_CLASS, for a class of which other modules see nothing but its identity. */
#define DECLARE_CLASS_MINIMAL_API(TClass, TSuperClass, TApi) \
public: \
	using Super = TSuperClass; \
	using ThisClass = TClass; \
	TApi static UClass* StaticClass();

/** Lets the object system build a class whose constructor takes nothing. */
#define DEFINE_DEFAULT_CONSTRUCTOR_CALL(TClass) \
	static void __DefaultConstructor(void* Memory, const FObjectInitializer&) \
	{ \
		::new (Memory) TClass; \
	}

/** Lets the object system build a class whose constructor takes the initializer. */
#define DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(TClass) \
	static void __DefaultConstructor(void* Memory, const FObjectInitializer& X) \
	{ \
		::new (Memory) TClass(X); \
	}

#define DECLARE_FUNCTION(func) static void func(UObject* Context, FFrame& Stack)
#define DEFINE_FUNCTION(func) void func(UObject* Context, FFrame& Stack)
