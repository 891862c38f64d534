#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "RenderCanvas.h"

#include <gtest/gtest.h>

namespace
{

const FColor Black(0, 0, 0);
const FColor White(255, 255, 255);
const FSlateColorBrush Fill(FLinearColor::White);

}

TEST(Clipping, ElementsAreCutAtTheInnermostOfNestedClips)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateWindowElementList& List = Canvas.Begin();
	List.PushClip(FSlateClippingZone(FSlateRect(2, 2, 12, 12)));
	List.PushClip(FSlateClippingZone(FSlateRect(6, 0, 20, 20)));
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 20, 20), &Fill);
	List.PopClip();
	List.PopClip();
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(6, 2, 12, 12)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black), 6 * 10);
}

TEST(Clipping, AZoneMayReplaceThoseAroundIt)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateWindowElementList& List = Canvas.Begin();
	List.PushClip(FSlateClippingZone(FSlateRect(0, 0, 5, 5)));
	FSlateClippingZone Zone(FSlateRect(10, 10, 14, 14));
	Zone.SetShouldIntersectParent(false);
	List.PushClip(Zone);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 20, 20), &Fill);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(10, 10, 14, 14)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black), 4 * 4);
}

TEST(Clipping, NothingIsMadeWithinAnEmptyClip)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateWindowElementList& List = Canvas.Begin();
	List.PushClip(FSlateClippingZone(FSlateRect(0, 0, 5, 5)));
	List.PushClip(FSlateClippingZone(FSlateRect(10, 10, 14, 14)));
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 20, 20), &Fill);
	EXPECT_EQ(List.GetElements().Num(), 0);
}

TEST(Clipping, TextAndRoundedBoxesAreCutToo)
{
	FRenderCanvas Canvas(FIntPoint(60, 20));
	FSlateWindowElementList& List = Canvas.Begin();
	List.PushClip(FSlateClippingZone(FSlateRect(10, 4, 30, 12)));
	const FSlateRoundedBoxBrush Rounded(FLinearColor::White, 5.0f);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 60, 20), &Rounded, ESlateDrawEffect::None, FLinearColor::Red);
	FSlateDrawElement::MakeText(List, 1, MakeGeometry(0, 0, 60, 20), FString(TEXT("WWWWWWWW")), FSlateFontInfo(nullptr, 12));
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(Black) - Canvas.CountOthers(Black, FIntRect(10, 4, 30, 12)), 0);
	EXPECT_GT(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(10, 4, 30, 12)), 20);
}

TEST(Damage, NothingChangesOutsideOfIt)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateDrawElement::MakeBox(Canvas.Begin(), 0, MakeGeometry(0, 0, 20, 20), &Fill);
	Canvas.Paint();
	FSlateWindowElementList& List = Canvas.Begin(FSlateRect(5, 6, 9, 12));
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 20, 20), &Fill, ESlateDrawEffect::None, FLinearColor::Red);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(FColor(255, 0, 0), FIntRect(5, 6, 9, 12)), 0);
	EXPECT_EQ(Canvas.CountOthers(White), 4 * 6);
}

TEST(Damage, PaintingAPartAnewGivesThePixelsOfAWholePaint)
{
	FRenderCanvas Whole(FIntPoint(120, 40));
	FRenderCanvas InParts(FIntPoint(120, 40));
	const FSlateRoundedBoxBrush Rounded(FLinearColor::White, 6.0f, FLinearColor::Blue, 1.0f);
	const auto Make = [&Rounded](FSlateWindowElementList& List)
	{
		FSlateDrawElement::MakeBox(
			List, 0, MakeGeometry(0, 0, 120, 40), &Fill, ESlateDrawEffect::None, FLinearColor(0.1f, 0.1f, 0.1f));
		FSlateDrawElement::MakeBox(
			List, 1, MakeGeometry(3, 3, 110, 30), &Rounded, ESlateDrawEffect::None, FLinearColor(1.0f, 0.2f, 0.1f, 0.5f));
		FSlateDrawElement::MakeText(
			List, 2, MakeGeometry(10, 10, 100, 20), FString(TEXT("Partly damaged")), FSlateFontInfo(nullptr, 10));
	};
	Make(Whole.Begin());
	Whole.Paint();
	for (int32 Part = 0; Part < 7; ++Part)
	{
		Make(InParts.Begin(FSlateRect(Part * 17.0f, 0.0f, Part * 17.0f + 20.0f, 40.0f)));
		InParts.Paint();
	}
	EXPECT_EQ(Whole.Pixels, InParts.Pixels);
}

