#include "LogCapture.h"
#include "SlateTestWindow.h"
#include "ToolsSettings.h"
#include "Velmora/PythonRecorder.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

/** A window with a column of widgets, and what their events hand to the interpreter. */
struct FColumn
{
	explicit FColumn(const char* Slots)
		: Box(BuildTree((std::string("{ \"SVerticalBox\": { \"Slots\": [ ") + Slots + " ] } }").c_str()))
		, Window(Box)
	{
	}

	TSharedRef<SWidget> Child(int32 Index) const { return ChildOf(Box, Index); }

	FPythonRecorder Python;
	TSharedRef<SWidget> Box;
	FSlateTestWindow Window;
};

constexpr const char* TextFieldAndButton = R"json(
	{ "AutoHeight": true, "SEditableTextBox": { "Text": "a", "OnTextChanged": "changed(%)", "OnTextCommitted": "committed(%)" } },
	{ "AutoHeight": true, "SButton": { "Text": "Next", "OnClick": "clicked()" } })json";

constexpr const char* TextAreaAndButton = R"json(
	{ "AutoHeight": true, "SMultiLineEditableTextBox": { "OnTextChanged": "changed(%)", "OnTextCommitted": "committed(%)" } },
	{ "AutoHeight": true, "SButton": { "Text": "Next", "OnClick": "clicked()" } })json";
}

TEST(WidgetEvents, ClickRunsTheCommandOnceWithThePathOfTheButton)
{
	FColumn Column(R"json({ "AutoHeight": true, "SButton": { "Text": "Press", "OnClick": "press(%WidgetPath)" } })json");

	Column.Window.Click(Column.Child(0));

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("press(\"/SVerticalBox/Slots_0/SButton\")")}));
}

TEST(WidgetEvents, CommandOfAButtonThatIsNoTextIsNone)
{
	FColumn Column(R"json({ "AutoHeight": true, "SButton": { "Text": "Press", "OnClick": 5 } },
		{ "AutoHeight": true, "SButton": { "Text": "Press", "OnClick": true } })json");

	Column.Window.Click(Column.Child(0));
	Column.Window.Click(Column.Child(1));

	EXPECT_EQ(Column.Python.Take(), FLines());
}

TEST(WidgetEvents, ReleaseOutsideTheButtonRunsNothing)
{
	FColumn Column(R"json({ "AutoHeight": true, "SButton": { "Text": "Press", "OnClick": "press()" } })json");

	Column.Window.MoveMouse(Column.Window.MiddleOf(*Column.Child(0)));
	Column.Window.Press();
	Column.Window.MoveMouse(FVector2D(300.0, 400.0));
	Column.Window.Release();

	EXPECT_EQ(Column.Python.Take(), FLines());
}

TEST(WidgetEvents, CheckBoxTellsItsNewStateOncePerClick)
{
	FColumn Column(R"json({ "AutoHeight": true, "HAlign": "Left", "SCheckBox": { "OnCheckStateChanged": "set(%)",
		"Content": { "STextBlock": { "Text": "On" } } } })json");

	Column.Window.Click(Column.Child(0));
	Column.Window.Click(Column.Child(0));

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("set(True)"), TEXT("set(False)")}));
}

TEST(WidgetEvents, CommandMayRemoveTheVeryWidgetThatRunsIt)
{
	FColumn Column(R"json({ "AutoHeight": true, "SButton": { "Text": "Go", "OnClick": "click" } },
		{ "AutoHeight": true, "SCheckBox": { "OnCheckStateChanged": "check", "Content": { "STextBlock": { "Text": "On" } } } },
		{ "AutoHeight": true, "SEditableTextBox": { "OnTextChanged": "change" } })json");
	Column.Python.SetOnCommand([&Column] { As<SVerticalBox>(Column.Box)->RemoveSlot(Column.Child(0)); });

	Column.Window.Click(Column.Child(0));
	Column.Window.Click(Column.Child(0));
	Column.Window.Click(Column.Child(0));
	Column.Window.TypeText(TEXT("x"));

	EXPECT_EQ(Column.Box->GetChildren()->Num(), 0);
	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("click"), TEXT("check"), TEXT("change")}));
}

TEST(WidgetEvents, CheckBoxWhoseCommandIsNoTextOnlyChanges)
{
	FColumn Column(R"json({ "AutoHeight": true, "HAlign": "Left", "SCheckBox": { "OnCheckStateChanged": 5 } })json");

	Column.Window.Click(Column.Child(0));

	EXPECT_TRUE(As<SCheckBox>(Column.Child(0))->IsChecked());
	EXPECT_EQ(Column.Python.Take(), FLines());
}

