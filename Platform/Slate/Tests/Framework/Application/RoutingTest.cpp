#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const SWidget* WidgetUnder(const FVector2D& Place)
{
	const FSlateApplication& App = FSlateApplication::Get();
	return &App.LocateWindowUnderMouse(Place, App.GetInteractiveTopLevelWindows()).GetLastWidget().Get();
}

/** A widget that writes down what reaches it, and answers as it is told. */
class SRecorder : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SRecorder) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TCHAR* InName, TArray<FString>* InLog)
	{
		SBorder::Construct(SBorder::FArguments()[InArgs._Content]);
		Name = InName;
		Log = InLog;
	}

	virtual FReply OnPreviewMouseButtonDown(const FGeometry&, const FPointerEvent&) override
	{
		return Note(TEXT("preview"), false);
	}
	virtual FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent&) override
	{
		return bCaptures ? Note(TEXT("down"), true).CaptureMouse(SharedThis(this)) : Note(TEXT("down"), bHandles);
	}
	virtual FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent&) override
	{
		return bCaptures ? Note(TEXT("up"), true).ReleaseMouseCapture() : Note(TEXT("up"), bHandles);
	}
	virtual FReply OnMouseMove(const FGeometry&, const FPointerEvent& Event) override
	{
		LastDelta = Event.GetCursorDelta();
		return Note(TEXT("move"), bHandles);
	}
	virtual FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override
	{
		return Note(*Event.GetKey().ToString(), bHandles);
	}
	virtual void OnFocusLost(const FFocusEvent&) override { Note(TEXT("lost"), true); }
	virtual FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override { return Note(TEXT("received"), false); }
	virtual bool SupportsKeyboardFocus() const override { return bFocusable; }

	FVector2D LastDelta = FVector2D(-1.0, -1.0);
	bool bHandles = false;
	bool bCaptures = false;
	bool bFocusable = false;

private:
	FReply Note(const TCHAR* What, bool bHandled)
	{
		Log->Add(Name + TEXT(" ") + What);
		return bHandled ? FReply::Handled() : FReply::Unhandled();
	}

	FString Name;
	TArray<FString>* Log = nullptr;
};

struct FNested
{
	TArray<FString> Log;
	TSharedPtr<SRecorder> Outer;
	TSharedPtr<SRecorder> Inner;

	TSharedRef<SWidget> Make()
	{
		return SAssignNew(Outer, SRecorder, TEXT("outer"), &Log)[SAssignNew(Inner, SRecorder, TEXT("inner"), &Log)];
	}
};

const FVector2D Middle(320.0, 240.0);
}

TEST(Routing, APressIsPreviewedDownwardsAndThenBubblesUpwards)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());
	Window.MoveMouse(Middle);
	Nested.Log.Reset();

	Window.Press();

	EXPECT_EQ(
		Nested.Log, TArray<FString>({TEXT("outer preview"), TEXT("inner preview"), TEXT("inner down"), TEXT("outer down")}));
	Window.Release();
}

TEST(Routing, AHandledPressGoesNoFurther)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());
	Nested.Inner->bHandles = true;
	Window.MoveMouse(Middle);
	Nested.Log.Reset();

	Window.Press();

	EXPECT_FALSE(Nested.Log.Contains(TEXT("outer down")));
	Window.Release();
}

TEST(Routing, ACaptorGetsEverythingUntilItGivesTheCaptureBack)
{
	FNested Nested;
	FSlateTestWindow Window(SNew(SHorizontalBox) + SHorizontalBox::Slot()[Nested.Make()] + SHorizontalBox::Slot()[SNew(SBorder)]);
	Nested.Inner->bCaptures = true;
	Window.MoveMouse(FVector2D(160.0, 240.0));
	Window.Press();
	EXPECT_TRUE(Nested.Inner->HasMouseCapture());
	Nested.Log.Reset();

	Window.MoveMouse(FVector2D(500.0, 240.0));
	Window.Release();

	EXPECT_TRUE(Nested.Log.Contains(TEXT("inner move")));
	EXPECT_FALSE(Nested.Log.Contains(TEXT("outer move")));
	EXPECT_TRUE(Nested.Log.Contains(TEXT("inner up")));
	EXPECT_FALSE(Nested.Inner->HasMouseCapture());
}

TEST(Routing, DisabledWidgetsAndAllInThemTakeNoInput)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());
	Nested.Outer->SetEnabled(false);
	Window.MoveMouse(Middle);
	Nested.Log.Reset();

	Window.Press();
	Window.Release();

	EXPECT_EQ(Nested.Log, TArray<FString>());
}

