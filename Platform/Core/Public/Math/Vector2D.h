#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/IntPoint.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/UnsetNumbers.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{
/** A vector, point or size in two dimensions. The default constructor leaves it unset. */
template <typename T>
struct TVector2
{
	T X;
	T Y;

	static const TVector2 ZeroVector;
	static const TVector2 UnitVector;

	TVector2() { LeaveUnset(X, Y); }

	constexpr TVector2(T InX, T InY)
		: X(InX)
		, Y(InY)
	{
	}

	constexpr explicit TVector2(T InXY)
		: TVector2(InXY, InXY)
	{
	}

	constexpr explicit TVector2(EForceInit)
		: TVector2(T(0), T(0))
	{
	}

	constexpr TVector2(FIntPoint Point)
		: TVector2(T(Point.X), T(Point.Y))
	{
	}

	template <typename U, typename = std::enable_if_t<!std::is_same_v<T, U>>>
	constexpr explicit TVector2(const TVector2<U>& Other)
		: TVector2(T(Other.X), T(Other.Y))
	{
	}

	constexpr TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
	constexpr TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
	constexpr TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
	constexpr TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
	constexpr TVector2 operator*(T Scale) const { return TVector2(X * Scale, Y * Scale); }
	constexpr TVector2 operator/(T Divisor) const { return TVector2(X / Divisor, Y / Divisor); }
	constexpr TVector2 operator+(T A) const { return TVector2(X + A, Y + A); }
	constexpr TVector2 operator-(T A) const { return TVector2(X - A, Y - A); }
	constexpr TVector2 operator-() const { return TVector2(-X, -Y); }
	friend constexpr TVector2 operator*(T Scale, const TVector2& V) { return V * Scale; }

	TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
	TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
	TVector2& operator*=(const TVector2& V) { return *this = *this * V; }
	TVector2& operator/=(const TVector2& V) { return *this = *this / V; }
	TVector2& operator*=(T Scale) { return *this = *this * Scale; }
	TVector2& operator/=(T Divisor) { return *this = *this / Divisor; }

	constexpr bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }
	constexpr bool operator!=(const TVector2& V) const { return !(*this == V); }

	/** The dot product. */
	constexpr T operator|(const TVector2& V) const { return X * V.X + Y * V.Y; }
	/** The cross product. */
	constexpr T operator^(const TVector2& V) const { return X * V.Y - Y * V.X; }

	T& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? X : Y;
	}

	T operator[](int32 Index) const
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? X : Y;
	}

	bool Equals(const TVector2& V, T Tolerance = T(KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
	}

	constexpr bool IsZero() const { return X == T(0) && Y == T(0); }
	bool IsNearlyZero(T Tolerance = T(KINDA_SMALL_NUMBER)) const { return Equals(ZeroVector, Tolerance); }
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y); }

	constexpr T SizeSquared() const { return X * X + Y * Y; }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	T Length() const { return Size(); }

	/** The vector with length 1, or zero if it is too short for that. */
	TVector2 GetSafeNormal(T Tolerance = T(SMALL_NUMBER)) const
	{
		return SizeSquared() > Tolerance ? *this / Size() : ZeroVector;
	}

	constexpr T GetMax() const { return FMath::Max(X, Y); }
	constexpr T GetMin() const { return FMath::Min(X, Y); }
	constexpr TVector2 GetAbs() const { return TVector2(FMath::Abs(X), FMath::Abs(Y)); }

	/** Rounded to whole numbers. */
	FIntPoint IntPoint() const { return FIntPoint(FMath::RoundToInt32(X), FMath::RoundToInt32(Y)); }
	TVector2 RoundToVector() const { return TVector2(T(FMath::RoundToDouble(X)), T(FMath::RoundToDouble(Y))); }

	static constexpr TVector2 Max(const TVector2& A, const TVector2& B)
	{
		return TVector2(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y));
	}
	static constexpr TVector2 Min(const TVector2& A, const TVector2& B)
	{
		return TVector2(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y));
	}
	static constexpr T DotProduct(const TVector2& A, const TVector2& B) { return A | B; }
	static constexpr T CrossProduct(const TVector2& A, const TVector2& B) { return A ^ B; }
	static constexpr T DistSquared(const TVector2& A, const TVector2& B) { return (B - A).SizeSquared(); }
	static T Distance(const TVector2& A, const TVector2& B) { return (B - A).Size(); }

	/** "X=1.000 Y=2.000" */
	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), double(X), double(Y)); }

	friend uint32 GetTypeHash(const TVector2& V) { return HashCombine(::GetTypeHash(V.X), ::GetTypeHash(V.Y)); }
};

template <typename T>
inline constexpr TVector2<T> TVector2<T>::ZeroVector{T(0), T(0)};
template <typename T>
inline constexpr TVector2<T> TVector2<T>::UnitVector{T(1), T(1)};
}
