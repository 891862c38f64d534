#include "Widgets/Input/SEditableText.h"

#include <gtest/gtest.h>

#include "Fonts/FontMeasure.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Rendering/SlateRenderer.h"
#include "SlateTestWindow.h"
#include "TextFieldLog.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
using FLines = TArray<FString>;

constexpr FHeldModifiers GShift{true, false, false};
constexpr FHeldModifiers GControl{false, true, false};
constexpr FHeldModifiers GControlShift{true, true, false};

FText Text(const TCHAR* String)
{
	return FText::FromString(String);
}

constexpr float FieldWidth = 200.0f;

/** Two fields, one above the other; the first is the one under test. */
struct FEditableTextTest : testing::Test
{
	void Show(SEditableText::FArguments Arguments = SEditableText::FArguments())
	{
		Arguments.OnTextChanged(Log.MakeOnTextChanged()).OnTextCommitted(Log.MakeOnTextCommitted());
		Field = MakeTDecl<SEditableText>(FSlateTypeText("SEditableText"), RequiredArgs::MakeRequiredArgs()) <<= Arguments;
		SAssignNew(Other, SEditableText);
		// clang-format off
		Window.Emplace(
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left).Padding(FMargin(10.0f))
			[
				SNew(SBox).WidthOverride(FieldWidth)[Field.ToSharedRef()]
			]
			+ SVerticalBox::Slot().AutoHeight().Padding(FMargin(10.0f))
			[
				Other.ToSharedRef()
			]);
		// clang-format on
	}

	void Focus() { FSlateApplication::Get().SetKeyboardFocus(Field); }

	void Press(const FKey& Key, FHeldModifiers Modifiers = {}) { Window->PressKey(Key, Modifiers); }

	FString Shown() const { return Field->GetText().ToString(); }

	FVector2D PlaceAt(float X) const
	{
		const FGeometry& Geometry = Field->GetPaintSpaceGeometry();
		return Geometry.LocalToAbsolute(FVector2D(X, Geometry.GetLocalSize().Y * 0.5));
	}

	/** The middle of the character at an index, in a field that is not scrolled. */
	FVector2D PlaceOfCharacter(int32 Index) const { return PlaceAt((WidthOf(Index) + WidthOf(Index + 1)) * 0.5f); }

	/** Of the first characters, in slate units. */
	float WidthOf(int32 NumCharacters) const
	{
		const TSharedRef<FSlateFontMeasure> Service = FSlateApplication::Get().GetRenderer()->GetFontMeasureService();
		const float Scale = Field->GetPaintSpaceGeometry().Scale;
		return Service->Measure(Shown(), 0, NumCharacters, Field->GetFont(), true, Scale).X / Scale;
	}

	static FString Clipboard()
	{
		FString Result;
		FPlatformApplicationMisc::ClipboardPaste(Result);
		return Result;
	}

	FTextFieldLog Log;
	FText Model;
	TSharedPtr<SEditableText> Field;
	TSharedPtr<SEditableText> Other;
	TOptional<FSlateTestWindow> Window;
};
}

TEST_F(FEditableTextTest, TellsEachTypedCharacter)
{
	Show();
	Focus();
	Window->TypeText(TEXT("ab"));
	EXPECT_EQ(Shown(), TEXT("ab"));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed a"), TEXT("changed ab")}));
}

TEST_F(FEditableTextTest, TakesACharacterOfTwoUnitsAsOne)
{
	Show();
	Focus();
	Window->TypeText(TEXT("\U0001F600"));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed \U0001F600")}));
	Press(EKeys::BackSpace);
	EXPECT_EQ(Shown(), TEXT(""));
}

TEST_F(FEditableTextTest, IgnoresControlCharacters)
{
	Show();
	Focus();
	Window->TypeText(TEXT("\b\t\r\u001b\u007f"));
	EXPECT_EQ(Log.Take(), FLines());
}

TEST_F(FEditableTextTest, EnterCommitsAndGivingUpTheFocusCommitsOnceMore)
{
	Show();
	Focus();
	Window->TypeText(TEXT("a"));
	Press(EKeys::Enter);
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed a"), TEXT("committed a OnEnter"), TEXT("committed a OnCleared")}));
	EXPECT_FALSE(Field->HasKeyboardFocus());
}

