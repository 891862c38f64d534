#include "Velmora/Decorators.h"

#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "SlateTestWindow.h"
#include "Styling/AppStyle.h"
#include "Velmora/JsonText.h"
#include "Velmora/ScopedButtonPadding.h"
#include "Velmora/VelmoraGenerator.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FLinearColor Magenta(1.0f, 0.0f, 1.0f, 1.0f);

/** What Decorate logs for one key in the category of the generator. */
FLines DecorateAndLog(const TSharedRef<SWidget>& Widget, const TCHAR* Key, const char* Json)
{
	const FLogCapture Log(TEXT("Velmora"));
	Decorate(Widget, Key, JsonValue(Json), TEXT("/Path"));
	return Log.Lines();
}

/** Widgets whose classes are not needed for what is known by the name of their type alone. */
class SDropTarget : public SBox
{
};

class SGridPanel : public SBox
{
};

class SSeparator : public SBox
{
};

/** A widget at the top of a window, as wide as the window, and the pixels that show it. */
struct FShown
{
	static constexpr int32 Width = 300;

	explicit FShown(const TSharedRef<SWidget>& InWidget)
		: Widget(InWidget)
		, Window(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[InWidget], FVector2D(Width, 100.0))
	{
	}

	/** The pixels of the window, row by row from the top. */
	TArray<FColor> TakePixels()
	{
		TArray<FColor> Pixels;
		FIntVector Size;
		EXPECT_TRUE(FSlateApplication::Get().TakeScreenshot(Window.GetWindow().AsShared(), Pixels, Size));
		return Pixels;
	}

	/** The column where the text of the widget begins; frames and bars at the sides stay out of account. */
	int32 TextBegin()
	{
		constexpr int32 Side = 20;
		const TArray<FColor> Pixels = TakePixels();
		const int32 Middle = static_cast<int32>(Window.MiddleOf(*Widget).Y);
		for (int32 X = Side; X < Width - Side; ++X)
		{
			for (int32 Y = Middle - 4; Y < Middle + 4; ++Y)
			{
				if (Pixels[Y * Width + X] != Pixels[Middle * Width + Side])
				{
					return X;
				}
			}
		}
		return INDEX_NONE;
	}

	/** After what was changed by hand has come to the screen. */
	double Height()
	{
		FSlateApplication::Get().RequestFrame();
		Window.Frame();
		return Widget->GetDesiredSize().Y;
	}

	TSharedRef<SWidget> Widget;
	FSlateTestWindow Window;
};
}

TEST(Decorators, ColorOnADropTargetIsReadAndNotHandled)
{
	EXPECT_EQ(DecorateAndLog(SNew(SDropTarget), TEXT("ColorAndOpacity"), "5"),
		FLines({TEXT("Velmora: Error: ParseLinearColorValues JsonValue Type Error, Need Array"),
			TEXT("Velmora: Warning: Decorate: ColorAndOpacity @ SDropTarget not handled, @ /Path")}));
	EXPECT_EQ(DecorateAndLog(SNew(SDropTarget), TEXT("ColorAndOpacity"), "[1, 0, 0]"),
		FLines({TEXT("Velmora: Warning: Decorate: ColorAndOpacity @ SDropTarget not handled, @ /Path")}));
}

TEST(Decorators, WrongColorPaintsATextMagenta)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock);

	EXPECT_EQ(DecorateAndLog(Block, TEXT("ColorAndOpacity"), "5"),
		FLines({TEXT("Velmora: Error: ParseLinearColorValues JsonValue Type Error, Need Array")}));

	EXPECT_TRUE(Block->GetColorAndOpacity() == FSlateColor(Magenta));
}

TEST(Decorators, CompoundWidgetsTakeBothColors)
{
	for (const TSharedRef<SCompoundWidget>& Widget : TArray<TSharedRef<SCompoundWidget>>{SNew(SBorder), SNew(SButton),
			 SNew(SCheckBox), SNew(SScrollBox), SNew(SEditableTextBox), SNew(SMultiLineEditableTextBox)})
	{
		const std::string Type = TCHAR_TO_UTF8(*Widget->GetType().ToString());

		EXPECT_EQ(DecorateAndLog(Widget, TEXT("ColorAndOpacity"), "[0.5, 0.25, 0, 0.75]"), FLines()) << Type;
		EXPECT_EQ(DecorateAndLog(Widget, TEXT("ForegroundColor"), "[0, 1, 0]"), FLines()) << Type;

		EXPECT_EQ(Widget->GetColorAndOpacity(), FLinearColor(0.5f, 0.25f, 0.0f, 0.75f)) << Type;
		EXPECT_TRUE(Widget->SCompoundWidget::GetForegroundColor() == FSlateColor(FLinearColor(0.0f, 1.0f, 0.0f))) << Type;
	}
}

