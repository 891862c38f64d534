#pragma once

#include "CoreTypes.h"
#include "Math/UnrealMathUtility.h"
#include "Math/UnsetNumbers.h"
#include "Templates/TypeHash.h"

class FString;
struct FColor;

/**
 * A colour in linear light, channels from 0 to 1 (more is allowed, for what shines). Half the light, 0.5, shows as about
 * 188 of 255. The sRGB curve is that of IEC 61966-2-1.
 */
struct CORE_API FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	/** Leaves the channels unset. */
	FLinearColor() { UE::Math::LeaveUnset(R, G, B, A); }

	constexpr explicit FLinearColor(EForceInit)
		: FLinearColor(0.0f, 0.0f, 0.0f, 0.0f)
	{
	}

	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}

	/** Decodes a colour that is stored in sRGB. */
	FLinearColor(const FColor& Color);

	constexpr FLinearColor operator+(const FLinearColor& C) const { return FLinearColor(R + C.R, G + C.G, B + C.B, A + C.A); }
	constexpr FLinearColor operator-(const FLinearColor& C) const { return FLinearColor(R - C.R, G - C.G, B - C.B, A - C.A); }
	constexpr FLinearColor operator*(const FLinearColor& C) const { return FLinearColor(R * C.R, G * C.G, B * C.B, A * C.A); }
	constexpr FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	constexpr FLinearColor operator/(float Scalar) const { return FLinearColor(R / Scalar, G / Scalar, B / Scalar, A / Scalar); }
	friend constexpr FLinearColor operator*(float Scalar, const FLinearColor& Color) { return Color * Scalar; }

	FLinearColor& operator+=(const FLinearColor& C) { return *this = *this + C; }
	FLinearColor& operator*=(const FLinearColor& C) { return *this = *this * C; }
	FLinearColor& operator*=(float Scalar) { return *this = *this * Scalar; }

	constexpr bool operator==(const FLinearColor& C) const { return R == C.R && G == C.G && B == C.B && A == C.A; }
	constexpr bool operator!=(const FLinearColor& C) const { return !(*this == C); }
	bool Equals(const FLinearColor& C, float Tolerance = KINDA_SMALL_NUMBER) const;

	/** The colour in eight bits per channel, clamped; encoded in sRGB if asked for. */
	FColor ToFColor(bool bSRGB) const;

	/** As hue in degrees (0 to 360), saturation and value, in R, G and B; alpha is kept. */
	FLinearColor LinearRGBToHSV() const;
	/** Reads R, G and B as hue in degrees, saturation and value; alpha is kept. */
	FLinearColor HSVToLinearRGB() const;

	/** The perceived brightness, 0 to 1. */
	float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }

	/** Moves the colour towards grey of the same luminance; 1 is grey. */
	FLinearColor Desaturate(float Desaturation) const;

	FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }
	FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const;

	/** "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" */
	FString ToString() const;

	friend uint32 GetTypeHash(const FLinearColor& Color)
	{
		return HashCombine(HashCombine(::GetTypeHash(Color.R), ::GetTypeHash(Color.G)),
			HashCombine(::GetTypeHash(Color.B), ::GetTypeHash(Color.A)));
	}
};

/** A colour of eight bits per channel, in memory B, G, R, A. */
struct CORE_API FColor
{
	union
	{
		struct
		{
			uint8 B, G, R, A;
		};
		uint32 Bits;
	};

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;
	static const FColor Cyan;
	static const FColor Magenta;
	static const FColor Orange;
	static const FColor Purple;
	static const FColor Turquoise;
	static const FColor Silver;
	static const FColor Emerald;

	/** Leaves the channels unset. */
	FColor() { UE::Math::LeaveUnset(Bits); }

	constexpr explicit FColor(EForceInit)
		: FColor(0, 0, 0, 0)
	{
	}

	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}

	/** From 0xAARRGGBB. */
	constexpr explicit FColor(uint32 InColor)
		: FColor(uint8(InColor >> 16), uint8(InColor >> 8), uint8(InColor), uint8(InColor >> 24))
	{
	}

	constexpr uint32 ToPackedARGB() const { return uint32(A) << 24 | uint32(R) << 16 | uint32(G) << 8 | uint32(B); }
	constexpr uint32 ToPackedRGBA() const { return uint32(R) << 24 | uint32(G) << 16 | uint32(B) << 8 | uint32(A); }

	constexpr bool operator==(const FColor& C) const { return ToPackedARGB() == C.ToPackedARGB(); }
	constexpr bool operator!=(const FColor& C) const { return !(*this == C); }

	/** The channel values divided by 255, without decoding. */
	FLinearColor ReinterpretAsLinear() const { return FLinearColor(R / 255.0f, G / 255.0f, B / 255.0f, A / 255.0f); }

	/**
	 * Reads "RGB", "RRGGBB" or "RRGGBBAA" in hexadecimal digits, with or without "#". Missing alpha is 255; a text of another
	 * length gives transparent black.
	 */
	static FColor FromHex(const FString& HexString);

	/** "RRGGBBAA" */
	FString ToHex() const;

	/** "(R=255,G=255,B=255,A=255)" */
	FString ToString() const;

	friend uint32 GetTypeHash(const FColor& Color) { return Color.ToPackedARGB(); }
};
