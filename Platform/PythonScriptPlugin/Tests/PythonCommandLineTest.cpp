#include "PythonCommandLine.h"

#include <gtest/gtest.h>

TEST(PythonCommandLine, FirstWordEndingInPyIsAFile)
{
	FPythonCommandLine CommandLine;
	EXPECT_TRUE(FPythonCommandLine::Parse(TEXT("  C:/a/tool.py one two"), CommandLine));
	EXPECT_EQ(CommandLine.FileName, TEXT("C:/a/tool.py"));
	EXPECT_EQ(CommandLine.Arguments, TArray<FString>({TEXT("one"), TEXT("two")}));
}

TEST(PythonCommandLine, QuotesKeepWordsTogether)
{
	FPythonCommandLine CommandLine;
	EXPECT_TRUE(FPythonCommandLine::Parse(TEXT("\"/my dir/tool.py\" 'a b' --title=\"c d\" ''"), CommandLine));
	EXPECT_EQ(CommandLine.FileName, TEXT("/my dir/tool.py"));
	EXPECT_EQ(CommandLine.Arguments, TArray<FString>({TEXT("a b"), TEXT("--title=c d"), TEXT("")}));
}

TEST(PythonCommandLine, AnythingElseIsPython)
{
	FPythonCommandLine CommandLine;
	EXPECT_FALSE(FPythonCommandLine::Parse(TEXT(""), CommandLine));
	EXPECT_FALSE(FPythonCommandLine::Parse(TEXT("   "), CommandLine));
	EXPECT_FALSE(FPythonCommandLine::Parse(TEXT("import tool; tool.py = 1"), CommandLine));
	EXPECT_FALSE(FPythonCommandLine::Parse(TEXT("x=\"a b.py\""), CommandLine));
	EXPECT_FALSE(FPythonCommandLine::Parse(TEXT("open('tool.py')"), CommandLine));
}
