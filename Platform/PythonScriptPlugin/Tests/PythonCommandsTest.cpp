#include "Misc/FileHelper.h"
#include "PythonTest.h"
#include "PythonTestTypes.h"
#include "TempProject.h"

#include <gtest/gtest.h>

using namespace PythonTest;

static const TArray<FString> NoLines;

TEST(PythonCommands, LiteralsShareTheConsoleVariables)
{
	EXPECT_TRUE(RunPython(TEXT("import math\nshared_value = math.floor(2.5)")));
	EXPECT_EQ(Evaluate(TEXT("shared_value + math.floor(1.5)")), TEXT("3"));
}

TEST(PythonCommands, UnrealIsThereFromTheStart)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.__name__")), TEXT("'unreal'"));
	EXPECT_EQ(ErrorOf(TEXT("import unreal")), TEXT(""));
}

TEST(PythonCommands, EmptyTextSucceeds)
{
	EXPECT_TRUE(RunPython(TEXT("")));
	EXPECT_TRUE(RunPython(TEXT("  # nothing")));
}

TEST(PythonCommands, TextBeyondAsciiArrivesUnchanged)
{
	EXPECT_TRUE(RunPython(TEXT("beyond = '\u00e4\u4e16\U0001F600'")));
	EXPECT_EQ(Evaluate(TEXT("[hex(ord(c)) for c in beyond]")), TEXT("['0xe4', '0x4e16', '0x1f600']"));
	EXPECT_EQ(
		RunEx(TEXT("beyond"), EPythonCommandExecutionMode::EvaluateStatement).CommandResult, TEXT("'\u00e4\u4e16\U0001F600'"));
}

TEST(PythonCommands, TextsThatDifferInCaseOnlyAreDifferentCommands)
{
	EXPECT_TRUE(RunPython(TEXT("case = 'a'")));
	EXPECT_TRUE(RunPython(TEXT("case = 'A'")));
	EXPECT_EQ(Evaluate(TEXT("case")), TEXT("'A'"));
}

TEST(PythonCommands, RepeatedTextRunsEachTime)
{
	EXPECT_TRUE(RunPython(TEXT("counter = 0")));
	for (int32 Repeat = 0; Repeat < 20; ++Repeat)
	{
		EXPECT_TRUE(RunPython(TEXT("counter += 1")));
	}
	EXPECT_EQ(Evaluate(TEXT("counter")), TEXT("20"));
}

TEST(PythonCommands, RepeatedTextKeepsItsCodeObject)
{
	EXPECT_TRUE(RunPython(TEXT("import sys; codes = set()")));
	for (int32 Repeat = 0; Repeat < 3; ++Repeat)
	{
		EXPECT_TRUE(RunPython(TEXT("codes.add(sys._getframe().f_code)")));
	}
	EXPECT_EQ(Evaluate(TEXT("len(codes)")), TEXT("1"));
}

TEST(PythonCommands, CommandMayRunOtherCommandsUntilItIsPushedOutOfTheCache)
{
	EXPECT_TRUE(
		RunPython(TEXT("runs = 0\nfor i in range(600):\n    unreal.PythonTestFunctions.run_command(f'runs += 1 # {i}')")));
	EXPECT_EQ(Evaluate(TEXT("runs")), TEXT("600"));
}

TEST(PythonCommands, StatementModeLogsTheValueOfAnExpression)
{
	const FLogCapture Log(TEXT("LogPython"));
	const FPythonCommandEx Command = RunEx(TEXT("1 + 2"), EPythonCommandExecutionMode::ExecuteStatement);
	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogPython: Log: 3")}));
	EXPECT_EQ(Command.CommandResult, TEXT("None"));
}

TEST(PythonCommands, StatementModeRefusesTwoStatements)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(
		RunEx(TEXT("a = 1\nb = 2"), EPythonCommandExecutionMode::ExecuteStatement).CommandResult.Contains(TEXT("SyntaxError")));
}

TEST(PythonCommands, EvaluateModeGivesTheValueAsText)
{
	EXPECT_EQ(RunEx(TEXT("'a' * 3"), EPythonCommandExecutionMode::EvaluateStatement).CommandResult, TEXT("'aaa'"));
}

TEST(PythonCommands, OutputIsCapturedLineByLine)
{
	const FPythonCommandEx Command =
		RunEx(TEXT("import sys\nprint('a\\nb')\nunreal.log_warning('w')\nsys.stderr.write('e\\n')\nprint('end', end='')"));
	TArray<FString> Lines;
	for (const FPythonLogOutputEntry& Entry : Command.LogOutput)
	{
		Lines.Add(FString(LexToString(Entry.Type)) + TEXT(": ") + Entry.Output);
	}
	EXPECT_EQ(
		Lines, TArray<FString>({TEXT("Info: a"), TEXT("Info: b"), TEXT("Warning: w"), TEXT("Error: e"), TEXT("Info: end")}));
}

