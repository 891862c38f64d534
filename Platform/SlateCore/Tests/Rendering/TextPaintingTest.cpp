#include "Brushes/SlateColorBrush.h"
#include "Fonts/FontMeasure.h"
#include "RenderCanvas.h"

#include <gtest/gtest.h>

namespace
{

const FColor Black(0, 0, 0);
const FSlateFontInfo Font(nullptr, 9);

void PaintText(FRenderCanvas& Canvas, const TCHAR* Text, const FPaintGeometry& Geometry, const FSlateFontInfo& InFont = Font,
	const FLinearColor& Tint = FLinearColor::White)
{
	FSlateDrawElement::MakeText(Canvas.Begin(), 0, Geometry, FString(Text), InFont, ESlateDrawEffect::None, Tint);
	Canvas.Paint();
}

/** The smallest rectangle that holds everything that is not black. */
FIntRect FindInk(const FRenderCanvas& Canvas)
{
	FIntRect Ink(Canvas.Size, FIntPoint(0, 0));
	for (int32 Y = 0; Y < Canvas.Size.Y; ++Y)
	{
		for (int32 X = 0; X < Canvas.Size.X; ++X)
		{
			if (Canvas.At(X, Y) != Black)
			{
				Ink.Min = Ink.Min.ComponentMin(FIntPoint(X, Y));
				Ink.Max = Ink.Max.ComponentMax(FIntPoint(X + 1, Y + 1));
			}
		}
	}
	return Ink;
}

}

TEST(TextPainting, LettersLieWithinTheMeasuredSize)
{
	FRenderCanvas Canvas(FIntPoint(200, 40));
	PaintText(Canvas, TEXT("Hamburgefonts jpqy"), MakeGeometry(20, 10, 100, 14));
	const FVector2D Size = Canvas.Renderer->GetFontMeasureService()->Measure(TEXT("Hamburgefonts jpqy"), Font);
	const FIntRect Ink = FindInk(Canvas);
	EXPECT_GE(Ink.Min.X, 20);
	EXPECT_LE(Ink.Min.X, 22);
	EXPECT_GE(Ink.Min.Y, 10);
	EXPECT_LE(Ink.Max.X, 20 + int32(Size.X));
	EXPECT_GE(Ink.Max.X, 20 + int32(Size.X) - 3);
	EXPECT_LE(Ink.Max.Y, 10 + 14);
}

TEST(TextPainting, CapitalsStandOnTheBaseline)
{
	FRenderCanvas Canvas(FIntPoint(40, 40));
	PaintText(Canvas, TEXT("H"), MakeGeometry(10, 10, 20, 14));
	const FIntRect Ink = FindInk(Canvas);
	// Roboto's capitals are 1456 of 2048 units high: 8.5 pixels at 12, which hinting makes whole.
	EXPECT_EQ(Ink.Max.Y, 10 + 14 - 3);
	EXPECT_EQ(Ink.Height(), 9);
}

TEST(TextPainting, IsTheSameToTheByteEachTime)
{
	FRenderCanvas First(FIntPoint(200, 40));
	FRenderCanvas Second(FIntPoint(200, 40));
	PaintText(First, TEXT("Same \u0436 \u05D0\u05D1 picture"), MakeGeometry(3, 3, 100, 14));
	PaintText(Second, TEXT("something else first"), MakeGeometry(3, 3, 100, 14));
	PaintText(Second, TEXT("Same \u0436 \u05D0\u05D1 picture"), MakeGeometry(3, 3, 100, 14));
	EXPECT_EQ(First.Pixels, Second.Pixels);
	EXPECT_GT(First.CountOthers(Black), 100);
}

TEST(TextPainting, IsSmoothedInGrey)
{
	FRenderCanvas Canvas(FIntPoint(100, 20));
	PaintText(Canvas, TEXT("Smooth"), MakeGeometry(3, 3, 100, 14));
	for (const FColor& Pixel : Canvas.Pixels)
	{
		EXPECT_EQ(Pixel.R, Pixel.G);
		EXPECT_EQ(Pixel.G, Pixel.B);
	}
}

TEST(TextPainting, TheTintIsTheColourOfFullCoverage)
{
	FRenderCanvas Canvas(FIntPoint(100, 60));
	PaintText(Canvas, TEXT("\u2588"), MakeGeometry(3, 3, 100, 14), FSlateFontInfo(nullptr, 30), FLinearColor(0.5f, 0.0f, 0.0f));
	const FIntRect Ink = FindInk(Canvas);
	EXPECT_EQ(Canvas.At(Ink.Min.X + Ink.Width() / 2, Ink.Min.Y + Ink.Height() / 2), FColor(188, 0, 0));
}

