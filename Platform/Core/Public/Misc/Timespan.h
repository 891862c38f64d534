#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

class FString;

namespace ETimespan
{
inline constexpr int64 TicksPerMicrosecond = 10;
inline constexpr int64 TicksPerMillisecond = 10000;
inline constexpr int64 TicksPerSecond = 10000000;
inline constexpr int64 TicksPerMinute = 600000000;
inline constexpr int64 TicksPerHour = 36000000000;
inline constexpr int64 TicksPerDay = 864000000000;
inline constexpr int64 NanosecondsPerTick = 100;
}

/** A length of time in ticks of 100 nanoseconds, which may be negative. */
struct CORE_API FTimespan
{
	constexpr FTimespan() = default;

	constexpr explicit FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	constexpr FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
		: FTimespan(0, Hours, Minutes, Seconds)
	{
	}

	constexpr FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano = 0)
		: Ticks(Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute +
			  Seconds * ETimespan::TicksPerSecond + FractionNano / ETimespan::NanosecondsPerTick)
	{
	}

	/** From a number of units; what the range of about 29,000 years cannot hold becomes its end. */
	static FTimespan FromDays(double Days);
	static FTimespan FromHours(double Hours);
	static FTimespan FromMinutes(double Minutes);
	static FTimespan FromSeconds(double Seconds);
	static FTimespan FromMilliseconds(double Milliseconds);

	static constexpr FTimespan Zero() { return FTimespan(0); }
	static constexpr FTimespan MinValue() { return FTimespan(MIN_int64); }
	static constexpr FTimespan MaxValue() { return FTimespan(MAX_int64); }

	constexpr FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	constexpr FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FTimespan operator-() const { return FTimespan(-Ticks); }
	FTimespan operator*(double Scalar) const;
	FTimespan& operator+=(const FTimespan& Other) { return *this = *this + Other; }
	FTimespan& operator-=(const FTimespan& Other) { return *this = *this - Other; }

	constexpr bool operator==(const FTimespan& Other) const { return Ticks == Other.Ticks; }
	constexpr bool operator!=(const FTimespan& Other) const { return Ticks != Other.Ticks; }
	constexpr bool operator<(const FTimespan& Other) const { return Ticks < Other.Ticks; }
	constexpr bool operator<=(const FTimespan& Other) const { return Ticks <= Other.Ticks; }
	constexpr bool operator>(const FTimespan& Other) const { return Ticks > Other.Ticks; }
	constexpr bool operator>=(const FTimespan& Other) const { return Ticks >= Other.Ticks; }

	constexpr int64 GetTicks() const { return Ticks; }

	// The parts of the clock's reading.
	constexpr int32 GetDays() const { return int32(Ticks / ETimespan::TicksPerDay); }
	constexpr int32 GetHours() const { return int32(Ticks / ETimespan::TicksPerHour % 24); }
	constexpr int32 GetMinutes() const { return int32(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSeconds() const { return int32(Ticks / ETimespan::TicksPerSecond % 60); }
	constexpr int32 GetFractionMilli() const { return int32(Ticks % ETimespan::TicksPerSecond / ETimespan::TicksPerMillisecond); }

	// The whole length in one unit.
	constexpr double GetTotalDays() const { return double(Ticks) / ETimespan::TicksPerDay; }
	constexpr double GetTotalHours() const { return double(Ticks) / ETimespan::TicksPerHour; }
	constexpr double GetTotalMinutes() const { return double(Ticks) / ETimespan::TicksPerMinute; }
	constexpr double GetTotalSeconds() const { return double(Ticks) / ETimespan::TicksPerSecond; }
	constexpr double GetTotalMilliseconds() const { return double(Ticks) / ETimespan::TicksPerMillisecond; }

	constexpr bool IsZero() const { return Ticks == 0; }

	/** "+hh:mm:ss.fff", with "d." before the hours if there are whole days. */
	FString ToString() const;

	friend uint32 GetTypeHash(const FTimespan& Timespan) { return ::GetTypeHash(Timespan.Ticks); }

private:
	int64 Ticks = 0;
};