TEST(Decorators, BoxIsNoCompoundWidget)
{
	EXPECT_EQ(DecorateAndLog(SNew(SBox), TEXT("ColorAndOpacity"), "[1, 0, 0]"),
		FLines({TEXT("Velmora: Warning: Decorate: ColorAndOpacity @ SBox not handled, @ /Path")}));
}

TEST(Decorators, AutoHeightOnAGridHintsAtTheVerticalBox)
{
	EXPECT_EQ(DecorateAndLog(SNew(SGridPanel), TEXT("AutoHeight"), "true"),
		FLines({TEXT("Velmora: Warning: Decorate: AutoHeight @ SGridPanel not handled, @ /Path"),
			TEXT("Velmora: Warning: \t\"AutoHeight\" can be used in SVerticalBox or it's children, not SGridPanel")}));
	EXPECT_EQ(DecorateAndLog(SNew(SGridPanel), TEXT("FillHeight"), "1"),
		FLines({TEXT("Velmora: Warning: Decorate: FillHeight @ SGridPanel not handled, @ /Path")}));
	EXPECT_EQ(DecorateAndLog(SNew(SVerticalBox), TEXT("AutoHeight"), "true"), FLines());
}

TEST(Decorators, WrongAlignmentIsReportedTwiceAndFills)
{
	const TSharedRef<SBox> Box =
		SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(10.0f).HeightOverride(10.0f)];

	EXPECT_EQ(DecorateAndLog(Box, TEXT("HAlign"), R"("Centre")"),
		FLines({TEXT("Velmora: Error: ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right"),
			TEXT("Velmora: Warning: Can't find HAlign By Name: HAlign")}));
	EXPECT_EQ(DecorateAndLog(Box, TEXT("valign"), R"("Centre")"),
		FLines({TEXT("Velmora: Error: ParseOrientation ParseVAlign Type Error, need String:  Fill/Left/Center/Right"),
			TEXT("Velmora: Warning: Can't find VAlign By Name: valign")}));

	EXPECT_EQ(ArrangeChild(Box, FVector2D(100.0, 50.0)).Size, FVector2D(100.0, 50.0));
}

TEST(Decorators, AlignmentMovesTheContentOfABoxAndAButton)
{
	const TSharedRef<SBox> Box = SNew(SBox)[SNew(SBox).WidthOverride(10.0f).HeightOverride(10.0f)];
	DecorateAndLog(Box, TEXT("HAlign"), R"("Right")");
	DecorateAndLog(Box, TEXT("VAlign"), R"("Bottom")");
	EXPECT_EQ(ArrangeChild(Box, FVector2D(100.0, 50.0)).Position, FVector2D(90.0, 40.0));

	const TSharedRef<SButton> Button = SNew(SButton)[SNew(SBox).WidthOverride(10.0f).HeightOverride(10.0f)];
	DecorateAndLog(Button, TEXT("HAlign"), R"("Center")");
	DecorateAndLog(Button, TEXT("VAlign"), R"("Center")");
	EXPECT_EQ(ArrangeChild(Button, FVector2D(100.0, 50.0)).Size, FVector2D(10.0, 10.0));
}

TEST(Decorators, UnknownVisibilityDrawsOnlyTheParsersError)
{
	const TSharedRef<SBox> Box = SNew(SBox).Visibility(EVisibility::Hidden);

	EXPECT_EQ(DecorateAndLog(Box, TEXT("Visibility"), R"("Gone")"),
		FLines({TEXT("Velmora: Error: ParseVisibility Type Error, need String:  "
					 "Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible")}));
	EXPECT_TRUE(Box->GetVisibility() == EVisibility::Hidden);

	EXPECT_EQ(DecorateAndLog(Box, TEXT("Visibility"), R"("Collapsed")"), FLines());
	EXPECT_TRUE(Box->GetVisibility() == EVisibility::Collapsed);
}

