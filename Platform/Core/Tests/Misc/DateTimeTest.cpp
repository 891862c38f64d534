#include "Misc/DateTime.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

TEST(DateTime, KnowsTheCalendar)
{
	const FDateTime Time(2024, 2, 29, 13, 4, 5, 67);
	EXPECT_EQ(Time.GetYear(), 2024);
	EXPECT_EQ(Time.GetMonth(), 2);
	EXPECT_EQ(Time.GetDay(), 29);
	EXPECT_EQ(Time.GetDayOfYear(), 60);
	EXPECT_EQ(Time.GetDayOfWeek(), EDayOfWeek::Thursday);
	EXPECT_EQ(Time.GetHour(), 13);
	EXPECT_EQ(Time.GetHour12(), 1);
	EXPECT_EQ(Time.GetMillisecond(), 67);
	EXPECT_EQ(Time.GetDate(), FDateTime(2024, 2, 29));
}

TEST(DateTime, FindsEveryDayOfFourCenturiesAgain)
{
	FDateTime Expected(1897, 1, 1);
	for (int32 Year = 1897; Year < 2301; ++Year)
	{
		for (int32 Month = 1; Month <= 12; ++Month)
		{
			for (int32 Day = 1; Day <= FDateTime::DaysInMonth(Year, Month); ++Day, Expected += FTimespan::FromDays(1.0))
			{
				ASSERT_EQ(FDateTime(Year, Month, Day), Expected);
				int32 FoundYear, FoundMonth, FoundDay;
				Expected.GetDate(FoundYear, FoundMonth, FoundDay);
				ASSERT_TRUE(FoundYear == Year && FoundMonth == Month && FoundDay == Day);
			}
		}
	}
}

TEST(DateTime, BeginsWithTheFirstYear)
{
	EXPECT_EQ(FDateTime(1, 1, 1), FDateTime::MinValue());
	EXPECT_EQ(FDateTime::MinValue().GetTicks(), 0);
	EXPECT_EQ(FDateTime::MinValue().GetYear(), 1);
	EXPECT_EQ(FDateTime::MaxValue(), FDateTime(9999, 12, 31, 23, 59, 59, 999) + FTimespan(9999));
}

TEST(DateTime, CountsUnixSeconds)
{
	EXPECT_EQ(FDateTime::FromUnixTimestamp(0), FDateTime(1970, 1, 1));
	EXPECT_EQ(FDateTime::FromUnixTimestamp(1709211845), FDateTime(2024, 2, 29, 13, 4, 5));
	EXPECT_EQ(FDateTime(2024, 2, 29, 13, 4, 5).ToUnixTimestamp(), 1709211845);
}

TEST(DateTime, PrintsInTheFormatsOfLogsAndFileNames)
{
	const FDateTime Time(2024, 2, 9, 13, 4, 5, 67);
	EXPECT_EQ(Time.ToString(), TEXT("2024.02.09-13.04.05"));
	EXPECT_EQ(Time.ToIso8601(), TEXT("2024-02-09T13:04:05.067Z"));
	EXPECT_EQ(Time.ToString(TEXT("%d.%m.%y %h:%M %a")), TEXT("09.02.24 01:04 pm"));
	EXPECT_EQ(Time.ToString(TEXT("%D %A 100%% %")), TEXT("040 PM 100% %"));
}

TEST(DateTime, LocalTimeIsWithinADayOfUniversalTime)
{
	const FTimespan Difference = FDateTime::Now() - FDateTime::UtcNow();
	EXPECT_LT(FMath::Abs(Difference.GetTotalHours()), 15.0);
	EXPECT_GE(FDateTime::UtcNow(), FDateTime(2024, 1, 1));
}

TEST(DateTime, RefusesDatesThatTheCalendarDoesNotHave)
{
	EXPECT_FALSE(FDateTime::Validate(2023, 2, 29, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2023, 13, 1, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2023, 1, 1, 24, 0, 0, 0));
	EXPECT_TRUE(FDateTime::Validate(2000, 2, 29, 23, 59, 59, 999));
	EXPECT_FALSE(FDateTime::IsLeapYear(1900));
}

TEST(Timespan, SplitsIntoParts)
{
	const FTimespan Span(1, 2, 3, 4);
	EXPECT_EQ(Span.GetDays(), 1);
	EXPECT_EQ(Span.GetHours(), 2);
	EXPECT_EQ(Span.GetTotalSeconds(), 93784.0);
	EXPECT_EQ(Span.ToString(), TEXT("+1.02:03:04.000"));
	EXPECT_EQ((-FTimespan::FromMilliseconds(1500.0)).ToString(), TEXT("-00:00:01.500"));
	EXPECT_EQ(FTimespan::FromSeconds(0.5), FTimespan::FromMilliseconds(500.0));
	EXPECT_EQ(FTimespan::FromDays(1e300), FTimespan::MaxValue());
}