TEST(Routing, HitTestInvisibleTakesTheChildrenOutAndSelfHitTestInvisibleOnlyItself)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());

	Nested.Outer->SetVisibility(EVisibility::HitTestInvisible);
	EXPECT_EQ(WidgetUnder(Middle + Window.GetWindow().GetPositionInScreen()), &Window.GetWindow());

	Nested.Outer->SetVisibility(EVisibility::Visible);
	Nested.Inner->SetVisibility(EVisibility::SelfHitTestInvisible);
	EXPECT_EQ(WidgetUnder(Middle + Window.GetWindow().GetPositionInScreen()), Nested.Outer.Get());
}

TEST(Routing, WhatIsPaintedLaterIsHitFirst)
{
	TSharedPtr<SBorder> Below;
	TSharedPtr<SBorder> Above;
	FSlateTestWindow Window(
		SNew(SOverlay) + SOverlay::Slot()[SAssignNew(Below, SBorder)] + SOverlay::Slot()[SAssignNew(Above, SBorder)]);

	EXPECT_EQ(WidgetUnder(Middle + Window.GetWindow().GetPositionInScreen()), Above.Get());
}

TEST(Routing, WhenTheLayoutChangesHoverFollowsTheWidgetsWithAMoveOfZeroLength)
{
	FNested Nested;
	TSharedPtr<SBox> Spacer;
	FSlateTestWindow Window(SNew(SVerticalBox) +
		SVerticalBox::Slot().AutoHeight()[SAssignNew(Spacer, SBox).HeightOverride(400.0f)] +
		SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(60.0f)[Nested.Make()]]);
	Window.MoveMouse(FVector2D(320.0, 30.0));
	EXPECT_FALSE(Nested.Inner->IsHovered());

	Spacer->SetVisibility(EVisibility::Collapsed);
	FSlateApplication::Get().RequestFrame();
	Window.Frame();
	Window.Frame();

	EXPECT_TRUE(Nested.Inner->IsHovered());
	EXPECT_EQ(Nested.Inner->LastDelta, FVector2D(0.0, 0.0));
}

TEST(Routing, APressGivesTheFocusToTheDeepestFocusableWidgetUnderIt)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());
	Nested.Outer->bFocusable = true;

	Window.ClickAt(Middle);

	EXPECT_TRUE(Nested.Outer->HasKeyboardFocus());
	Window.PressKey(EKeys::A);
	EXPECT_TRUE(Nested.Log.Contains(TEXT("outer A")));
}

TEST(Routing, KeysGoFromTheFocusedWidgetUpwards)
{
	FNested Nested;
	FSlateTestWindow Window(Nested.Make());
	Nested.Inner->bFocusable = true;
	FSlateApplication::Get().SetKeyboardFocus(Nested.Inner);
	Nested.Log.Reset();

	Window.KeyDown(EKeys::F5);

	EXPECT_EQ(Nested.Log, TArray<FString>({TEXT("inner F5"), TEXT("outer F5")}));
}

TEST(Routing, TheOldWidgetLosesTheFocusBeforeTheNewOneReceivesIt)
{
	TArray<FString> Log;
	TSharedPtr<SRecorder> First;
	TSharedPtr<SRecorder> Second;
	FSlateTestWindow Window(SNew(SVerticalBox) + SVerticalBox::Slot()[SAssignNew(First, SRecorder, TEXT("first"), &Log)] +
		SVerticalBox::Slot()[SAssignNew(Second, SRecorder, TEXT("second"), &Log)]);
	First->bFocusable = Second->bFocusable = true;
	FSlateApplication::Get().SetKeyboardFocus(First);
	Log.Reset();

	FSlateApplication::Get().SetKeyboardFocus(Second);

	EXPECT_EQ(Log, TArray<FString>({TEXT("first lost"), TEXT("second received")}));
}

TEST(Navigation, TabGoesRoundAllFocusableWidgetsAndShiftTabBack)
{
	TSharedPtr<SButton> Buttons[3];
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	for (TSharedPtr<SButton>& Button : Buttons)
	{
		Box->AddSlot().AutoHeight()[SAssignNew(Button, SButton).Text(FText::FromString(TEXT("x")))];
	}
	FSlateTestWindow Window(Box);
	Buttons[1]->SetEnabled(false);
	FSlateApplication::Get().ClearKeyboardFocus();

	Window.PressKey(EKeys::Tab);
	EXPECT_TRUE(Buttons[0]->HasKeyboardFocus());
	Window.PressKey(EKeys::Tab);
	EXPECT_TRUE(Buttons[2]->HasKeyboardFocus());
	Window.PressKey(EKeys::Tab);
	EXPECT_TRUE(Buttons[0]->HasKeyboardFocus());
	FHeldModifiers Shift;
	Shift.bShift = true;
	Window.PressKey(EKeys::Tab, Shift);
	EXPECT_TRUE(Buttons[2]->HasKeyboardFocus());
}

