#include <gtest/gtest.h>

#include "Application/SlateFrame.h"
#include "LogCapture.h"
#include "Rendering/SlateRenderer.h"
#include "SlateTestWindow.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
FText Text(const TCHAR* In)
{
	return FText::FromString(In);
}

/** Three labels below each other, without a background of their own. */
struct FLabels
{
	TSharedPtr<STextBlock> Labels[3];

	TSharedRef<SWidget> Make()
	{
		const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
		for (TSharedPtr<STextBlock>& Label : Labels)
		{
			Box->AddSlot().AutoHeight().Padding(FMargin(10.0f))[SAssignNew(Label, STextBlock).Text(Text(TEXT("00000")))];
		}
		return Box;
	}
};

int32 PaintedIn(FSlateTestWindow& Window, const TFunction<void()>& Change)
{
	Window.Frame();
	Change();
	const uint64 FramesBefore = FSlateApplication::Get().GetNumFrames();
	Window.Frame();
	return FSlateApplication::Get().GetNumFrames() == FramesBefore ? 0 : Window.CountPaintedElements();
}
}

TEST(Frame, ChangingOneLabelPaintsThatLabelAndWhatLiesUnderIt)
{
	FLabels Labels;
	FSlateTestWindow Window(Labels.Make());

	// The background of the window and the text.
	EXPECT_EQ(PaintedIn(Window,
				  [&]
				  {
					  Labels.Labels[1]->SetText(Text(TEXT("11111")));
					  FSlateApplication::Get().RequestFrame();
				  }),
		2);
	EXPECT_EQ(FSlateApplication::Get().GetRenderer()->GetStatistics().RectanglesDamaged, 1);
}

TEST(Frame, AnEqualTextPaintsNothing)
{
	FLabels Labels;
	FSlateTestWindow Window(Labels.Make());
	Window.Frame();
	Window.Frame();
	const int64 Before = FSlateApplication::Get().GetRenderer()->GetStatistics().PixelsDamaged;

	Labels.Labels[1]->SetText(Text(TEXT("00000")));

	EXPECT_TRUE(Window.GetWindow().GetDamage().IsEmpty());
	EXPECT_EQ(FSlateApplication::Get().GetRenderer()->GetStatistics().PixelsDamaged, Before);
}

TEST(Frame, AMouseOverNothingPaintsNothing)
{
	FLabels Labels;
	FSlateTestWindow Window(Labels.Make());
	Window.MoveMouse(FVector2D(300.0, 300.0));
	Window.Frame();

	FSlateApplication::Get().GetPlatformApplication()->Cursor->SetPosition(700, 500);
	FSlateApplication::Get().OnMouseMove();

	EXPECT_TRUE(Window.GetWindow().GetDamage().IsEmpty());
}

TEST(Frame, NothingRunsWhileNothingHappens)
{
	FLabels Labels;
	FSlateTestWindow Window(Labels.Make());
	Window.Wait(0.2);
	const uint64 Frames = FSlateApplication::Get().GetNumFrames();

	Window.Wait(10.0);

	EXPECT_EQ(FSlateApplication::Get().GetNumFrames(), Frames);
}

TEST(Frame, AChangeBehindABindingShowsInTheNextFrameThatRuns)
{
	FString Behind = TEXT("before");
	TSharedPtr<STextBlock> Label;
	FSlateTestWindow Window(SAssignNew(Label, STextBlock).Text_Lambda([&Behind] { return FText::FromString(Behind); }));
	Window.Wait(0.1);

	Behind = TEXT("after");
	EXPECT_TRUE(Window.GetWindow().GetDamage().IsEmpty());
	FSlateApplication::Get().RequestFrame();
	SlateFrame::UpdateBoundAttributes();

	EXPECT_FALSE(Window.GetWindow().GetDamage().IsEmpty());
}

TEST(Frame, ABoundVisibilityBringsACollapsedWidgetBack)
{
	bool bShown = false;
	TSharedPtr<STextBlock> Label;
	FSlateTestWindow Window(SNew(SVerticalBox) +
		SVerticalBox::Slot()
			.AutoHeight()[SAssignNew(Label, STextBlock)
							  .Text(Text(TEXT("now you see me")))
							  .Visibility_Lambda([&bShown] { return bShown ? EVisibility::Visible : EVisibility::Collapsed; })]);
	EXPECT_FALSE(Label->IsShownInFrame());

	bShown = true;
	FSlateApplication::Get().RequestFrame();
	Window.Frame();

	EXPECT_TRUE(Label->IsShownInFrame());
}

TEST(Frame, AnActiveTimerRunsOnlyWhileItsWidgetIsShown)
{
	int32 Calls = 0;
	TSharedPtr<SBox> Box;
	FSlateTestWindow Window(SNew(SVerticalBox) + SVerticalBox::Slot()[SAssignNew(Box, SBox)]);
	Box->RegisterActiveTimer(0.0f,
		FWidgetActiveTimerDelegate::CreateLambda(
			[&Calls](double, float)
			{
				++Calls;
				return EActiveTimerReturnType::Continue;
			}));

	Window.Frame();
	Window.Frame();
	EXPECT_EQ(Calls, 2);

	Box->SetVisibility(EVisibility::Collapsed);
	Window.Frame();
	const int32 CallsWhenCollapsed = Calls;
	Window.Wait(0.5);
	EXPECT_EQ(Calls, CallsWhenCollapsed);

	Box->SetVisibility(EVisibility::Visible);
	FSlateApplication::Get().RequestFrame();
	Window.Frame();
	Window.Frame();
	EXPECT_GT(Calls, CallsWhenCollapsed);
}

