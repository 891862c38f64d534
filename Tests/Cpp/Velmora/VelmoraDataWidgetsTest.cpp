#include "Velmora/VelmoraData.h"

#include "LogCapture.h"
#include "RunningPlugin.h"
#include "ToolTabs.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/IToolTip.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

/** A running tool with one widget of each kind, named after what it is. */
struct FToolOfAllWidgets
{
	FToolOfAllWidgets()
		: Data(Plugin.Launch(TEXT("Tool.json"), ToolWithRoot(R"json({ "SVerticalBox": { "Aka": "Column", "Slots": [
			{ "AutoHeight": true, "STextBlock": { "Aka": "Text", "Text": "text" } },
			{ "AutoHeight": true, "SEditableTextBox": { "Aka": "Field", "Text": "field" } },
			{ "AutoHeight": true, "SBox": { "HeightOverride": 60, "Content": {
				"SMultiLineEditableTextBox": { "Aka": "Lines", "Text": "lines" } } } },
			{ "AutoHeight": true, "SButton": { "Aka": "Button", "Text": "button", "OnClick": "clicked()" } },
			{ "AutoHeight": true, "SButton": { "Aka": "BoxButton", "Content": { "SBox": {} } } },
			{ "AutoHeight": true, "SCheckBox": { "Aka": "Check", "OnCheckStateChanged": "checked(%)" } },
			{ "AutoHeight": true, "SBorder": { "Aka": "Border" } },
			{ "AutoHeight": true, "SBox": { "Aka": "Box", "HeightOverride": 100, "Content": {
				"SScrollBox": { "Aka": "Scroll", "Slots": [ { "SBox": { "HeightOverride": 400 } } ] } } } } ] } })json")))
	{
	}

	template <typename T>
	T& Get(const TCHAR* Name)
	{
		return static_cast<T&>(*Data.NamedWidget.FindChecked(Name));
	}

	FRunningPlugin Plugin;
	UVelmoraData& Data;
	const FLogCapture Log{TEXT("PythonKX")};
};

const TCHAR* const Known = TEXT("  Availables: [Column, Text, Field, Lines, Button, BoxButton, Check, Border, Box, Scroll, ]");

/** What the reporting lookup of an unknown name writes. */
FString UnknownName(const TCHAR* Name)
{
	return FString(TEXT("PythonKX: Warning: Cant't find Widget by name: ")) + Name + Known;
}

const FLinearColor Red(1.0f, 0.0f, 0.0f, 0.5f);
}

TEST(VelmoraDataWidgets, TextIsReadFromEveryWidgetThatHasOne)
{
	FToolOfAllWidgets Tool;

	for (const TCHAR* Name : {TEXT("Text"), TEXT("Field"), TEXT("Lines"), TEXT("Button")})
	{
		FString Text;
		EXPECT_TRUE(Tool.Data.GetText(Name, Text));
		EXPECT_EQ(Text, FString(Name).ToLower());
	}
}

TEST(VelmoraDataWidgets, TextThatTheUserTypedIsRead)
{
	FToolOfAllWidgets Tool;
	Tool.Plugin.Window.Click(Tool.Data.NamedWidget.FindChecked("Field").ToSharedRef());
	Tool.Plugin.Window.PressKey(EKeys::End);
	Tool.Plugin.Window.TypeText(TEXT("s"));

	FString Text;
	EXPECT_TRUE(Tool.Data.GetText("Field", Text));

	EXPECT_EQ(Text, FString(TEXT("fields")));
}

