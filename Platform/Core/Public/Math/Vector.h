#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/UnsetNumbers.h"
#include "Math/Vector2D.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{
/** A vector or point in the engine's left-handed space: X forward, Y right, Z up, in centimetres. The default constructor leaves it unset. */
template <typename T>
struct TVector
{
	T X;
	T Y;
	T Z;

	static const TVector ZeroVector;
	static const TVector OneVector;
	static const TVector UpVector;
	static const TVector ForwardVector;
	static const TVector RightVector;

	TVector() { LeaveUnset(X, Y, Z); }

	constexpr TVector(T InX, T InY, T InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}

	constexpr explicit TVector(T Value)
		: TVector(Value, Value, Value)
	{
	}

	constexpr explicit TVector(EForceInit)
		: TVector(T(0), T(0), T(0))
	{
	}

	constexpr explicit TVector(const TVector2<T>& V, T InZ)
		: TVector(V.X, V.Y, InZ)
	{
	}

	template <typename U, typename = std::enable_if_t<!std::is_same_v<T, U>>>
	constexpr explicit TVector(const TVector<U>& Other)
		: TVector(T(Other.X), T(Other.Y), T(Other.Z))
	{
	}

	constexpr TVector operator+(const TVector& V) const { return TVector(X + V.X, Y + V.Y, Z + V.Z); }
	constexpr TVector operator-(const TVector& V) const { return TVector(X - V.X, Y - V.Y, Z - V.Z); }
	constexpr TVector operator*(const TVector& V) const { return TVector(X * V.X, Y * V.Y, Z * V.Z); }
	constexpr TVector operator*(T Scale) const { return TVector(X * Scale, Y * Scale, Z * Scale); }
	constexpr TVector operator/(T Divisor) const { return TVector(X / Divisor, Y / Divisor, Z / Divisor); }
	constexpr TVector operator-() const { return TVector(-X, -Y, -Z); }
	friend constexpr TVector operator*(T Scale, const TVector& V) { return V * Scale; }

	TVector& operator+=(const TVector& V) { return *this = *this + V; }
	TVector& operator-=(const TVector& V) { return *this = *this - V; }
	TVector& operator*=(T Scale) { return *this = *this * Scale; }

	constexpr bool operator==(const TVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }
	constexpr bool operator!=(const TVector& V) const { return !(*this == V); }

	/** The dot product. */
	constexpr T operator|(const TVector& V) const { return X * V.X + Y * V.Y + Z * V.Z; }

	/** The cross product. */
	constexpr TVector operator^(const TVector& V) const
	{
		return TVector(Y * V.Z - Z * V.Y, Z * V.X - X * V.Z, X * V.Y - Y * V.X);
	}

	bool Equals(const TVector& V, T Tolerance = T(KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
	}

	constexpr bool IsZero() const { return *this == ZeroVector; }
	constexpr T SizeSquared() const { return *this | *this; }
	T Size() const { return FMath::Sqrt(SizeSquared()); }

	/** The vector with length 1, or zero if it is too short for that. */
	TVector GetSafeNormal(T Tolerance = T(SMALL_NUMBER)) const { return SizeSquared() > Tolerance ? *this / Size() : ZeroVector; }

	static constexpr T DotProduct(const TVector& A, const TVector& B) { return A | B; }
	static constexpr TVector CrossProduct(const TVector& A, const TVector& B) { return A ^ B; }
	static T Dist(const TVector& A, const TVector& B) { return (B - A).Size(); }
	static T Distance(const TVector& A, const TVector& B) { return Dist(A, B); }

	/** "X=1.000 Y=2.000 Z=3.000" */
	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), double(X), double(Y), double(Z)); }

	friend uint32 GetTypeHash(const TVector& V)
	{
		return HashCombine(HashCombine(::GetTypeHash(V.X), ::GetTypeHash(V.Y)), ::GetTypeHash(V.Z));
	}
};

template <typename T>
inline constexpr TVector<T> TVector<T>::ZeroVector{T(0), T(0), T(0)};
template <typename T>
inline constexpr TVector<T> TVector<T>::OneVector{T(1), T(1), T(1)};
template <typename T>
inline constexpr TVector<T> TVector<T>::UpVector{T(0), T(0), T(1)};
template <typename T>
inline constexpr TVector<T> TVector<T>::ForwardVector{T(1), T(0), T(0)};
template <typename T>
inline constexpr TVector<T> TVector<T>::RightVector{T(0), T(1), T(0)};
}
