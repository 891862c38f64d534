#include "Math/Color.h"

#include "Containers/UnrealString.h"
#include "Misc/Parse.h"

#include <array>
#include <cmath>

const FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
const FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
const FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);
const FLinearColor FLinearColor::Yellow(1.0f, 1.0f, 0.0f);

const FColor FColor::White(255, 255, 255);
const FColor FColor::Black(0, 0, 0);
const FColor FColor::Transparent(0, 0, 0, 0);
const FColor FColor::Red(255, 0, 0);
const FColor FColor::Green(0, 255, 0);
const FColor FColor::Blue(0, 0, 255);
const FColor FColor::Yellow(255, 255, 0);
const FColor FColor::Cyan(0, 255, 255);
const FColor FColor::Magenta(255, 0, 255);
const FColor FColor::Orange(243, 156, 18);
const FColor FColor::Purple(169, 7, 228);
const FColor FColor::Turquoise(26, 188, 156);
const FColor FColor::Silver(189, 195, 199);
const FColor FColor::Emerald(46, 204, 113);

namespace
{
double DecodeSRGB(double Encoded)
{
	return Encoded <= 0.04045 ? Encoded / 12.92 : std::pow((Encoded + 0.055) / 1.055, 2.4);
}

float EncodeSRGB(float Linear)
{
	return Linear <= 0.0031308f ? Linear * 12.92f : std::pow(Linear, 1.0f / 2.4f) * 1.055f - 0.055f;
}

/** What each encoded byte means in linear light. */
const std::array<float, 256>& GetLinearOfSRGB()
{
	static const std::array<float, 256> Table = []
	{
		std::array<float, 256> Values;
		for (int32 Byte = 0; Byte < 256; ++Byte)
		{
			Values[Byte] = float(DecodeSRGB(Byte / 255.0));
		}
		return Values;
	}();
	return Table;
}

/** The nearest byte. What is not a number is 0. */
uint8 QuantizeChannel(float Channel)
{
	return Channel > 0.0f ? uint8(FMath::Min(Channel, 1.0f) * 255.0f + 0.5f) : 0;
}

uint8 QuantizeSRGBChannel(float Channel)
{
	return Channel > 0.0f ? QuantizeChannel(EncodeSRGB(FMath::Min(Channel, 1.0f))) : 0;
}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(GetLinearOfSRGB()[Color.R])
	, G(GetLinearOfSRGB()[Color.G])
	, B(GetLinearOfSRGB()[Color.B])
	, A(Color.A / 255.0f)
{
}

bool FLinearColor::Equals(const FLinearColor& C, float Tolerance) const
{
	return FMath::Abs(R - C.R) < Tolerance && FMath::Abs(G - C.G) < Tolerance && FMath::Abs(B - C.B) < Tolerance &&
		FMath::Abs(A - C.A) < Tolerance;
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	if (bSRGB)
	{
		return FColor(QuantizeSRGBChannel(R), QuantizeSRGBChannel(G), QuantizeSRGBChannel(B), QuantizeChannel(A));
	}
	return FColor(QuantizeChannel(R), QuantizeChannel(G), QuantizeChannel(B), QuantizeChannel(A));
}

FLinearColor FLinearColor::LinearRGBToHSV() const
{
	const float Min = FMath::Min3(R, G, B);
	const float Max = FMath::Max3(R, G, B);
	const float Range = Max - Min;

	float Hue = 0.0f;
	if (Range > 0.0f)
	{
		if (Max == R)
		{
			Hue = FMath::Fmod((G - B) / Range * 60.0f + 360.0f, 360.0f);
		}
		else if (Max == G)
		{
			Hue = (B - R) / Range * 60.0f + 120.0f;
		}
		else
		{
			Hue = (R - G) / Range * 60.0f + 240.0f;
		}
	}
	return FLinearColor(Hue, Max == 0.0f ? 0.0f : Range / Max, Max, A);
}

FLinearColor FLinearColor::HSVToLinearRGB() const
{
	const float Saturation = G;
	const float Value = B;

	// Each channel is a trapezium over the circle of hues, a third of the circle apart.
	const auto ChannelAt = [this, Saturation, Value](float Offset)
	{
		const float Sector = FMath::Fmod(R / 60.0f + Offset, 6.0f);
		const float Positive = Sector < 0.0f ? Sector + 6.0f : Sector;
		return Value * (1.0f - Saturation * FMath::Clamp(FMath::Min(Positive, 4.0f - Positive), 0.0f, 1.0f));
	};
	return FLinearColor(ChannelAt(5.0f), ChannelAt(3.0f), ChannelAt(1.0f), A);
}

FLinearColor FLinearColor::Desaturate(float Desaturation) const
{
	const float Luminance = GetLuminance();
	return FLinearColor(FMath::Lerp(R, Luminance, Desaturation), FMath::Lerp(G, Luminance, Desaturation),
		FMath::Lerp(B, Luminance, Desaturation), A);
}

FLinearColor FLinearColor::GetClamped(float InMin, float InMax) const
{
	return FLinearColor(FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax), FMath::Clamp(B, InMin, InMax),
		FMath::Clamp(A, InMin, InMax));
}

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
}

FColor FColor::FromHex(const FString& HexString)
{
	const TCHAR* Digits = *HexString;
	if (*Digits == TEXT('#'))
	{
		++Digits;
	}

	const int32 NumDigits = HexString.Len() - int32(Digits - *HexString);
	const auto Digit = [Digits](int32 Index)
	{
		return uint8(FParse::HexDigit(Digits[Index]));
	};
	const auto Byte = [&Digit](int32 Index)
	{
		return uint8(Digit(Index) * 16 + Digit(Index + 1));
	};

	switch (NumDigits)
	{
		case 3:
			return FColor(Digit(0) * 17, Digit(1) * 17, Digit(2) * 17);
		case 6:
			return FColor(Byte(0), Byte(2), Byte(4));
		case 8:
			return FColor(Byte(0), Byte(2), Byte(4), Byte(6));
		default:
			return FColor(0, 0, 0, 0);
	}
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%i,G=%i,B=%i,A=%i)"), R, G, B, A);
}
