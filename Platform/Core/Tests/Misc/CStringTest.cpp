#include "CoreMinimal.h"
#include "Misc/DefaultValueHelper.h"

#include <gtest/gtest.h>

TEST(CString, AtoiReadsALeadingIntegerOrZero)
{
	EXPECT_EQ(FCString::Atoi(TEXT(" -12abc")), -12);
	EXPECT_EQ(FCString::Atoi(TEXT("abc")), 0);
	EXPECT_EQ(FCString::Atoi(TEXT("")), 0);
	EXPECT_EQ(FCString::Atoi(TEXT("99999999999")), MAX_int32);
	EXPECT_EQ(FCString::Atoi64(TEXT("99999999999")), 99999999999);
	EXPECT_EQ(FCString::Atof(TEXT("2.5x")), 2.5f);
}

TEST(CString, ToBoolKnowsThreeWordsAndNonZeroIntegers)
{
	for (const TCHAR* Text : {TEXT("True"), TEXT("yes"), TEXT("ON"), TEXT("1"), TEXT("-3")})
	{
		EXPECT_TRUE(FCString::ToBool(Text)) << TCHAR_TO_UTF8(Text);
	}
	for (const TCHAR* Text : {TEXT(""), TEXT("False"), TEXT("0"), TEXT("0.5"), TEXT("truely"), TEXT("y")})
	{
		EXPECT_FALSE(FCString::ToBool(Text)) << TCHAR_TO_UTF8(Text);
	}
}

TEST(CString, StrtoiTellsWhereTheNumberEnds)
{
	const TCHAR* const Text = TEXT("ffz");
	TCHAR* End = nullptr;
	EXPECT_EQ(FCString::Strtoi(Text, &End, 16), 255);
	EXPECT_EQ(End, Text + 2);
}

TEST(CString, ComparesAndFindsWithAndWithoutCase)
{
	EXPECT_EQ(FCString::Stricmp(TEXT("Straße"), TEXT("sTRAßE")), 0);
	EXPECT_NE(FCString::Strcmp(TEXT("a"), TEXT("A")), 0);
	EXPECT_EQ(FCString::Strnicmp(TEXT("abcX"), TEXT("ABCY"), 3), 0);
	EXPECT_LT(FCString::Stricmp(TEXT("ab"), TEXT("abc")), 0);
	const TCHAR* const Text = TEXT("one Two");
	EXPECT_EQ(FCString::Stristr(Text, TEXT("two")), Text + 4);
	EXPECT_EQ(FCString::Strstr(Text, TEXT("two")), nullptr);
	EXPECT_EQ(FCString::Strchr(Text, u'x'), nullptr);
	EXPECT_EQ(FCString::Strrchr(Text, u'o'), Text + 6);
}

TEST(DefaultValueHelper, ParseIntWantsTheWholeTextButAllowsBlanksAround)
{
	int32 Value = 7;
	EXPECT_TRUE(FDefaultValueHelper::ParseInt(TEXT("  -42 "), Value));
	EXPECT_EQ(Value, -42);
	EXPECT_TRUE(FDefaultValueHelper::ParseInt(TEXT("+2147483647"), Value));
	EXPECT_EQ(Value, MAX_int32);
	for (const TCHAR* Text :
		{TEXT(""), TEXT(" "), TEXT("-"), TEXT("1.0"), TEXT("12a"), TEXT("1 2"), TEXT("2147483648"), TEXT("--1")})
	{
		EXPECT_FALSE(FDefaultValueHelper::ParseInt(Text, Value)) << TCHAR_TO_UTF8(Text);
	}
	EXPECT_EQ(Value, MAX_int32);
}

TEST(DefaultValueHelper, ParseFloatTakesExponentAndSuffix)
{
	float Value = 0;
	EXPECT_TRUE(FDefaultValueHelper::ParseFloat(TEXT(" -1.5e2f "), Value));
	EXPECT_EQ(Value, -150.0f);
	EXPECT_TRUE(FDefaultValueHelper::ParseFloat(TEXT(".5"), Value));
	EXPECT_EQ(Value, 0.5f);
	for (const TCHAR* Text : {TEXT(""), TEXT("."), TEXT("1e"), TEXT("1.2.3"), TEXT("nan"), TEXT("0x10")})
	{
		EXPECT_FALSE(FDefaultValueHelper::ParseFloat(Text, Value)) << TCHAR_TO_UTF8(Text);
	}
}
