#include <gtest/gtest.h>

#include "ParsedHeader.h"

namespace
{
/** The metadata text for "void F(<Type> X = <Default>)"; "refused" if the tool refuses the default. */
std::string DefaultOf(const std::string& Type, const std::string& Default)
{
	const FParsedHeader Parsed("#include \"Thing.generated.h\"\nUENUM()\nenum class EMood : uint8 { Glad, Sad "
							   "};\nUCLASS()\nclass UThing : public UObject\n{\n"
							   "GENERATED_BODY()\nUFUNCTION()\nvoid F(" +
		Type + " X = " + Default + ", int32 Y = 1);\n};\n");
	if (!Parsed.Errors.empty())
	{
		return "refused";
	}
	const std::string Source = Parsed.GeneratedSource();
	const std::string Begin = "{ \"CPP_Default_X\", \"";
	const size_t Place = Source.find(Begin) + Begin.size();
	return Source.substr(Place, Source.find("\" },\n", Place) - Place);
}
}

TEST(DefaultValues, Numbers)
{
	EXPECT_EQ(DefaultOf("int32", "-1"), "-1");
	EXPECT_EQ(DefaultOf("int32", "0x10"), "16");
	EXPECT_EQ(DefaultOf("int32", "INDEX_NONE"), "-1");
	EXPECT_EQ(DefaultOf("int64", "5000000000LL"), "5000000000");
	EXPECT_EQ(DefaultOf("float", "1.5f"), "1.500000");
	EXPECT_EQ(DefaultOf("float", "1"), "1.000000");
	EXPECT_EQ(DefaultOf("double", "-.5"), "-0.500000");
	EXPECT_EQ(DefaultOf("int32", "1 + 1"), "refused");
	EXPECT_EQ(DefaultOf("int32", "1.5"), "refused");
	EXPECT_EQ(DefaultOf("float", "Limit"), "refused");
}

TEST(DefaultValues, BoolsAndEnumerations)
{
	EXPECT_EQ(DefaultOf("bool", "true"), "true");
	EXPECT_EQ(DefaultOf("bool", "false"), "false");
	EXPECT_EQ(DefaultOf("bool", "1"), "refused");
	EXPECT_EQ(DefaultOf("EMood", "EMood::Sad"), "Sad");
	EXPECT_EQ(DefaultOf("TEnumAsByte<EOther::Type>", "EOther::Round"), "Round");
}

TEST(DefaultValues, Texts)
{
	EXPECT_EQ(DefaultOf("FString", "\"\""), "");
	EXPECT_EQ(DefaultOf("const FString&", "TEXT(\"a, b) \\\"c\\\"\")"), "a, b) \\\"c\\\"");
	EXPECT_EQ(DefaultOf("FString", "FString()"), "");
	EXPECT_EQ(DefaultOf("FString", "FString(TEXT(\"x\"))"), "x");
	EXPECT_EQ(DefaultOf("FName", "NAME_None"), "None");
	EXPECT_EQ(DefaultOf("FName", "FName(TEXT(\"Left\"))"), "Left");
	EXPECT_EQ(DefaultOf("FName", "\"Right\""), "Right");
	EXPECT_EQ(DefaultOf("FName", "\"\""), "None");
	EXPECT_EQ(DefaultOf("FText", "FText::GetEmpty()"), "");
	EXPECT_EQ(DefaultOf("FText", "FText::FromString(TEXT(\"t\"))"), "t");
	EXPECT_EQ(DefaultOf("FString", "GName"), "refused");
}

TEST(DefaultValues, Structures)
{
	EXPECT_EQ(DefaultOf("FVector2D", "FVector2D(0, 0)"), "(X=0.000,Y=0.000)");
	EXPECT_EQ(DefaultOf("FVector2D", "FVector2D::ZeroVector"), "(X=0.000,Y=0.000)");
	EXPECT_EQ(DefaultOf("FVector2D", "FVector2D(1.5f, -2)"), "(X=1.500,Y=-2.000)");
	EXPECT_EQ(DefaultOf("FVector", "FVector(1, 2, 3.5)"), "1.000000,2.000000,3.500000");
	EXPECT_EQ(DefaultOf("FVector", "FVector(2)"), "2.000000,2.000000,2.000000");
	EXPECT_EQ(DefaultOf("FVector", "FVector::ZeroVector"), "");
	EXPECT_EQ(DefaultOf("FRotator", "FRotator(0, 90, 0)"), "0.000000,90.000000,0.000000");
	EXPECT_EQ(DefaultOf("FRotator", "FRotator::ZeroRotator"), "");
	EXPECT_EQ(DefaultOf("FLinearColor", "FLinearColor(1, 1, 1)"), "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)");
	EXPECT_EQ(DefaultOf("FLinearColor", "FLinearColor::Black"), "(R=0.000000,G=0.000000,B=0.000000,A=1.000000)");
	EXPECT_EQ(DefaultOf("FGuid", "FGuid()"), "()");
	EXPECT_EQ(DefaultOf("FVector", "GetOrigin()"), "refused");
}

TEST(DefaultValues, ObjectsAndContainers)
{
	EXPECT_EQ(DefaultOf("UOther*", "nullptr"), "None");
	EXPECT_EQ(DefaultOf("UClass*", "NULL"), "None");
	EXPECT_EQ(DefaultOf("TArray<int32>", "TArray<int32>()"), "refused");
}