TEST(Decorators, TextOfAButtonGoesToItsTextBlock)
{
	const TSharedRef<SButton> Button = SNew(SButton).Text(FText::FromString(TEXT(" ")));

	EXPECT_EQ(DecorateAndLog(Button, TEXT("Text"), R"("Press")"), FLines());

	EXPECT_EQ(As<STextBlock>(Button->GetContent())->GetText().ToString(), FString(TEXT("Press")));
}

TEST(Decorators, TextOfAButtonWithAnotherContentIsNotHandled)
{
	const TSharedRef<SButton> Button = SNew(SButton)[SNew(SBox)];

	EXPECT_EQ(DecorateAndLog(Button, TEXT("Text"), R"("Press")"),
		FLines({TEXT("Velmora: Warning: Decorate: Text @ SButton not handled, @ /Path")}));

	EXPECT_EQ(Outline(Button), FString(TEXT("SButton[SBox]")));
}

TEST(Decorators, NumberAsATextShowsTheNumber)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock);

	EXPECT_EQ(DecorateAndLog(Block, TEXT("Text"), "5"), FLines());

	EXPECT_EQ(Block->GetText().ToString(), FString(TEXT("5")));
}

TEST(Decorators, TextThatIsNoTextIsEmptyAndReportedByTheJsonValue)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(FText::FromString(TEXT("before")));
	const FLogCapture Log(TEXT("LogJson"));

	Decorate(Block, TEXT("Text"), JsonValue("[1]"), TEXT("/Path"));

	EXPECT_EQ(Block->GetText().ToString(), FString());
	EXPECT_EQ(Log.Errors(), FLines({TEXT("Json Value of type 'Array' used as a 'String'.")}));
}

TEST(Decorators, PaddingOfAPanelIsQuietlyAccepted)
{
	EXPECT_EQ(DecorateAndLog(SNew(SHorizontalBox), TEXT("Padding"), "[1, 2]"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SVerticalBox), TEXT("Padding"), "1"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SScrollBox), TEXT("Padding"), "1"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SCheckBox), TEXT("Padding"), "1"), FLines());
}

TEST(Decorators, PaddingOfABoxSurroundsItsContent)
{
	const TSharedRef<SBox> Box = SNew(SBox)[SNew(SBox)];

	EXPECT_EQ(DecorateAndLog(Box, TEXT("Padding"), "[1, 2, 3, 4]"), FLines());

	const FChildRect Rect = ArrangeChild(Box, FVector2D(100.0, 50.0));
	EXPECT_EQ(Rect.Position, FVector2D(1.0, 2.0));
	EXPECT_EQ(Rect.Size, FVector2D(96.0, 44.0));

	EXPECT_EQ(DecorateAndLog(Box, TEXT("Padding"), R"("wide")"),
		FLines({TEXT("Velmora: Error: ParsePaddingValues JsonValue Type Error, Need(Number / Array)")}));
	EXPECT_EQ(ArrangeChild(Box, FVector2D(100.0, 50.0)).Size, FVector2D(100.0, 50.0));
}

TEST(Decorators, SlotPaddingOnOtherWidgetsIsIgnoredWithoutAWord)
{
	EXPECT_EQ(DecorateAndLog(SNew(SVerticalBox), TEXT("SlotPadding"), "3"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SVerticalBox), TEXT("SlotPadding"), "{}"),
		FLines({TEXT("Velmora: Error: ParseMargin JsonValue Type Error, Need(Number / Array)")}));
}

TEST(Decorators, KeyThatCannotReachTheTableIsUnknown)
{
	const FLogCapture Log(TEXT("Velmora"));

	BuildTree(R"({ "SBox": { "MaxDesiredSlotWidth": 5 } })");

	EXPECT_EQ(Log.Lines(), FLines({TEXT("Velmora: Warning: \tNot Supported KeyName: MaxDesiredSlotWidth @ SBox")}));
}

