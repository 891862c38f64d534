#include "Kismet/KismetMathLibrary.h"
#include "SaturatedTicks.h"
#include "UObject/Stack.h"

namespace
{
void Refuse(const FString& Message)
{
	FFrame::KismetExecutionMessage(*Message, ELogVerbosity::Error);
}

/** The time at a number of ticks, unless the calendar ends before. */
FDateTime DateTimeAt(int64 Ticks)
{
	if (Ticks < FDateTime::MinValue().GetTicks() || Ticks > FDateTime::MaxValue().GetTicks())
	{
		Refuse(TEXT("expected a date in the years 1 to 9999, found one beyond them"));
		return FDateTime(0);
	}
	return FDateTime(Ticks);
}
}

FDateTime UKismetMathLibrary::MakeDateTime(
	int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	if (!FDateTime::Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		Refuse(FString::Printf(TEXT("expected a date in the years 1 to 9999 and a time of day, found %d-%d-%d %d:%d:%d.%d"), Year,
			Month, Day, Hour, Minute, Second, Millisecond));
		return FDateTime(0);
	}
	return FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond);
}

void UKismetMathLibrary::BreakDateTime(
	FDateTime InDateTime, int32& Year, int32& Month, int32& Day, int32& Hour, int32& Minute, int32& Second, int32& Millisecond)
{
	InDateTime.GetDate(Year, Month, Day);
	Hour = InDateTime.GetHour();
	Minute = InDateTime.GetMinute();
	Second = InDateTime.GetSecond();
	Millisecond = InDateTime.GetMillisecond();
}

FDateTime UKismetMathLibrary::Add_DateTimeTimespan(FDateTime A, FTimespan B)
{
	return DateTimeAt(SaturatedTicks::Add(A.GetTicks(), B.GetTicks()));
}

FDateTime UKismetMathLibrary::Subtract_DateTimeTimespan(FDateTime A, FTimespan B)
{
	return DateTimeAt(SaturatedTicks::Subtract(A.GetTicks(), B.GetTicks()));
}

FTimespan UKismetMathLibrary::Subtract_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A - B;
}

bool UKismetMathLibrary::EqualEqual_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqual_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A != B;
}

bool UKismetMathLibrary::Greater_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A > B;
}

bool UKismetMathLibrary::GreaterEqual_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A >= B;
}

bool UKismetMathLibrary::Less_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A < B;
}

bool UKismetMathLibrary::LessEqual_DateTimeDateTime(FDateTime A, FDateTime B)
{
	return A <= B;
}

FDateTime UKismetMathLibrary::GetDate(FDateTime A)
{
	return A.GetDate();
}

FTimespan UKismetMathLibrary::GetTimeOfDay(FDateTime A)
{
	return A.GetTimeOfDay();
}

int32 UKismetMathLibrary::GetYear(FDateTime A)
{
	return A.GetYear();
}

int32 UKismetMathLibrary::GetMonth(FDateTime A)
{
	return A.GetMonth();
}

int32 UKismetMathLibrary::GetDay(FDateTime A)
{
	return A.GetDay();
}

int32 UKismetMathLibrary::GetDayOfYear(FDateTime A)
{
	return A.GetDayOfYear();
}

int32 UKismetMathLibrary::GetHour(FDateTime A)
{
	return A.GetHour();
}

int32 UKismetMathLibrary::GetHour12(FDateTime A)
{
	return A.GetHour12();
}

int32 UKismetMathLibrary::GetMinute(FDateTime A)
{
	return A.GetMinute();
}

int32 UKismetMathLibrary::GetSecond(FDateTime A)
{
	return A.GetSecond();
}

int32 UKismetMathLibrary::GetMillisecond(FDateTime A)
{
	return A.GetMillisecond();
}

bool UKismetMathLibrary::IsMorning(FDateTime A)
{
	return A.IsMorning();
}

bool UKismetMathLibrary::IsAfternoon(FDateTime A)
{
	return A.IsAfternoon();
}

bool UKismetMathLibrary::IsLeapYear(int32 Year)
{
	return FDateTime::IsLeapYear(Year);
}

int32 UKismetMathLibrary::DaysInMonth(int32 Year, int32 Month)
{
	if (Month < 1 || Month > 12)
	{
		Refuse(FString::Printf(TEXT("expected a month from 1 to 12, found %d"), Month));
		return 0;
	}
	return FDateTime::DaysInMonth(Year, Month);
}

int32 UKismetMathLibrary::DaysInYear(int32 Year)
{
	return FDateTime::DaysInYear(Year);
}

FDateTime UKismetMathLibrary::DateTimeMinValue()
{
	return FDateTime::MinValue();
}

FDateTime UKismetMathLibrary::DateTimeMaxValue()
{
	return FDateTime::MaxValue();
}

FDateTime UKismetMathLibrary::Now()
{
	return FDateTime::Now();
}

FDateTime UKismetMathLibrary::Today()
{
	return FDateTime::Today();
}

FDateTime UKismetMathLibrary::UtcNow()
{
	return FDateTime::UtcNow();
}
