#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
/** A scroll box of 400 units with rows of 100. */
struct FRows
{
	TSharedPtr<SScrollBox> ScrollBox;
	TArray<TSharedRef<SWidget>> Rows;

	TSharedRef<SWidget> Make(int32 Count)
	{
		SAssignNew(ScrollBox, SScrollBox);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Rows.Add(SNew(SBox).HeightOverride(100.0f)[SNew(SBorder)]);
			ScrollBox->AddSlot()[Rows.Last()];
		}
		return ScrollBox.ToSharedRef();
	}
};

const FVector2D WindowSize(300.0, 400.0);

/** The frame that follows on whatever ran. */
void NextFrame(FSlateTestWindow& Window)
{
	FSlateApplication::Get().RequestFrame();
	Window.Frame();
}

TSharedPtr<SWidget> FindBar(SWidget& Widget)
{
	if (Widget.GetType() == FName("SScrollBar"))
	{
		return Widget.AsShared();
	}
	for (int32 Index = 0; Index < Widget.GetChildren()->Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Found = FindBar(Widget.GetChildren()->GetChildRefAt(Index)))
		{
			return Found;
		}
	}
	return nullptr;
}
}

TEST(SScrollBox, TheWheelMovesTheViewBetweenStartAndEnd)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);
	Window.MoveMouse(FVector2D(100.0, 100.0));
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffsetOfEnd(), 600.0f);

	Window.Wheel(-1.0f);
	EXPECT_GT(Rows.ScrollBox->GetScrollOffset(), 0.0f);
	EXPECT_LT(Rows.Rows[0]->GetPaintSpaceGeometry().GetAbsolutePosition().Y, 0.0);
	Window.Wheel(-100.0f);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 600.0f);
	Window.Wheel(100.0f);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 0.0f);
}

TEST(SScrollBox, ArrangesOnlyTheRowsInView)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(1000), WindowSize);

	Rows.ScrollBox->SetScrollOffset(5000.0f);
	FSlateApplication::Get().RequestFrame();
	Window.Frame();

	EXPECT_FALSE(Rows.Rows[0]->IsShownInFrame());
	EXPECT_TRUE(Rows.Rows[52]->IsShownInFrame());
	EXPECT_FALSE(Rows.Rows[60]->IsShownInFrame());
}

TEST(SScrollBox, TellsItsOffsetAndWhatIsInView)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);

	Rows.ScrollBox->SetScrollOffset(250.0f);
	FSlateApplication::Get().RequestFrame();
	Window.Frame();

	EXPECT_FLOAT_EQ(Rows.ScrollBox->GetViewFraction(), 0.4f);
	EXPECT_FLOAT_EQ(Rows.ScrollBox->GetViewOffsetFraction(), 0.25f);
}

TEST(SScrollBox, ShowsItsBarOnlyWhenThereIsMoreThanFits)
{
	FRows Few;
	FSlateTestWindow FewWindow(Few.Make(3), WindowSize);
	EXPECT_FALSE(FindBar(*Few.ScrollBox)->IsShownInFrame());

	FRows Many;
	FSlateTestWindow ManyWindow(Many.Make(10), WindowSize);
	EXPECT_TRUE(FindBar(*Many.ScrollBox)->IsShownInFrame());
	EXPECT_LT(Many.Rows[0]->GetPaintSpaceGeometry().GetLocalSize().X, 300.0);
}

TEST(SScrollBox, TheThumbOfTheBarCanBeDraggedToTheEnd)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);
	const FVector2D Bar = FindBar(*Rows.ScrollBox)->GetPaintSpaceGeometry().GetAbsolutePosition();

	Window.MoveMouse(Bar + FVector2D(4.0, 20.0));
	Window.Press();
	Window.MoveMouse(Bar + FVector2D(4.0, 1000.0));
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 600.0f);
	Window.Release();
	Window.MoveMouse(Bar + FVector2D(4.0, 20.0));
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 600.0f);
}

TEST(SScrollBox, APressBesideTheThumbMovesByAPage)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);
	const FVector2D Bar = FindBar(*Rows.ScrollBox)->GetPaintSpaceGeometry().GetAbsolutePosition();

	Window.ClickAt(Bar + FVector2D(4.0, 390.0));

	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 400.0f);
}

