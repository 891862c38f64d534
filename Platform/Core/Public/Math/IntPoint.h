#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"
#include "Math/UnsetNumbers.h"
#include "Templates/TypeHash.h"

/** A point or size in whole units, pixels for instance. The default constructor leaves it unset. */
struct FIntPoint
{
	int32 X;
	int32 Y;

	static const FIntPoint ZeroValue;
	static const FIntPoint NoneValue;

	FIntPoint() { UE::Math::LeaveUnset(X, Y); }

	constexpr FIntPoint(int32 InX, int32 InY)
		: X(InX)
		, Y(InY)
	{
	}

	constexpr explicit FIntPoint(int32 InXY)
		: FIntPoint(InXY, InXY)
	{
	}

	constexpr explicit FIntPoint(EForceInit)
		: FIntPoint(0, 0)
	{
	}

	constexpr bool operator==(const FIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	constexpr bool operator!=(const FIntPoint& Other) const { return !(*this == Other); }

	constexpr FIntPoint operator+(const FIntPoint& Other) const { return FIntPoint(X + Other.X, Y + Other.Y); }
	constexpr FIntPoint operator-(const FIntPoint& Other) const { return FIntPoint(X - Other.X, Y - Other.Y); }
	constexpr FIntPoint operator*(int32 Scale) const { return FIntPoint(X * Scale, Y * Scale); }
	constexpr FIntPoint operator/(int32 Divisor) const { return FIntPoint(X / Divisor, Y / Divisor); }

	FIntPoint& operator+=(const FIntPoint& Other) { return *this = *this + Other; }
	FIntPoint& operator-=(const FIntPoint& Other) { return *this = *this - Other; }

	constexpr FIntPoint ComponentMin(const FIntPoint& Other) const
	{
		return FIntPoint(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y));
	}
	constexpr FIntPoint ComponentMax(const FIntPoint& Other) const
	{
		return FIntPoint(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y));
	}

	constexpr int32 GetMax() const { return FMath::Max(X, Y); }
	constexpr int32 GetMin() const { return FMath::Min(X, Y); }

	/** "X=%d Y=%d" */
	FString ToString() const { return FString::Printf(TEXT("X=%d Y=%d"), X, Y); }

	friend uint32 GetTypeHash(const FIntPoint& Point) { return HashCombine(GetTypeHash(Point.X), GetTypeHash(Point.Y)); }
};

inline constexpr FIntPoint FIntPoint::ZeroValue(0, 0);
inline constexpr FIntPoint FIntPoint::NoneValue(INDEX_NONE, INDEX_NONE);
