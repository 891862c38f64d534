#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

namespace
{
TSharedRef<SBox> Sized(float Width, float Height)
{
	return SNew(SBox).WidthOverride(Width).HeightOverride(Height)[SNew(SBorder)];
}

FSlateRect RoomOf(const SWidget& Widget)
{
	return Widget.GetPaintSpaceGeometry().GetLayoutBoundingRect();
}

}

TEST(SBoxPanel, AutoSlotsTakeTheirDesiredSizeAndStretchSlotsShareTheRest)
{
	const TSharedRef<SBox> Auto = Sized(40.0f, 100.0f);
	const TSharedRef<SBox> One = Sized(1.0f, 1.0f);
	const TSharedRef<SBox> Three = Sized(1.0f, 1.0f);
	FSlateTestWindow Window(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Auto] +
			SVerticalBox::Slot().FillHeight(1.0f)[One] + SVerticalBox::Slot().FillHeight(3.0f)[Three],
		FVector2D(200.0, 500.0));

	EXPECT_EQ(RoomOf(Auto.Get()), FSlateRect(0.0f, 0.0f, 200.0f, 100.0f));
	EXPECT_EQ(RoomOf(One.Get()), FSlateRect(0.0f, 100.0f, 200.0f, 200.0f));
	EXPECT_EQ(RoomOf(Three.Get()), FSlateRect(0.0f, 200.0f, 200.0f, 500.0f));
}

TEST(SBoxPanel, ALaterAutoOrFillCallWins)
{
	const TSharedRef<SBox> Child = Sized(40.0f, 100.0f);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	Box->AddSlot().FillHeight(1.0f).AutoHeight()[Child];
	FSlateTestWindow Window(Box, FVector2D(200.0, 500.0));

	EXPECT_EQ(RoomOf(Child.Get()).GetSize().Y, 100.0);
}

TEST(SBoxPanel, PaddingAndAlignmentPlaceAChildWithinItsSlot)
{
	const TSharedRef<SBox> Child = Sized(40.0f, 20.0f);
	FSlateTestWindow Window(SNew(SHorizontalBox) +
			SHorizontalBox::Slot().HAlign(HAlign_Right).VAlign(VAlign_Bottom).Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f))[Child],
		FVector2D(200.0, 100.0));

	EXPECT_EQ(RoomOf(Child.Get()), FSlateRect(157.0f, 76.0f, 197.0f, 96.0f));
}

TEST(SBoxPanel, CollapsedTakesNoRoomAndHiddenTakesRoom)
{
	const TSharedRef<SBox> First = Sized(50.0f, 50.0f);
	const TSharedRef<SBox> Second = Sized(50.0f, 50.0f);
	FSlateTestWindow Window(
		SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[First] + SHorizontalBox::Slot().AutoWidth()[Second]);
	const auto Show = [&](EVisibility Visibility)
	{
		First->SetVisibility(Visibility);
		FSlateApplication::Get().RequestFrame();
		Window.Frame();
		return RoomOf(Second.Get()).Left;
	};

	EXPECT_EQ(Show(EVisibility::Collapsed), 0.0f);
	EXPECT_EQ(Show(EVisibility::Hidden), 50.0f);
	EXPECT_FALSE(First->IsShownInFrame());
	EXPECT_EQ(Show(EVisibility::Visible), 50.0f);
	EXPECT_TRUE(First->IsShownInFrame());
}

TEST(SBoxPanel, ASlotJoinsItsPanelWhenTheFullExpressionEnds)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	{
		auto Slot = Box->AddSlot();
		EXPECT_EQ(Box->NumSlots(), 0);
		Slot.AutoHeight()[SNew(SBorder)];
		EXPECT_EQ(Box->NumSlots(), 0);
	}
	EXPECT_EQ(Box->NumSlots(), 1);
}

TEST(SBoxPanel, ARemovedWidgetHasNoParentAndAWidgetGivenAwayHasTheNewOne)
{
	const TSharedRef<SBox> Child = Sized(10.0f, 10.0f);
	const TSharedRef<SVerticalBox> First = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	EXPECT_EQ(Child->GetParentWidget().Get(), &First.Get());

	const TSharedRef<SVerticalBox> Second = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	EXPECT_EQ(Child->GetParentWidget().Get(), &Second.Get());

	EXPECT_EQ(Second->RemoveSlot(Child), 0);
	EXPECT_FALSE(Child->GetParentWidget().IsValid());
	EXPECT_EQ(Second->RemoveSlot(Child), INDEX_NONE);
}

TEST(SBox, OverridesAndLimitsReplaceWhatTheContentDesires)
{
	const TSharedRef<SBox> Box = SNew(SBox)[Sized(100.0f, 100.0f)];
	const auto DesiredSize = [&]
	{
		Box->SlatePrepass();
		return Box->GetDesiredSize();
	};
	EXPECT_EQ(DesiredSize(), FVector2D(100.0, 100.0));
	Box->SetMinDesiredWidth(FOptionalSize(150.0f));
	Box->SetMaxDesiredHeight(FOptionalSize(60.0f));
	EXPECT_EQ(DesiredSize(), FVector2D(150.0, 60.0));
	Box->SetWidthOverride(FOptionalSize(20.0f));
	Box->SetHeightOverride(FOptionalSize(30.0f));
	EXPECT_EQ(DesiredSize(), FVector2D(20.0, 30.0));
}

TEST(SBorder, HasAPaddingOfTwoUnlessToldOtherwise)
{
	const TSharedRef<SBorder> Border = SNew(SBorder)[Sized(10.0f, 10.0f)];
	Border->SlatePrepass();
	EXPECT_EQ(Border->GetDesiredSize(), FVector2D(14.0, 14.0));
}

TEST(SOverlay, EveryChildHasTheWholeRoom)
{
	const TSharedRef<SBox> Below = SNew(SBox);
	const TSharedRef<SBox> Above = SNew(SBox);
	FSlateTestWindow Window(SNew(SOverlay) + SOverlay::Slot()[Below] + SOverlay::Slot()[Above], FVector2D(200.0, 100.0));

	EXPECT_EQ(RoomOf(Below.Get()), FSlateRect(0.0f, 0.0f, 200.0f, 100.0f));
	EXPECT_EQ(RoomOf(Above.Get()), RoomOf(Below.Get()));
}

TEST(DeclarativeSyntax, TheTypeIsTheTextOfTheSNewArgument)
{
	const TSharedRef<SBox> Box = SNew(SBox);
	EXPECT_EQ(Box->GetType(), FName("SBox"));
	TSharedPtr<SBorder> Border;
	SAssignNew(Border, SBorder);
	EXPECT_EQ(Border->GetTypeAsString(), TEXT("SBorder"));
}
