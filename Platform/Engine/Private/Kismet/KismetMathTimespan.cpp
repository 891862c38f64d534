#include "Kismet/KismetMathLibrary.h"
#include "KismetMath.h"
#include "Math/NumericNarrowing.h"
#include "SaturatedTicks.h"

FTimespan UKismetMathLibrary::MakeTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 Milliseconds)
{
	const int64 OfDays = SaturatedTicks::Multiply(Days, ETimespan::TicksPerDay);
	const int64 OfHours = SaturatedTicks::Multiply(Hours, ETimespan::TicksPerHour);
	// All of these fit together.
	const int64 OfRest =
		Minutes * ETimespan::TicksPerMinute + Seconds * ETimespan::TicksPerSecond + Milliseconds * ETimespan::TicksPerMillisecond;
	return FTimespan(SaturatedTicks::Add(SaturatedTicks::Add(OfDays, OfHours), OfRest));
}

void UKismetMathLibrary::BreakTimespan(
	FTimespan InTimespan, int32& Days, int32& Hours, int32& Minutes, int32& Seconds, int32& Milliseconds)
{
	Days = InTimespan.GetDays();
	Hours = InTimespan.GetHours();
	Minutes = InTimespan.GetMinutes();
	Seconds = InTimespan.GetSeconds();
	Milliseconds = InTimespan.GetFractionMilli();
}

FTimespan UKismetMathLibrary::Add_TimespanTimespan(FTimespan A, FTimespan B)
{
	return FTimespan(SaturatedTicks::Add(A.GetTicks(), B.GetTicks()));
}

FTimespan UKismetMathLibrary::Subtract_TimespanTimespan(FTimespan A, FTimespan B)
{
	return FTimespan(SaturatedTicks::Subtract(A.GetTicks(), B.GetTicks()));
}

FTimespan UKismetMathLibrary::Multiply_TimespanFloat(FTimespan A, double Scalar)
{
	return A * Scalar;
}

FTimespan UKismetMathLibrary::Divide_TimespanFloat(FTimespan A, double Scalar)
{
	if (Scalar == 0.0)
	{
		KismetMath::WarnOfDivision(TEXT("Divide_TimespanFloat"));
		return FTimespan::Zero();
	}
	return FTimespan(NarrowNumber<int64>(double(A.GetTicks()) / Scalar));
}

bool UKismetMathLibrary::EqualEqual_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqual_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A != B;
}

bool UKismetMathLibrary::Greater_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A > B;
}

bool UKismetMathLibrary::GreaterEqual_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A >= B;
}

bool UKismetMathLibrary::Less_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A < B;
}

bool UKismetMathLibrary::LessEqual_TimespanTimespan(FTimespan A, FTimespan B)
{
	return A <= B;
}

int32 UKismetMathLibrary::GetDays(FTimespan A)
{
	return A.GetDays();
}

int32 UKismetMathLibrary::GetHours(FTimespan A)
{
	return A.GetHours();
}

int32 UKismetMathLibrary::GetMinutes(FTimespan A)
{
	return A.GetMinutes();
}

int32 UKismetMathLibrary::GetSeconds(FTimespan A)
{
	return A.GetSeconds();
}

int32 UKismetMathLibrary::GetMilliseconds(FTimespan A)
{
	return A.GetFractionMilli();
}

FTimespan UKismetMathLibrary::GetDuration(FTimespan A)
{
	return A < FTimespan::Zero() ? FTimespan(SaturatedTicks::Subtract(0, A.GetTicks())) : A;
}

double UKismetMathLibrary::GetTotalDays(FTimespan A)
{
	return A.GetTotalDays();
}

double UKismetMathLibrary::GetTotalHours(FTimespan A)
{
	return A.GetTotalHours();
}

double UKismetMathLibrary::GetTotalMinutes(FTimespan A)
{
	return A.GetTotalMinutes();
}

double UKismetMathLibrary::GetTotalSeconds(FTimespan A)
{
	return A.GetTotalSeconds();
}

double UKismetMathLibrary::GetTotalMilliseconds(FTimespan A)
{
	return A.GetTotalMilliseconds();
}

FTimespan UKismetMathLibrary::FromDays(double Days)
{
	return FTimespan::FromDays(Days);
}

FTimespan UKismetMathLibrary::FromHours(double Hours)
{
	return FTimespan::FromHours(Hours);
}

FTimespan UKismetMathLibrary::FromMinutes(double Minutes)
{
	return FTimespan::FromMinutes(Minutes);
}

FTimespan UKismetMathLibrary::FromSeconds(double Seconds)
{
	return FTimespan::FromSeconds(Seconds);
}

FTimespan UKismetMathLibrary::FromMilliseconds(double Milliseconds)
{
	return FTimespan::FromMilliseconds(Milliseconds);
}

double UKismetMathLibrary::TimespanRatio(FTimespan A, FTimespan B)
{
	return KismetMath::Divide(double(A.GetTicks()), double(B.GetTicks()), TEXT("TimespanRatio"));
}

FTimespan UKismetMathLibrary::TimespanMinValue()
{
	return FTimespan::MinValue();
}

FTimespan UKismetMathLibrary::TimespanMaxValue()
{
	return FTimespan::MaxValue();
}

FTimespan UKismetMathLibrary::TimespanZeroValue()
{
	return FTimespan::Zero();
}
