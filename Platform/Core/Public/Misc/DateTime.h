#pragma once

#include "CoreTypes.h"
#include "Misc/Timespan.h"
#include "Templates/TypeHash.h"

class FString;

enum class EDayOfWeek
{
	Monday = 0,
	Tuesday,
	Wednesday,
	Thursday,
	Friday,
	Saturday,
	Sunday
};

enum class EMonthOfYear
{
	January = 1,
	February,
	March,
	April,
	May,
	June,
	July,
	August,
	September,
	October,
	November,
	December
};

/**
 * A date and time of day of the Gregorian calendar, in ticks of 100 nanoseconds since midnight of January 1st, 0001. It
 * does not know its time zone.
 */
struct CORE_API FDateTime
{
	/** January 1st, 0001. */
	constexpr FDateTime() = default;

	constexpr explicit FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	/** A date that the calendar does not have is a programming error; see Validate. */
	FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	/** The local time. */
	static FDateTime Now();
	static FDateTime UtcNow();
	/** Today's date by local time, at midnight. */
	static FDateTime Today();

	static FDateTime FromUnixTimestamp(int64 Seconds);
	/** Whole seconds since January 1st, 1970. */
	int64 ToUnixTimestamp() const;

	static constexpr FDateTime MinValue() { return FDateTime(0); }
	/** The last tick of the year 9999. */
	static constexpr FDateTime MaxValue() { return FDateTime(3652059 * ETimespan::TicksPerDay - 1); }

	static bool IsLeapYear(int32 Year);
	static int32 DaysInMonth(int32 Year, int32 Month);
	static int32 DaysInYear(int32 Year);

	/** Whether the calendar has this date, in the years 1 to 9999, and the clock this time. */
	static bool Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond);

	constexpr FDateTime operator+(const FTimespan& Timespan) const { return FDateTime(Ticks + Timespan.GetTicks()); }
	constexpr FDateTime operator-(const FTimespan& Timespan) const { return FDateTime(Ticks - Timespan.GetTicks()); }
	constexpr FTimespan operator-(const FDateTime& Other) const { return FTimespan(Ticks - Other.Ticks); }
	FDateTime& operator+=(const FTimespan& Timespan) { return *this = *this + Timespan; }
	FDateTime& operator-=(const FTimespan& Timespan) { return *this = *this - Timespan; }

	constexpr bool operator==(const FDateTime& Other) const { return Ticks == Other.Ticks; }
	constexpr bool operator!=(const FDateTime& Other) const { return Ticks != Other.Ticks; }
	constexpr bool operator<(const FDateTime& Other) const { return Ticks < Other.Ticks; }
	constexpr bool operator<=(const FDateTime& Other) const { return Ticks <= Other.Ticks; }
	constexpr bool operator>(const FDateTime& Other) const { return Ticks > Other.Ticks; }
	constexpr bool operator>=(const FDateTime& Other) const { return Ticks >= Other.Ticks; }

	constexpr int64 GetTicks() const { return Ticks; }
	constexpr FDateTime GetDate() const { return FDateTime(Ticks - Ticks % ETimespan::TicksPerDay); }
	constexpr FTimespan GetTimeOfDay() const { return FTimespan(Ticks % ETimespan::TicksPerDay); }

	void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;
	int32 GetYear() const;
	/** 1 to 12. */
	int32 GetMonth() const;
	EMonthOfYear GetMonthOfYear() const { return EMonthOfYear(GetMonth()); }
	/** 1 to 31. */
	int32 GetDay() const;
	/** 1 to 366. */
	int32 GetDayOfYear() const;
	constexpr EDayOfWeek GetDayOfWeek() const { return EDayOfWeek(Ticks / ETimespan::TicksPerDay % 7); }
	constexpr int32 GetHour() const { return int32(Ticks / ETimespan::TicksPerHour % 24); }
	/** On a clock of twelve hours: 12, 1 to 11. */
	constexpr int32 GetHour12() const { return GetHour() % 12 == 0 ? 12 : GetHour() % 12; }
	constexpr bool IsMorning() const { return GetHour() < 12; }
	constexpr bool IsAfternoon() const { return !IsMorning(); }
	constexpr int32 GetMinute() const { return int32(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSecond() const { return int32(Ticks / ETimespan::TicksPerSecond % 60); }
	constexpr int32 GetMillisecond() const { return int32(Ticks / ETimespan::TicksPerMillisecond % 1000); }

	/** "yyyy.mm.dd-hh.mm.ss" */
	FString ToString() const;

	/**
	 * In a format of plain text and these codes: %Y year, %y its last two digits, %m month, %d day, %D day of the year, %H
	 * hour, %h hour of twelve, %M minute, %S second, %s millisecond, %a "am" or "pm", %A "AM" or "PM".
	 * Any other character behind % stands for itself.
	 */
	FString ToString(const TCHAR* Format) const;

	/** "yyyy-mm-ddThh:mm:ss.fffZ" */
	FString ToIso8601() const;

	friend uint32 GetTypeHash(const FDateTime& DateTime) { return ::GetTypeHash(DateTime.Ticks); }

private:
	int64 Ticks = 0;
};
