#include "Widgets/Input/SEditableTextBox.h"

#include <gtest/gtest.h>

#include "SlateTestWindow.h"
#include "TextFieldLog.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"

namespace
{
using FLines = TArray<FString>;

FText Text(const TCHAR* String)
{
	return FText::FromString(String);
}

struct FEditableTextBoxTest : testing::Test
{
	void Show(SEditableTextBox::FArguments Arguments = SEditableTextBox::FArguments())
	{
		Arguments.OnTextChanged(Log.MakeOnTextChanged()).OnTextCommitted(Log.MakeOnTextCommitted());
		Box = MakeTDecl<SEditableTextBox>(FSlateTypeText("SEditableTextBox"), RequiredArgs::MakeRequiredArgs()) <<= Arguments;
		Window.Emplace(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top).Padding(FMargin(10.0f))[Box.ToSharedRef()]);
	}

	/** A pixel of the background, right of any text. */
	FColor Background()
	{
		const FSlateRect Room = Box->GetPaintSpaceGeometry().GetLayoutBoundingRect();
		return Window->GetPixel(Room.Right - 4, (Room.Top + Room.Bottom) / 2);
	}

	/** A pixel of the outline. */
	FColor Outline()
	{
		const FSlateRect Room = Box->GetPaintSpaceGeometry().GetLayoutBoundingRect();
		return Window->GetPixel((Room.Left + Room.Right) / 2, Room.Top);
	}

	FTextFieldLog Log;
	TSharedPtr<SEditableTextBox> Box;
	TOptional<FSlateTestWindow> Window;
};
}

TEST_F(FEditableTextBoxTest, PassesTextAndEventsOn)
{
	Show(SEditableTextBox::FArguments().Text(Text(TEXT("one"))));
	EXPECT_EQ(Box->GetText().ToString(), TEXT("one"));
	Window->Click(Box.ToSharedRef());
	Window->PressKey(EKeys::End);
	Window->TypeText(TEXT("!"));
	Window->PressKey(EKeys::Enter);
	EXPECT_EQ(Box->GetText().ToString(), TEXT("one!"));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed one!"), TEXT("committed one! OnEnter"), TEXT("committed one! OnCleared")}));

	Box->SetText(Text(TEXT("two")));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed two")}));
}

TEST_F(FEditableTextBoxTest, HasOtherLooksHoveredFocusedAndReadOnly)
{
	Show(SEditableTextBox::FArguments().MinDesiredWidth(100.0f));
	const FColor Normal = Background();
	const FColor NormalOutline = Outline();

	Window->MoveMouse(Window->MiddleOf(*Box));
	EXPECT_NE(Background(), Normal);

	Window->Click(Box.ToSharedRef());
	EXPECT_TRUE(Box->HasFocusedDescendants());
	EXPECT_NE(Outline(), NormalOutline);

	FSlateApplication::Get().ClearKeyboardFocus();
	Window->MoveMouse(FVector2D(400.0, 400.0));
	EXPECT_EQ(Background(), Normal);
	EXPECT_EQ(Outline(), NormalOutline);

	Box->SetIsReadOnly(true);
	Window->Frame();
	EXPECT_TRUE(Box->IsReadOnly());
	EXPECT_NE(Background(), Normal);
}

TEST_F(FEditableTextBoxTest, ReadOnlyFieldWithTheFocusHasItsFrameAndKeepsItsGround)
{
	Show(SEditableTextBox::FArguments().MinDesiredWidth(100.0f));
	Window->Click(Box.ToSharedRef());
	const FColor FocusedOutline = Outline();
	FSlateApplication::Get().ClearKeyboardFocus();
	Box->SetIsReadOnly(true);
	Window->MoveMouse(FVector2D(400.0, 400.0));
	const FColor Ground = Background();
	EXPECT_NE(Outline(), FocusedOutline);

	Window->PressKey(EKeys::Tab);

	EXPECT_TRUE(Box->HasFocusedDescendants());
	EXPECT_EQ(Outline(), FocusedOutline);
	EXPECT_EQ(Background(), Ground);
}

TEST_F(FEditableTextBoxTest, IsAsHighAsAButton)
{
	Show();
	const TSharedRef<SButton> Button = SNew(SButton).Text(Text(TEXT("Go")));
	Button->SlatePrepass(1.0f);

	EXPECT_EQ(Box->GetDesiredSize().Y, Button->GetDesiredSize().Y);
}

TEST_F(FEditableTextBoxTest, TheStyleGivesTheRoomAroundTheText)
{
	FEditableTextBoxStyle Style = FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");
	Show(SEditableTextBox::FArguments().Text(Text(TEXT("abc"))));
	const FVector2D Before = Box->GetDesiredSize();

	Style.SetPadding(Style.Padding + FMargin(10.0f, 20.0f));
	Box->SetStyle(&Style);
	Window->Frame();
	EXPECT_EQ(Box->GetDesiredSize(), Before + FVector2D(20.0, 40.0));

	Box->SetStyle(nullptr);
	Window->Frame();
	EXPECT_EQ(Box->GetDesiredSize(), Before);
	Window.Reset();
}

TEST_F(FEditableTextBoxTest, TextTakesTheForegroundColourThatIsSet)
{
	Show(SEditableTextBox::FArguments().Text(Text(TEXT("\u2588\u2588\u2588"))));
	Box->SetForegroundColor(FSlateColor(FLinearColor::Green));
	Window->Frame();
	const FVector2D Middle = Window->MiddleOf(*Box);
	EXPECT_EQ(Window->GetPixel(Middle.X, Middle.Y), FColor(0, 255, 0, 255));
}

TEST_F(FEditableTextBoxTest, IsNotNarrowerThanTold)
{
	Show();
	Box->SetMinimumDesiredWidth(250.0f);
	Window->Frame();
	EXPECT_GE(Box->GetDesiredSize().X, 250.0);
}

TEST_F(FEditableTextBoxTest, AClickOnTheFrameReachesTheText)
{
	Show(SEditableTextBox::FArguments().Text(Text(TEXT("abc"))).MinDesiredWidth(200.0f));
	Window->ClickAt(FVector2D(Window->MiddleOf(*Box).X, Box->GetPaintSpaceGeometry().AbsolutePosition.Y + 1.0));
	EXPECT_TRUE(Box->HasFocusedDescendants());
}
