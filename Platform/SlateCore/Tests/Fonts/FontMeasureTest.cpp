#include "Fonts/CompositeFont.h"
#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"
#include "Fonts/SlateFontInfo.h"
#include "LogCapture.h"
#include "Styling/CoreStyle.h"
#include "Misc/Paths.h"

#include <gtest/gtest.h>

namespace
{

TSharedRef<const FCompositeFont> MakeRoboto()
{
	const TSharedRef<FStandaloneCompositeFont> Font = MakeShared<FStandaloneCompositeFont>();
	Font->DefaultTypeface.AppendFont(TEXT("Regular"), TEXT("Roboto"))
		.AppendFont(TEXT("Bold"), TEXT("Roboto:bold"))
		.AppendFont(TEXT("Black"), TEXT("Roboto:black"))
		.AppendFont(TEXT("Light"), TEXT("Roboto:light"));
	return Font;
}

class FontMeasure : public testing::Test
{
protected:
	FSlateFontInfo MakeFont(int32 Size, const TCHAR* Face = TEXT("Regular")) const { return FSlateFontInfo(Roboto, Size, Face); }
	double Width(const TCHAR* Text, const FSlateFontInfo& Font) const { return Measure->Measure(Text, Font).X; }

	const TSharedRef<const FCompositeFont> Roboto = MakeRoboto();
	const TSharedRef<FSlateFontCache> Cache = MakeShared<FSlateFontCache>();
	const TSharedRef<FSlateFontMeasure> Measure = FSlateFontMeasure::Create(Cache);
};

}

// Engine fact: font sizes are points at 96 dpi, size 9 is 12 pixels.
TEST_F(FontMeasure, SizeNineIsTwelvePixels)
{
	EXPECT_EQ(MakeFont(9).GetPixelSize(), 12.0f);
	// Roboto's ascent is 1900 of 2048 units, its descent 500.
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(9)), 14);
	EXPECT_EQ(Measure->GetBaseline(MakeFont(9)), -3);
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(9), 2.0f), 28);
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(18)), 28);
}

TEST_F(FontMeasure, WidthFollowsTheFontsAdvances)
{
	// "0" of Roboto is 1150 of 2048 units wide, at 12 pixels 6.738, of which fonts keep 64ths: 6.75.
	FString Zeros;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Zeros += TEXT("0");
	}
	EXPECT_EQ(Measure->Measure(Zeros, MakeFont(9)), FVector2D(675.0, 14.0));
	EXPECT_EQ(Measure->Measure(Zeros, MakeFont(9), 2.0f).X, 1349.0);
}

TEST_F(FontMeasure, EmptyTextHasTheHeightOfALine)
{
	EXPECT_EQ(Measure->Measure(FString(), MakeFont(9)), FVector2D(0.0, 14.0));
}

TEST_F(FontMeasure, LinesAddUpAndTheWidestCounts)
{
	const FVector2D Size = Measure->Measure(TEXT("wide line\nw"), MakeFont(9));
	EXPECT_EQ(Size, FVector2D(Width(TEXT("wide line"), MakeFont(9)), 28.0));
	EXPECT_EQ(Measure->Measure(TEXT("w\n"), MakeFont(9)).Y, 28.0);
}

TEST_F(FontMeasure, FacesDiffer)
{
	const double Regular = Width(TEXT("Hamburgefonts"), MakeFont(20));
	EXPECT_GT(Width(TEXT("Hamburgefonts"), MakeFont(20, TEXT("Bold"))), Regular);
	EXPECT_GT(
		Width(TEXT("Hamburgefonts"), MakeFont(20, TEXT("Black"))), Width(TEXT("Hamburgefonts"), MakeFont(20, TEXT("Bold"))));
	EXPECT_NE(Width(TEXT("Hamburgefonts"), MakeFont(20, TEXT("Light"))), Regular);
}

// Engine fact: an unknown face falls back to the first.
TEST_F(FontMeasure, AnUnknownFaceIsTheFirst)
{
	EXPECT_EQ(Width(TEXT("Hamburgefonts"), MakeFont(20, TEXT("NoSuchFace"))), Width(TEXT("Hamburgefonts"), MakeFont(20)));
	EXPECT_EQ(Width(TEXT("Hamburgefonts"), FSlateFontInfo(nullptr, 20)), Width(TEXT("Hamburgefonts"), MakeFont(20)));
	const TSharedRef<FStandaloneCompositeFont> Faceless = MakeShared<FStandaloneCompositeFont>();
	EXPECT_EQ(Width(TEXT("Hamburgefonts"), FSlateFontInfo(Faceless, 20)), Width(TEXT("Hamburgefonts"), MakeFont(20)));
}

