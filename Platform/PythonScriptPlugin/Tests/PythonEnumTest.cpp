#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonEnum, EntriesHaveNameAndValue)
{
	EXPECT_EQ(Evaluate(TEXT("(unreal.PythonTestColor.RED.name, unreal.PythonTestColor.RED.value)")), TEXT("('RED', 0)"));
	EXPECT_EQ(Evaluate(TEXT("(unreal.PythonTestColor.LIGHT_GREEN.name, unreal.PythonTestColor.LIGHT_GREEN.value)")),
		TEXT("('LIGHT_GREEN', 5)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestColor.LIGHT_GREEN")), TEXT("<PythonTestColor.LIGHT_GREEN: 5>"));
}

TEST(PythonEnum, HiddenAndMaxEntriesAreLeftOut)
{
	EXPECT_EQ(Evaluate(TEXT("[n for n in vars(unreal.PythonTestColor) if n.isupper()]")), TEXT("['RED', 'LIGHT_GREEN']"));
}

TEST(PythonEnum, ParametersTakeEntryAndInt)
{
	EXPECT_EQ(
		Evaluate(TEXT(
			"unreal.PythonTestFunctions.echo_enum(unreal.PythonTestColor.LIGHT_GREEN) is unreal.PythonTestColor.LIGHT_GREEN")),
		TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_enum(5).name")), TEXT("'LIGHT_GREEN'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestFunctions.echo_enum(77).value")), TEXT("77"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestFunctions.echo_enum(unreal.PythonCommandExecutionMode.EXECUTE_FILE)")),
		TEXT("TypeError: PythonTestFunctions.echo_enum(): argument 'value' (pos 1): expected PythonTestColor, got "
			 "PythonCommandExecutionMode"));
}

TEST(PythonEnum, CastTakesValueAndEntry)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestColor.cast(5) is unreal.PythonTestColor.LIGHT_GREEN")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestColor.cast(unreal.PythonTestColor.RED).name")), TEXT("'RED'"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.cast('RED')")), TEXT("TypeError: expected PythonTestColor or int, got str"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.cast(77)")), TEXT("TypeError: PythonTestColor has no entry of value 77"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.cast(6)")), TEXT("TypeError: PythonTestColor has no entry of value 6"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.cast(2**64 + 5)")),
		TEXT("TypeError: PythonTestColor has no entry of value 18446744073709551621"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.PythonTestColor.cast(unreal.PythonTestFunctions.echo_enum(77))")),
		TEXT("TypeError: PythonTestColor has no entry of value 77"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestColor.static_enum().get_name()")), TEXT("'EPythonTestColor'"));
}

TEST(PythonEnum, EntriesCompareHashAndConvertByValue)
{
	EXPECT_EQ(Evaluate(TEXT("{unreal.PythonTestColor.RED: 1}[unreal.PythonTestColor.cast(0)]")), TEXT("1"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonTestColor.RED == unreal.PythonTestColor.LIGHT_GREEN")), TEXT("False"));
	EXPECT_EQ(Evaluate(TEXT("int(unreal.PythonTestColor.LIGHT_GREEN)")), TEXT("5"));
}