TEST(Decorators, ContentPaddingOfAButtonIsWidenedByTheSetting)
{
	const TSharedRef<SBox> Content = SNew(SBox).WidthOverride(10.0f).HeightOverride(10.0f);
	const TSharedRef<SButton> Button = SNew(SButton).ContentPadding(FMargin(0.0f))[Content];
	Button->SlatePrepass(1.0f);
	const FVector2D Bare = Button->GetDesiredSize();

	const FScopedButtonPadding Setting(4);
	DecorateAndLog(Button, TEXT("ContentPadding"), "2");

	Button->SlatePrepass(1.0f);
	EXPECT_EQ(Button->GetDesiredSize() - Bare, FVector2D(12.0, 4.0));
}

TEST(Decorators, ContentPaddingIsReadForAButtonOnly)
{
	EXPECT_EQ(DecorateAndLog(SNew(SBorder), TEXT("ContentPadding"), R"("wide")"),
		FLines({TEXT("Velmora: Warning: Decorate: ContentPadding @ SBorder not handled, @ /Path")}));
	EXPECT_EQ(DecorateAndLog(SNew(SButton), TEXT("ContentPadding"), R"("wide")"),
		FLines({TEXT("Velmora: Error: ParseMargin JsonValue Type Error, Need(Number / Array)")}));
}

TEST(Decorators, SizesOfABox)
{
	const auto DesiredSize = [](const TCHAR* Key, const char* Value)
	{
		const TSharedRef<SBox> Box = SNew(SBox)[SNew(SBox).WidthOverride(50.0f).HeightOverride(50.0f)];
		EXPECT_EQ(DecorateAndLog(Box, Key, Value), FLines());
		Box->SlatePrepass(1.0f);
		return Box->GetDesiredSize();
	};

	EXPECT_EQ(DesiredSize(TEXT("WidthOverride"), "20.5"), FVector2D(20.5, 50.0));
	EXPECT_EQ(DesiredSize(TEXT("HeightOverride"), "20"), FVector2D(50.0, 20.0));
	EXPECT_EQ(DesiredSize(TEXT("MinDesiredWidth"), "80"), FVector2D(80.0, 50.0));
	EXPECT_EQ(DesiredSize(TEXT("MaxDesiredWidth"), "30"), FVector2D(30.0, 50.0));
	EXPECT_EQ(DesiredSize(TEXT("MinDesiredHeight"), "80"), FVector2D(50.0, 80.0));
	EXPECT_EQ(DesiredSize(TEXT("MaxDesiredHeight"), "30"), FVector2D(50.0, 30.0));
}

TEST(Decorators, MinimalWidthOfTextWidgets)
{
	for (const TSharedRef<SWidget>& Widget : TArray<TSharedRef<SWidget>>{SNew(STextBlock), SNew(SEditableTextBox)})
	{
		EXPECT_EQ(DecorateAndLog(Widget, TEXT("MinDesiredWidth"), "300"), FLines());
		Widget->SlatePrepass(1.0f);
		EXPECT_GE(Widget->GetDesiredSize().X, 300.0);
	}
}

TEST(Decorators, TextKeysOfTheTextWidgets)
{
	const TSharedRef<SEditableTextBox> Field = SNew(SEditableTextBox);
	const TSharedRef<SMultiLineEditableTextBox> Area = SNew(SMultiLineEditableTextBox);

	for (const TCHAR* Key : {TEXT("Text"), TEXT("HintText")})
	{
		EXPECT_EQ(DecorateAndLog(Field, Key, R"("words")"), FLines());
		EXPECT_EQ(DecorateAndLog(Area, Key, R"("words")"), FLines());
	}
	EXPECT_EQ(DecorateAndLog(Field, TEXT("IsReadOnly"), "true"), FLines());
	EXPECT_EQ(DecorateAndLog(Area, TEXT("IsReadOnly"), R"("yes")"), FLines());
	EXPECT_EQ(DecorateAndLog(Field, TEXT("Justification"), R"("Right")"), FLines());
	EXPECT_EQ(DecorateAndLog(Area, TEXT("Justification"), R"("Center")"), FLines());
	EXPECT_EQ(DecorateAndLog(Field, TEXT("SelectAllTextWhenFocused"), "true"), FLines());
	EXPECT_EQ(DecorateAndLog(Area, TEXT("AutoWrapText"), "true"), FLines());
	EXPECT_EQ(DecorateAndLog(Area, TEXT("LineHeightPercentage"), "2"), FLines());

	EXPECT_EQ(Field->GetText().ToString(), FString(TEXT("words")));
	EXPECT_EQ(Area->GetText().ToString(), FString(TEXT("words")));
	EXPECT_EQ(Field->GetHintText().ToString(), FString(TEXT("words")));
	EXPECT_EQ(Area->GetHintText().ToString(), FString(TEXT("words")));
	EXPECT_TRUE(Field->IsReadOnly());
	EXPECT_TRUE(Area->IsReadOnly());
}

