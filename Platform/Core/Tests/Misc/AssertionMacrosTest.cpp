#include "Misc/AssertionMacros.h"

#include <gtest/gtest.h>

#include "LogCapture.h"
#include "Misc/CoreDelegates.h"
#include "Misc/FileHelper.h"
#include "Misc/OutputDeviceFile.h"
#include "TempProject.h"

namespace
{
void FailWithHandler()
{
	FCoreDelegates::OnHandleSystemError.AddLambda([] { fputs("the handler ran\n", stderr); });
	checkf(false, TEXT("%d things are wrong"), 2);
}

bool EnsureAtOnePlace(bool bGood)
{
	return ensureMsgf(bGood, TEXT("not %s"), TEXT("good"));
}
}

TEST(CheckDeathTest, EndsTheProcessWithMessageAndCallStack)
{
	EXPECT_DEATH(FailWithHandler(),
		"Assertion failed: false \\[File:.*AssertionMacrosTest.cpp\\] \\[Line: [0-9]+\\] \n2 things are wrong\n\\[Callstack\\] "
		"0x");
}

TEST(CheckDeathTest, RunsTheErrorHandlers)
{
	EXPECT_DEATH(FailWithHandler(), "the handler ran");
}

TEST(CheckDeathTest, FailureWithinAHandlerEndsAtOnce)
{
	EXPECT_EXIT(
		{
			FCoreDelegates::OnHandleSystemError.AddLambda([] { check(!"again"); });
			check(!"first");
		},
		testing::KilledBySignal(SIGABRT), "first");
}

TEST(CheckDeathTest, LogFileHoldsTheFailure)
{
	const FTempProject Project;
	const FString Filename = Project.Path(TEXT("Run.log"));
	EXPECT_DEATH(
		{
			FOutputDeviceFile File(*Filename);
			GLog->AddOutputDevice(&File);
			check(!"remember me");
		},
		"remember me");

	const FString Text = Project.Read(TEXT("Run.log"));
	EXPECT_TRUE(Text.Contains(TEXT("LogOutputDevice: Error: Assertion failed: !\"remember me\"")));
	EXPECT_TRUE(Text.Contains(TEXT("LogOutputDevice: Error: [Callstack] 0x")));
}

TEST(CheckDeathTest, FatalLineEndsTheProcess)
{
	EXPECT_DEATH(UE_LOG(LogTemp, Fatal, TEXT("the end of %s"), TEXT("it")), "Fatal error: .*\n.*LogTemp: the end of it");
}

TEST(Ensure, ReportsOncePerPlaceAndGoesOn)
{
	const FLogCapture Log(TEXT("LogOutputDevice"));
	EXPECT_TRUE(EnsureAtOnePlace(true));
	EXPECT_EQ(Log.Errors().Num(), 0);

	EXPECT_FALSE(EnsureAtOnePlace(false));
	const int32 LinesOfOneReport = Log.Errors().Num();
	ASSERT_GT(LinesOfOneReport, 2);
	EXPECT_TRUE(Log.Errors()[1].StartsWith(TEXT("Ensure condition failed: bGood [File:")));
	EXPECT_TRUE(Log.Errors()[1].EndsWith(TEXT("\nnot good")));

	EXPECT_FALSE(EnsureAtOnePlace(false));
	EXPECT_EQ(Log.Errors().Num(), LinesOfOneReport);
}
