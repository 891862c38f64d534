#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonText, ComparesAndFormats)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.Text('a') == 'a' and unreal.Text('a') != unreal.Text('A')")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("str(unreal.Text('{0} of {total}').format(1, total=2))")), TEXT("'1 of 2'"));
	EXPECT_EQ(Evaluate(TEXT("str(unreal.Text('{a}-{b}').format({'a': 'x', 'b': None}))")), TEXT("'x-None'"));
	EXPECT_EQ(Evaluate(TEXT("str(unreal.Text.as_number(1234567))")), TEXT("'1,234,567'"));
	EXPECT_EQ(
		Evaluate(TEXT("(unreal.Text().is_empty(), unreal.Text(' ').is_empty_or_whitespace(), unreal.Text(' ').is_empty())")),
		TEXT("(True, True, False)"));
}