TEST(Frame, AnActiveTimerEndsWhenItSaysStop)
{
	int32 Calls = 0;
	TSharedPtr<SBox> Box;
	FSlateTestWindow Window(SAssignNew(Box, SBox));
	Box->RegisterActiveTimer(0.1f,
		FWidgetActiveTimerDelegate::CreateLambda(
			[&Calls](double, float) { return ++Calls == 3 ? EActiveTimerReturnType::Stop : EActiveTimerReturnType::Continue; }));

	Window.Wait(1.0);

	EXPECT_EQ(Calls, 3);
}

TEST(Frame, PicturesOfTheSameWidgetsAreEqualByteForByte)
{
	TArray<FColor> Pictures[2];
	for (TArray<FColor>& Picture : Pictures)
	{
		FLabels Labels;
		FSlateTestWindow Window(Labels.Make());
		FIntVector Size;
		ASSERT_TRUE(FSlateApplication::Get().TakeScreenshot(Window.GetWindow().AsShared(), Picture, Size));
		ASSERT_EQ(Size, FIntVector(640, 480, 0));
	}
	EXPECT_EQ(Pictures[0], Pictures[1]);
	EXPECT_EQ(Pictures[0][0].A, 255);
}

TEST(Frame, PaintingOnlyTheDamageGivesThePictureOfPaintingAll)
{
	FLabels Labels;
	FSlateTestWindow Window(Labels.Make());
	Labels.Labels[0]->SetText(Text(TEXT("a longer text than before")));
	Window.Frame();
	Labels.Labels[1]->SetVisibility(EVisibility::Collapsed);
	Window.Frame();

	TArray<FColor> Partial;
	TArray<FColor> Whole;
	FIntVector Size;
	FSlateApplication::Get().TakeScreenshot(Window.GetWindow().AsShared(), Partial, Size);
	Window.GetWindow().DamageAll();
	FSlateApplication::Get().TakeScreenshot(Window.GetWindow().AsShared(), Whole, Size);

	EXPECT_EQ(Partial, Whole);
}

TEST(Frame, AWindowBeyondAllMeasureIsLimitedWithAWarning)
{
	const FLogCapture Log(TEXT("LogSlateWindow"));
	const TSharedRef<SWindow> Huge = SNew(SWindow).ClientSize(FVector2D(1e9, std::numeric_limits<double>::quiet_NaN()));

	EXPECT_EQ(Huge->GetSizeInScreen(), FVector2D(16384.0, 1.0));
	EXPECT_EQ(Log.Warnings().Num(), 1);
}

TEST(Frame, APlacedWindowStaysInTheWorkAreaUnlessToldOtherwise)
{
	const FPlatformRect WorkArea(0, 0, 1000, 800);
	const auto Place = [&WorkArea](bool bSane)
	{
		const TSharedRef<SWindow> Window = SNew(SWindow)
											   .AutoCenter(EAutoCenter::None)
											   .ScreenPosition(FVector2D(900.0, -50.0))
											   .ClientSize(FVector2D(300.0, 2000.0))
											   .SaneWindowPlacement(bSane);
		return Window->MakeDefinition(WorkArea);
	};

	const FGenericWindowDefinition Sane = Place(true);
	EXPECT_EQ(FVector2D(Sane.XDesiredPositionOnScreen, Sane.YDesiredPositionOnScreen), FVector2D(700.0, 0.0));
	EXPECT_EQ(FVector2D(Sane.WidthDesiredOnScreen, Sane.HeightDesiredOnScreen), FVector2D(300.0, 800.0));
	const FGenericWindowDefinition Free = Place(false);
	EXPECT_EQ(FVector2D(Free.XDesiredPositionOnScreen, Free.YDesiredPositionOnScreen), FVector2D(900.0, -50.0));
	EXPECT_EQ(FVector2D(Free.WidthDesiredOnScreen, Free.HeightDesiredOnScreen), FVector2D(300.0, 2000.0));
}

TEST(Frame, TheUserCannotMakeAWindowSmallerThanItsMinimum)
{
	const TSharedRef<SWindow> Window = SNew(SWindow).ClientSize(FVector2D(640.0, 480.0)).MinWidth(300.0f).MinHeight(200.0f);
	FSlateApplication::Get().AddWindow(Window);

	Window->Resize(FVector2D(10.0, 10.0));
	FSlateApplication::Get().PumpMessages();

	EXPECT_EQ(Window->GetSizeInScreen(), FVector2D(300.0, 200.0));
	Window->RequestDestroyWindow();
}

TEST(Frame, ResizingAWindowLaysItOutAnew)
{
	TSharedPtr<SBorder> Border;
	FSlateTestWindow Window(SAssignNew(Border, SBorder));
	EXPECT_EQ(Border->GetPaintSpaceGeometry().GetLocalSize(), FVector2D(640.0, 480.0));

	Window.GetWindow().Resize(FVector2D(300.0, 200.0));
	FSlateApplication::Get().RequestFrame();
	Window.Frame();

	EXPECT_EQ(Border->GetPaintSpaceGeometry().GetLocalSize(), FVector2D(300.0, 200.0));
}