TEST(Decorators, JustificationMovesTheTextOfEveryTextWidget)
{
	for (const TSharedRef<SWidget>& Widget :
		TArray<TSharedRef<SWidget>>{SNew(STextBlock), SNew(SEditableTextBox), SNew(SMultiLineEditableTextBox)})
	{
		DecorateAndLog(Widget, TEXT("Text"), R"("word word")");
		DecorateAndLog(Widget, TEXT("Justification"), R"("Right")");

		EXPECT_GT(FShown(Widget).TextBegin(), FShown::Width / 2) << TCHAR_TO_UTF8(*Widget->GetType().ToString());
	}
}

TEST(Decorators, WrappedTextTakesMoreRows)
{
	for (const TSharedRef<SWidget>& Widget : TArray<TSharedRef<SWidget>>{SNew(STextBlock), SNew(SMultiLineEditableTextBox)})
	{
		const FString Words = FString::ChrN(200, TEXT('w')).Replace(TEXT("www"), TEXT("ww "));
		DecorateAndLog(Widget, TEXT("Text"), TCHAR_TO_UTF8(*(TEXT("\"") + Words + TEXT("\""))));
		FShown Shown(Widget);
		const double OneRow = Shown.Height();

		DecorateAndLog(Widget, TEXT("AutoWrapText"), "true");

		EXPECT_GT(Shown.Height(), OneRow + 10.0) << TCHAR_TO_UTF8(*Widget->GetType().ToString());
	}
}

TEST(Decorators, LineHeightPercentageSpreadsTheRows)
{
	for (const TSharedRef<SWidget>& Widget : TArray<TSharedRef<SWidget>>{SNew(STextBlock), SNew(SMultiLineEditableTextBox)})
	{
		DecorateAndLog(Widget, TEXT("Text"), R"("a\nb\nc")");
		FShown Shown(Widget);
		const double Single = Shown.Height();

		DecorateAndLog(Widget, TEXT("LineHeightPercentage"), "2");

		EXPECT_GT(Shown.Height(), Single + 20.0) << TCHAR_TO_UTF8(*Widget->GetType().ToString());
	}
}

TEST(Decorators, FocusSelectsAllTextOfAField)
{
	const TSharedRef<SEditableTextBox> Field = SNew(SEditableTextBox).Text(FText::FromString(TEXT("before")));
	DecorateAndLog(Field, TEXT("SelectAllTextWhenFocused"), "true");
	FShown Shown(Field);

	Shown.Window.Click(Field);

	EXPECT_EQ(Field->GetSelectedText().ToString(), FString(TEXT("before")));
}

TEST(Decorators, StyleReplacesTheFrameOfATextBox)
{
	const FEditableTextBoxStyle& Style = FAppStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NoSuchStyle");
	for (const TSharedRef<SBorder>& Box : TArray<TSharedRef<SBorder>>{SNew(SEditableTextBox), SNew(SMultiLineEditableTextBox)})
	{
		const std::string Type = TCHAR_TO_UTF8(*Box->GetType().ToString());
		ASSERT_NE(BorderImageOf(Box), &Style.BackgroundImageNormal) << Type;

		EXPECT_EQ(DecorateAndLog(Box, TEXT("Style"), R"({ "Style": "FAppStyle", "StyleName": "NoSuchStyle" })"), FLines())
			<< Type;

		EXPECT_EQ(BorderImageOf(Box), &Style.BackgroundImageNormal) << Type;
	}
}

TEST(Decorators, MultiLineBoxCannotSelectAllText)
{
	EXPECT_EQ(DecorateAndLog(SNew(SMultiLineEditableTextBox), TEXT("SelectAllTextWhenFocused"), "true"),
		FLines({TEXT("Velmora: Error: not supported 4.24 SelectAllTextWhenFocused at SMultiLineEditableTextBox "),
			TEXT("Velmora: Warning: Decorate: SelectAllTextWhenFocused @ SMultiLineEditableTextBox not handled, @ /Path")}));
}