TEST_F(FEditableTextTest, EnterCommitsOnceWhereTheFocusStays)
{
	Show(SEditableText::FArguments().ClearKeyboardFocusOnCommit(false));
	Focus();
	Press(EKeys::Enter);
	EXPECT_EQ(Log.Take(), FLines({TEXT("committed  OnEnter")}));
	EXPECT_TRUE(Field->HasKeyboardFocus());
}

TEST_F(FEditableTextTest, CommitsAtThePressOfTheMouseElsewhereChangedOrNot)
{
	Show();
	Window->Click(Field.ToSharedRef());
	EXPECT_TRUE(Field->HasKeyboardFocus());
	Window->MoveMouse(Window->MiddleOf(*Other));
	EXPECT_EQ(Log.Take(), FLines());
	Window->Press();
	EXPECT_EQ(Log.Take(), FLines({TEXT("committed  OnUserMovedFocus")}));
	Window->Release();
}

TEST_F(FEditableTextTest, CommitsWhenTabMovesTheFocus)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("x"))));
	Focus();
	Press(EKeys::Tab);
	EXPECT_TRUE(Other->HasKeyboardFocus());
	EXPECT_EQ(Log.Take(), FLines({TEXT("committed x OnUserMovedFocus")}));
}

TEST_F(FEditableTextTest, CodeThatChangesTheTextIsToldAndAnEqualTextIsNot)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("a"))));
	EXPECT_EQ(Log.Take(), FLines());
	Field->SetText(Text(TEXT("A")));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed A")}));
	Field->SetText(Text(TEXT("A")));
	EXPECT_EQ(Log.Take(), FLines());
}

TEST_F(FEditableTextTest, ABoundTextShowsItsChangesAndIsNeverWrittenTo)
{
	Model = Text(TEXT("one"));
	Show(SEditableText::FArguments().Text_Lambda([this] { return Model; }));
	EXPECT_EQ(Shown(), TEXT("one"));

	Focus();
	Press(EKeys::End);
	Window->TypeText(TEXT("!"));
	EXPECT_EQ(Shown(), TEXT("one!"));
	EXPECT_TRUE(Model.EqualTo(Text(TEXT("one"))));

	Model = Text(TEXT("two"));
	EXPECT_EQ(Shown(), TEXT("two"));
	EXPECT_EQ(Log.Take(), FLines({TEXT("changed one!")}));
}

TEST_F(FEditableTextTest, ABoundTextIsShownAgainWhenTheFocusLeaves)
{
	Show(SEditableText::FArguments().Text_Lambda([] { return Text(TEXT("fixed")); }));
	Focus();
	Window->TypeText(TEXT("not "));
	Press(EKeys::Tab);
	EXPECT_EQ(Log.Take().Last(), TEXT("committed not fixed OnUserMovedFocus"));
	EXPECT_EQ(Shown(), TEXT("fixed"));
}

TEST_F(FEditableTextTest, ATextFromCodeReplacesTheBinding)
{
	Model = Text(TEXT("one"));
	Show(SEditableText::FArguments().Text_Lambda([this] { return Model; }));
	Field->SetText(Text(TEXT("free")));
	Model = Text(TEXT("two"));
	Window->Frame();
	EXPECT_EQ(Shown(), TEXT("free"));
}

TEST_F(FEditableTextTest, GivesBackATextWithLineEndsUnchanged)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("a\nb"))));
	EXPECT_EQ(Shown(), TEXT("a\nb"));
}

TEST_F(FEditableTextTest, KeysMoveAndSelectByCharacterAndWord)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("one two three"))));
	Focus();
	Press(EKeys::Right, GControl);
	Press(EKeys::Right, GControlShift);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("two "));
	Press(EKeys::Left, GShift);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("two"));
	Press(EKeys::End, GShift);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("two three"));
	Press(EKeys::Home);
	EXPECT_FALSE(Field->AnyTextSelected());
	Press(EKeys::A, GControl);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("one two three"));
}

TEST_F(FEditableTextTest, KeysDeleteCharactersAndWords)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("one two three"))));
	Focus();
	Press(EKeys::Delete);
	EXPECT_EQ(Shown(), TEXT("ne two three"));
	Press(EKeys::Delete, GControl);
	EXPECT_EQ(Shown(), TEXT("two three"));
	Press(EKeys::End);
	Press(EKeys::BackSpace);
	EXPECT_EQ(Shown(), TEXT("two thre"));
	Press(EKeys::BackSpace, GControl);
	EXPECT_EQ(Shown(), TEXT("two "));
}

