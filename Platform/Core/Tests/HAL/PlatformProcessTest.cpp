#include "HAL/PlatformProcess.h"

#include <gtest/gtest.h>

#include "HAL/PlatformMisc.h"
#include "HAL/PlatformTime.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Paths.h"

TEST(PlatformProcess, ExecutableAndItsFolder)
{
	EXPECT_EQ(FString(FPlatformProcess::ExecutableName()), FString(TEXT("CoreTests")));
	EXPECT_EQ(
		FString(FPlatformProcess::BaseDir()) + FPlatformProcess::ExecutableName(), FString(FPlatformProcess::ExecutablePath()));
	EXPECT_TRUE(FPaths::FileExists(FPlatformProcess::ExecutablePath()));
}

TEST(PlatformProcess, BoundDelegateSeesTheAddressAndForbidsOpeningIt)
{
	FString Seen;
	FString Error;
	FCoreDelegates::ShouldLaunchUrl.BindLambda(
		[&Seen](const FString& Url)
		{
			Seen = Url;
			return false;
		});
	FPlatformProcess::LaunchURL(TEXT("https://example.com"), nullptr, &Error);
	FCoreDelegates::ShouldLaunchUrl.Unbind();
	EXPECT_EQ(Seen, FString(TEXT("https://example.com")));
	EXPECT_EQ(Error, FString(TEXT("LaunchURL cancelled by delegate")));
}

TEST(PlatformMisc, EnvironmentVariables)
{
	FPlatformMisc::SetEnvironmentVar(TEXT("KESTRIX_TEST_VARIABLE"), TEXT("gr\u00FCn"));
	EXPECT_EQ(FPlatformMisc::GetEnvironmentVariable(TEXT("KESTRIX_TEST_VARIABLE")), FString(TEXT("gr\u00FCn")));
	EXPECT_EQ(FPlatformMisc::GetEnvironmentVariable(TEXT("KESTRIX_TEST_NOTHING")), FString());
}

TEST(PlatformTime, SystemTimeIsLocalTime)
{
	int32 Year, Month, DayOfWeek, Day, Hour, Min, Sec, MSec;
	setenv("TZ", "KTX-3", 1);
	tzset();
	FPlatformTime::SystemTime(Year, Month, DayOfWeek, Day, Hour, Min, Sec, MSec);
	const FDateTime Local(Year, Month, Day, Hour, Min, Sec, MSec);
	FPlatformTime::UtcTime(Year, Month, DayOfWeek, Day, Hour, Min, Sec, MSec);
	const FDateTime Utc(Year, Month, Day, Hour, Min, Sec, MSec);
	unsetenv("TZ");
	tzset();
	EXPECT_EQ(FMath::RoundToInt((Local - Utc).GetTotalHours()), 3);
}