TEST(Decorators, LooksOfATextBlock)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock);

	EXPECT_EQ(DecorateAndLog(Block, TEXT("Font"), R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont.Bold.23" })"), FLines());
	EXPECT_EQ(Block->GetFont().Size, 23);
	EXPECT_EQ(DecorateAndLog(Block, TEXT("Font"), R"({ "Style": "Mine", "StyleName": "X" })"),
		FLines(
			{TEXT("Velmora: Warning: Style: Mine Not Support yet"), TEXT("Velmora: Warning: ParseFontInfo Default Font used")}));
	EXPECT_TRUE(Block->GetFont() == FAppStyle::Get().GetFontStyle("DefaultFont.Italic.12"));

	for (const TCHAR* Key : {TEXT("ShadowOffset"), TEXT("ShadowColorAndOpacity"), TEXT("TextStyle"), TEXT("Justification")})
	{
		const FLines Lines = DecorateAndLog(Block, Key, "5");
		EXPECT_EQ(Lines.Last(), FString::Printf(TEXT("Velmora: Warning: Decorate: %s @ STextBlock not handled, @ /Path"), Key));
	}
}

TEST(Decorators, StyleOfATextBlockGivesItsFont)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock);

	EXPECT_EQ(DecorateAndLog(Block, TEXT("TextStyle"), R"({ "Style": "FAppStyle", "StyleName": "LargeText" })"), FLines());

	EXPECT_TRUE(Block->GetFont() == FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("LargeText").Font);
}

TEST(Decorators, ShadowOfATextBlockIsPaintedAtItsOffsetInItsColor)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(FText::FromString(TEXT("word")));
	FShown Shown(Block);
	const auto CountGreen = [&Shown]
	{
		return Shown.TakePixels().FilterByPredicate([](const FColor& Pixel) { return Pixel.G > Pixel.R + 100; }).Num();
	};
	EXPECT_EQ(CountGreen(), 0);

	EXPECT_EQ(DecorateAndLog(Block, TEXT("ShadowOffset"), "[100, 0]"), FLines());
	EXPECT_EQ(DecorateAndLog(Block, TEXT("ShadowColorAndOpacity"), "[0, 1, 0]"), FLines());
	FSlateApplication::Get().RequestFrame();
	Shown.Window.Frame();

	EXPECT_GT(CountGreen(), 10);
}

TEST(Decorators, FontOnAWidgetWithoutASetterIsReadAndNotHandled)
{
	EXPECT_EQ(DecorateAndLog(SNew(SBorder), TEXT("Font"), R"({ "Style": "FCoreStyle", "StyleName": "DefaultFont" })"),
		FLines({TEXT("Velmora: Warning: Decorate: Font @ SBorder not handled, @ /Path")}));
}

TEST(Decorators, StyleIsReadForTextBoxesOnly)
{
	EXPECT_EQ(DecorateAndLog(SNew(SBorder), TEXT("Style"), "5"),
		FLines({TEXT("Velmora: Warning: Decorate: Style @ SBorder not handled, @ /Path")}));
	EXPECT_EQ(DecorateAndLog(
				  SNew(SEditableTextBox), TEXT("Style"), R"({ "Style": "FAppStyle", "StyleName": "NormalEditableTextBox" })"),
		FLines());
}

TEST(Decorators, BorderBackgroundColorMustParse)
{
	const TSharedRef<SBorder> Border = SNew(SBorder);

	EXPECT_EQ(DecorateAndLog(Border, TEXT("BorderBackgroundColor"), "[0, 0, 1]"), FLines());
	EXPECT_EQ(DecorateAndLog(Border, TEXT("BorderBackgroundColor"), "[0]"),
		FLines({TEXT("Velmora: Error: ParseLinearColorValues Error Array Size: 1"),
			TEXT("Velmora: Warning: Decorate: BorderBackgroundColor @ SBorder not handled, @ /Path")}));

	EXPECT_TRUE(Border->GetBorderBackgroundColor() == FSlateColor(FLinearColor(0.0f, 0.0f, 1.0f)));
}