TEST_F(FEditableTextTest, CopiesCutsAndPastes)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("one two"))));
	Focus();
	Press(EKeys::Right, GControlShift);
	Press(EKeys::C, GControl);
	EXPECT_EQ(Clipboard(), TEXT("one "));
	Press(EKeys::X, GControl);
	EXPECT_EQ(Shown(), TEXT("two"));
	Press(EKeys::End);
	Press(EKeys::V, GControl);
	EXPECT_EQ(Shown(), TEXT("twoone "));
	Press(EKeys::Insert, GShift);
	EXPECT_EQ(Shown(), TEXT("twoone one "));
}

TEST_F(FEditableTextTest, PastesSeveralLinesAsOne)
{
	Show();
	Focus();
	FPlatformApplicationMisc::ClipboardCopy(TEXT("a\r\nb\nc\n"));
	Press(EKeys::V, GControl);
	EXPECT_EQ(Shown(), TEXT("a b c"));
}

TEST_F(FEditableTextTest, PastingNothingLeavesTheSelection)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("one"))));
	Focus();
	Press(EKeys::A, GControl);
	FPlatformApplicationMisc::ClipboardCopy(TEXT(""));
	Press(EKeys::V, GControl);
	EXPECT_EQ(Shown(), TEXT("one"));
}

TEST_F(FEditableTextTest, UndoesAndRedoesWithEachUsualKey)
{
	Show();
	Focus();
	Window->TypeText(TEXT("ab"));
	Press(EKeys::Z, GControl);
	EXPECT_EQ(Shown(), TEXT("a"));
	Press(EKeys::Z, GControl);
	EXPECT_EQ(Shown(), TEXT(""));
	Press(EKeys::Z, GControlShift);
	EXPECT_EQ(Shown(), TEXT("a"));
	Press(EKeys::Y, GControl);
	EXPECT_EQ(Shown(), TEXT("ab"));
	EXPECT_EQ(Log.Take().Num(), 6);
}

TEST_F(FEditableTextTest, EscapeFirstClearsTheSelectionThenRevertsWhereAsked)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("old"))).RevertTextOnEscape(true));
	Focus();
	Press(EKeys::A, GControl);
	Window->TypeText(TEXT("new"));
	Press(EKeys::A, GControl);
	Press(EKeys::Escape);
	EXPECT_FALSE(Field->AnyTextSelected());
	EXPECT_EQ(Shown(), TEXT("new"));
	Press(EKeys::Escape);
	EXPECT_EQ(Shown(), TEXT("old"));
	EXPECT_EQ(Log.Take().Last(), TEXT("changed old"));
	EXPECT_TRUE(Field->HasKeyboardFocus());
}

TEST_F(FEditableTextTest, EscapeKeepsTheTextByDefault)
{
	Show();
	Focus();
	Window->TypeText(TEXT("new"));
	Press(EKeys::Escape);
	EXPECT_EQ(Shown(), TEXT("new"));
}

TEST_F(FEditableTextTest, AReadOnlyTextCanBeSelectedAndCopiedButNotEdited)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("fixed"))).IsReadOnly(true));
	Focus();
	Press(EKeys::A, GControl);
	Press(EKeys::C, GControl);
	EXPECT_EQ(Clipboard(), TEXT("fixed"));
	Window->TypeText(TEXT("x"));
	Press(EKeys::Delete);
	Press(EKeys::BackSpace);
	Press(EKeys::X, GControl);
	Press(EKeys::V, GControl);
	Press(EKeys::Enter);
	EXPECT_EQ(Shown(), TEXT("fixed"));
	EXPECT_EQ(Log.Take(), FLines());
}

TEST_F(FEditableTextTest, APasswordStaysOutOfTheClipboard)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("secret"))).IsPassword(true));
	Focus();
	FPlatformApplicationMisc::ClipboardCopy(TEXT("before"));
	Press(EKeys::A, GControl);
	Press(EKeys::C, GControl);
	Press(EKeys::X, GControl);
	EXPECT_EQ(Clipboard(), TEXT("before"));
	EXPECT_EQ(Shown(), TEXT("secret"));
}

