#pragma once

#include "CoreTypes.h"

/** Clocks. */
struct CORE_API FPlatformTime
{
	/** Seconds of a clock that never goes back; only differences have a meaning. */
	static double Seconds();

	/** Nanoseconds of the same clock. */
	static uint64 Cycles64();

	static double GetSecondsPerCycle64() { return 1e-9; }

	/** Local date and time; DayOfWeek is 0 on Sundays. */
	static void SystemTime(
		int32& Year, int32& Month, int32& DayOfWeek, int32& Day, int32& Hour, int32& Min, int32& Sec, int32& MSec);

	/** Date and time in UTC. */
	static void UtcTime(
		int32& Year, int32& Month, int32& DayOfWeek, int32& Day, int32& Hour, int32& Min, int32& Sec, int32& MSec);
};
