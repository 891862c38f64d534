#pragma once

#include "CoreTypes.h"

#include <cmath>
#include <limits>
#include <type_traits>

/**
 * Turns a number from outside into a narrower type, defined for every value: what lies beyond the target's range becomes
 * its nearest end, and a fraction is cut off when the target is an integer. Not-a-number becomes 0 in an integer; a
 * floating-point target keeps it, and keeps infinities.
 *
 * A plain cast of such a value is undefined behaviour, and in practice differs between processors.
 *
 *	const int32 Columns = NarrowNumber<int32>(Value->AsNumber());
 */
template <typename To, typename From>
constexpr To NarrowNumber(From Value)
{
	static_assert(
		std::is_arithmetic_v<To> && std::is_arithmetic_v<From> && !std::is_same_v<To, bool>, "NarrowNumber is for numbers");

	using FToLimits = std::numeric_limits<To>;
	if constexpr (std::is_floating_point_v<To>)
	{
		if constexpr (std::is_floating_point_v<From> && sizeof(To) < sizeof(From))
		{
			const bool bInfinite =
				Value == std::numeric_limits<From>::infinity() || Value == -std::numeric_limits<From>::infinity();
			if (!bInfinite && Value > From(FToLimits::max()))
			{
				return FToLimits::max();
			}
			if (!bInfinite && Value < From(FToLimits::lowest()))
			{
				return FToLimits::lowest();
			}
		}
		return static_cast<To>(Value);
	}
	else if constexpr (std::is_floating_point_v<From>)
	{
		// The maximum is one less than a power of two, which unlike itself is exact in any floating-point type.
		constexpr From UpperBound = From(FToLimits::max() / 2 + 1) * From(2);
		if (Value != Value)
		{
			return To(0);
		}
		if (Value >= UpperBound)
		{
			return FToLimits::max();
		}
		if (Value < From(FToLimits::min()))
		{
			return FToLimits::min();
		}
		return static_cast<To>(Value);
	}
	else
	{
		if constexpr (std::is_signed_v<From>)
		{
			if (Value < 0)
			{
				if constexpr (std::is_unsigned_v<To>)
				{
					return To(0);
				}
				else
				{
					return static_cast<long long>(Value) < static_cast<long long>(FToLimits::min()) ? FToLimits::min()
																									: static_cast<To>(Value);
				}
			}
		}
		return static_cast<unsigned long long>(Value) > static_cast<unsigned long long>(FToLimits::max())
			? FToLimits::max()
			: static_cast<To>(Value);
	}
}