TEST_F(FontMeasure, AFaceMayBeAFileAndAMissingFileIsReplaced)
{
	const TSharedRef<FStandaloneCompositeFont> Font = MakeShared<FStandaloneCompositeFont>();
	Font->DefaultTypeface.AppendFont(TEXT("File"), TEXT("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf"))
		.AppendFont(TEXT("Missing"), TEXT("/nowhere/Missing.ttf"));
	const FSlateFontInfo Mono(Font, 20, TEXT("File"));
	EXPECT_EQ(Width(TEXT("iiii"), Mono), Width(TEXT("WWWW"), Mono));
	EXPECT_GT(Width(TEXT("iiii"), FSlateFontInfo(Font, 20, TEXT("Missing"))), 0.0);
}

TEST_F(FontMeasure, ASizeOutOfReasonDrawsOneWarning)
{
	const FLogCapture Log(TEXT("LogSlateFonts"));
	const FSlateFontInfo Huge = MakeFont(123456);
	const FSlateFontInfo Nothing = MakeFont(-3);

	Measure->Measure(TEXT("a"), Huge);
	Measure->Measure(TEXT("b"), Huge);
	Measure->Measure(TEXT("a"), Nothing);

	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({
			TEXT("A font of size 123456 cannot be drawn; letters of 1024 pixels are used."),
			TEXT("A font of size -3 cannot be drawn; letters of 13 pixels are used."),
		}));
}

TEST_F(FontMeasure, FontWithoutASizeIsAsLargeAsRegularTextWithoutAWord)
{
	const FLogCapture Log(TEXT("LogSlateFonts"));

	EXPECT_EQ(
		Measure->Measure(TEXT("Text"), MakeFont(-1)), Measure->Measure(TEXT("Text"), MakeFont(FCoreStyle::RegularTextSize)));

	EXPECT_EQ(Log.Warnings(), TArray<FString>());
}

// Engine fact: a size of zero or less must not crash.
TEST_F(FontMeasure, SizesOutOfReasonAreBounded)
{
	EXPECT_GT(Measure->GetMaxCharacterHeight(MakeFont(0)), 0);
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(-1)), Measure->GetMaxCharacterHeight(MakeFont(0)));
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(9), 0.0f), 1);
	EXPECT_EQ(Measure->GetMaxCharacterHeight(MakeFont(2000000000)), Measure->GetMaxCharacterHeight(MakeFont(10000)));
}

TEST_F(FontMeasure, PartsOfATextAddUpToTheWhole)
{
	const FString Text = TEXT("AVAToWa fi ffl");
	const FShapedGlyphSequenceRef Shaped = Cache->ShapeBidirectionalText(Text, MakeFont(12), 1.0f);
	for (int32 Split = 0; Split <= Text.Len(); ++Split)
	{
		EXPECT_FLOAT_EQ(
			Shaped->GetMeasuredWidth(0, Split) + Shaped->GetMeasuredWidth(Split, Text.Len()), Shaped->GetMeasuredWidth());
	}
	EXPECT_EQ(Shaped->GetMeasuredWidth(-5, 100), Shaped->GetMeasuredWidth());
	EXPECT_EQ(Shaped->GetMeasuredWidth(9, 3), 0.0f);
}

TEST_F(FontMeasure, CharactersAreFoundByTheirOffset)
{
	const FString Text = TEXT("0000000000");
	const FSlateFontInfo Font = MakeFont(12);
	// A "0" at 16 pixels is 8.98 pixels wide.
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, 0), 0);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, 4), 0);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, 5), 1);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, 13), 1);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, 1000), 10);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, 4, 8, Font, 1000), 8);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(Text, Font, -20), 0);
	EXPECT_EQ(Measure->FindLastWholeCharacterIndexBeforeOffset(Text, Font, 8), INDEX_NONE);
	EXPECT_EQ(Measure->FindLastWholeCharacterIndexBeforeOffset(Text, Font, 9), 0);
	EXPECT_EQ(Measure->FindLastWholeCharacterIndexBeforeOffset(Text, Font, 18), 1);
	EXPECT_EQ(Measure->FindLastWholeCharacterIndexBeforeOffset(Text, Font, 1000), 9);
}

TEST_F(FontMeasure, ATabIsFourBlanksWideAndOtherControlsHaveNoWidth)
{
	const FShapedGlyphSequenceRef Shaped = Cache->ShapeBidirectionalText(TEXT("a\tb\r\x01"), MakeFont(12), 1.0f);
	const FShapedGlyphSequenceRef Blank = Cache->ShapeBidirectionalText(TEXT(" "), MakeFont(12), 1.0f);
	EXPECT_FLOAT_EQ(Shaped->GetMeasuredWidth(1, 2), Blank->GetMeasuredWidth() * 4.0f);
	EXPECT_EQ(Shaped->GetMeasuredWidth(3, 5), 0.0f);
}
