#include <gtest/gtest.h>

#include "ParsedHeader.h"

namespace
{
const char* const GSource = R"(#pragma once

#include "Thing.generated.h"

class UOther;

/** How a thing feels. */
UENUM(BlueprintType)
enum class EMood : uint8
{
	Glad UMETA(DisplayName = "Very \"glad\""),
	Sad,
};

USTRUCT(BlueprintType)
struct FPart
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Part")
	float Weight = 0.0f;
};

/** A thing. */
UCLASS(BlueprintType)
class GAME_API UThing : public UOther
{
	GENERATED_BODY()

public:
	/**
	 * Weighs the thing.
	 *
	 * @param Scale  How much counts.
	 */
	UFUNCTION(BlueprintCallable, Category = "Thing")
	bool Weigh(const TArray<FPart>& Parts, float& OutWeight, float Scale = 1.f) const;

	UFUNCTION(BlueprintCallable, Category = "Thing")
	static void Reset();

private:
	UPROPERTY()
	uint8 bOpen : 1;

	UPROPERTY(Transient)
	UOther* Others[4];
};
)";
}

TEST(GeneratedCode, HeaderSpellsOutTheBodies)
{
	const FParsedHeader Parsed(GSource);
	ASSERT_EQ(Parsed.Errors, std::vector<std::string>());
	EXPECT_EQ(Parsed.GeneratedHeader(), R"(// Written by HeaderTool from Public/Things/Thing.h. Changes here are lost.

#ifdef Game_Things_Thing_h_GENERATED
#error "Thing.generated.h is included twice: add '#pragma once' to Thing.h"
#endif
#define Game_Things_Thing_h_GENERATED

#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/UObjectGlobals.h"

#define Game_Things_Thing_h_28_GENERATED_BODY \
	DECLARE_CLASS(UThing, UOther) \
	explicit UThing(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get()) \
		: Super(ObjectInitializer) \
	{ \
	} \
	DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(UThing) \
	friend struct Z_Construct_UClass_UThing_Statics; \
	DECLARE_FUNCTION(execWeigh); \
	DECLARE_FUNCTION(execReset); \
	private:

#define Game_Things_Thing_h_18_GENERATED_BODY \
	friend struct Z_Construct_UScriptStruct_FPart_Statics; \
	GAME_API static UScriptStruct* StaticStruct();

enum class EMood : uint8;
template <>
GAME_API UEnum* StaticEnum<EMood>();

#undef CURRENT_FILE_ID
#define CURRENT_FILE_ID Game_Things_Thing_h
)");
}

