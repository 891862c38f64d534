#include "UObject/GeneratedCppIncludes.h"
#include "UObject/Package.h"

// The classes that reflection itself is made of: no header tool describes them.

namespace
{
constexpr UECodeGen::FMetaDataPair GObjectMetaData[] = {
	{"BlueprintType", "true"},
	{"IsBlueprintBase", "true"},
	{"ToolTip", "The base class of all objects."},
};

constexpr UECodeGen::FMetaDataPair GClassMetaData[] = {
	{"BlueprintType", "true"},
	{"ToolTip", "The class of an object."},
};

constexpr UECodeGen::FMetaDataPair GPackageMetaData[] = {
	{"ToolTip", "What is saved as one file, or the types of one module."},
};

constexpr UECodeGen::FMetaDataPair GStructMetaData[] = {
	{"ToolTip", "Something with properties."},
};

constexpr UECodeGen::FMetaDataPair GScriptStructMetaData[] = {
	{"ToolTip", "The type of a structure."},
};

constexpr UECodeGen::FMetaDataPair GFunctionMetaData[] = {
	{"ToolTip", "A function that scripts can call."},
};

constexpr UECodeGen::FMetaDataPair GEnumMetaData[] = {
	{"ToolTip", "The type of an enumeration."},
};

constexpr UECodeGen::FMetaDataPair GFieldMetaData[] = {
	{"ToolTip", "A named part of a type, or a type."},
};
}

#define IMPLEMENT_INTRINSIC_CLASS(TClass, SuperFunction, Flags, CastFlag, MetaData) \
	UClass* TClass::StaticClass() \
	{ \
		static UClass* Result = nullptr; \
		static const UECodeGen::FClassParams Params = {"/Script/CoreUObject", &#TClass[1], SuperFunction, \
			CLASS_Native | CLASS_Intrinsic | CLASS_RequiredAPI | (Flags), sizeof(TClass), alignof(TClass), \
			&TClass::__DefaultConstructor, &TClass::AddReferencedObjects, {}, {}, MetaData, nullptr, CastFlag}; \
		return Result ? Result : UECodeGen::ConstructClass(Result, Params); \
	} \
	static const UECodeGen::FAutoRegister AutoRegister_##TClass(&TClass::StaticClass);

IMPLEMENT_INTRINSIC_CLASS(UObject, nullptr, CLASS_Abstract, CASTCLASS_None, GObjectMetaData)
IMPLEMENT_INTRINSIC_CLASS(UPackage, &UObject::StaticClass, CLASS_None, CASTCLASS_UPackage, GPackageMetaData)
IMPLEMENT_INTRINSIC_CLASS(UField, &UObject::StaticClass, CLASS_Abstract, CASTCLASS_UField, GFieldMetaData)
IMPLEMENT_INTRINSIC_CLASS(UEnum, &UField::StaticClass, CLASS_None, CASTCLASS_UEnum, GEnumMetaData)
IMPLEMENT_INTRINSIC_CLASS(UStruct, &UField::StaticClass, CLASS_None, CASTCLASS_UStruct, GStructMetaData)
IMPLEMENT_INTRINSIC_CLASS(UScriptStruct, &UStruct::StaticClass, CLASS_None, CASTCLASS_UScriptStruct, GScriptStructMetaData)
IMPLEMENT_INTRINSIC_CLASS(UFunction, &UStruct::StaticClass, CLASS_None, CASTCLASS_UFunction, GFunctionMetaData)
IMPLEMENT_INTRINSIC_CLASS(UClass, &UStruct::StaticClass, CLASS_None, CASTCLASS_UClass, GClassMetaData)
