#include "CoreMinimal.h"

#include <gtest/gtest.h>

TEST(StringConv, Utf8AndBackKeepsEveryPlane)
{
	const FString Text = TEXT("aß€😀");
	const FTCHARToUTF8 Utf8(*Text);
	EXPECT_STREQ(Utf8.Get(), "a\xC3\x9F\xE2\x82\xAC\xF0\x9F\x98\x80");
	EXPECT_EQ(Utf8.Length(), 10);
	EXPECT_TRUE(FString(UTF8_TO_TCHAR(Utf8.Get())).Equals(Text));
}

TEST(StringConv, EachBadByteBecomesAQuestionMark)
{
	EXPECT_EQ(FString(UTF8_TO_TCHAR("a\xFF"
									"b")),
		TEXT("a?b"));
	EXPECT_EQ(FString(UTF8_TO_TCHAR("\xE2\x82"
									"b")),
		TEXT("??b"));
	EXPECT_EQ(FString(UTF8_TO_TCHAR("\xC0\xAF")), TEXT("??")) << "an overlong form";
	EXPECT_EQ(FString(UTF8_TO_TCHAR("\xED\xA0\x80")), TEXT("???")) << "a surrogate";
	EXPECT_EQ(FString(UTF8_TO_TCHAR("\xF4\x90\x80\x80")), TEXT("????")) << "behind the last code point";
	EXPECT_EQ(FString(UTF8_TO_TCHAR("x\xC3")), TEXT("x?")) << "cut off";
}

TEST(StringConv, HalfASurrogatePairBecomesAQuestionMark)
{
	const TCHAR Halves[] = {0xD83D, u'a', 0xDE00, 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(Halves), "?a?");
}

TEST(StringConv, OtherCharactersAreFoundAtEveryOffset)
{
	for (int32 Offset = 0; Offset < 20; ++Offset)
	{
		const FString Text = FString::ChrN(Offset, u'a') + TEXT("ü") + FString::ChrN(20 - Offset, u'b');
		const FTCHARToUTF8 Utf8(*Text);
		EXPECT_EQ(Utf8.Length(), 22);
		EXPECT_TRUE(FString(Utf8.Get()).Equals(Text)) << Offset;
	}
}

TEST(StringConv, LongTextsAndGivenLengthsWork)
{
	const FString Long = FString::ChrN(1000, u'€');
	EXPECT_EQ(FTCHARToUTF8(*Long).Length(), 3000);
	EXPECT_EQ(FUTF8ToTCHAR("abcdef", 3).Length(), 3);
	EXPECT_EQ(FString(3, "abcdef"), TEXT("abc"));
}
