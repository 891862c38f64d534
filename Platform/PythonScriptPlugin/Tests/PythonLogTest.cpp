#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonLog, PrintAndStreamsGoToTheLog)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(
		RunPython(TEXT("import sys\nprint('a', 1)\nprint('e', file=sys.stderr)\nsys.stdout.writelines(['b\\n', 'c\\n'])")));
	EXPECT_EQ(Log.Lines(),
		TArray<FString>(
			{TEXT("LogPython: Log: a 1"), TEXT("LogPython: Error: e"), TEXT("LogPython: Log: b"), TEXT("LogPython: Log: c")}));
}

TEST(PythonLog, EachLineIsALogLine)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("print('a\\n\\nb\\r\\n', end='')\nprint()")));
	EXPECT_EQ(Log.Lines(),
		TArray<FString>(
			{TEXT("LogPython: Log: a"), TEXT("LogPython: Log: "), TEXT("LogPython: Log: b"), TEXT("LogPython: Log: ")}));
}

TEST(PythonLog, UnfinishedLineShowsAtFlushAndAtTheEnd)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("print('a', end='')\nprint('b', end='', flush=True)\nprint('c', end='')")));
	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogPython: Log: ab"), TEXT("LogPython: Log: c")}));
}

TEST(PythonLog, LogFunctionsHaveTheirLevels)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("unreal.log('l'); unreal.log_warning(12); unreal.log_error('e'); unreal.log_flush()")));
	EXPECT_EQ(
		Log.Lines(), TArray<FString>({TEXT("LogPython: Log: l"), TEXT("LogPython: Warning: 12"), TEXT("LogPython: Error: e")}));
}

TEST(PythonLog, WarningsAreWarnings)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("import warnings\nwarnings.warn('careful', RuntimeWarning)")));
	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogPython: Warning: <string>:2: RuntimeWarning: careful")}));
}

TEST(PythonLog, LoggingModuleReachesTheLog)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_TRUE(RunPython(TEXT("import logging\nlogging.getLogger('tool').warning('from %s', 'logging')")));
	EXPECT_EQ(Log.Errors(), TArray<FString>({TEXT("from logging")}));
}
