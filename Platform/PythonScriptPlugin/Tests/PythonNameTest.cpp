#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonName, ComparesWithoutCaseWithNamesAndTexts)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.Name('Aka') == unreal.Name('AKA')")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Name('Aka') == 'aKA' and 'aka' == unreal.Name('AKA')")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Name('Aka') != 'other'")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Name('Aka') == 5")), TEXT("False"));
	EXPECT_EQ(Evaluate(TEXT("{unreal.Name('Aka'): 1}[unreal.Name('AKA')]")), TEXT("1"));
}

TEST(PythonName, KeepsItsSpelling)
{
	EXPECT_EQ(Evaluate(TEXT("str(unreal.Name('SpellinG_07'))")), TEXT("'SpellinG_07'"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Name('n')")), TEXT("Name('n')"));
}

TEST(PythonName, NoneAndCast)
{
	EXPECT_EQ(
		Evaluate(TEXT(
			"(unreal.Name().is_none(), unreal.Name('none').is_none(), unreal.Name('a').is_none(), unreal.Name('a').is_valid())")),
		TEXT("(True, True, False, True)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.Name.cast('x') == 'x'")), TEXT("True"));
	EXPECT_EQ(ErrorOf(TEXT("unreal.Name(5)")), TEXT("TypeError: expected Name or str, got int"));
}

TEST(PythonName, DifferentTextsOfOneAddressAreDifferentNames)
{
	EXPECT_TRUE(RunPython(TEXT("names = [str(unreal.Name('made_' + chr(97 + i % 26) + 'x')) for i in range(2000)]")));
	EXPECT_EQ(Evaluate(TEXT("all(n == 'made_' + chr(97 + i % 26) + 'x' for i, n in enumerate(names))")), TEXT("True"));
}
