#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "PythonTest.h"
#include "TempProject.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonErrors, TracebackComesLineByLineWithTheSourceOfTheCommand)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("x = 1\nraise ValueError('wrong')")));
	EXPECT_EQ(Log.Lines(),
		TArray<FString>({
			TEXT("LogPython: Error: Traceback (most recent call last):"),
			TEXT("LogPython: Error:   File \"<string>\", line 2, in <module>"),
			TEXT("LogPython: Error:     raise ValueError('wrong')"),
			TEXT("LogPython: Error: ValueError: wrong"),
		}));
}

TEST(PythonErrors, EachFrameShowsTheSourceOfTheCommandItCameFrom)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("\n\ndef defined_before():\n    raise KeyError('k')")));
	EXPECT_FALSE(RunPython(TEXT("defined_before()")));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({
			TEXT("Traceback (most recent call last):"),
			TEXT("  File \"<string>\", line 1, in <module>"),
			TEXT("    defined_before()"),
			TEXT("  File \"<string>\", line 4, in defined_before"),
			TEXT("    raise KeyError('k')"),
			TEXT("KeyError: 'k'"),
		}));
}

TEST(PythonErrors, SyntaxErrorShowsThePlace)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("print('a)")));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({
			TEXT("  File \"<string>\", line 1"),
			TEXT("    print('a)"),
			TEXT("          ^"),
			TEXT("SyntaxError: unterminated string literal (detected at line 1)"),
		}));
}

TEST(PythonErrors, FrameOfAFileNamesTheFile)
{
	const FTempProject Project;
	const FString Script = Project.Write(TEXT("raises.py"), TEXT("\nraise RuntimeError('r')\n"));
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(Script));
	EXPECT_EQ(Log.Errors(),
		TArray<FString>({
			TEXT("Traceback (most recent call last):"),
			FString::Printf(TEXT("  File \"%s\", line 2, in <module>"), *Script),
			TEXT("    raise RuntimeError('r')"),
			TEXT("RuntimeError: r"),
		}));
}

TEST(PythonErrors, LastLineSaysWhatIsBeingHandledInnermostFirst)
{
	const FLogCapture Log(TEXT("LogPython"));
	TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("Tools/Paint.json"));
	{
		TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("OnClick"));
		EXPECT_FALSE(RunPython(TEXT("raise OSError('o')")));
	}
	EXPECT_EQ(Log.Errors().Last(), TEXT("While handling OnClick, Tools/Paint.json"));
}

TEST(PythonErrors, NothingBeingHandledAddsNoLine)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("raise OSError('o')")));
	EXPECT_EQ(Log.Errors().Last(), TEXT("OSError: o"));
}

TEST(PythonErrors, CauseIsShownWithItsOwnSource)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("try:\n    int('x')\nexcept ValueError as error:\n    raise TypeError('t') from error")));
	EXPECT_TRUE(Log.Errors().Contains(TEXT("    int('x')")));
	EXPECT_TRUE(Log.Errors().Contains(TEXT("The above exception was the direct cause of the following exception:")));
	EXPECT_EQ(Log.Errors().Last(), TEXT("TypeError: t"));
}

TEST(PythonErrors, WhatWasPrintedBeforeComesFirst)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("print('before', end='')\n1/0")));
	EXPECT_EQ(Log.Lines()[0], TEXT("LogPython: Log: before"));
	EXPECT_EQ(Log.Errors().Last(), TEXT("ZeroDivisionError: division by zero"));
}

TEST(PythonErrors, ExceptionThatCannotBePrintedIsReportedAllTheSame)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(RunPython(TEXT("class Broken(Exception):\n    def __str__(self):\n        raise Exception()\nraise Broken()")));
	EXPECT_EQ(Log.Errors().Last(), TEXT("Broken: <exception str() failed>"));
}

TEST(PythonErrors, CommandAfterAFailedOneRuns)
{
	EXPECT_FALSE(RunPython(TEXT("raise Exception()")));
	EXPECT_TRUE(RunPython(TEXT("pass")));
}

TEST(PythonErrors, CommandWithinACommandFailsAlone)
{
	EXPECT_TRUE(RunPython(TEXT("inner = unreal.PythonTestFunctions.run_command('1/0')")));
	EXPECT_EQ(Evaluate(TEXT("inner")), TEXT("False"));
}

TEST(PythonErrors, EndlessRecursionIsAnError)
{
	EXPECT_EQ(
		ErrorOf(TEXT("def endless():\n    endless()\nendless()")), TEXT("RecursionError: maximum recursion depth exceeded"));
}

TEST(PythonErrors, CommandsThatRunEachOtherEndlesslyEnd)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("def run_endlessly():\n    unreal.PythonTestFunctions.run_command('run_endlessly()')")));
	RunPython(TEXT("run_endlessly()"));
	EXPECT_TRUE(Log.Errors().ContainsByPredicate([](const FString& Line) { return Line.StartsWith(TEXT("RecursionError")); }));
	EXPECT_EQ(Evaluate(TEXT("1 + 1")), TEXT("2"));
}
