#include "Misc/DateTime.h"

#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"

#include <chrono>
#include <ctime>

namespace
{
constexpr int64 GUnixEpochInDays = 719162;

/** Days from January 1st, 0001 to March 1st, 0000, where the computation's years begin: leap days then end a year. */
constexpr int64 GMarchEpochInDays = -306;
constexpr int64 GDaysPerEra = 146097;

/** Days since January 1st, 0001; after Howard Hinnant, "chrono-Compatible Low-Level Date Algorithms". */
int64 DaysFromDate(int32 Year, int32 Month, int32 Day)
{
	const int64 MarchYear = Month <= 2 ? Year - 1 : Year;
	const int64 Era = MarchYear / 400;
	const int64 YearOfEra = MarchYear % 400;
	const int64 DayOfYear = (153 * (Month > 2 ? Month - 3 : Month + 9) + 2) / 5 + Day - 1;
	const int64 DayOfEra = YearOfEra * 365 + YearOfEra / 4 - YearOfEra / 100 + DayOfYear;
	return Era * GDaysPerEra + DayOfEra + GMarchEpochInDays;
}

int64 TicksSinceUnixEpoch()
{
	using FTicks = std::chrono::duration<int64, std::ratio<1, ETimespan::TicksPerSecond>>;
	return std::chrono::duration_cast<FTicks>(std::chrono::system_clock::now().time_since_epoch()).count();
}
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	check(Validate(Year, Month, Day, Hour, Minute, Second, Millisecond));
	Ticks = DaysFromDate(Year, Month, Day) * ETimespan::TicksPerDay + FTimespan(Hour, Minute, Second).GetTicks() +
		Millisecond * ETimespan::TicksPerMillisecond;
}

FDateTime FDateTime::UtcNow()
{
	return FDateTime(GUnixEpochInDays * ETimespan::TicksPerDay + TicksSinceUnixEpoch());
}

FDateTime FDateTime::Now()
{
	const FDateTime Utc = UtcNow();
	const time_t Seconds = time_t(Utc.ToUnixTimestamp());
	tm Local = {};
	localtime_r(&Seconds, &Local);
	return Utc + FTimespan::FromSeconds(double(Local.tm_gmtoff));
}

FDateTime FDateTime::Today()
{
	return Now().GetDate();
}

FDateTime FDateTime::FromUnixTimestamp(int64 Seconds)
{
	return FDateTime(GUnixEpochInDays * ETimespan::TicksPerDay + Seconds * ETimespan::TicksPerSecond);
}

int64 FDateTime::ToUnixTimestamp() const
{
	return (Ticks - GUnixEpochInDays * ETimespan::TicksPerDay) / ETimespan::TicksPerSecond;
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return Year % 4 == 0 && (Year % 100 != 0 || Year % 400 == 0);
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	check(Month >= 1 && Month <= 12);
	static constexpr int32 Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
	return Month == 2 && IsLeapYear(Year) ? 29 : Days[Month - 1];
}

int32 FDateTime::DaysInYear(int32 Year)
{
	return IsLeapYear(Year) ? 366 : 365;
}

bool FDateTime::Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	return Year >= 1 && Year <= 9999 && Month >= 1 && Month <= 12 && Day >= 1 && Day <= DaysInMonth(Year, Month) && Hour >= 0 &&
		Hour <= 23 && Minute >= 0 && Minute <= 59 && Second >= 0 && Second <= 59 && Millisecond >= 0 && Millisecond <= 999;
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	const int64 Days = Ticks / ETimespan::TicksPerDay - GMarchEpochInDays;
	const int64 Era = Days / GDaysPerEra;
	const int64 DayOfEra = Days % GDaysPerEra;
	const int64 YearOfEra = (DayOfEra - DayOfEra / 1460 + DayOfEra / 36524 - DayOfEra / 146096) / 365;
	const int64 DayOfYear = DayOfEra - (365 * YearOfEra + YearOfEra / 4 - YearOfEra / 100);
	const int64 MarchMonth = (5 * DayOfYear + 2) / 153;

	OutDay = int32(DayOfYear - (153 * MarchMonth + 2) / 5 + 1);
	OutMonth = int32(MarchMonth < 10 ? MarchMonth + 3 : MarchMonth - 9);
	OutYear = int32(YearOfEra + Era * 400 + (OutMonth <= 2 ? 1 : 0));
}

int32 FDateTime::GetYear() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Year;
}

int32 FDateTime::GetMonth() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Month;
}

int32 FDateTime::GetDay() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Day;
}

int32 FDateTime::GetDayOfYear() const
{
	return int32(Ticks / ETimespan::TicksPerDay - DaysFromDate(GetYear(), 1, 1)) + 1;
}

FString FDateTime::ToString() const
{
	return ToString(TEXT("%Y.%m.%d-%H.%M.%S"));
}

FString FDateTime::ToIso8601() const
{
	return ToString(TEXT("%Y-%m-%dT%H:%M:%S.%sZ"));
}

FString FDateTime::ToString(const TCHAR* Format) const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);

	FString Result;
	for (; *Format != TEXT('\0'); ++Format)
	{
		if (*Format != TEXT('%') || Format[1] == TEXT('\0'))
		{
			Result += *Format;
			continue;
		}

		switch (*++Format)
		{
			case TEXT('a'):
				Result += IsMorning() ? TEXT("am") : TEXT("pm");
				break;
			case TEXT('A'):
				Result += IsMorning() ? TEXT("AM") : TEXT("PM");
				break;
			case TEXT('d'):
				Result += FString::Printf(TEXT("%02i"), Day);
				break;
			case TEXT('D'):
				Result += FString::Printf(TEXT("%03i"), GetDayOfYear());
				break;
			case TEXT('m'):
				Result += FString::Printf(TEXT("%02i"), Month);
				break;
			case TEXT('y'):
				Result += FString::Printf(TEXT("%02i"), Year % 100);
				break;
			case TEXT('Y'):
				Result += FString::Printf(TEXT("%04i"), Year);
				break;
			case TEXT('h'):
				Result += FString::Printf(TEXT("%02i"), GetHour12());
				break;
			case TEXT('H'):
				Result += FString::Printf(TEXT("%02i"), GetHour());
				break;
			case TEXT('M'):
				Result += FString::Printf(TEXT("%02i"), GetMinute());
				break;
			case TEXT('S'):
				Result += FString::Printf(TEXT("%02i"), GetSecond());
				break;
			case TEXT('s'):
				Result += FString::Printf(TEXT("%03i"), GetMillisecond());
				break;
			default:
				Result += *Format;
				break;
		}
	}
	return Result;
}