TEST(SScrollBox, ScrollToEndGoesToTheEndThatTheNextLayoutFinds)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);

	Rows.ScrollBox->ScrollToEnd();
	Rows.ScrollBox->AddSlot()[SNew(SBox).HeightOverride(200.0f)];
	FSlateApplication::Get().RequestFrame();
	Window.Frame();

	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 800.0f);
}

TEST(SScrollBox, WhatTheKeyboardReachesScrollsIntoView)
{
	TSharedPtr<SScrollBox> ScrollBox;
	FSlateTestWindow Window(SAssignNew(ScrollBox, SScrollBox), WindowSize);
	TSharedPtr<SButton> Last;
	for (int32 Index = 0; Index < 30; ++Index)
	{
		ScrollBox->AddSlot()[SAssignNew(Last, SButton).Text(FText::FromString(TEXT("Row")))];
	}
	FSlateApplication::Get().ClearKeyboardFocus();
	Window.Frame();
	EXPECT_FALSE(Last->IsShownInFrame());
	FHeldModifiers Shift;
	Shift.bShift = true;

	Window.PressKey(EKeys::Tab, Shift);

	EXPECT_TRUE(Last->HasKeyboardFocus());
	EXPECT_TRUE(Last->IsShownInFrame());
}

TEST(SScrollBox, CutsItsContentAtItsBounds)
{
	TSharedPtr<SBox> Content;
	FSlateTestWindow Window(
		SNew(SBox)
			.HAlign(HAlign_Left)
			.VAlign(VAlign_Top)[SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)[SNew(SScrollBox) +
				SScrollBox::Slot()[SAssignNew(Content, SBox).WidthOverride(90.0f).HeightOverride(300.0f)[SNew(SBorder)]]]]);

	EXPECT_NE(Window.GetPixel(50, 50), Window.GetPixel(50, 150));
	EXPECT_EQ(Window.GetPixel(50, 150), Window.GetPixel(300, 300));
}

TEST(SScrollBox, OffsetSetRightAfterNewContentReachesItsEnd)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(5), WindowSize);
	NextFrame(Window);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffsetOfEnd(), 100.0f);

	for (int32 Index = 0; Index < 5; ++Index)
	{
		Rows.ScrollBox->AddSlot()[SNew(SBox).HeightOverride(100.0f)];
	}
	Rows.ScrollBox->SetScrollOffset(500.0f);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 500.0f);
	NextFrame(Window);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 500.0f);

	Rows.ScrollBox->SetScrollOffset(10000.0f);
	NextFrame(Window);
	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 600.0f);
}

TEST(SScrollBox, OffsetThatTheContentNoLongerAllowsIsForgotten)
{
	FRows Rows;
	FSlateTestWindow Window(Rows.Make(10), WindowSize);
	Rows.ScrollBox->SetScrollOffset(600.0f);
	NextFrame(Window);

	Rows.ScrollBox->ClearChildren();
	NextFrame(Window);
	for (const TSharedRef<SWidget>& Row : Rows.Rows)
	{
		Rows.ScrollBox->AddSlot()[Row];
	}
	NextFrame(Window);

	EXPECT_EQ(Rows.ScrollBox->GetScrollOffset(), 0.0f);
}

TEST(SScrollBox, WheelAtTheEndGoesOnToAScrollBoxFurtherOut)
{
	FRows Inner;
	const TSharedRef<SWidget> InnerBox = Inner.Make(10);
	TSharedPtr<SScrollBox> Outer;
	const TSharedRef<SScrollBox> Box = SAssignNew(Outer, SScrollBox);
	Box->AddSlot()[SNew(SBox).HeightOverride(400.0f)[InnerBox]];
	Box->AddSlot()[SNew(SBox).HeightOverride(400.0f)];
	FSlateTestWindow Window(Box, WindowSize);
	Inner.ScrollBox->SetScrollOffset(600.0f);
	Window.MoveMouse(FVector2D(100.0, 100.0));

	Window.Wheel(-1.0f);

	EXPECT_EQ(Inner.ScrollBox->GetScrollOffset(), 600.0f);
	EXPECT_GT(Outer->GetScrollOffset(), 0.0f);
}
