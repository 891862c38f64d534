#pragma once

#include "CoreTypes.h"

#include <cstring>
#include <limits>
#include <type_traits>

/** 1 in builds that look for numbers which are read before they are set: debug builds and those with sanitizers. */
#ifndef POISON_UNSET_NUMBERS
#define POISON_UNSET_NUMBERS 0
#endif

namespace UE::Math
{
/**
 * What default constructors of vectors, points and colours do with their numbers: nothing, as in the engine. A build that
 * poisons makes floating-point numbers not-a-number and fills integers with bytes of 0xCD, so that whoever relies on zero
 * is found.
 */
template <bool bPoison = POISON_UNSET_NUMBERS != 0, typename... NumberTypes>
void LeaveUnset(NumberTypes&... Numbers)
{
	if constexpr (bPoison)
	{
		const auto Poison = [](auto& Number)
		{
			using FNumber = std::remove_reference_t<decltype(Number)>;
			if constexpr (std::is_floating_point_v<FNumber>)
			{
				Number = std::numeric_limits<FNumber>::quiet_NaN();
			}
			else
			{
				std::memset(&Number, 0xCD, sizeof(FNumber));
			}
		};
		(Poison(Numbers), ...);
	}
}
}
