#include "RotationAxes.h"

namespace
{
struct FAngle
{
	explicit FAngle(double Degrees)
		: Sine(FMath::Sin(FMath::DegreesToRadians(Degrees)))
		, Cosine(FMath::Cos(FMath::DegreesToRadians(Degrees)))
	{
	}

	const double Sine;
	const double Cosine;
};

double AngleOf(double Y, double X)
{
	return FMath::RadiansToDegrees(FMath::Atan2(Y, X));
}
}

FRotationAxes::FRotationAxes(const FVector& InForward, const FVector& InRight, const FVector& InUp)
	: Forward(InForward)
	, Right(InRight)
	, Up(InUp)
{
}

FRotationAxes::FRotationAxes(const FRotator& Rotator)
	: Forward(ForceInit)
	, Right(ForceInit)
	, Up(ForceInit)
{
	const FAngle P(Rotator.Pitch);
	const FAngle Y(Rotator.Yaw);
	const FAngle R(Rotator.Roll);
	Forward = FVector(P.Cosine * Y.Cosine, P.Cosine * Y.Sine, P.Sine);
	Right = FVector(
		R.Sine * P.Sine * Y.Cosine - R.Cosine * Y.Sine, R.Sine * P.Sine * Y.Sine + R.Cosine * Y.Cosine, -R.Sine * P.Cosine);
	Up = FVector(
		-(R.Cosine * P.Sine * Y.Cosine + R.Sine * Y.Sine), Y.Cosine * R.Sine - R.Cosine * P.Sine * Y.Sine, R.Cosine * P.Cosine);
}

FVector FRotationAxes::Rotate(const FVector& Vector) const
{
	return Forward * Vector.X + Right * Vector.Y + Up * Vector.Z;
}

FVector FRotationAxes::Unrotate(const FVector& Vector) const
{
	return FVector(Forward | Vector, Right | Vector, Up | Vector);
}

FRotationAxes FRotationAxes::Inverse() const
{
	return FRotationAxes(FVector(Forward.X, Right.X, Up.X), FVector(Forward.Y, Right.Y, Up.Y), FVector(Forward.Z, Right.Z, Up.Z));
}

FRotator FRotationAxes::ToRotator() const
{
	const double Level = FMath::Sqrt(Forward.X * Forward.X + Forward.Y * Forward.Y);
	const FRotator WithoutRoll(AngleOf(Forward.Z, Level), AngleOf(Forward.Y, Forward.X), 0.0);
	const FVector Unrolled = FRotationAxes(WithoutRoll).Right;
	return FRotator(WithoutRoll.Pitch, WithoutRoll.Yaw, AngleOf(Up | Unrolled, Right | Unrolled));
}