TEST(GeneratedCode, SourceDescribesTheTypesAndCallsTheFunctions)
{
	const FParsedHeader Parsed(GSource);
	ASSERT_EQ(Parsed.Errors, std::vector<std::string>());
	EXPECT_EQ(Parsed.GeneratedSource(), R"(// Written by HeaderTool from Public/Things/Thing.h. Changes here are lost.

#include "Things/Thing.h"

#include "UObject/GeneratedCppIncludes.h"
#include "Other/Other.h"

struct Z_Construct_UEnum_EMood_Statics
{
	static UEnum* Construct(UEnum*& OutEnum)
	{
		using namespace UECodeGen;

		static const FMetaDataPair Glad_MetaData[] = {
			{ "DisplayName", "Very \"glad\"" },
		};
		static const FEnumEntry Entries[] = {
			{ "Glad", static_cast<int64>(EMood::Glad), Glad_MetaData },
			{ "Sad", static_cast<int64>(EMood::Sad), {} },
		};
		static const FMetaDataPair MetaData[] = {
			{ "BlueprintType", "true" },
			{ "ToolTip", "How a thing feels." },
			{ "ModuleRelativePath", "Public/Things/Thing.h" },
		};
		static const FEnumParams Enum = { "/Script/Game", "EMood", "EMood", UEnum::ECppForm::EnumClass, Entries, MetaData };
		return ConstructEnum(OutEnum, Enum);
	}
};

template <>
UEnum* StaticEnum<EMood>()
{
	static UEnum* Result = nullptr;
	return Result ? Result : Z_Construct_UEnum_EMood_Statics::Construct(Result);
}

static const UECodeGen::FAutoRegister AutoRegister_EMood(&StaticEnum<EMood>);

struct Z_Construct_UScriptStruct_FPart_Statics
{
	static UScriptStruct* Construct(UScriptStruct*& OutStruct)
	{
		using namespace UECodeGen;

		static const FMetaDataPair Properties_Weight_MetaData[] = {
			{ "Category", "Part" },
		};
		static const FPropertyParams Properties[] = {
			{ "Weight", &NewProperty<float>, STRUCT_OFFSET(FPart, Weight), CPF_Edit | CPF_NativeAccessSpecifierPublic, Properties_Weight_MetaData },
		};
		static const FMetaDataPair MetaData[] = {
			{ "BlueprintType", "true" },
			{ "ModuleRelativePath", "Public/Things/Thing.h" },
		};
		static const FStructParams Struct = { "/Script/Game", "Part", nullptr, STRUCT_NoFlags, TCppStructOps<FPart>::Get(), Properties, MetaData };
		return ConstructStruct(OutStruct, Struct);
	}
};

UScriptStruct* FPart::StaticStruct()
{
	static UScriptStruct* Result = nullptr;
	return Result ? Result : Z_Construct_UScriptStruct_FPart_Statics::Construct(Result);
}

static const UECodeGen::FAutoRegister AutoRegister_FPart(&FPart::StaticStruct);

struct Z_Construct_UClass_UThing_Statics
{
	struct Weigh_Parms
	{
		TArray<FPart> Parts;
		float OutWeight;
		float Scale;
		bool ReturnValue;
	};

	static UClass* Construct(UClass*& OutClass)
	{
		using namespace UECodeGen;

		static const FPropertyParams Weigh_Properties[] = {
			{ "Parts", &NewProperty<TArray<FPart>>, STRUCT_OFFSET(Weigh_Parms, Parts), CPF_Parm | CPF_ConstParm | CPF_OutParm | CPF_ReferenceParm, {} },
			{ "OutWeight", &NewProperty<float>, STRUCT_OFFSET(Weigh_Parms, OutWeight), CPF_Parm | CPF_OutParm, {} },
			{ "Scale", &NewProperty<float>, STRUCT_OFFSET(Weigh_Parms, Scale), CPF_Parm, {} },
			{ "ReturnValue", &NewProperty<bool>, STRUCT_OFFSET(Weigh_Parms, ReturnValue), CPF_Parm | CPF_OutParm | CPF_ReturnParm, {} },
		};
		static const FMetaDataPair Weigh_MetaData[] = {
			{ "Category", "Thing" },
			{ "ToolTip", "Weighs the thing.\n\n@param Scale  How much counts." },
			{ "CPP_Default_Scale", "1.000000" },
			{ "ModuleRelativePath", "Public/Things/Thing.h" },
		};
		static const FMetaDataPair Reset_MetaData[] = {
			{ "Category", "Thing" },
			{ "ModuleRelativePath", "Public/Things/Thing.h" },
		};
		static const FFunctionParams Functions[] = {
			{ "Weigh", &UThing::execWeigh, FUNC_BlueprintCallable | FUNC_Native | FUNC_Public | FUNC_Final | FUNC_Const | FUNC_HasOutParms, sizeof(Weigh_Parms), alignof(Weigh_Parms), Weigh_Properties, Weigh_MetaData },
			{ "Reset", &UThing::execReset, FUNC_BlueprintCallable | FUNC_Native | FUNC_Public | FUNC_Final | FUNC_Static, 0, 1, {}, Reset_MetaData },
		};
		static const FPropertyParams Properties[] = {
			{ "bOpen", &NewProperty<bool>, 0, CPF_NativeAccessSpecifierPrivate, {}, 1, sizeof(uint8), [](void* Container) { static_cast<UThing*>(Container)->bOpen = 1; } },
			{ "Others", &NewProperty<UOther*>, STRUCT_OFFSET(UThing, Others), CPF_Transient | CPF_NativeAccessSpecifierPrivate, {}, 4 },
		};
		static const FMetaDataPair MetaData[] = {
			{ "BlueprintType", "true" },
			{ "ToolTip", "A thing." },
			{ "IncludePath", "Things/Thing.h" },
			{ "ModuleRelativePath", "Public/Things/Thing.h" },
		};
		static const FClassParams Class = { "/Script/Game", "Thing", &UOther::StaticClass, CLASS_Native | CLASS_RequiredAPI, sizeof(UThing), alignof(UThing), &UThing::__DefaultConstructor, &UThing::AddReferencedObjects, Functions, Properties, MetaData };
		return ConstructClass(OutClass, Class);
	}
};

DEFINE_FUNCTION(UThing::execWeigh)
{
	auto& Parms = *reinterpret_cast<Z_Construct_UClass_UThing_Statics::Weigh_Parms*>(Stack.Locals);
	Parms.ReturnValue = static_cast<UThing*>(Context)->Weigh(Parms.Parts, Parms.OutWeight, Parms.Scale);
}

DEFINE_FUNCTION(UThing::execReset)
{
	UThing::Reset();
}

UClass* UThing::StaticClass()
{
	static UClass* Result = nullptr;
	return Result ? Result : Z_Construct_UClass_UThing_Statics::Construct(Result);
}

static const UECodeGen::FAutoRegister AutoRegister_UThing(&UThing::StaticClass);
)");
}

