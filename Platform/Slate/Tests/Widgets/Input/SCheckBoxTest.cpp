#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
struct FCheckBoxWindow
{
	TSharedPtr<SCheckBox> CheckBox;
	TArray<ECheckBoxState> Told;
	TArray<ECheckBoxState> StoredWhenTold;

	TSharedRef<SWidget> Make(const TAttribute<ECheckBoxState>& State)
	{
		return SNew(SBox)
			.HAlign(HAlign_Left)
			.VAlign(VAlign_Top)
			.Padding(FMargin(20.0f))[SAssignNew(CheckBox, SCheckBox)
										 .IsChecked(State)
										 .OnCheckStateChanged_Lambda(
											 [this](ECheckBoxState NewState)
											 {
												 Told.Add(NewState);
												 StoredWhenTold.Add(CheckBox->GetCheckedState());
											 })[SNew(STextBlock).Text(FText::FromString(TEXT("Tick")))]];
	}
};
}

TEST(SCheckBox, StoresItsNewStateBeforeItTells)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Unchecked));

	Window.Click(Box.CheckBox.ToSharedRef());

	EXPECT_EQ(Box.Told, TArray<ECheckBoxState>({ECheckBoxState::Checked}));
	EXPECT_EQ(Box.StoredWhenTold, TArray<ECheckBoxState>({ECheckBoxState::Checked}));
	EXPECT_TRUE(Box.CheckBox->IsChecked());
}

TEST(SCheckBox, GoesFromUndeterminedToUnchecked)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Undetermined));

	Window.Click(Box.CheckBox.ToSharedRef());

	EXPECT_EQ(Box.Told, TArray<ECheckBoxState>({ECheckBoxState::Unchecked}));
}

TEST(SCheckBox, LeavesABoundStateToItsOwner)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(TAttribute<ECheckBoxState>::CreateLambda([] { return ECheckBoxState::Unchecked; })));

	Window.Click(Box.CheckBox.ToSharedRef());

	EXPECT_EQ(Box.Told, TArray<ECheckBoxState>({ECheckBoxState::Checked}));
	EXPECT_FALSE(Box.CheckBox->IsChecked());
}

TEST(SCheckBox, SetIsCheckedTellsNobody)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Unchecked));

	Box.CheckBox->SetIsChecked(ECheckBoxState::Checked);

	EXPECT_TRUE(Box.CheckBox->IsChecked());
	EXPECT_EQ(Box.Told.Num(), 0);
}

TEST(SCheckBox, ChangesOnReleaseOfTheSpaceBar)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Unchecked));
	FSlateApplication::Get().SetKeyboardFocus(Box.CheckBox);

	Window.KeyDown(EKeys::SpaceBar);
	EXPECT_EQ(Box.Told.Num(), 0);
	Window.KeyUp(EKeys::SpaceBar);
	EXPECT_EQ(Box.Told.Num(), 1);
}

TEST(SCheckBox, DoesNotChangeWhenReleasedElsewhere)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Unchecked));

	Window.MoveMouse(Window.MiddleOf(*Box.CheckBox));
	Window.Press();
	Window.MoveMouse(FVector2D(500.0, 400.0));
	Window.Release();

	EXPECT_EQ(Box.Told.Num(), 0);
}

TEST(SCheckBox, ShowsItsState)
{
	FCheckBoxWindow Box;
	FSlateTestWindow Window(Box.Make(ECheckBoxState::Unchecked));
	const FVector2D Mark =
		Box.CheckBox->GetPaintSpaceGeometry().GetAbsolutePosition() + FVector2D(6.0, Box.CheckBox->GetDesiredSize().Y / 2.0);
	const FColor Unchecked = Window.GetPixel(Mark.X, Mark.Y);

	Box.CheckBox->SetIsChecked(ECheckBoxState::Checked);

	EXPECT_NE(Window.GetPixel(Mark.X, Mark.Y), Unchecked);
}