TEST(TextPainting, ATranslucentTintLetsTheGroundShine)
{
	FRenderCanvas Canvas(FIntPoint(100, 60));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateColorBrush Ground(FLinearColor::White);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 100, 60), &Ground);
	FSlateDrawElement::MakeText(List, 1, MakeGeometry(3, 3, 100, 14), FString(TEXT("\u2588")), FSlateFontInfo(nullptr, 30),
		ESlateDrawEffect::None, FLinearColor(0.0f, 0.0f, 0.0f, 0.5f));
	Canvas.Paint();
	EXPECT_EQ(Canvas.At(12, 24), FColor(127, 127, 127));
}

TEST(TextPainting, ARangeOfATextIsPaintedAlone)
{
	FRenderCanvas Whole(FIntPoint(100, 20));
	FRenderCanvas Part(FIntPoint(100, 20));
	PaintText(Whole, TEXT("middle"), MakeGeometry(3, 3, 100, 14));
	FSlateDrawElement::MakeText(Part.Begin(), 0, MakeGeometry(3, 3, 100, 14), FString(TEXT("in the middle of it")), 7, 13, Font);
	Part.Paint();
	EXPECT_EQ(Whole.Pixels, Part.Pixels);
}

TEST(TextPainting, ShapedTextLooksLikeTheText)
{
	FRenderCanvas Plain(FIntPoint(100, 20));
	FRenderCanvas Shaped(FIntPoint(100, 20));
	PaintText(Plain, TEXT("shaped"), MakeGeometry(3, 3, 100, 14));
	FSlateDrawElement::MakeShapedText(Shaped.Begin(), 0, MakeGeometry(3, 3, 100, 14),
		Shaped.Renderer->GetFontCache()->ShapeBidirectionalText(TEXT("shaped"), Font, 1.0f));
	Shaped.Paint();
	EXPECT_EQ(Plain.Pixels, Shaped.Pixels);
}

TEST(TextPainting, TheEndOfAVeryLongLineIsSeenWhereItIsMovedIntoView)
{
	FString Zeros;
	for (int32 Index = 0; Index < 240000; ++Index)
	{
		Zeros += TEXT("0");
	}
	FRenderCanvas Canvas(FIntPoint(100, 20));
	const double Width = Canvas.Renderer->GetFontMeasureService()->Measure(Zeros, Font).X;
	ASSERT_GT(Width, 1.5e6);
	PaintText(Canvas, *Zeros, MakeGeometry(50.0 - Width, 3.0, 100.0, 14.0));
	EXPECT_LE(FindInk(Canvas).Min.X, 1);
	EXPECT_NEAR(FindInk(Canvas).Max.X, 50, 2);
}

TEST(TextPainting, AnOutlineSurroundsTheLettersInItsColour)
{
	FRenderCanvas Canvas(FIntPoint(100, 60));
	PaintText(Canvas, TEXT("\u2588"), MakeGeometry(10, 10, 100, 14),
		FSlateFontInfo(nullptr, 18, NAME_None, FFontOutlineSettings(2, FLinearColor::Red)));
	const FIntRect Ink = FindInk(Canvas);
	EXPECT_EQ(Canvas.At(Ink.Min.X + Ink.Width() / 2, Ink.Min.Y + Ink.Height() / 2), FColor(255, 255, 255));
	EXPECT_EQ(Canvas.At(Ink.Min.X + Ink.Width() / 2, Ink.Min.Y + 1), FColor(255, 0, 0));
}

TEST(TextPainting, ACharacterThatNoFontHasIsABox)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintText(Canvas, TEXT("\U000F1234"), MakeGeometry(5, 5, 100, 14));
	const FIntRect Ink = FindInk(Canvas);
	EXPECT_GT(Ink.Width(), 3);
	EXPECT_EQ(Canvas.At(Ink.Min.X, Ink.Min.Y), FColor(255, 255, 255));
	EXPECT_EQ(Canvas.At(Ink.Min.X + 2, Ink.Min.Y + 2), Black);
}

TEST(TextPainting, FontWithoutASizePaintsLettersThatCanBeRead)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintText(Canvas, TEXT("none"), MakeGeometry(5, 5, 100, 14), FSlateFontInfo(nullptr, -1));
	EXPECT_GT(FindInk(Canvas).Height(), 4);
}

TEST(TextPainting, SizeOutOfReasonPaintsSomethingOrNothingButDoesNotFail)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintText(Canvas, TEXT("\u2588"), MakeGeometry(-100, -400, 100, 14), FSlateFontInfo(nullptr, 1000000));
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 255, 255)), 0);
}
