#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "LogCapture.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "RenderCanvas.h"

#include <gtest/gtest.h>

namespace
{

const FColor Black(0, 0, 0);
const FColor White(255, 255, 255);

/** A drawing of 12 x 12 pixels: a red frame 3 pixels wide around a green centre. */
FString WriteFramePicture()
{
	const FString Path = FPaths::ProjectSavedDir() / TEXT("Frame.svg");
	const FString Drawing = TEXT("<svg xmlns='http://www.w3.org/2000/svg' width='12' height='12'>")
		TEXT("<rect width='12' height='12' fill='#ff0000'/><rect x='3' y='3' width='6' height='6' fill='#00ff00'/></svg>");
	verify(FFileHelper::SaveStringToFile(Drawing, *Path, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
	return Path;
}

void PaintBrush(FRenderCanvas& Canvas, const FSlateBrush& Brush, const FPaintGeometry& Geometry,
	const FLinearColor& Tint = FLinearColor::White, ESlateDrawEffect Effects = ESlateDrawEffect::None)
{
	FSlateDrawElement::MakeBox(Canvas.Begin(), 0, Geometry, &Brush, Effects, Tint);
	Canvas.Paint();
}

}

TEST(BoxPainting, AWindowIsBlackBeforeAnythingIsPainted)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	Canvas.Begin();
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(Black), 0);
}

TEST(BoxPainting, LinearColoursAreEncodedInSrgb)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	PaintBrush(Canvas, FSlateColorBrush(FLinearColor::White), MakeGeometry(0, 0, 4, 4), FLinearColor(0.5f, 1.0f, 0.0f));
	EXPECT_EQ(Canvas.CountOthers(FColor(188, 255, 0)), 0);
}

TEST(BoxPainting, EveryEightBitColourSurvivesTheWayThroughLinear)
{
	FRenderCanvas Canvas(FIntPoint(256, 1));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateColorBrush Brush(FLinearColor::White);
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const FColor Color(uint8(Value), uint8(255 - Value), 0);
		FSlateDrawElement::MakeBox(List, 0, MakeGeometry(Value, 0, 1, 1), &Brush, ESlateDrawEffect::None, FLinearColor(Color));
	}
	Canvas.Paint();
	for (int32 Value = 0; Value < 256; ++Value)
	{
		EXPECT_EQ(Canvas.At(Value, 0), FColor(uint8(Value), uint8(255 - Value), 0));
	}
}

TEST(BoxPainting, BlendingIsDoneOnEncodedColours)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	PaintBrush(Canvas, FSlateColorBrush(FLinearColor::White), MakeGeometry(0, 0, 4, 4), FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
	EXPECT_EQ(Canvas.CountOthers(FColor(128, 128, 128)), 0);
}

TEST(BoxPainting, SidesAreRoundedToWholePixelsSoThatNeighboursMeet)
{
	FRenderCanvas Canvas(FIntPoint(10, 4));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0.4, 0, 4.2, 4), &Brush, ESlateDrawEffect::None, FLinearColor::Red);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(4.6, 0, 5.0, 4), &Brush, ESlateDrawEffect::None, FLinearColor::Green);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(0, 0, 5, 4)), 0);
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0), FIntRect(5, 0, 10, 4)), 0);
}

TEST(BoxPainting, TheScaleOfTheGeometryScalesTheBox)
{
	FRenderCanvas Canvas(FIntPoint(10, 10));
	PaintBrush(Canvas, FSlateColorBrush(FLinearColor::White), MakeGeometry(2, 2, 3, 2, 2.0f));
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(2, 2, 8, 6)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black), 6 * 4);
}

TEST(BoxPainting, AHigherLayerLiesAboveWhateverTheOrder)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateColorBrush Brush(FLinearColor::White);
	const FPaintGeometry Geometry = MakeGeometry(0, 0, 4, 4);
	FSlateDrawElement::MakeBox(List, 7, Geometry, &Brush, ESlateDrawEffect::None, FLinearColor::Red);
	FSlateDrawElement::MakeBox(List, 3, Geometry, &Brush, ESlateDrawEffect::None, FLinearColor::Green);
	FSlateDrawElement::MakeBox(List, 3, Geometry, &Brush, ESlateDrawEffect::None, FLinearColor::Blue);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0)), 0);
}