TEST(VelmoraDataWidgets, TextOfOtherWidgetsLeavesTheOutputAlone)
{
	FToolOfAllWidgets Tool;
	FString Text = TEXT("before");

	for (const TCHAR* Name : {TEXT("BoxButton"), TEXT("Border"), TEXT("Check"), TEXT("Column")})
	{
		EXPECT_FALSE(Tool.Data.GetText(Name, Text));
	}
	EXPECT_EQ(Tool.Log.Lines(), FLines());
	EXPECT_FALSE(Tool.Data.GetText("None", Text));

	EXPECT_EQ(Text, FString(TEXT("before")));
	EXPECT_EQ(Tool.Log.Lines(), FLines({UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, TextIsSetOnEveryWidgetThatHasOne)
{
	FToolOfAllWidgets Tool;

	for (const TCHAR* Name : {TEXT("Text"), TEXT("Field"), TEXT("Lines"), TEXT("Button")})
	{
		Tool.Data.SetText(Name, TEXT("new"));
		FString Text;
		EXPECT_TRUE(Tool.Data.GetText(Name, Text));
		EXPECT_EQ(Text, FString(TEXT("new")));
	}
	for (const TCHAR* Name : {TEXT("Border"), TEXT("Check")})
	{
		Tool.Data.SetText(Name, TEXT("new"));
	}
	EXPECT_EQ(Tool.Log.Lines(), FLines());
	Tool.Data.SetText("None", TEXT("new"));
	EXPECT_EQ(Tool.Log.Lines(), FLines({UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, TextOnAButtonWithABoxSwapsTheBoxForIt)
{
	FToolOfAllWidgets Tool;

	Tool.Data.SetText("BoxButton", TEXT("new"));

	EXPECT_EQ(Outline(Tool.Data.NamedWidget.FindChecked("BoxButton").ToSharedRef()), FString(TEXT("SButton[STextBlock]")));
	FString Text;
	EXPECT_TRUE(Tool.Data.GetText("BoxButton", Text));
	EXPECT_EQ(Text, FString(TEXT("new")));
}

TEST(VelmoraDataWidgets, ReadOnlyFieldTakesNoTyping)
{
	FToolOfAllWidgets Tool;
	FSlateTestWindow& Window = Tool.Plugin.Window;

	for (const TCHAR* Name : {TEXT("Field"), TEXT("Lines")})
	{
		Tool.Data.SetTextReadOnly(Name, true);
		Window.Click(Tool.Data.NamedWidget.FindChecked(Name).ToSharedRef());
		Window.TypeText(TEXT("x"));
		FString Text;
		Tool.Data.GetText(Name, Text);
		EXPECT_EQ(Text, FString(Name).ToLower());

		Tool.Data.SetTextReadOnly(Name, false);
		Window.PressKey(EKeys::Home);
		Window.TypeText(TEXT("x"));
		Tool.Data.GetText(Name, Text);
		EXPECT_EQ(Text, TEXT("x") + FString(Name).ToLower());
	}
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, ReadOnlyOnOtherWidgetsIsALogLine)
{
	FToolOfAllWidgets Tool;

	Tool.Data.SetTextReadOnly("Text", true);
	Tool.Data.SetTextReadOnly("Border", true);
	Tool.Data.SetTextReadOnly("None", true);

	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Log: SetTextReadOnly @ AkaName: Text is not supported. widget type: STextBlock"),
			TEXT("PythonKX: Log: SetTextReadOnly @ AkaName: Border is not supported. widget type: SBorder"),
			UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, AnyNegativeLineScrollsToTheEndWhateverTheOffset)
{
	FToolOfAllWidgets Tool;
	FString Text;
	for (int32 Line = 0; Line < 50; ++Line)
	{
		Text += FString::Printf(TEXT("line %d\n"), Line);
	}
	Tool.Data.SetText("Lines", Text);
	Tool.Plugin.Window.Frame();
	const auto Picture = [&Tool]
	{
		Tool.Plugin.Window.Frame();
		TArray<FColor> Pixels;
		FIntVector Size;
		FSlateApplication::Get().TakeScreenshot(Tool.Data.NamedWidget.FindChecked("Lines").ToSharedRef(), Pixels, Size);
		return Pixels;
	};
	const TArray<FColor> Start = Picture();

	EXPECT_TRUE(Tool.Data.ScrollTo("Lines", -1, 3));
	const TArray<FColor> End = Picture();
	EXPECT_NE(End, Start);

	EXPECT_TRUE(Tool.Data.ScrollTo("Lines"));
	EXPECT_EQ(Picture(), Start);

	EXPECT_TRUE(Tool.Data.ScrollTo("Lines", -2));
	EXPECT_EQ(Picture(), End);

	Tool.Data.ScrollTo("Lines", 0);
	Tool.Data.ScrollTo("Lines", 50);
	EXPECT_EQ(Picture(), End) << "the last line";
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, ScrollingAnythingElseToALineIsALogLine)
{
	FToolOfAllWidgets Tool;

	EXPECT_FALSE(Tool.Data.ScrollTo("Field", 0));
	EXPECT_FALSE(Tool.Data.ScrollTo("None", 0));

	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Log: 'ScrollTo failed', Widget is not a SMultiLineEditableTextBox: Field"),
			TEXT("PythonKX: Log: 'ScrollTo failed', can't find Widget: None")}));
}

TEST(VelmoraDataWidgets, CheckBoxIsSetWithoutItsCommand)
{
	FToolOfAllWidgets Tool;
	EXPECT_FALSE(Tool.Data.GetIsChecked("Check"));
	Tool.Plugin.Python.Take();

	Tool.Data.SetIsChecked("Check", true);
	EXPECT_TRUE(Tool.Data.GetIsChecked("Check"));
	Tool.Data.SetIsChecked("Check", false);
	EXPECT_EQ(Tool.Get<SCheckBox>(TEXT("Check")).GetCheckedState(), ECheckBoxState::Unchecked);
	EXPECT_FALSE(Tool.Data.GetIsChecked("Check"));

	Tool.Get<SCheckBox>(TEXT("Check")).SetIsChecked(ECheckBoxState::Undetermined);
	EXPECT_FALSE(Tool.Data.GetIsChecked("Check"));
	EXPECT_EQ(Tool.Plugin.Python.Take(), FLines());
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, CheckStateOfAnythingElseIsAWarning)
{
	FToolOfAllWidgets Tool;

	EXPECT_FALSE(Tool.Data.GetIsChecked("Button"));
	Tool.Data.SetIsChecked("Button", true);
	EXPECT_FALSE(Tool.Data.GetIsChecked("None"));
	Tool.Data.SetIsChecked("None", true);

	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Warning: GetIsChecked not supported for Button. It's for SCheckBox"),
			TEXT("PythonKX: Warning: SetIsChecked not supported for Button. It's for SCheckBox"), UnknownName(TEXT("None")),
			UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, VisibilityIsReadInAnyCase)
{
	FToolOfAllWidgets Tool;
	const SWidget& Text = Tool.Get<SWidget>(TEXT("Text"));

	EXPECT_TRUE(Tool.Data.SetVisibility("Text", TEXT("collapsed")));
	EXPECT_EQ(Text.GetVisibility(), EVisibility::Collapsed);
	EXPECT_TRUE(Tool.Data.SetVisibility("Text", TEXT("HIDDEN")));
	EXPECT_EQ(Text.GetVisibility(), EVisibility::Hidden);
	EXPECT_TRUE(Tool.Data.SetVisibility("Text", TEXT("HitTestInvisible")));
	EXPECT_EQ(Text.GetVisibility(), EVisibility::HitTestInvisible);
	EXPECT_TRUE(Tool.Data.SetVisibility("Text", TEXT("SelfHitTestInvisible")));
	EXPECT_EQ(Text.GetVisibility(), EVisibility::SelfHitTestInvisible);
	EXPECT_TRUE(Tool.Data.SetVisibility("Text", TEXT("visible")));
	EXPECT_EQ(Text.GetVisibility(), EVisibility::Visible);
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, UnknownVisibilityIsAnErrorAndAnUnknownNameIsNot)
{
	FToolOfAllWidgets Tool;
	Tool.Data.SetVisibility("Text", TEXT("Hidden"));

	EXPECT_FALSE(Tool.Data.SetVisibility("None", TEXT("Shown")));
	EXPECT_FALSE(Tool.Data.SetVisibility("Text", TEXT("Shown")));

	EXPECT_EQ(Tool.Get<SWidget>(TEXT("Text")).GetVisibility(), EVisibility::Hidden);
	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Error: ParseVisibility Type Error, need String:  "
					 "Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible")}));
}