TEST(Navigation, TabGoesOnFromWhereTheFocusWasGivenUp)
{
	TSharedPtr<SButton> Buttons[3];
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	for (TSharedPtr<SButton>& Button : Buttons)
	{
		Column->AddSlot().AutoHeight()[SAssignNew(Button, SButton)];
	}
	FSlateTestWindow Window(Column);
	FSlateApplication& Application = FSlateApplication::Get();

	Application.SetKeyboardFocus(Buttons[1]);
	Application.ClearKeyboardFocus();
	Window.PressKey(EKeys::Tab);
	EXPECT_EQ(Application.GetKeyboardFocusedWidget(), Buttons[2]);

	Application.SetKeyboardFocus(Buttons[1]);
	Application.ClearKeyboardFocus();
	Window.PressKey(EKeys::Tab, {/* bShift */ true});
	EXPECT_EQ(Application.GetKeyboardFocusedWidget(), Buttons[0]);

	// A widget that is gone is no place to go on from.
	Application.SetKeyboardFocus(Buttons[1]);
	Application.ClearKeyboardFocus();
	Column->RemoveSlot(Buttons[1].ToSharedRef());
	Window.PressKey(EKeys::Tab);
	EXPECT_EQ(Application.GetKeyboardFocusedWidget(), Buttons[0]);
}

TEST(Navigation, FocusByTheKeyboardIsSeenAndFocusByTheMouseIsNot)
{
	TSharedPtr<SButton> Button;
	FSlateTestWindow Window(SNew(SBox)
								.HAlign(HAlign_Left)
								.VAlign(VAlign_Top)
								.Padding(FMargin(20.0f))[SAssignNew(Button, SButton).Text(FText::FromString(TEXT("Button")))]);
	FSlateApplication::Get().ClearKeyboardFocus();
	const FVector2D Edge =
		Button->GetPaintSpaceGeometry().GetAbsolutePosition() + FVector2D(Button->GetDesiredSize().X / 2.0, 0.0);
	const FColor Unfocused = Window.GetPixel(Edge.X, Edge.Y);

	Window.PressKey(EKeys::Tab);
	EXPECT_NE(Window.GetPixel(Edge.X, Edge.Y), Unfocused);

	Window.Click(Button.ToSharedRef());
	Window.MoveMouse(FVector2D(500.0, 400.0));
	EXPECT_EQ(Window.GetPixel(Edge.X, Edge.Y), Unfocused);
}

TEST(Navigation, ArrowsGoToTheNearestWidgetInTheirDirection)
{
	TSharedPtr<SButton> Left;
	TSharedPtr<SButton> Right;
	TSharedPtr<SButton> Below;
	const FText Text = FText::FromString(TEXT("x"));
	FSlateTestWindow Window(SNew(SVerticalBox) +
		SVerticalBox::Slot().AutoHeight()[SNew(SHorizontalBox) + SHorizontalBox::Slot()[SAssignNew(Left, SButton).Text(Text)] +
			SHorizontalBox::Slot()[SAssignNew(Right, SButton).Text(Text)]] +
		SVerticalBox::Slot().AutoHeight()[SAssignNew(Below, SButton).Text(Text)]);
	FSlateApplication::Get().SetKeyboardFocus(Left);

	Window.PressKey(EKeys::Right);
	EXPECT_TRUE(Right->HasKeyboardFocus());
	Window.PressKey(EKeys::Down);
	EXPECT_TRUE(Below->HasKeyboardFocus());
}

TEST(ToolTips, AppearWhereTheMouseRestsAndGoWithIt)
{
	TSharedPtr<SBorder> Border;
	FSlateTestWindow Window(SNew(SHorizontalBox) +
		SHorizontalBox::Slot()[SAssignNew(Border, SBorder).ToolTipText(FText::FromString(TEXT("What this is")))] +
		SHorizontalBox::Slot()[SNew(SBorder)]);

	Window.MoveMouse(Window.MiddleOf(*Border));
	EXPECT_FALSE(FSlateApplication::Get().GetShownToolTip().IsValid());
	Window.Wait(1.0);
	ASSERT_TRUE(FSlateApplication::Get().GetShownToolTip().IsValid());
	EXPECT_TRUE(FSlateApplication::Get().GetShownToolTip()->AsWidget()->IsShownInFrame());

	Window.MoveMouse(FVector2D(600.0, 400.0));
	EXPECT_FALSE(FSlateApplication::Get().GetShownToolTip().IsValid());
}

