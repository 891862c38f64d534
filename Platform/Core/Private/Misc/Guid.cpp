#include "Misc/Guid.h"

#include "Containers/UnrealString.h"
#include "Misc/Char.h"
#include "Misc/Parse.h"

#include <random>

namespace
{
/**
 * How a form is written: "H" is a digit in upper case, "h" one in lower case, everything else stands for itself. The digits
 * are those of A, B, C, D in this order.
 */
const TCHAR* GetPattern(EGuidFormats Format)
{
	switch (Format)
	{
		case EGuidFormats::DigitsLower:
			return TEXT("hhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhh");
		case EGuidFormats::DigitsWithHyphens:
			return TEXT("HHHHHHHH-HHHH-HHHH-HHHH-HHHHHHHHHHHH");
		case EGuidFormats::DigitsWithHyphensLower:
			return TEXT("hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh");
		case EGuidFormats::DigitsWithHyphensInBraces:
			return TEXT("{HHHHHHHH-HHHH-HHHH-HHHH-HHHHHHHHHHHH}");
		case EGuidFormats::DigitsWithHyphensInParentheses:
			return TEXT("(HHHHHHHH-HHHH-HHHH-HHHH-HHHHHHHHHHHH)");
		case EGuidFormats::HexValuesInBraces:
			return TEXT("{0xHHHHHHHH,0xHHHH,0xHHHH,{0xHH,0xHH,0xHH,0xHH,0xHH,0xHH,0xHH,0xHH}}");
		case EGuidFormats::UniqueObjectGuid:
			return TEXT("HHHHHHHH-HHHHHHHH-HHHHHHHH-HHHHHHHH");
		default:
			return TEXT("HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH");
	}
}

uint32 DigitAt(const FGuid& Guid, int32 Index)
{
	const uint32 Words[] = {Guid.A, Guid.B, Guid.C, Guid.D};
	return Words[Index / 8] >> (28 - Index % 8 * 4) & 0xF;
}
}

FGuid FGuid::NewGuid()
{
	std::random_device Random;
	FGuid Guid(Random(), Random(), Random(), Random());
	Guid.B = (Guid.B & 0xFFFF0FFF) | 0x00004000;
	Guid.C = (Guid.C & 0x3FFFFFFF) | 0x80000000;
	return Guid;
}

FString FGuid::ToString(EGuidFormats Format) const
{
	FString Result;
	int32 Index = 0;
	for (const TCHAR* Pattern = GetPattern(Format); *Pattern != TEXT('\0'); ++Pattern)
	{
		if (*Pattern == TEXT('H'))
		{
			Result += TEXT("0123456789ABCDEF")[DigitAt(*this, Index++)];
		}
		else if (*Pattern == TEXT('h'))
		{
			Result += TEXT("0123456789abcdef")[DigitAt(*this, Index++)];
		}
		else
		{
			Result += *Pattern;
		}
	}
	return Result;
}

bool FGuid::ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	uint32 Words[4] = {};
	int32 Index = 0;
	const TCHAR* Text = *GuidString;
	for (const TCHAR* Pattern = GetPattern(Format); *Pattern != TEXT('\0'); ++Pattern, ++Text)
	{
		if (*Pattern == TEXT('H') || *Pattern == TEXT('h'))
		{
			if (!FChar::IsHexDigit(*Text))
			{
				return false;
			}
			Words[Index / 8] = Words[Index / 8] << 4 | uint32(FParse::HexDigit(*Text));
			++Index;
		}
		else if (FChar::ToLower(*Text) != *Pattern)
		{
			return false;
		}
	}

	if (*Text != TEXT('\0'))
	{
		return false;
	}
	OutGuid = FGuid(Words[0], Words[1], Words[2], Words[3]);
	return true;
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	static constexpr EGuidFormats Formats[] = {EGuidFormats::Digits, EGuidFormats::DigitsWithHyphens,
		EGuidFormats::DigitsWithHyphensInBraces, EGuidFormats::DigitsWithHyphensInParentheses, EGuidFormats::HexValuesInBraces,
		EGuidFormats::UniqueObjectGuid};
	for (const EGuidFormats Format : Formats)
	{
		if (ParseExact(GuidString, Format, OutGuid))
		{
			return true;
		}
	}
	return false;
}
