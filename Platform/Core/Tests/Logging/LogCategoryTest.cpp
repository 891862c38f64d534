#include "Logging/LogCategory.h"

#include <gtest/gtest.h>

#include "HAL/IConsoleManager.h"
#include "LogCapture.h"

DEFINE_LOG_CATEGORY_STATIC(LogTestShy, Warning, All);
DEFINE_LOG_CATEGORY_STATIC(LogTestCapped, Warning, Warning);

namespace
{
bool RunConsole(const TCHAR* Input)
{
	return IConsoleManager::Get().ProcessUserConsoleInput(Input, *GLog);
}
}

TEST(LogCategory, PrintsLinesAtOrBelowItsVerbosity)
{
	const FLogCapture Log(TEXT("LogTestShy"));

	UE_LOG(LogTestShy, Error, TEXT("an error"));
	UE_LOG(LogTestShy, Warning, TEXT("a warning"));
	UE_LOG(LogTestShy, Display, TEXT("too much"));

	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogTestShy: Error: an error"), TEXT("LogTestShy: Warning: a warning")}));
}

TEST(LogCategory, LogCommandChangesTheVerbosityInAnyCase)
{
	const FLogCapture Log(TEXT("LogTestShy"));

	EXPECT_TRUE(RunConsole(TEXT("log logtestshy veryverbose")));
	UE_LOG(LogTestShy, VeryVerbose, TEXT("now heard"));
	EXPECT_TRUE(RunConsole(TEXT("Log LogTestShy Default")));
	UE_LOG(LogTestShy, VeryVerbose, TEXT("and no more"));

	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogTestShy: VeryVerbose: now heard")}));
}

TEST(LogCategory, CompileTimeVerbosityCapsTheRuntimeOne)
{
	LogTestCapped.SetVerbosity(ELogVerbosity::VeryVerbose);

	EXPECT_EQ(LogTestCapped.GetVerbosity(), ELogVerbosity::Warning);
	EXPECT_FALSE(UE_LOG_ACTIVE(LogTestCapped, Log));
	EXPECT_TRUE(UE_LOG_ACTIVE(LogTestCapped, Error));
}

TEST(LogCategory, SuppressedLineDoesNotEvaluateItsArguments)
{
	int32 Calls = 0;
	UE_LOG(LogTestShy, Log, TEXT("%d"), ++Calls);
	EXPECT_EQ(Calls, 0);
}

TEST(LogCategory, HandMadeCategoryRegistersItselfWhileItLives)
{
	{
		const FLogCategoryBase Category(TEXT("TestHandMade"), ELogVerbosity::VeryVerbose, ELogVerbosity::VeryVerbose);
		RunConsole(TEXT("Log TestHandMade Error"));
		EXPECT_EQ(Category.GetVerbosity(), ELogVerbosity::Error);
		EXPECT_TRUE(Category.IsSuppressed(ELogVerbosity::Warning));
	}

	const FLogCapture Log;
	RunConsole(TEXT("Log TestHandMade Error"));
	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("Log: unknown category \"TestHandMade\", see \"Log List\"")}));
}

TEST(LogCategory, LogCommandSetsEveryCategoryOfTheName)
{
	const FLogCategoryBase First(TEXT("TestTwins"), ELogVerbosity::Log, ELogVerbosity::All);
	const FLogCategoryBase Second(TEXT("TestTwins"), ELogVerbosity::Log, ELogVerbosity::All);
	RunConsole(TEXT("Log TestTwins Off"));
	EXPECT_EQ(First.GetVerbosity(), ELogVerbosity::NoLogging);
	EXPECT_EQ(Second.GetVerbosity(), ELogVerbosity::NoLogging);
}

TEST(LogCategory, LogCommandSaysWhatItExpects)
{
	const FLogCapture Log;
	RunConsole(TEXT("Log LogTestShy Loud"));
	RunConsole(TEXT("Log"));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("Log: unknown verbosity \"Loud\", expected Off, Fatal, Error, Warning, Display, Log, Verbose, "
							  "VeryVerbose, All or Default"),
			TEXT("Log: expected \"Log <Category> <Verbosity>\", \"Log <Category> Default\" or \"Log List\"")}));
}

TEST(LogCategory, MessageOfCategoryKnownOnlyAtRunTimeIsFormatted)
{
	const FLogCapture Log(TEXT("TestDynamic"));
	FMsg::Logf(__FILE__, __LINE__, TEXT("TestDynamic"), ELogVerbosity::Warning, TEXT("%s has %d items"), TEXT("List"), 3);
	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("List has 3 items")}));
}
