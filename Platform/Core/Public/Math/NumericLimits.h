#pragma once

#include <limits>

/** The range of a number type. */
template <typename NumericType>
struct TNumericLimits
{
	static constexpr NumericType Min() { return std::numeric_limits<NumericType>::lowest(); }
	static constexpr NumericType Max() { return std::numeric_limits<NumericType>::max(); }
	static constexpr NumericType Lowest() { return std::numeric_limits<NumericType>::lowest(); }
};