TEST(BoxPainting, WhatLiesBelowAnOpaqueFillIsNotPainted)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateColorBrush Brush(FLinearColor::White);
	for (int32 Layer = 0; Layer < 5; ++Layer)
	{
		FSlateDrawElement::MakeBox(List, Layer, MakeGeometry(0, 0, 4, 4), &Brush);
	}
	Canvas.Paint();
	EXPECT_EQ(Canvas.Renderer->GetStatistics().ElementsPainted, 1);
}

TEST(BoxPainting, ABrushThatDrawsNothingAndAMissingBrushLeaveNoElement)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	FSlateWindowElementList& List = Canvas.Begin();
	const FSlateNoResource Nothing;
	const FSlateColorBrush Fill(FLinearColor::White);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 4, 4), &Nothing);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 4, 4), nullptr);
	FSlateDrawElement::MakeBox(
		List, 0, MakeGeometry(0, 0, 4, 4), &Fill, ESlateDrawEffect::None, FLinearColor(1.0f, 1.0f, 1.0f, 0.0f));
	EXPECT_EQ(List.GetElements().Num(), 0);
}

TEST(BoxPainting, TheBrushMayBeGoneWhenTheFrameIsPainted)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	{
		const FSlateColorBrush Brush(FLinearColor::White);
		FSlateDrawElement::MakeBox(Canvas.Begin(), 0, MakeGeometry(0, 0, 4, 4), &Brush);
	}
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(White), 0);
}

TEST(BoxPainting, ADisabledElementIsFaded)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	PaintBrush(Canvas, FSlateColorBrush(FLinearColor::White), MakeGeometry(0, 0, 4, 4), FLinearColor::White,
		ESlateDrawEffect::DisabledEffect);
	EXPECT_EQ(Canvas.CountOthers(FColor(115, 115, 115)), 0);
}

TEST(BoxPainting, HugeAndBrokenGeometryIsCutAtTheWindow)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	const FSlateColorBrush Fill(FLinearColor::White);
	PaintBrush(Canvas, Fill, MakeGeometry(-1.0e30, -1.0e30, 1.0e31, 1.0e31));
	EXPECT_EQ(Canvas.CountOthers(White), 0);
	PaintBrush(Canvas, Fill, MakeGeometry(std::nan(""), 0, std::nan(""), 4));
	EXPECT_EQ(Canvas.CountOthers(Black), 0);
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, 4.0f), MakeGeometry(2, 2, -10, 5));
	EXPECT_EQ(Canvas.CountOthers(Black), 0);
}

TEST(RoundedBoxPainting, CornersAreCutAndSidesAreStraight)
{
	FRenderCanvas Canvas(FIntPoint(40, 20));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, 6.0f), MakeGeometry(0, 0, 40, 20));
	EXPECT_EQ(Canvas.At(0, 0), Black);
	EXPECT_EQ(Canvas.At(39, 19), Black);
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(0, 6, 40, 14)), 0);
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(6, 0, 34, 20)), 0);
	// The four corners lose 4 - pi quarters of their squares' area each.
	const int32 Lost = Canvas.CountOthers(White);
	EXPECT_GT(Lost, 4 * 7);
	EXPECT_LT(Lost, 4 * 16);
}

TEST(RoundedBoxPainting, IsSymmetric)
{
	FRenderCanvas Canvas(FIntPoint(31, 17));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, 5.5f, FLinearColor::Red, 1.0f), MakeGeometry(0, 0, 31, 17));
	for (int32 Y = 0; Y < 17; ++Y)
	{
		for (int32 X = 0; X < 31; ++X)
		{
			EXPECT_NEAR(Canvas.At(X, Y).R, Canvas.At(30 - X, 16 - Y).R, 4) << X << ", " << Y;
		}
	}
}

TEST(RoundedBoxPainting, OnlyTheGivenCornersAreRound)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, FVector4(8.0, 0.0, 8.0, 0.0)), MakeGeometry(0, 0, 20, 20));
	EXPECT_EQ(Canvas.At(0, 0), Black);
	EXPECT_EQ(Canvas.At(19, 0), White);
	EXPECT_EQ(Canvas.At(19, 19), Black);
	EXPECT_EQ(Canvas.At(0, 19), White);
}

