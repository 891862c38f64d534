#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
template <typename T>
struct TVector4
{
	T X = T(0);
	T Y = T(0);
	T Z = T(0);
	T W = T(0);

	constexpr TVector4() = default;
	constexpr TVector4(T InX, T InY, T InZ, T InW)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}

	constexpr bool operator==(const TVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }
	constexpr bool operator!=(const TVector4& V) const { return !(*this == V); }
};
}

using FVector4 = UE::Math::TVector4<double>;