TEST_F(FEditableTextTest, SelectsAllWhenTheFocusComesByKeyboard)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("all"))).SelectAllTextWhenFocused(true));
	FSlateApplication::Get().SetKeyboardFocus(Other);
	Press(EKeys::Tab, GShift);
	EXPECT_TRUE(Field->HasKeyboardFocus());
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("all"));
}

TEST_F(FEditableTextTest, SelectsAllWhenTheClickThatBringsTheFocusEnds)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("all of it"))).SelectAllTextWhenFocused(true));
	Window->MoveMouse(PlaceOfCharacter(2));
	Window->Press();
	EXPECT_FALSE(Field->AnyTextSelected());
	Window->Release();
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("all of it"));

	Window->ClickAt(PlaceOfCharacter(2));
	EXPECT_FALSE(Field->AnyTextSelected());
}

TEST_F(FEditableTextTest, ADragThatBringsTheFocusSelectsWhatItPasses)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("all of it"))).SelectAllTextWhenFocused(true));
	Window->MoveMouse(PlaceAt(WidthOf(1)));
	Window->Press();
	Window->MoveMouse(PlaceAt(WidthOf(6)));
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("ll of"));
	Window->Release();
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("ll of"));
}

TEST_F(FEditableTextTest, AClickPutsTheCaretBetweenTheNearestCharacters)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("abcdef"))));
	Window->ClickAt(PlaceAt(WidthOf(3)));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("abc|def"));
}

TEST_F(FEditableTextTest, AClickInTextFromRightToLeftPutsTheCaretWhereItIsSeen)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("\u05D0\u05D1\u05D2"))));
	Window->ClickAt(PlaceAt(FieldWidth - 1.0f));
	Window->TypeText(TEXT("\u05D3"));
	EXPECT_EQ(Shown(), FString(TEXT("\u05D3\u05D0\u05D1\u05D2"))) << "the text begins at the right end";

	Window->ClickAt(PlaceAt(FieldWidth - WidthOf(4)));
	Window->TypeText(TEXT("\u05D4"));
	EXPECT_EQ(Shown(), FString(TEXT("\u05D3\u05D0\u05D1\u05D2\u05D4")));
}

TEST_F(FEditableTextTest, TheSelectionOfTextFromRightToLeftLiesUnderItsLetters)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("\u05D0\u05D1\u05D2"))));
	const FVector2D Begin = PlaceAt(FieldWidth - 4.0f);
	const FVector2D End = PlaceAt(FieldWidth - WidthOf(3) + 1.0f);
	const auto TopPixel = [this](const FVector2D& Place)
	{
		return Window->GetPixel(Place.X, Place.Y - 6);
	};
	const FColor Plain = TopPixel(End);

	Focus();
	Press(EKeys::Home);
	Press(EKeys::Right, GShift);

	EXPECT_EQ(TopPixel(End), Plain);
	EXPECT_NE(TopPixel(Begin), Plain);
}

TEST_F(FEditableTextTest, AClickFindsItsPlaceAtAnyScale)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("abcdef"))));
	Window->GetWindow().GetNativeWindow()->SetDPIScaleFactor(1.75f);
	Field->SetText(Text(TEXT("abcdefgh")));
	Window->Frame();
	ASSERT_EQ(Field->GetPaintSpaceGeometry().Scale, 1.75f);
	Window->ClickAt(PlaceAt(WidthOf(5)));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("abcde|fgh"));
}

TEST_F(FEditableTextTest, AShiftClickExtendsTheSelection)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("abcdef"))));
	Window->ClickAt(PlaceAt(WidthOf(1)));
	Window->KeyDown(EKeys::LeftShift, GShift);
	Window->ClickAt(PlaceAt(WidthOf(4)));
	Window->KeyUp(EKeys::LeftShift);
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("bcd"));
}

TEST_F(FEditableTextTest, ADoubleClickSelectsAWord)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("one two three"))));
	Window->DoubleClickAt(PlaceOfCharacter(5));
	EXPECT_EQ(Field->GetSelectedText().ToString(), TEXT("two"));
}

TEST_F(FEditableTextTest, TheSelectionGoesWithTheFocus)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("abc"))));
	Focus();
	Press(EKeys::A, GControl);
	Press(EKeys::Tab);
	EXPECT_FALSE(Field->AnyTextSelected());
}