TEST(GeneratedCode, ManifestNamesWhatOtherModulesMayUse)
{
	const FParsedHeader Parsed(GSource);
	EXPECT_EQ(FTypeRegistry::WriteManifest(Parsed.Module),
		"class UThing Things/Thing.h Generated\n"
		"struct FPart Things/Thing.h\n"
		"enum EMood Things/Thing.h EnumClass uint8 GAME_API\n");
}

TEST(GeneratedCode, ModuleSourceTakesInEachReflectedHeader)
{
	FParsedHeader Parsed(GSource);
	FHeaderInfo Plain;
	Plain.File = "/Game/Public/Plain.h";
	Parsed.Module.Headers.push_back(Plain);
	EXPECT_EQ(WriteModuleSource(Parsed.Module),
		"// Written by HeaderTool for module Game. Changes here are lost.\n\n#include \"Thing.gen.cpp\"\n");
}

TEST(GeneratedCode, TheConstructorFollowsWhatTheClassDeclares)
{
	const auto BodyOf = [](const std::string& Members)
	{
		return FParsedHeader(
			"#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\nGENERATED_BODY()\npublic:\n" + Members +
			"};\n")
			.GeneratedHeader();
	};
	EXPECT_NE(BodyOf("UThing();\n").find("DEFINE_DEFAULT_CONSTRUCTOR_CALL(UThing)"), std::string::npos);
	EXPECT_EQ(BodyOf("UThing();\n").find("explicit UThing"), std::string::npos);
	EXPECT_NE(BodyOf("UThing(const FObjectInitializer& X);\n").find("DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(UThing)"),
		std::string::npos);
	EXPECT_EQ(BodyOf("UThing(const FObjectInitializer& X);\n").find("explicit UThing"), std::string::npos);
	EXPECT_NE(BodyOf("~UThing() { if (true) {} }\n").find("explicit UThing"), std::string::npos);
}

TEST(GeneratedCode, NamespacedEnumerationsAreDeclaredWhereTheyAreUsed)
{
	const FParsedHeader Parsed(R"(#include "Thing.generated.h"
UCLASS()
class UThing : public UObject
{
	GENERATED_BODY()
public:
	UPROPERTY()
	TEnumAsByte<EOther::Type> Kind;
};
)");
	ASSERT_EQ(Parsed.Errors, std::vector<std::string>());
	EXPECT_NE(Parsed.GeneratedSource().find(
				  "#include \"Other/Other.h\"\n\ntemplate <>\nOTHER_API UEnum* StaticEnum<EOther::Type>();\n"),
		std::string::npos);
}

TEST(GeneratedCode, PartsThatTheEditorDoesNotSeeAreLeftOut)
{
	const FParsedHeader Parsed(R"x(#include "Thing.generated.h"
#if 0
UCLASS()
class UGone {}
#endif
UCLASS()
class UThing : public UObject
{
	GENERATED_BODY()
#if WITH_EDITORONLY_DATA
	UPROPERTY()
	int32 Kept;
#else
	UPROPERTY()
	int32 Gone;
#endif
	// UPROPERTY()
	int32 Plain = 0;
	const char* Text = "UPROPERTY()";
};
)x");
	ASSERT_EQ(Parsed.Errors, std::vector<std::string>());
	ASSERT_EQ(Parsed.Header().Classes.size(), 1u);
	ASSERT_EQ(Parsed.Header().Classes[0].Properties.size(), 1u);
	EXPECT_EQ(Parsed.Header().Classes[0].Properties[0].Name, "Kept");
}