TEST(WidgetEvents, CheckBoxWithoutACommandOnlyChanges)
{
	FColumn Column(R"json({ "AutoHeight": true, "HAlign": "Left", "SCheckBox": { "IsChecked": true } })json");

	Column.Window.Click(Column.Child(0));

	EXPECT_FALSE(As<SCheckBox>(Column.Child(0))->IsChecked());
	EXPECT_EQ(Column.Python.Take(), FLines());
}

TEST(WidgetEvents, BuildingAFieldWithATextTellsTheChange)
{
	FColumn Column(TextFieldAndButton);

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("changed('''a''')")}));
}

TEST(WidgetEvents, EachTypedCharacterIsOneChange)
{
	FColumn Column(TextFieldAndButton);
	Column.Window.Click(Column.Child(0));
	Column.Window.PressKey(EKeys::End);
	Column.Python.Take();

	Column.Window.TypeText(TEXT("bc"));

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("changed('''ab''')"), TEXT("changed('''abc''')")}));
}

TEST(WidgetEvents, EnterCommitsAFieldAndGivingUpTheFocusCommitsItAgain)
{
	FColumn Column(TextFieldAndButton);
	Column.Window.Click(Column.Child(0));
	Column.Python.Take();

	Column.Window.PressKey(EKeys::Enter);

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("committed('''a''')"), TEXT("committed('''a''')")}));
}

TEST(WidgetEvents, FieldCommitsAtThePressThatTakesItsFocusBeforeTheClick)
{
	FColumn Column(TextFieldAndButton);
	Column.Window.Click(Column.Child(0));
	Column.Python.Take();

	Column.Window.Click(Column.Child(1));

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("committed('''a''')"), TEXT("clicked()")}));
}

TEST(WidgetEvents, EmptyFieldRunsNothing)
{
	FColumn Column(TextFieldAndButton);
	Column.Window.Click(Column.Child(0));
	Column.Window.PressKey(EKeys::End);
	Column.Python.Take();

	Column.Window.PressKey(EKeys::BackSpace);
	Column.Window.PressKey(EKeys::Enter);

	EXPECT_EQ(As<SEditableTextBox>(Column.Child(0))->GetText().ToString(), FString());
	EXPECT_EQ(Column.Python.Take(), FLines());
}

TEST(WidgetEvents, AreaTakesEnterAsTextAndCommitsWithItsFocus)
{
	FColumn Column(TextAreaAndButton);
	Column.Window.Click(Column.Child(0));

	Column.Window.TypeText(TEXT("a"));
	Column.Window.PressKey(EKeys::Enter);
	Column.Window.TypeText(TEXT("\r"));
	Column.Window.TypeText(TEXT("b"));
	const FLines Changes = Column.Python.Take();
	Column.Window.Click(Column.Child(1));

	ASSERT_EQ(Changes.Num(), 3);
	EXPECT_EQ(Changes.Last(), FString(TEXT("changed('''a\nb''')")));
	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("committed('''a\nb''')"), TEXT("clicked()")}));
}

TEST(WidgetEvents, TickRunsOncePerFrameWhileTheWidgetShows)
{
	const FLogCapture Log(TEXT("Velmora"));
	bLogOnTickWarnings = true;
	FColumn Column(R"json({ "SBox": { "OnTick": "tick()" } })json");
	Column.Python.Take();

	Column.Window.Frame();
	Column.Window.Frame();

	EXPECT_EQ(Column.Python.Take(), FLines({TEXT("tick()"), TEXT("tick()")}));
	EXPECT_GE(Log.Warnings().Num(), 2);
	EXPECT_TRUE(Log.Warnings().Last().EndsWith(TEXT(", don't abuse it.")));

	Column.Child(0)->SetVisibility(EVisibility::Collapsed);
	Column.Window.Frame();
	Column.Python.Take();
	Column.Window.Frame();

	EXPECT_EQ(Column.Python.Take(), FLines());
	bLogOnTickWarnings = false;
}

TEST(WidgetEvents, EmptyTickRegistersNothing)
{
	FColumn Column(R"json({ "SBox": { "OnTick": "" } })json");

	Column.Window.Frame();
	Column.Window.Frame();

	EXPECT_EQ(Column.Python.Take(), FLines());
	EXPECT_FALSE(FSlateApplication::Get().NeedsFrame());
}
