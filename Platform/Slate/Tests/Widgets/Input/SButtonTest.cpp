#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "Styling/AppStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
struct FCountingButton
{
	int32 Clicks = 0;
	TSharedPtr<SButton> Button;

	TSharedRef<SWidget> Make()
	{
		return SNew(SBox)
			.HAlign(HAlign_Left)
			.VAlign(VAlign_Top)
			.Padding(FMargin(20.0f))[SAssignNew(Button, SButton)
										 .Text(FText::FromString(TEXT("Press")))
										 .OnClicked_Lambda(
											 [this]
											 {
												 ++Clicks;
												 return FReply::Handled();
											 })];
	}
};
}

TEST(SButton, ActsWhenAPressIsReleasedOverIt)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());

	Window.MoveMouse(Window.MiddleOf(*Counting.Button));
	Window.Press();
	EXPECT_TRUE(Counting.Button->IsPressed());
	EXPECT_EQ(Counting.Clicks, 0);

	Window.Release();
	EXPECT_FALSE(Counting.Button->IsPressed());
	EXPECT_EQ(Counting.Clicks, 1);
}

TEST(SButton, DoesNotActWhenReleasedElsewhere)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());

	Window.MoveMouse(Window.MiddleOf(*Counting.Button));
	Window.Press();
	Window.MoveMouse(FVector2D(500.0, 400.0));
	Window.Release();

	EXPECT_EQ(Counting.Clicks, 0);
	EXPECT_FALSE(Counting.Button->IsPressed());
}

TEST(SButton, TreatsTheSecondPressOfADoubleClickAsAPress)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());

	Window.DoubleClickAt(Window.MiddleOf(*Counting.Button));

	EXPECT_EQ(Counting.Clicks, 2);
}

TEST(SButton, ActsOnReleaseOfEnterAndSpace)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());
	FSlateApplication::Get().SetKeyboardFocus(Counting.Button);

	Window.KeyDown(EKeys::SpaceBar);
	EXPECT_EQ(Counting.Clicks, 0);
	Window.KeyUp(EKeys::SpaceBar);
	EXPECT_EQ(Counting.Clicks, 1);
	Window.PressKey(EKeys::Enter);
	EXPECT_EQ(Counting.Clicks, 2);
}

TEST(SButton, IgnoresTheRightMouseButton)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());

	Window.Click(Counting.Button.ToSharedRef(), EMouseButtons::Right);

	EXPECT_EQ(Counting.Clicks, 0);
}

TEST(SButton, DisabledTakesNoInput)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());
	Counting.Button->SetEnabled(false);

	Window.Click(Counting.Button.ToSharedRef());

	EXPECT_EQ(Counting.Clicks, 0);
}

TEST(SButton, HasOtherPixelsNormalHoveredPressedAndDisabled)
{
	FCountingButton Counting;
	FSlateTestWindow Window(Counting.Make());
	const FVector2D Middle = Window.MiddleOf(*Counting.Button);
	const int32 X = FMath::RoundToInt32(Counting.Button->GetPaintSpaceGeometry().GetAbsolutePosition().X) + 6;
	const int32 Y = FMath::RoundToInt32(Middle.Y);

	const FColor Normal = Window.GetPixel(X, Y);
	Window.MoveMouse(Middle);
	const FColor Hovered = Window.GetPixel(X, Y);
	Window.Press();
	const FColor Pressed = Window.GetPixel(X, Y);
	Window.Release();
	Window.MoveMouse(FVector2D(500.0, 400.0));
	EXPECT_EQ(Window.GetPixel(X, Y), Normal);
	Counting.Button->SetEnabled(false);
	const FColor Disabled = Window.GetPixel(X, Y);

	EXPECT_NE(Normal, Hovered);
	EXPECT_NE(Hovered, Pressed);
	EXPECT_NE(Normal, Pressed);
	EXPECT_NE(Normal, Disabled);
}

TEST(SButton, ContentPaddingAddsToThePaddingOfTheStyleAndMayBeNegative)
{
	TSharedPtr<SButton> Wide;
	TSharedPtr<SButton> Narrow;
	const FText Text = FText::FromString(TEXT("Same"));
	FSlateTestWindow Window(SNew(SVerticalBox) +
		SVerticalBox::Slot().AutoHeight().HAlign(
			HAlign_Left)[SAssignNew(Wide, SButton).Text(Text).ContentPadding(FMargin(0.0f))] +
		SVerticalBox::Slot().AutoHeight().HAlign(
			HAlign_Left)[SAssignNew(Narrow, SButton).Text(Text).ContentPadding(FMargin(-16.0f, 0.0f))]);

	EXPECT_DOUBLE_EQ(Wide->GetDesiredSize().X - Narrow->GetDesiredSize().X, 32.0);
	EXPECT_GT(Narrow->GetDesiredSize().X, Narrow->GetContent()->GetDesiredSize().X);
}

TEST(SButton, TheContentStaysWithinTheButtonHoweverNegativeThePadding)
{
	TSharedPtr<SButton> Button;
	FSlateTestWindow Window(
		SNew(SBox)
			.HAlign(HAlign_Left)
			.VAlign(
				VAlign_Top)[SAssignNew(Button, SButton).Text(FText::FromString(TEXT("Text"))).ContentPadding(FMargin(-100.0f))]);

	EXPECT_EQ(Button->GetDesiredSize(), Button->GetContent()->GetDesiredSize());
}

TEST(SButton, AHandlerMayTakeTheButtonOutOfItsWindow)
{
	TSharedPtr<SVerticalBox> Box;
	TSharedPtr<SButton> Button;
	FSlateTestWindow Window(SAssignNew(Box, SVerticalBox));
	Box->AddSlot().AutoHeight()[SAssignNew(Button, SButton)
									.Text(FText::FromString(TEXT("Go away")))
									.OnClicked_Lambda(
										[&]
										{
											Box->ClearChildren();
											Button.Reset();
											return FReply::Handled();
										})];
	Window.Frame();

	Window.Click(Button.ToSharedRef());

	EXPECT_EQ(Box->NumSlots(), 0);
	EXPECT_FALSE(Button.IsValid());
}
