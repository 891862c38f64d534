#pragma once

#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/Vector2D.h"

namespace UE::Math
{
/** An axis-aligned rectangle, or none while bIsValid is false. The default constructor leaves all of it unset. */
template <typename T>
struct TBox2
{
	TVector2<T> Min;
	TVector2<T> Max;
	bool bIsValid;

	TBox2() { LeaveUnset(bIsValid); }
	constexpr explicit TBox2(EForceInit)
		: Min(ForceInit)
		, Max(ForceInit)
		, bIsValid(false)
	{
	}

	constexpr TBox2(const TVector2<T>& InMin, const TVector2<T>& InMax)
		: Min(InMin)
		, Max(InMax)
		, bIsValid(true)
	{
	}

	constexpr bool operator==(const TBox2& Other) const { return Min == Other.Min && Max == Other.Max; }
	constexpr bool operator!=(const TBox2& Other) const { return !(*this == Other); }

	constexpr TVector2<T> GetSize() const { return Max - Min; }
	constexpr TVector2<T> GetCenter() const { return (Min + Max) * T(0.5); }

	/** Whether the point lies strictly inside. */
	constexpr bool IsInside(const TVector2<T>& Point) const
	{
		return Point.X > Min.X && Point.X < Max.X && Point.Y > Min.Y && Point.Y < Max.Y;
	}

	/** Grows to hold the point. */
	TBox2& operator+=(const TVector2<T>& Point)
	{
		Min = bIsValid ? TVector2<T>::Min(Min, Point) : Point;
		Max = bIsValid ? TVector2<T>::Max(Max, Point) : Point;
		bIsValid = true;
		return *this;
	}
};
}
