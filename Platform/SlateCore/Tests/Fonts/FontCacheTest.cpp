#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"
#include "Fonts/SlateFontInfo.h"

#include <gtest/gtest.h>

namespace
{

const FSlateFontInfo Font(nullptr, 9);

}

TEST(FontCache, ATextIsShapedOnce)
{
	const FSlateFontCache Cache;
	const FShapedGlyphSequenceRef First = Cache.ShapeBidirectionalText(TEXT("Again"), Font, 1.0f);
	const FShapedGlyphSequenceRef Second = Cache.ShapeBidirectionalText(TEXT("Again"), Font, 1.0f);
	EXPECT_EQ(First, Second);
	EXPECT_EQ(Cache.GetNumShapedTexts(), 1u);
}

TEST(FontCache, APartOfALongerTextIsTheSameTextAsThePartAlone)
{
	const FSlateFontCache Cache;
	const FShapedGlyphSequenceRef Alone = Cache.ShapeBidirectionalText(TEXT("part"), Font, 1.0f);
	EXPECT_EQ(Cache.ShapeBidirectionalText(TEXT("a part of it"), 2, 4, Font, 1.0f), Alone);
}

TEST(FontCache, TextsDifferByCaseFontSizeScaleAndOutline)
{
	const FSlateFontCache Cache;
	Cache.ShapeBidirectionalText(TEXT("text"), Font, 1.0f);
	Cache.ShapeBidirectionalText(TEXT("Text"), Font, 1.0f);
	Cache.ShapeBidirectionalText(TEXT("text"), FSlateFontInfo(nullptr, 10), 1.0f);
	Cache.ShapeBidirectionalText(TEXT("text"), Font, 1.5f);
	Cache.ShapeBidirectionalText(TEXT("text"), FSlateFontInfo(nullptr, 9, NAME_None, FFontOutlineSettings(1)), 1.0f);
	EXPECT_EQ(Cache.GetNumShapedTexts(), 5u);
}

TEST(FontCache, TheNumberOfKeptTextsIsBounded)
{
	const FSlateFontCache Cache;
	const FShapedGlyphSequenceRef Held = Cache.ShapeBidirectionalText(TEXT("held"), Font, 1.0f);
	for (int32 Index = 0; Index < 20000; ++Index)
	{
		Cache.ShapeBidirectionalText(FString::Printf(TEXT("%d"), Index), Font, 1.0f);
		Cache.ShapeBidirectionalText(TEXT("often"), Font, 1.0f);
	}
	EXPECT_LE(Cache.GetNumCachedTexts(), 8192);
	// What is asked for again and again stays, what is held stays whole.
	EXPECT_EQ(Cache.GetNumShapedTexts(), 20002u);
	EXPECT_GT(Held->GetMeasuredWidth(), 0.0f);
}

TEST(FontCache, ManyFontsAreForgottenAndFoundAgain)
{
	const FSlateFontCache Cache;
	const float Width = Cache.ShapeBidirectionalText(TEXT("text"), Font, 1.0f)->GetMeasuredWidth();
	for (int32 Size = 1; Size < 400; ++Size)
	{
		Cache.ShapeBidirectionalText(TEXT("text"), FSlateFontInfo(nullptr, Size), 1.0f);
	}
	EXPECT_EQ(Cache.ShapeBidirectionalText(TEXT("text"), Font, 1.0f)->GetMeasuredWidth(), Width);
}

TEST(FontCache, KeptTextsAreBoundedInLengthToo)
{
	const FSlateFontCache Cache;
	FString Line;
	for (int32 Index = 0; Index < 2000; ++Index)
	{
		Line = FString::Printf(TEXT("%d"), Index);
		while (Line.Len() < 500)
		{
			Line += TEXT(" and so on");
		}
		Cache.ShapeBidirectionalText(Line, Font, 1.0f);
	}
	EXPECT_LE(Cache.GetNumCachedTexts(), 1200);
}

TEST(TextShaping, SimpleAndItemisedTextAgree)
{
	const FSlateFontCache Cache;
	const FShapedGlyphSequenceRef Simple = Cache.ShapeBidirectionalText(TEXT("Wave Toast"), Font, 1.0f);
	// The joiner takes the same words through full itemisation and has no width itself.
	const FShapedGlyphSequenceRef Itemised = Cache.ShapeBidirectionalText(TEXT("Wave Toast\u2060"), Font, 1.0f);
	EXPECT_FLOAT_EQ(Simple->GetMeasuredWidth(), Itemised->GetMeasuredWidth(0, 10));
}

TEST(TextShaping, MissingCharactersComeFromOtherFonts)
{
	const FSlateFontCache Cache;
	// Roboto has no Hebrew and no arrows of this kind; DejaVu Sans has both.
	const FShapedGlyphSequenceRef Shaped = Cache.ShapeBidirectionalText(TEXT("a \u05D0 \u21C4"), Font, 1.0f);
	EXPECT_GE(Shaped->GetFaces().Num(), 2);
	for (const FShapedGlyphEntry& Glyph : Shaped->GetGlyphs())
	{
		EXPECT_FALSE(Glyph.bIsMissing);
	}
	EXPECT_EQ(Shaped->GetMaxTextHeight(), 14);
}

