#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/MathFwd.h"
#include "Math/UnrealMathUtility.h"
#include "Math/UnsetNumbers.h"

namespace UE::Math
{
/** A rotation in degrees: Pitch about the right axis (up is positive), Yaw about the up axis, Roll about the forward axis. */
template <typename T>
struct TRotator
{
	T Pitch;
	T Yaw;
	T Roll;

	static const TRotator ZeroRotator;

	/** Leaves the angles unset. */
	TRotator() { LeaveUnset(Pitch, Yaw, Roll); }

	constexpr TRotator(T InPitch, T InYaw, T InRoll)
		: Pitch(InPitch)
		, Yaw(InYaw)
		, Roll(InRoll)
	{
	}

	constexpr explicit TRotator(EForceInit)
		: TRotator(T(0), T(0), T(0))
	{
	}

	constexpr TRotator operator+(const TRotator& R) const { return TRotator(Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll); }
	constexpr TRotator operator-(const TRotator& R) const { return TRotator(Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll); }
	constexpr TRotator operator*(T Scale) const { return TRotator(Pitch * Scale, Yaw * Scale, Roll * Scale); }

	constexpr bool operator==(const TRotator& R) const { return Pitch == R.Pitch && Yaw == R.Yaw && Roll == R.Roll; }
	constexpr bool operator!=(const TRotator& R) const { return !(*this == R); }

	/** Whether both turn alike: 360 degrees equal 0. */
	bool Equals(const TRotator& R, T Tolerance = T(KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(NormalizeAxis(Pitch - R.Pitch)) <= Tolerance && FMath::Abs(NormalizeAxis(Yaw - R.Yaw)) <= Tolerance &&
			FMath::Abs(NormalizeAxis(Roll - R.Roll)) <= Tolerance;
	}

	/** The angle in (-180, 180] that turns alike. */
	static T NormalizeAxis(T Angle)
	{
		T Normal = FMath::Fmod(Angle, T(360));
		if (Normal < T(0))
		{
			Normal += T(360);
		}
		return Normal > T(180) ? Normal - T(360) : Normal;
	}

	/** "P=1.000000 Y=2.000000 R=3.000000" */
	FString ToString() const { return FString::Printf(TEXT("P=%f Y=%f R=%f"), double(Pitch), double(Yaw), double(Roll)); }
};

template <typename T>
inline constexpr TRotator<T> TRotator<T>::ZeroRotator{T(0), T(0), T(0)};
}