TEST(Decorators, WrongOrientationLaysAScrollBoxDown)
{
	const TSharedRef<SScrollBox> ScrollBox = SNew(SScrollBox) +
		SScrollBox::Slot()[SNew(SBox).WidthOverride(30.0f).HeightOverride(10.0f)] +
		SScrollBox::Slot()[SNew(SBox).WidthOverride(30.0f).HeightOverride(10.0f)];

	EXPECT_EQ(DecorateAndLog(ScrollBox, TEXT("Orientation"), R"("Diagonal")"),
		FLines({TEXT("Velmora: Error: ParseOrientation JsonValue Type Error, need String:  Horizontal or Vertical")}));

	ScrollBox->SlatePrepass(1.0f);
	EXPECT_GE(ScrollBox->GetDesiredSize().X, 60.0);
}

TEST(Decorators, ScrollBoxTurns)
{
	const TSharedRef<SScrollBox> ScrollBox = SNew(SScrollBox) +
		SScrollBox::Slot()[SNew(SBox).WidthOverride(30.0f).HeightOverride(10.0f)] +
		SScrollBox::Slot()[SNew(SBox).WidthOverride(30.0f).HeightOverride(10.0f)];

	EXPECT_EQ(DecorateAndLog(ScrollBox, TEXT("Orientation"), R"("Horizontal")"), FLines());

	ScrollBox->SlatePrepass(1.0f);
	EXPECT_GT(ScrollBox->GetDesiredSize().X, ScrollBox->GetDesiredSize().Y);
}

TEST(Decorators, KeysThatABuilderHasReadAreQuiet)
{
	EXPECT_EQ(DecorateAndLog(SNew(SButton), TEXT("ButtonColorAndOpacity"), "[1, 0, 0]"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SCheckBox), TEXT("IsChecked"), "true"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SEditableTextBox), TEXT("OnTextChanged"), R"("x")"), FLines());
	EXPECT_EQ(DecorateAndLog(SNew(SBorder), TEXT("BorderImage"), "{}"), FLines());
}

TEST(Decorators, ToolTipIsShownOnAnyWidget)
{
	const TSharedRef<SBox> Box = SNew(SBox);

	EXPECT_EQ(DecorateAndLog(Box, TEXT("tooltiptext"), R"("help")"), FLines());

	EXPECT_TRUE(Box->GetToolTip().IsValid());
}

TEST(Decorators, DetailedLogSaysWhoHasHandledAKey)
{
	bLogCreateWidget = true;
	FLines Lines = DecorateAndLog(SNew(SVerticalBox), TEXT("Padding"), "1");
	Lines += DecorateAndLog(SNew(SGridPanel), TEXT("FillColumn"), "1");
	Lines += DecorateAndLog(SNew(SButton).Text(FText::FromString(TEXT(" "))), TEXT("Text"), R"("x")");
	Lines += DecorateAndLog(SNew(SButton)[SNew(SBorder)], TEXT("Text"), R"("x")");
	Lines += DecorateAndLog(SNew(SButton), TEXT("ButtonStyle"), "{}");
	Lines += DecorateAndLog(SNew(SSeparator), TEXT("Orientation"), R"("Diagonal")");
	Lines += DecorateAndLog(SNew(SSeparator), TEXT("Thickness"), "{}");
	bLogCreateWidget = false;

	EXPECT_EQ(Lines,
		FLines({TEXT("Velmora: Log: Decorate: Padding"),
			TEXT("Velmora: Log: Padding: Padding @ SVerticalBox handled In Add Slot.."),
			TEXT("Velmora: Log: Decorate: FillColumn"),
			TEXT("Velmora: Log: FillColumn: FillColumn @ SGridPanel regard as handled.."), TEXT("Velmora: Log: Decorate: Text"),
			TEXT("Velmora: Log: Button content Type: STextBlock"), TEXT("Velmora: Log: Decorate: Text"),
			TEXT("Velmora: Log: Button content Type: SBorder"),
			TEXT("Velmora: Warning: Decorate: Text @ SButton not handled, @ /Path"), TEXT("Velmora: Log: Decorate: ButtonStyle"),
			TEXT("Velmora: Log: InbornDecorate: ButtonStyle @ SButton regard as handled.."),
			TEXT("Velmora: Log: Decorate: Orientation"),
			TEXT("Velmora: Log: Orientation: Orientation @ SSeparator regard as handled.."),
			TEXT("Velmora: Log: Decorate: Thickness"),
			TEXT("Velmora: Log: SSeparator: Thickness @ SSeparator regard as handled..")}));
}
