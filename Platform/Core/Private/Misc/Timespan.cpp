#include "Misc/Timespan.h"

#include "Containers/UnrealString.h"
#include "Math/NumericNarrowing.h"

#include <cmath>

namespace
{
FTimespan FromUnits(double Number, int64 TicksPerUnit)
{
	return FTimespan(NarrowNumber<int64>(std::round(Number * double(TicksPerUnit))));
}
}

FTimespan FTimespan::FromDays(double Days)
{
	return FromUnits(Days, ETimespan::TicksPerDay);
}

FTimespan FTimespan::FromHours(double Hours)
{
	return FromUnits(Hours, ETimespan::TicksPerHour);
}

FTimespan FTimespan::FromMinutes(double Minutes)
{
	return FromUnits(Minutes, ETimespan::TicksPerMinute);
}

FTimespan FTimespan::FromSeconds(double Seconds)
{
	return FromUnits(Seconds, ETimespan::TicksPerSecond);
}

FTimespan FTimespan::FromMilliseconds(double Milliseconds)
{
	return FromUnits(Milliseconds, ETimespan::TicksPerMillisecond);
}

FTimespan FTimespan::operator*(double Scalar) const
{
	return FTimespan(NarrowNumber<int64>(double(Ticks) * Scalar));
}

FString FTimespan::ToString() const
{
	const TCHAR* Sign = Ticks < 0 ? TEXT("-") : TEXT("+");
	const auto Part = [](int32 Value)
	{
		return Value < 0 ? -Value : Value;
	};
	const FString Clock = FString::Printf(
		TEXT("%02d:%02d:%02d.%03d"), Part(GetHours()), Part(GetMinutes()), Part(GetSeconds()), Part(GetFractionMilli()));
	return GetDays() == 0 ? Sign + Clock : FString::Printf(TEXT("%s%d.%s"), Sign, Part(GetDays()), *Clock);
}
