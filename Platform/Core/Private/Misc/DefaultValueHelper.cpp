#include "Misc/DefaultValueHelper.h"

namespace
{
/** Reads an optional sign and digits, up to the closing zero; false for anything else or outside Min to Max. */
bool ParseIntegerIn(const FString& Source, int64 Min, int64 Max, int64& OutValue)
{
	const FString Text = Source.TrimStartAndEnd();
	const int32 FirstDigit = Text.StartsWith(TEXT("-")) || Text.StartsWith(TEXT("+")) ? 1 : 0;
	if (FirstDigit == Text.Len())
	{
		return false;
	}
	const bool bNegative = FirstDigit && Text[0] == u'-';
	int64 Value = 0;
	for (int32 Index = FirstDigit; Index < Text.Len(); ++Index)
	{
		const int64 Digit = FChar::ConvertCharDigitToInt(Text[Index]);
		if (!FChar::IsDigit(Text[Index]) || __builtin_mul_overflow(Value, 10, &Value) ||
			__builtin_add_overflow(Value, bNegative ? -Digit : Digit, &Value))
		{
			return false;
		}
	}
	if (Value < Min || Value > Max)
	{
		return false;
	}
	OutValue = Value;
	return true;
}

int32 SkipDigits(const FString& Text, int32 Index)
{
	while (Index < Text.Len() && FChar::IsDigit(Text[Index]))
	{
		++Index;
	}
	return Index;
}

bool IsOneOf(const FString& Text, int32 Index, TCHAR First, TCHAR Second)
{
	return Index < Text.Len() && (Text[Index] == First || Text[Index] == Second);
}

/** [sign] digits [. digits] [e [sign] digits] [f], with a digit on one side of the dot at least. */
bool IsFloat(const FString& Text)
{
	const int32 Start = IsOneOf(Text, 0, u'-', u'+') ? 1 : 0;
	const int32 Dot = SkipDigits(Text, Start);
	int32 NumDigits = Dot - Start;
	int32 Index = Dot;
	if (IsOneOf(Text, Dot, u'.', u'.'))
	{
		Index = SkipDigits(Text, Dot + 1);
		NumDigits += Index - Dot - 1;
	}
	if (NumDigits == 0)
	{
		return false;
	}
	if (IsOneOf(Text, Index, u'e', u'E'))
	{
		const int32 Exponent = Index + (IsOneOf(Text, Index + 1, u'-', u'+') ? 2 : 1);
		Index = SkipDigits(Text, Exponent);
		if (Index == Exponent)
		{
			return false;
		}
	}
	return Index + (IsOneOf(Text, Index, u'f', u'F') ? 1 : 0) == Text.Len();
}
}

bool FDefaultValueHelper::ParseInt(const FString& Source, int32& OutValue)
{
	int64 Value;
	if (!ParseIntegerIn(Source, MIN_int32, MAX_int32, Value))
	{
		return false;
	}
	OutValue = int32(Value);
	return true;
}

bool FDefaultValueHelper::ParseInt64(const FString& Source, int64& OutValue)
{
	return ParseIntegerIn(Source, MIN_int64, MAX_int64, OutValue);
}

bool FDefaultValueHelper::ParseFloat(const FString& Source, float& OutValue)
{
	double Value;
	if (!ParseDouble(Source, Value))
	{
		return false;
	}
	OutValue = float(Value);
	return true;
}

bool FDefaultValueHelper::ParseDouble(const FString& Source, double& OutValue)
{
	const FString Text = Source.TrimStartAndEnd();
	if (!IsFloat(Text))
	{
		return false;
	}
	OutValue = FCString::Atod(*Text);
	return true;
}
