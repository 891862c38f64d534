#include "Widgets/Input/SMultiLineEditableTextBox.h"

#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "TextFieldLog.h"
#include "Widgets/Layout/SBox.h"

namespace
{
using FLines = TArray<FString>;

/** A box of 200 by 100 units with a hundred short lines, at the top left of a window. */
struct FMultiLineEditableTextBoxTest : testing::Test
{
	void Show(SMultiLineEditableTextBox::FArguments Arguments = SMultiLineEditableTextBox::FArguments())
	{
		FString Lines;
		for (int32 Line = 0; Line < 100; ++Line)
		{
			Lines += FString::Printf(TEXT("line %d\n"), Line);
		}
		Arguments.Text(FText::FromString(Lines))
			.OnTextChanged(Log.MakeOnTextChanged())
			.OnTextCommitted(Log.MakeOnTextCommitted());
		Box = MakeTDecl<SMultiLineEditableTextBox>(
			FSlateTypeText("SMultiLineEditableTextBox"), RequiredArgs::MakeRequiredArgs()) <<= Arguments;
		// clang-format off
		Window.Emplace(
			SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
			[
				SNew(SBox).WidthOverride(200.0f).HeightOverride(100.0f)[Box.ToSharedRef()]
			]);
		// clang-format on
	}

	/** A pixel in the middle of the vertical bar. */
	FColor BarAt(int32 Y) { return Window->GetPixel(BarX, Y); }

	static constexpr int32 BarX = 194;

	FTextFieldLog Log;
	TSharedPtr<SMultiLineEditableTextBox> Box;
	TOptional<FSlateTestWindow> Window;
};
}

TEST_F(FMultiLineEditableTextBoxTest, TheBarShowsWhichPartIsInView)
{
	Show();
	const FColor Thumb = BarAt(10);
	EXPECT_NE(BarAt(80), Thumb);

	Box->ScrollTo(ETextLocation::EndOfDocument);
	Window->Frame();
	EXPECT_NE(BarAt(10), Thumb);
	EXPECT_EQ(BarAt(80), Thumb);
}

TEST_F(FMultiLineEditableTextBoxTest, DraggingTheBarScrolls)
{
	Show();
	Window->MoveMouse(FVector2D(BarX, 10.0));
	Window->Press();
	Window->MoveMouse(FVector2D(BarX, 200.0));
	Window->Release();
	Window->ClickAt(FVector2D(60.0, 60.0));
	Window->TypeText(TEXT("|"));

	TArray<FString> Lines;
	Box->GetText().ToString().ParseIntoArray(Lines, TEXT("\n"), false);
	EXPECT_GT(Lines.IndexOfByPredicate([](const FString& Line) { return Line.Contains(TEXT("|")); }), 90);
}

TEST_F(FMultiLineEditableTextBoxTest, BarsTakeNoRoomUntilTheyAreNeededOrAskedFor)
{
	const auto GetEmptySize = [this]
	{
		Box->SetText(FText());
		Window->Frame();
		return Box->GetDesiredSize();
	};
	Show();
	const FVector2D WithoutBars = GetEmptySize();
	EXPECT_EQ(BarAt(50), Window->GetPixel(100, 50));

	Show(SMultiLineEditableTextBox::FArguments().AlwaysShowScrollbars(true));
	const float Thickness = FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar").Thickness;
	EXPECT_EQ(GetEmptySize(), WithoutBars + FVector2D(Thickness, Thickness));
}

TEST_F(FMultiLineEditableTextBoxTest, PassesTextAndEventsOn)
{
	Show();
	Box->SetText(FText::FromString(TEXT("a")));
	Window->Click(Box.ToSharedRef());
	Window->PressKey(EKeys::Enter);
	FSlateApplication::Get().ClearKeyboardFocus();
	EXPECT_EQ(Box->GetText().ToString(), TEXT("a\n"));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed a"), TEXT("changed a\n"), TEXT("committed a\n OnCleared")}));
}

TEST_F(FMultiLineEditableTextBoxTest, PaddingAndMarginTakeRoom)
{
	Show();
	const FVector2D Plain = Box->GetDesiredSize();
	Show(SMultiLineEditableTextBox::FArguments().Padding(FMargin(20.0f)).Margin(FMargin(3.0f)));
	const FMargin Replaced = FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox").Padding;
	EXPECT_EQ(Box->GetDesiredSize(), Plain + FVector2D(46.0, 46.0) - Replaced.GetDesiredSize());
}