TEST(RoundedBoxPainting, TheOutlineRunsInsideWithAColourOfItsOwn)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, 4.0f, FLinearColor::Blue, 2.0f), MakeGeometry(0, 0, 20, 20),
		FLinearColor::Green);
	EXPECT_EQ(Canvas.At(10, 0), FColor(0, 0, 255));
	EXPECT_EQ(Canvas.At(1, 10), FColor(0, 0, 255));
	EXPECT_EQ(Canvas.At(2, 10), FColor(0, 255, 0));
	EXPECT_EQ(Canvas.At(10, 17), FColor(0, 255, 0));
	EXPECT_EQ(Canvas.At(10, 18), FColor(0, 0, 255));
}

TEST(RoundedBoxPainting, AnOutlineShowsWithoutAFill)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::Transparent, 4.0f, FLinearColor::Blue, 1.0f),
		MakeGeometry(0, 0, 20, 20), FLinearColor::Transparent);
	EXPECT_EQ(Canvas.At(10, 0), FColor(0, 0, 255));
	EXPECT_EQ(Canvas.At(10, 10), Black);
}

TEST(RoundedBoxPainting, WithoutRadiiTheShortSidesAreHalfCircles)
{
	FRenderCanvas Canvas(FIntPoint(40, 10));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White), MakeGeometry(0, 0, 40, 10));
	EXPECT_EQ(Canvas.At(0, 0), Black);
	EXPECT_EQ(Canvas.At(39, 9), Black);
	// The circle runs through the middle of this pixel.
	EXPECT_NEAR(Canvas.At(1, 1).R, 128, 16);
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(5, 0, 35, 10)), 0);
}

TEST(RoundedBoxPainting, RadiiLargerThanTheBoxAreHalved)
{
	FRenderCanvas Canvas(FIntPoint(12, 12));
	PaintBrush(Canvas, FSlateRoundedBoxBrush(FLinearColor::White, 100.0f), MakeGeometry(0, 0, 12, 12));
	EXPECT_EQ(Canvas.At(0, 0), Black);
	EXPECT_EQ(Canvas.At(6, 1), White);
	EXPECT_EQ(Canvas.At(6, 6), White);
}

TEST(PictureBrush, ADrawingIsRasterisedAtTheSizeOfTheBox)
{
	FRenderCanvas Canvas(FIntPoint(24, 24));
	PaintBrush(Canvas, FSlateVectorImageBrush(WriteFramePicture(), FVector2D(12.0, 12.0)), MakeGeometry(0, 0, 24, 24));
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0), FIntRect(6, 6, 18, 18)), 0);
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(0, 0, 24, 6)), 0);
}

TEST(PictureBrush, TheTintMultipliesThePicture)
{
	FRenderCanvas Canvas(FIntPoint(12, 12));
	PaintBrush(Canvas, FSlateImageBrush(WriteFramePicture(), FVector2D(12.0, 12.0)), MakeGeometry(0, 0, 12, 12),
		FLinearColor(FColor(0, 128, 255)));
	EXPECT_EQ(Canvas.At(0, 0), Black);
	EXPECT_EQ(Canvas.At(6, 6), FColor(0, 128, 0));
}

TEST(PictureBrush, ABoxKeepsItsCorners)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintBrush(Canvas, FSlateBoxBrush(WriteFramePicture(), FMargin(0.25f)), MakeGeometry(0, 0, 40, 30));
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0), FIntRect(3, 3, 37, 27)), 0);
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(0, 0, 40, 3)), 0);
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(37, 0, 40, 30)), 0);
}

TEST(PictureBrush, TheCornersOfABoxGrowWithTheScale)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintBrush(Canvas, FSlateBoxBrush(WriteFramePicture(), FMargin(0.25f)), MakeGeometry(0, 0, 20, 15, 2.0f));
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0), FIntRect(6, 6, 34, 24)), 0);
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(0, 0, 6, 30)), 0);
}

