#include "HAL/PlatformTime.h"

#include <ctime>

namespace
{
timespec ReadClock(clockid_t Clock)
{
	timespec Now = {};
	clock_gettime(Clock, &Now);
	return Now;
}

struct FCalendarTime
{
	tm Calendar = {};
	int32 Milliseconds;

	explicit FCalendarTime(tm* (*Convert)(const time_t*, tm*))
	{
		const timespec Now = ReadClock(CLOCK_REALTIME);
		Convert(&Now.tv_sec, &Calendar);
		Milliseconds = static_cast<int32>(Now.tv_nsec / 1000000);
	}

	void Store(int32& Year, int32& Month, int32& DayOfWeek, int32& Day, int32& Hour, int32& Min, int32& Sec, int32& MSec) const
	{
		Year = Calendar.tm_year + 1900;
		Month = Calendar.tm_mon + 1;
		DayOfWeek = Calendar.tm_wday;
		Day = Calendar.tm_mday;
		Hour = Calendar.tm_hour;
		Min = Calendar.tm_min;
		Sec = Calendar.tm_sec;
		MSec = Milliseconds;
	}
};
}

double FPlatformTime::Seconds()
{
	const timespec Now = ReadClock(CLOCK_MONOTONIC);
	return static_cast<double>(Now.tv_sec) + static_cast<double>(Now.tv_nsec) * 1e-9;
}

uint64 FPlatformTime::Cycles64()
{
	const timespec Now = ReadClock(CLOCK_MONOTONIC);
	return static_cast<uint64>(Now.tv_sec) * 1000000000ull + static_cast<uint64>(Now.tv_nsec);
}

void FPlatformTime::SystemTime(
	int32& Year, int32& Month, int32& DayOfWeek, int32& Day, int32& Hour, int32& Min, int32& Sec, int32& MSec)
{
	FCalendarTime(&localtime_r).Store(Year, Month, DayOfWeek, Day, Hour, Min, Sec, MSec);
}

void FPlatformTime::UtcTime(
	int32& Year, int32& Month, int32& DayOfWeek, int32& Day, int32& Hour, int32& Min, int32& Sec, int32& MSec)
{
	FCalendarTime(&gmtime_r).Store(Year, Month, DayOfWeek, Day, Hour, Min, Sec, MSec);
}