TEST(Damage, OnlyElementsThatMeetItArePainted)
{
	FRenderCanvas Canvas(FIntPoint(100, 10));
	FSlateWindowElementList& List = Canvas.Begin(FSlateRect(20, 0, 40, 10));
	for (int32 Index = 0; Index < 10; ++Index)
	{
		FSlateDrawElement::MakeBox(List, 0, MakeGeometry(Index * 10, 0, 10, 10), &Fill);
	}
	Canvas.Paint();
	EXPECT_EQ(Canvas.Renderer->GetStatistics().ElementsPainted, 2);
	EXPECT_EQ(Canvas.Renderer->GetStatistics().RectanglesDamaged, 1);
	EXPECT_EQ(Canvas.Renderer->GetStatistics().PixelsDamaged, 20 * 10);
}

TEST(Damage, AnElementInTwoDamagedPartsCountsOnce)
{
	FRenderCanvas Canvas(FIntPoint(100, 10));
	FSlateWindowElementList& List = Canvas.Begin(FSlateRect(0, 0, 10, 10));
	List.AddDamage(FSlateRect(50, 0, 60, 10));
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 100, 10), &Fill);
	Canvas.Paint();
	EXPECT_EQ(Canvas.Renderer->GetStatistics().ElementsPainted, 1);
	EXPECT_EQ(Canvas.Renderer->GetStatistics().RectanglesDamaged, 2);
}

TEST(Damage, WithoutItNothingIsPainted)
{
	FRenderCanvas Canvas(FIntPoint(10, 10));
	FSlateWindowElementList& List = Canvas.Begin(FSlateRect());
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0, 0, 100, 10), &Fill);
	Canvas.Paint();
	EXPECT_EQ(Canvas.Renderer->GetStatistics().ElementsPainted, 0);
	EXPECT_EQ(Canvas.CountOthers(Black), 0);
}

TEST(Lines, RunThroughTheirPointsInTheirColour)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateDrawElement::MakeLines(Canvas.Begin(), 0, MakeGeometry(2, 2, 16, 16), {FVector2D(0.0, 8.0), FVector2D(16.0, 8.0)},
		ESlateDrawEffect::None, FLinearColor::Green, true, 2.0f);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(FColor(0, 255, 0), FIntRect(2, 9, 18, 11)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black), 16 * 2);
}

TEST(Lines, WithFewerThanTwoPointsAreNotMade)
{
	FRenderCanvas Canvas(FIntPoint(20, 20));
	FSlateWindowElementList& List = Canvas.Begin();
	FSlateDrawElement::MakeLines(List, 0, MakeGeometry(2, 2, 16, 16), {FVector2D(0.0, 8.0)});
	EXPECT_EQ(List.GetElements().Num(), 0);
}

TEST(RenderTransform, TurnsBoxTextAndLine)
{
	FRenderCanvas Canvas(FIntPoint(60, 60));
	FSlateWindowElementList& List = Canvas.Begin();
	// A quarter turn clockwise about (30, 30): what points to the right then points down.
	const FSlateRenderTransform Quarter(FQuat2D(1.57079633f), FVector2D(30.0, 30.0));
	const FPaintGeometry Geometry(FSlateLayoutTransform(FVector2D(30.0, 30.0)), Quarter, FVector2D(20.0, 4.0), true);
	FSlateDrawElement::MakeBox(List, 0, Geometry, &Fill);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(27, 31, 29, 49)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black, FIntRect(32, 0, 60, 60)), 0);

	FSlateDrawElement::MakeLines(Canvas.Begin(), 0, Geometry, {FVector2D(0.0, 2.0), FVector2D(20.0, 2.0)}, ESlateDrawEffect::None,
		FLinearColor::White, true, 2.0f);
	Canvas.Paint();
	EXPECT_EQ(Canvas.CountOthers(White, FIntRect(27, 31, 29, 49)), 0);
	EXPECT_EQ(Canvas.CountOthers(Black, FIntRect(0, 0, 60, 29)), 0);

	FSlateDrawElement::MakeText(Canvas.Begin(), 0, Geometry, FString(TEXT("MMM")), FSlateFontInfo(nullptr, 9));
	Canvas.Paint();
	EXPECT_GT(Canvas.CountOthers(Black, FIntRect(14, 30, 32, 60)), 60);
	EXPECT_EQ(Canvas.CountOthers(Black, FIntRect(33, 0, 60, 60)), 0);
}

TEST(Renderer, AWindowWithoutAViewportHasNoPixels)
{
	const TSharedRef<FSlateRenderer> Renderer = FSlateRenderer::Create();
	TArray<FColor> Pixels = {White};
	FIntPoint Size(1, 1);
	EXPECT_FALSE(Renderer->ReadPixels(nullptr, Pixels, Size));
	EXPECT_EQ(Pixels.Num(), 0);
	EXPECT_EQ(Size, FIntPoint(0, 0));
}