TEST(PictureBrush, ABoxSmallerThanItsCornersSharesTheRoomAmongThem)
{
	FRenderCanvas Canvas(FIntPoint(4, 4));
	PaintBrush(Canvas, FSlateBoxBrush(WriteFramePicture(), FMargin(0.25f)), MakeGeometry(0, 0, 4, 4));
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0)), 0);
}

TEST(PictureBrush, ABorderLeavesItsCentreOut)
{
	FRenderCanvas Canvas(FIntPoint(40, 30));
	PaintBrush(Canvas, FSlateBorderBrush(WriteFramePicture(), FMargin(0.25f)), MakeGeometry(0, 0, 40, 30));
	EXPECT_EQ(Canvas.CountOthers(Black, FIntRect(3, 3, 37, 27)), 0);
	EXPECT_EQ(Canvas.At(20, 0), FColor(255, 0, 0));
}

TEST(PictureBrush, TilesRepeatAtTheSizeOfTheBrush)
{
	FRenderCanvas Canvas(FIntPoint(24, 12));
	const FSlateImageBrush Brush(WriteFramePicture(), FVector2D(12.0, 12.0), FLinearColor::White, ESlateBrushTileType::Both);
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 24, 12));
	EXPECT_EQ(Canvas.At(6, 6), FColor(0, 255, 0));
	EXPECT_EQ(Canvas.At(12, 6), FColor(255, 0, 0));
	EXPECT_EQ(Canvas.At(18, 6), FColor(0, 255, 0));
}

TEST(PictureBrush, APictureTooLargeToKeepIsDrawnWhereItIsSeen)
{
	FRenderCanvas Canvas(FIntPoint(24, 24));
	PaintBrush(
		Canvas, FSlateVectorImageBrush(WriteFramePicture(), FVector2D(12.0, 12.0)), MakeGeometry(-5000, -5000, 12000, 12000));
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0)), 0);
	PaintBrush(
		Canvas, FSlateVectorImageBrush(WriteFramePicture(), FVector2D(12.0, 12.0)), MakeGeometry(-1000, -1000, 12000, 12000));
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0)), 0);
}

TEST(PictureBrush, AMissingFileIsACheckerboardAndWarnsOnce)
{
	FRenderCanvas Canvas(FIntPoint(16, 16));
	const FLogCapture Log(TEXT("LogSlateTextures"));
	const FSlateImageBrush Brush(TEXT("/nowhere/Missing.png"), FVector2D(16.0, 16.0));
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 16, 16));
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 15, 15));
	EXPECT_NE(Canvas.At(0, 0), Canvas.At(8, 0));
	EXPECT_EQ(Canvas.At(0, 0), Canvas.At(8, 8));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("/nowhere/Missing.png: picture not loaded (file not found), a checkerboard is shown")}));
}

TEST(PictureBrush, AFileThatIsNoPictureIsACheckerboard)
{
	const FString Path = FPaths::ProjectSavedDir() / TEXT("Broken.png");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("no picture"), *Path));
	FRenderCanvas Canvas(FIntPoint(16, 16));
	const FLogCapture Log(TEXT("LogSlateTextures"));
	PaintBrush(Canvas, FSlateImageBrush(Path, FVector2D(16.0, 16.0)), MakeGeometry(0, 0, 16, 16));
	EXPECT_NE(Canvas.At(0, 0), Canvas.At(8, 0));
	EXPECT_EQ(Log.Warnings().Num(), 1);
}

TEST(PictureBrush, ReloadReadsTheFilesAgain)
{
	FRenderCanvas Canvas(FIntPoint(12, 12));
	const FString Path = WriteFramePicture();
	const FSlateImageBrush Brush(Path, FVector2D(12.0, 12.0));
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 12, 12));
	const FString Drawing = TEXT("<svg xmlns='http://www.w3.org/2000/svg' width='12' height='12'>")
		TEXT("<rect width='12' height='12' fill='#0000ff'/></svg>");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(Drawing, *Path, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 12, 12));
	EXPECT_EQ(Canvas.At(6, 6), FColor(0, 255, 0));
	Canvas.Renderer->ReloadTextureResources();
	PaintBrush(Canvas, Brush, MakeGeometry(0, 0, 12, 12));
	EXPECT_EQ(Canvas.At(6, 6), FColor(0, 0, 255));
}