TEST(VelmoraDataWidgets, CollapsedWidgetTakesNoRoom)
{
	FToolOfAllWidgets Tool;
	const double Before = Tool.Plugin.Window.MiddleOf(Tool.Get<SWidget>(TEXT("Field"))).Y;

	Tool.Data.SetCollapsed("Text", true);
	Tool.Plugin.Window.Frame();
	EXPECT_LT(Tool.Plugin.Window.MiddleOf(Tool.Get<SWidget>(TEXT("Field"))).Y, Before);

	Tool.Data.SetCollapsed("Text", false);
	Tool.Plugin.Window.Frame();
	EXPECT_EQ(Tool.Plugin.Window.MiddleOf(Tool.Get<SWidget>(TEXT("Field"))).Y, Before);

	Tool.Data.SetCollapsed("None", true);
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, ColorGoesToTextAndToCompoundWidgets)
{
	FToolOfAllWidgets Tool;

	for (const TCHAR* Name :
		{TEXT("Text"), TEXT("Scroll"), TEXT("Check"), TEXT("Border"), TEXT("Button"), TEXT("Lines"), TEXT("Field")})
	{
		Tool.Data.SetColorAndOpacity(Name, Red);
	}

	EXPECT_EQ(Tool.Get<STextBlock>(TEXT("Text")).GetColorAndOpacity().GetSpecifiedColor(), Red);
	for (const TCHAR* Name : {TEXT("Scroll"), TEXT("Check"), TEXT("Border"), TEXT("Button"), TEXT("Lines"), TEXT("Field")})
	{
		EXPECT_EQ(Tool.Get<SCompoundWidget>(Name).GetColorAndOpacity(), Red);
	}
	EXPECT_EQ(Tool.Log.Lines(), FLines());
}