TEST(PythonCommands, FileGetsItsArguments)
{
	const FTempProject Project;
	const FString Script =
		Project.Write(TEXT("my tools/args.py"), TEXT("import sys, builtins\nbuiltins.seen = (sys.argv, __name__, __file__)\n"));

	EXPECT_TRUE(RunPython(FString::Printf(TEXT("\"%s\" one \"two words\""), *Script)));

	EXPECT_EQ(Evaluate(TEXT("seen[0][1:]")), TEXT("['one', 'two words']"));
	EXPECT_EQ(Evaluate(TEXT("seen[0][0] == seen[2] and seen[1]")), TEXT("'__main__'"));
	EXPECT_EQ(Evaluate(TEXT("__import__('sys').argv")), TEXT("['']"));
}

TEST(PythonCommands, FileHasVariablesOfItsOwnUnlessPublic)
{
	const FTempProject Project;
	const FString Script = Project.Write(TEXT("scope.py"), TEXT("scope_value = 5\n"));

	EXPECT_TRUE(RunPython(TEXT("scope_value = 1")));
	RunEx(Script);
	EXPECT_EQ(Evaluate(TEXT("scope_value")), TEXT("1"));

	RunEx(Script, EPythonCommandExecutionMode::ExecuteFile, EPythonFileExecutionScope::Public);
	EXPECT_EQ(Evaluate(TEXT("scope_value")), TEXT("5"));
	EXPECT_EQ(Evaluate(TEXT("'__file__' in globals()")), TEXT("False"));
}

TEST(PythonCommands, FileIsReadAgainAtEachRun)
{
	const FTempProject Project;
	const FString Script = Project.Write(TEXT("again.py"), TEXT("import builtins; builtins.read_again = 1\n"));
	EXPECT_TRUE(RunPython(Script));
	Project.Write(TEXT("again.py"), TEXT("import builtins; builtins.read_again = 2\n"));
	EXPECT_TRUE(RunPython(Script));
	EXPECT_EQ(Evaluate(TEXT("read_again")), TEXT("2"));
}

TEST(PythonCommands, ScriptImportsItsNeighboursWhileItRuns)
{
	const FTempProject Project;
	Project.Write(TEXT("neighbour_of_script.py"), TEXT("value = 8\n"));
	const FString Script = Project.Write(
		TEXT("importer.py"), TEXT("import builtins, neighbour_of_script\nbuiltins.imported = neighbour_of_script.value\n"));
	EXPECT_TRUE(RunPython(Script));
	EXPECT_EQ(Evaluate(TEXT("imported")), TEXT("8"));
	EXPECT_EQ(Evaluate(FString::Printf(TEXT("'%s' in __import__('sys').path"), *Project.GetDir())), TEXT("False"));
}

TEST(PythonCommands, MissingFileIsAnErrorLine)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("nowhere.py now")));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({TEXT("FileNotFoundError: Python file 'nowhere.py' is neither in the working folder nor on sys.path")}));
}

TEST(PythonCommands, FileFoundOnTheSearchPathRuns)
{
	const FTempProject Project;
	Project.Write(TEXT("Scripts/on_path.py"), TEXT("import builtins; builtins.on_path = True\n"));
	EXPECT_TRUE(RunPython(FString::Printf(TEXT("import sys; sys.path.append('%s')"), *Project.Path(TEXT("Scripts")))));
	EXPECT_TRUE(RunPython(TEXT("on_path.py")));
	EXPECT_TRUE(RunPython(TEXT("sys.path.pop()")));
	EXPECT_EQ(Evaluate(TEXT("on_path")), TEXT("True"));
}

TEST(PythonCommands, FileHonoursItsCodingMark)
{
	const FTempProject Project;
	const FString Script = Project.Write(TEXT("latin.py"), TEXT(""));
	const ANSICHAR Text[] = "# -*- coding: latin-1 -*-\nimport builtins; builtins.latin = '\xe4'\n";
	ASSERT_TRUE(
		FFileHelper::SaveArrayToFile(TArrayView<const uint8>(reinterpret_cast<const uint8*>(Text), sizeof(Text) - 1), *Script));
	EXPECT_TRUE(RunPython(Script));
	EXPECT_EQ(Evaluate(TEXT("hex(ord(latin))")), TEXT("'0xe4'"));
}

TEST(PythonCommands, SystemExitEndsTheScriptOnly)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("import sys; sys.exit()")));
	EXPECT_TRUE(RunPython(TEXT("raise SystemExit(0)")));
	EXPECT_EQ(Log.Lines(), NoLines);

	EXPECT_FALSE(RunPython(TEXT("sys.exit(3)")));
	EXPECT_FALSE(RunPython(TEXT("sys.exit('no input')")));
	EXPECT_EQ(Log.Errors(), TArray<FString>({TEXT("The script ended with exit status 3"), TEXT("no input")}));
}