TEST(TextShaping, ChineseAndJapaneseHaveTheirCharacters)
{
	const FSlateFontCache Cache;
	for (const FShapedGlyphEntry& Glyph :
		Cache.ShapeBidirectionalText(TEXT("\u786E\u5B9A \u3053\u3093"), Font, 1.0f)->GetGlyphs())
	{
		EXPECT_FALSE(Glyph.bIsMissing);
	}
}

TEST(TextShaping, RightToLeftTextIsInVisualOrderWithWidthsInReadingOrder)
{
	const FSlateFontCache Cache;
	const FShapedGlyphSequenceRef Wide = Cache.ShapeBidirectionalText(TEXT("\u05E9"), Font, 1.0f);
	const FShapedGlyphSequenceRef Shaped = Cache.ShapeBidirectionalText(TEXT("\u05E9\u05D9"), Font, 1.0f);
	ASSERT_EQ(Shaped->GetGlyphs().Num(), 2);
	EXPECT_EQ(Shaped->GetGlyphs()[1].GlyphIndex, Wide->GetGlyphs()[0].GlyphIndex);
	EXPECT_FLOAT_EQ(Shaped->GetMeasuredWidth(0, 1), Wide->GetMeasuredWidth());
}

TEST(TextShaping, CaretAndSpansFollowTheDirectionOfEachRun)
{
	const FSlateFontCache Cache;
	// Two Latin letters, a blank, three Hebrew letters.
	const FShapedGlyphSequenceRef Mixed = Cache.ShapeBidirectionalText(TEXT("ab \u05D0\u05D1\u05D2"), Font, 1.0f);
	const float Latin = Mixed->GetMeasuredWidth(0, 3);
	const float Whole = Mixed->GetMeasuredWidth();
	ASSERT_TRUE(Mixed->HasRightToLeft());

	EXPECT_FLOAT_EQ(Mixed->GetCaretOffset(1), Mixed->GetMeasuredWidth(0, 1));
	EXPECT_FLOAT_EQ(Mixed->GetCaretOffset(3), Whole) << "in front of the first Hebrew letter is at its right";
	EXPECT_FLOAT_EQ(Mixed->GetCaretOffset(4), Whole - Mixed->GetMeasuredWidth(3, 4));
	EXPECT_FLOAT_EQ(Mixed->GetCaretOffset(6), Latin) << "behind the last one is at its left";
	EXPECT_EQ(Mixed->GetCaretAtOffset(0.0f), 0);
	EXPECT_EQ(Mixed->GetCaretAtOffset(Whole), 3);
	EXPECT_EQ(Mixed->GetCaretAtOffset(Whole - Mixed->GetMeasuredWidth(3, 4)), 4);

	// "b", the blank and the first Hebrew letter, which stands at the far right.
	const TArray<FVector2D> Spans = Mixed->GetSpans(1, 4);
	ASSERT_EQ(Spans.Num(), 2);
	EXPECT_FLOAT_EQ(Spans[0].X, Mixed->GetMeasuredWidth(0, 1));
	EXPECT_FLOAT_EQ(Spans[0].Y, Latin);
	EXPECT_FLOAT_EQ(Spans[1].X, Whole - Mixed->GetMeasuredWidth(3, 4));
	EXPECT_FLOAT_EQ(Spans[1].Y, Whole);
}

TEST(TextShaping, ArabicLettersJoin)
{
	const FSlateFontCache Cache;
	const float Alone = Cache.ShapeBidirectionalText(TEXT("\u0628"), Font, 1.0f)->GetMeasuredWidth();
	const float Joined = Cache.ShapeBidirectionalText(TEXT("\u0628\u0628\u0628"), Font, 1.0f)->GetMeasuredWidth();
	EXPECT_LT(Joined, Alone * 2.9f);
}

TEST(TextShaping, ACombiningAccentSharesTheWidthOfItsLetter)
{
	const FSlateFontCache Cache;
	const float Plain = Cache.ShapeBidirectionalText(TEXT("e"), Font, 1.0f)->GetMeasuredWidth();
	const float Accented = Cache.ShapeBidirectionalText(TEXT("e\u0301"), Font, 1.0f)->GetMeasuredWidth();
	EXPECT_NEAR(Plain, Accented, 0.1f);
}

TEST(TextShaping, ALoneSurrogateIsShownAsAReplacement)
{
	const FSlateFontCache Cache;
	const TCHAR Text[] = {TCHAR('a'), TCHAR(0xD800), TCHAR('b'), TCHAR(0xDC00), 0};
	const FShapedGlyphSequenceRef Shaped = Cache.ShapeBidirectionalText(Text, 0, 4, Font, 1.0f);
	EXPECT_GT(Shaped->GetMeasuredWidth(1, 2), 0.0f);
	EXPECT_GT(Shaped->GetMeasuredWidth(3, 4), 0.0f);
}

TEST(TextShaping, CharactersThatNoFontHasKeepAWidth)
{
	const FSlateFontCache Cache;
	// A private character beyond 16 bits: one cluster of two units.
	const FShapedGlyphSequenceRef Shaped = Cache.ShapeBidirectionalText(TEXT("\U000F1234"), Font, 1.0f);
	ASSERT_EQ(Shaped->GetGlyphs().Num(), 1);
	EXPECT_TRUE(Shaped->GetGlyphs()[0].bIsMissing);
	EXPECT_GT(Shaped->GetMeasuredWidth(), 2.0f);
}