TEST(VelmoraDataWidgets, ColorOnAnythingElseIsALogLine)
{
	FToolOfAllWidgets Tool;

	Tool.Data.SetColorAndOpacity("Column", Red);
	Tool.Data.SetColorAndOpacity("Box", Red);
	Tool.Data.SetColorAndOpacity("None", Red);

	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Log: SetColorAndOpacity not supported for Column, yet"),
			TEXT("PythonKX: Log: SetColorAndOpacity not supported for Box, yet"), UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, ButtonColorIsForButtonsOnly)
{
	FToolOfAllWidgets Tool;

	Tool.Data.SetButtonColorAndOpacity("Button", Red);
	Tool.Data.SetButtonColorAndOpacity("Border", Red);
	Tool.Data.SetButtonColorAndOpacity("None", Red);

	EXPECT_EQ(Tool.Get<SBorder>(TEXT("Button")).GetBorderBackgroundColor().GetSpecifiedColor(), Red);
	EXPECT_NE(Tool.Get<SBorder>(TEXT("Border")).GetBorderBackgroundColor().GetSpecifiedColor(), Red);
	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Warning: SetColorAndOpacity not supported for Border, yet"), UnknownName(TEXT("None"))}));
}

TEST(VelmoraDataWidgets, ToolTipShowsWhereTheMouseRests)
{
	FToolOfAllWidgets Tool;

	Tool.Data.SetToolTipText("Text", TEXT("a hint"));
	Tool.Data.SetToolTipText("None", TEXT("a hint"));

	Tool.Plugin.Window.MoveMouse(Tool.Plugin.Window.MiddleOf(Tool.Get<SWidget>(TEXT("Text"))));
	Tool.Plugin.Window.Wait(2.0);
	const TSharedPtr<IToolTip> ToolTip = FSlateApplication::Get().GetShownToolTip();
	ASSERT_TRUE(ToolTip.IsValid());
	EXPECT_EQ(ToolTip, Tool.Get<SWidget>(TEXT("Text")).GetToolTip());
	EXPECT_EQ(As<SToolTip>(ToolTip->AsWidget())->GetTextTooltip().ToString(), FString(TEXT("a hint")));
	EXPECT_EQ(Tool.Log.Lines(), FLines({TEXT("PythonKX: Log: SetToolTip failed, can't find Widget: None")}));
}

TEST(VelmoraDataWidgets, ScrollBoxTellsWhereItStands)
{
	FToolOfAllWidgets Tool;

	EXPECT_TRUE(Tool.Data.SetScrollBoxOffset("Scroll", 75.0f));
	Tool.Plugin.Window.Frame();
	const TMap<FString, float> Offsets = Tool.Data.GetScrollBoxOffsets("Scroll");

	EXPECT_EQ(Offsets.Num(), 4);
	EXPECT_FLOAT_EQ(Offsets.FindRef(TEXT("Offset")), 75.0f);
	EXPECT_FLOAT_EQ(Offsets.FindRef(TEXT("ScrollOffsetOfEnd")), 300.0f);
	EXPECT_FLOAT_EQ(Offsets.FindRef(TEXT("ViewFraction")), 0.25f);
	EXPECT_FLOAT_EQ(Offsets.FindRef(TEXT("ViewOffsetFraction")), 75.0f / 400.0f);
	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Log: LogScrollBox: offset 75.000000, viewFraction: 0.250000, viewOffsetFraction: 0.187500, "
					 "ScrollOffsetOfEnd: 300.000000")}));
}

TEST(VelmoraDataWidgets, ScrollingWhatIsNoScrollBoxIsALogLine)
{
	FToolOfAllWidgets Tool;

	EXPECT_EQ(Tool.Data.GetScrollBoxOffsets("Box").Num(), 0);
	EXPECT_EQ(Tool.Data.GetScrollBoxOffsets("None").Num(), 0);
	EXPECT_FALSE(Tool.Data.SetScrollBoxOffset("Box", 1.0f));
	EXPECT_FALSE(Tool.Data.SetScrollBoxOffset("None", 1.0f));

	EXPECT_EQ(Tool.Log.Lines(),
		FLines({TEXT("PythonKX: Log: 'GetScrollBoxOffsets failed', Widget is not a SScrollBox: Box"),
			TEXT("PythonKX: Log: GetScrollBoxOffsets failed, can't find Widget: None"),
			TEXT("PythonKX: Log: 'SetScrollBoxOffset failed', Widget is not a SScrollBox: Box"),
			TEXT("PythonKX: Log: SetScrollBoxOffset--- failed, can't find Widget: None")}));
}

TEST(VelmoraDataWidgets, ClosedToolStillAnswersForItsOldWidgets)
{
	FToolOfAllWidgets Tool;
	const TSharedPtr<SWidget> Old = Tool.Data.NamedWidget.FindChecked("Text");
	UVelmoraData::RequestClose(TEXT("Tool.json"));

	Tool.Data.SetText("Text", TEXT("new"));

	FString Text;
	EXPECT_TRUE(Tool.Data.GetText("Text", Text));
	EXPECT_EQ(Text, FString(TEXT("new")));
	EXPECT_EQ(Tool.Data.GetNamedWidget("Text"), Old);
}