TEST(ToolTips, StayAwayFromWhatTheUserWorksWith)
{
	TSharedPtr<SButton> Button;
	TSharedPtr<SBorder> Other;
	FSlateTestWindow Window(SNew(SHorizontalBox) +
		SHorizontalBox::Slot()[SAssignNew(Button, SButton).ToolTipText(FText::FromString(TEXT("What this does")))] +
		SHorizontalBox::Slot()[SAssignNew(Other, SBorder).ToolTipText(FText::FromString(TEXT("What that is")))]);

	Window.Click(Button.ToSharedRef());
	Window.Wait(2.0);
	EXPECT_FALSE(FSlateApplication::Get().GetShownToolTip().IsValid());

	Window.MoveMouse(Window.MiddleOf(*Other));
	Window.Wait(1.0);
	EXPECT_TRUE(FSlateApplication::Get().GetShownToolTip().IsValid());
	Window.PressKey(EKeys::Tab);
	Window.Wait(2.0);
	EXPECT_FALSE(FSlateApplication::Get().GetShownToolTip().IsValid());

	Window.MoveMouse(Window.MiddleOf(*Button));
	Window.Wait(1.0);
	EXPECT_TRUE(FSlateApplication::Get().GetShownToolTip().IsValid());
}

TEST(ToolTips, StandAboveTheCursorWhereThereIsNoRoomBelow)
{
	TSharedPtr<SBorder> Border;
	FSlateTestWindow Window(
		SAssignNew(Border, SBorder).ToolTipText(FText::FromString(TEXT("What this is"))), FVector2D(200.0, 60.0));
	const FVector2D Cursor(190.0, 50.0);

	Window.MoveMouse(Cursor);
	Window.Wait(1.0);

	ASSERT_TRUE(FSlateApplication::Get().GetShownToolTip().IsValid());
	const FSlateRect Place =
		FSlateApplication::Get().GetShownToolTip()->AsWidget()->GetPaintSpaceGeometry().GetLayoutBoundingRect();
	EXPECT_LT(Place.Bottom, Cursor.Y);
	EXPECT_GE(Place.Top, 0.0f);
	EXPECT_LE(Place.Right, 200.0f);
}

TEST(ToolTips, LongTextIsWrappedIntoItsWindowAwayFromTheEdges)
{
	TSharedPtr<SBorder> Border;
	FSlateTestWindow Window(
		SAssignNew(Border, SBorder)
			.ToolTipText(FText::FromString(TEXT("What this is and what it does, /told/at/some/length/and/without/a/blank"))),
		FVector2D(160.0, 200.0));

	Window.MoveMouse(FVector2D(80.0, 20.0));
	Window.Wait(1.0);

	ASSERT_TRUE(FSlateApplication::Get().GetShownToolTip().IsValid());
	const FSlateRect Place =
		FSlateApplication::Get().GetShownToolTip()->AsWidget()->GetPaintSpaceGeometry().GetLayoutBoundingRect();
	EXPECT_GE(Place.Left, 4.0f);
	EXPECT_LE(Place.Right, 156.0f);
	EXPECT_GT(Place.Bottom - Place.Top, 40.0f);
}

TEST(Screenshot, TakesOneWidgetOutOfItsWindowAndRefusesAWidgetInNone)
{
	TSharedPtr<SBox> Box;
	FSlateTestWindow Window(
		SNew(SBox)
			.HAlign(HAlign_Left)
			.VAlign(VAlign_Top)[SAssignNew(Box, SBox).WidthOverride(40.0f).HeightOverride(30.0f)[SNew(SBorder)]]);
	TArray<FColor> Pixels;
	FIntVector Size;

	EXPECT_TRUE(FSlateApplication::Get().TakeScreenshot(Box.ToSharedRef(), Pixels, Size));
	EXPECT_EQ(Size, FIntVector(40, 30, 0));
	EXPECT_EQ(Pixels.Num(), 40 * 30);
	EXPECT_FALSE(FSlateApplication::Get().TakeScreenshot(SNew(SBox), Pixels, Size));
}
