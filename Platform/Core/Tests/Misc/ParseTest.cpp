#include "Misc/Parse.h"

#include <gtest/gtest.h>

#include "Misc/CommandLine.h"

namespace
{
FString ValueOf(const TCHAR* Stream, const TCHAR* Match, bool bStop = true)
{
	FString Value(TEXT("untouched"));
	FParse::Value(Stream, Match, Value, bStop);
	return Value;
}

TArray<FString> Tokens(const TCHAR* Text, bool bEscape)
{
	TArray<FString> Result;
	for (FString Token; FParse::Token(Text, Token, bEscape);)
	{
		Result.Add(Token);
	}
	return Result;
}

FString Unquoted(const TCHAR* Text)
{
	FString Value(TEXT("untouched"));
	FParse::QuotedString(Text, Value);
	return Value;
}
}

TEST(Parse, ValueOfASwitchInAnyCase)
{
	EXPECT_EQ(ValueOf(TEXT("Game.uproject -ABSLOG=/tmp/Run.log -stdout"), TEXT("abslog=")), FString(TEXT("/tmp/Run.log")));
	EXPECT_EQ(ValueOf(TEXT("-script=\"a.py one two\" -x"), TEXT("script=")), FString(TEXT("a.py one two")));
	EXPECT_EQ(ValueOf(TEXT("-other=1"), TEXT("abslog=")), FString(TEXT("untouched")));
	EXPECT_EQ(ValueOf(TEXT("-notlog=1 -log=2"), TEXT("log=")), FString(TEXT("2")));
}

TEST(Parse, ValueEndsAtASeparatorUnlessTold)
{
	EXPECT_EQ(ValueOf(TEXT("-run=a,b)"), TEXT("run=")), FString(TEXT("a")));
	EXPECT_EQ(ValueOf(TEXT("-run=a,b)"), TEXT("run="), false), FString(TEXT("a,b)")));
}

TEST(Parse, NumbersOfAColorText)
{
	float Red = 0.0f;
	float Green = 0.0f;
	float Missing = 0.25f;
	int32 Count = 0;
	EXPECT_TRUE(FParse::Value(TEXT("(R=0.5,G=1.0)"), TEXT("R="), Red));
	EXPECT_TRUE(FParse::Value(TEXT("(R=0.5,G=1.0)"), TEXT("G="), Green));
	EXPECT_FALSE(FParse::Value(TEXT("(R=0.5,G=1.0)"), TEXT("A="), Missing));
	EXPECT_TRUE(FParse::Value(TEXT("count=12"), TEXT("Count="), Count));
	EXPECT_EQ(Red, 0.5f);
	EXPECT_EQ(Green, 1.0f);
	EXPECT_EQ(Missing, 0.25f);
	EXPECT_EQ(Count, 12);
}

TEST(Parse, SwitchIsAWordOfItsOwnBehindItsMark)
{
	EXPECT_TRUE(FParse::Param(TEXT("Game.uproject -Unattended"), TEXT("unattended")));
	EXPECT_TRUE(FParse::Param(TEXT("-stdout -x"), TEXT("stdout")));
	EXPECT_TRUE(FParse::Param(TEXT("/stdout"), TEXT("stdout")));
	EXPECT_FALSE(FParse::Param(TEXT("-stdoutput"), TEXT("stdout")));
	EXPECT_FALSE(FParse::Param(TEXT("stdout"), TEXT("stdout")));
	EXPECT_FALSE(FParse::Param(TEXT("/dev/stdout"), TEXT("stdout")));
}

TEST(Parse, TokensAreWordsOrQuotedTexts)
{
	EXPECT_EQ(Tokens(TEXT("  one \"two three\" four"), false), TArray<FString>({TEXT("one"), TEXT("two three"), TEXT("four")}));
	EXPECT_EQ(Tokens(TEXT("\"say \\\"hi\\\"\" x"), true), TArray<FString>({TEXT("say \"hi\""), TEXT("x")}));
	EXPECT_EQ(Tokens(TEXT("\"open end"), false), TArray<FString>({TEXT("open end")}));
	EXPECT_EQ(Tokens(TEXT("   "), false), TArray<FString>());
}

TEST(Parse, CommandIsAWholeWord)
{
	const TCHAR* Text = TEXT("  Log  LogTemp");
	EXPECT_FALSE(FParse::Command(&Text, TEXT("Lo")));
	EXPECT_TRUE(FParse::Command(&Text, TEXT("LOG")));
	EXPECT_EQ(FString(Text), FString(TEXT("LogTemp")));
}

TEST(Parse, QuotedStringResolvesEscapes)
{
	EXPECT_EQ(Unquoted(TEXT("\"a\\\"b\\\\c\\nd\\te\" rest")), FString(TEXT("a\"b\\c\nd\te")));
	EXPECT_EQ(Unquoted(TEXT("\"open")), FString(TEXT("untouched")));
	EXPECT_EQ(Unquoted(TEXT("plain")), FString(TEXT("untouched")));

	FString Value;
	int32 Length = 0;
	EXPECT_TRUE(FParse::QuotedString(TEXT("\"ab\"c"), Value, &Length));
	EXPECT_EQ(Length, 4);
}

TEST(CommandLine, ArgumentsWithBlanksGetQuotes)
{
	const ANSICHAR* const Arguments[] = {
		"/bin/Editor", "/home/My Game/G.uproject", "-ExecutePythonScript=a.py one", "-stdout", "b=c d", ""};
	EXPECT_EQ(FCommandLine::BuildFromArgV(6, Arguments),
		FString(TEXT("\"/home/My Game/G.uproject\" -ExecutePythonScript=\"a.py one\" -stdout \"b=c d\" \"\"")));
}
