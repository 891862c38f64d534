#pragma once

#include "CoreTypes.h"

template <typename T = void>
struct TLess
{
	constexpr bool operator()(const T& Left, const T& Right) const { return Left < Right; }
};

template <>
struct TLess<void>
{
	template <typename T, typename U>
	constexpr bool operator()(const T& Left, const U& Right) const
	{
		return Left < Right;
	}
};

template <typename T = void>
struct TGreater
{
	constexpr bool operator()(const T& Left, const T& Right) const { return Right < Left; }
};

template <>
struct TGreater<void>
{
	template <typename T, typename U>
	constexpr bool operator()(const T& Left, const U& Right) const
	{
		return Right < Left;
	}
};
