#include "Velmora/EventCommands.h"

#include "LogCapture.h"
#include "ToolsSettings.h"
#include "Velmora/PythonRecorder.h"
#include "Velmora/VelmoraGenerator.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

FText Text(const TCHAR* Value)
{
	return FText::FromString(Value);
}
}

TEST(EventCommands, WidgetPathIsPutInQuotesWhereverItStands)
{
	EXPECT_EQ(FillWidgetPath(TEXT("f(%WidgetPath, %widgetpath) % 2"), TEXT("/SBox/SButton")),
		FString(TEXT("f(\"/SBox/SButton\", \"/SBox/SButton\") % 2")));
}

TEST(EventCommands, ClickRunsItsCommandAsItStands)
{
	FPythonRecorder Python;

	EXPECT_TRUE(MakeClickHandler(TEXT("print(5 % 3)")).Execute().IsEventHandled());

	EXPECT_EQ(Python.Take(), FLines({TEXT("print(5 % 3)")}));
}

TEST(EventCommands, EmptyClickIsHandledAndRunsNothing)
{
	FPythonRecorder Python;

	EXPECT_TRUE(MakeClickHandler(FString()).Execute().IsEventHandled());

	EXPECT_EQ(Python.Take(), FLines());
}

TEST(EventCommands, CheckStateIsABooleanOfPython)
{
	FPythonRecorder Python;
	const FOnCheckStateChanged Handler = MakeCheckHandler(TEXT("print(%)"));

	Handler.Execute(ECheckBoxState::Checked);
	Handler.Execute(ECheckBoxState::Unchecked);
	Handler.Execute(ECheckBoxState::Undetermined);

	EXPECT_EQ(Python.Take(), FLines({TEXT("print(True)"), TEXT("print(False)"), TEXT("print(False)")}));
}

TEST(EventCommands, EveryPercentOfAOneValueTemplateIsTheValue)
{
	FPythonRecorder Python;

	MakeCheckHandler(TEXT("f(%, %Index)")).Execute(ECheckBoxState::Checked);

	EXPECT_EQ(Python.Take(), FLines({TEXT("f(True, TrueIndex)")}));
}

TEST(EventCommands, TextStandsInTripleQuotesUnescaped)
{
	FPythonRecorder Python;

	MakeTextChangedHandler(TEXT("f(%)")).Execute(Text(TEXT("it's\n\"100%\" \\")));
	MakeTextCommittedHandler(TEXT("g(%)")).Execute(Text(TEXT("x")), ETextCommit::OnEnter);

	EXPECT_EQ(Python.Take(), FLines({TEXT("f('''it's\n\"100%\" \\''')"), TEXT("g('''x''')")}));
}

TEST(EventCommands, EmptyTextRunsNothing)
{
	FPythonRecorder Python;

	MakeTextChangedHandler(TEXT("f(%)")).Execute(FText());
	MakeTextCommittedHandler(TEXT("f(%)")).Execute(Text(TEXT("")), ETextCommit::OnCleared);

	EXPECT_EQ(Python.Take(), FLines());
}

TEST(EventCommands, TextAndCheckStateHandAnEmptyCommandToTheInterpreter)
{
	FPythonRecorder Python;

	MakeTextChangedHandler(FString()).Execute(Text(TEXT("x")));
	MakeTextCommittedHandler(FString()).Execute(Text(TEXT("x")), ETextCommit::Default);
	MakeCheckHandler(FString()).Execute(ECheckBoxState::Checked);

	EXPECT_EQ(Python.Take(), FLines({FString(), FString(), FString()}));
}

TEST(EventCommands, CommitRunsWhateverHasMadeIt)
{
	FPythonRecorder Python;
	const FOnTextCommitted Handler = MakeTextCommittedHandler(TEXT("commit"));

	for (const ETextCommit::Type Commit :
		{ETextCommit::Default, ETextCommit::OnEnter, ETextCommit::OnUserMovedFocus, ETextCommit::OnCleared})
	{
		Handler.Execute(Text(TEXT("x")), Commit);
	}

	EXPECT_EQ(Python.Take(), FLines({TEXT("commit"), TEXT("commit"), TEXT("commit"), TEXT("commit")}));
}

TEST(EventCommands, InsertedTextIsNotSearchedForPlaceholders)
{
	FPythonRecorder Python;

	MakeTextChangedHandler(TEXT("f(%)")).Execute(Text(TEXT("%%")));

	EXPECT_EQ(Python.Take(), FLines({TEXT("f('''%%''')")}));
}

TEST(EventCommands, TickRunsItsCommandAndGoesOn)
{
	FPythonRecorder Python;
	const FLogCapture Log(TEXT("Velmora"));

	bLogOnTickWarnings = true;
	EXPECT_EQ(MakeTickHandler(TEXT("tick(%)")).Execute(10.0, 0.25f), EActiveTimerReturnType::Continue);
	EXPECT_EQ(MakeTickHandler(FString()).Execute(10.0, 0.25f), EActiveTimerReturnType::Continue);
	bLogOnTickWarnings = false;
	EXPECT_EQ(MakeTickHandler(TEXT("quiet()")).Execute(10.0, 0.25f), EActiveTimerReturnType::Continue);

	EXPECT_EQ(Python.Take(), FLines({TEXT("tick(%)"), TEXT("quiet()")}));
	EXPECT_EQ(Log.Warnings(), FLines({TEXT("Velmora tick: 0.250000, don't abuse it.")}));
}

TEST(EventCommands, DetailedLogTellsTheClick)
{
	FPythonRecorder Python;
	const FLogCapture Log(TEXT("Velmora"));

	MakeClickHandler(TEXT("quiet()")).Execute();
	bLogCreateWidget = true;
	MakeClickHandler(TEXT("loud()")).Execute();
	MakeClickHandler(FString()).Execute();
	bLogCreateWidget = false;

	EXPECT_EQ(Log.Lines(),
		FLines({TEXT("Velmora: Log: Button Clicked. Command: loud()"), TEXT("Velmora: Log: Button Clicked. Command: ")}));
}