TEST_F(FEditableTextTest, ALongTextScrollsWithTheCaret)
{
	FString Long;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Long += TEXT("wide ");
	}
	Show(SEditableText::FArguments().Text(FText::FromString(Long)));
	Focus();
	Press(EKeys::End);
	Window->ClickAt(PlaceAt(199.0f));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), Long + TEXT("|"));

	Press(EKeys::Home);
	Window->ClickAt(PlaceAt(0.0f));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("|") + Long + TEXT("|"));
}

TEST_F(FEditableTextTest, TheCaretBlinksOnlyWhileThereIsTheFocus)
{
	Show();
	const FGeometry& Geometry = Field->GetPaintSpaceGeometry();
	const auto IsCaretLit = [&]
	{
		const FVector2D Caret = Geometry.LocalToAbsolute(FVector2D(0.0, Geometry.GetLocalSize().Y * 0.5));
		return Window->GetPixel(Caret.X, Caret.Y) != Window->GetPixel(Caret.X + 4, Caret.Y);
	};
	Window->Wait(1.0);
	EXPECT_FALSE(IsCaretLit());
	EXPECT_GT(FSlateApplication::Get().GetSecondsToNextCall(), 1000.0);

	Focus();
	Window->Frame();
	EXPECT_TRUE(IsCaretLit());
	Window->Wait(1.1);
	EXPECT_FALSE(IsCaretLit());
	Window->Wait(0.5);
	EXPECT_TRUE(IsCaretLit());

	FSlateApplication::Get().ClearKeyboardFocus();
	Window->Wait(0.1);
	EXPECT_FALSE(IsCaretLit());
	EXPECT_GT(FSlateApplication::Get().GetSecondsToNextCall(), 1000.0);
}

TEST_F(FEditableTextTest, TheHintShowsOnlyWhileThereIsNoText)
{
	Show(SEditableText::FArguments().HintText(Text(TEXT("\u2588\u2588\u2588\u2588"))));
	const FVector2D Inside = PlaceAt(10.0f);
	const FColor Hint = Window->GetPixel(Inside.X, Inside.Y);
	const FVector2D Outside = PlaceAt(150.0f);
	const FColor Background = Window->GetPixel(Outside.X, Outside.Y);
	EXPECT_NE(Hint, Background);

	Field->SetText(Text(TEXT(" ")));
	EXPECT_EQ(Window->GetPixel(Inside.X, Inside.Y), Background);
	Field->SetText(Text(TEXT("\u2588\u2588\u2588\u2588")));
	EXPECT_NE(Window->GetPixel(Inside.X, Inside.Y), Hint);
}

TEST_F(FEditableTextTest, AsksForTheTextCursor)
{
	Show();
	Window->MoveMouse(Window->MiddleOf(*Field));
	EXPECT_EQ(FSlateApplication::Get().GetPlatformApplication()->Cursor->GetType(), EMouseCursor::TextEditBeam);
}

TEST_F(FEditableTextTest, IsAsWideAsItsTextButNotNarrowerThanTold)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("ab"))));
	EXPECT_EQ(Field->GetDesiredSize().X, WidthOf(2) + 1.0);
	Field->SetMinDesiredWidth(150.0f);
	Window->Frame();
	EXPECT_EQ(Field->GetDesiredSize().X, 150.0);
}

TEST_F(FEditableTextTest, StandsWhereTheJustificationPutsIt)
{
	Show(SEditableText::FArguments().Text(Text(TEXT("abc"))).Justification(ETextJustify::Right));
	Window->ClickAt(PlaceAt(199.0f - WidthOf(3) + WidthOf(1)));
	Window->TypeText(TEXT("|"));
	EXPECT_EQ(Shown(), TEXT("a|bc"));
}

TEST_F(FEditableTextTest, UpAndDownLeaveTheKeyToOthers)
{
	Show();
	Focus();
	EXPECT_FALSE(
		Field->OnKeyDown(Field->GetPaintSpaceGeometry(), FKeyEvent(EKeys::Up, FModifierKeysState(), false, 0)).IsEventHandled());
	EXPECT_TRUE(Field->OnKeyDown(Field->GetPaintSpaceGeometry(), FKeyEvent(EKeys::Left, FModifierKeysState(), false, 0))
					.IsEventHandled());
}
