#include "Kismet/KismetMathLibrary.h"
#include "KismetMath.h"
#include "Math/NumericNarrowing.h"
#include "RotationAxes.h"

FVector UKismetMathLibrary::Vector_Zero()
{
	return FVector(0.0, 0.0, 0.0);
}

FVector UKismetMathLibrary::Vector_One()
{
	return FVector(1.0, 1.0, 1.0);
}

FVector UKismetMathLibrary::Vector_Forward()
{
	return FVector(1.0, 0.0, 0.0);
}

FVector UKismetMathLibrary::Vector_Backward()
{
	return FVector(-1.0, 0.0, 0.0);
}

FVector UKismetMathLibrary::Vector_Up()
{
	return FVector(0.0, 0.0, 1.0);
}

FVector UKismetMathLibrary::Vector_Down()
{
	return FVector(0.0, 0.0, -1.0);
}

FVector UKismetMathLibrary::Vector_Right()
{
	return FVector(0.0, 1.0, 0.0);
}

FVector UKismetMathLibrary::Vector_Left()
{
	return FVector(0.0, -1.0, 0.0);
}

FVector UKismetMathLibrary::MakeVector(double X, double Y, double Z)
{
	return FVector(X, Y, Z);
}

void UKismetMathLibrary::BreakVector(FVector InVec, double& X, double& Y, double& Z)
{
	X = InVec.X;
	Y = InVec.Y;
	Z = InVec.Z;
}

void UKismetMathLibrary::Vector_Set(FVector& A, double X, double Y, double Z)
{
	A = FVector(X, Y, Z);
}

FVector UKismetMathLibrary::Add_VectorVector(FVector A, FVector B)
{
	return A + B;
}

FVector UKismetMathLibrary::Add_VectorFloat(FVector A, double B)
{
	return A + FVector(B, B, B);
}

FVector UKismetMathLibrary::Add_VectorInt(FVector A, int32 B)
{
	return Add_VectorFloat(A, B);
}

FVector UKismetMathLibrary::Subtract_VectorVector(FVector A, FVector B)
{
	return A - B;
}

FVector UKismetMathLibrary::Subtract_VectorFloat(FVector A, double B)
{
	return A - FVector(B, B, B);
}

FVector UKismetMathLibrary::Subtract_VectorInt(FVector A, int32 B)
{
	return Subtract_VectorFloat(A, B);
}

FVector UKismetMathLibrary::Multiply_VectorVector(FVector A, FVector B)
{
	return A * B;
}

FVector UKismetMathLibrary::Multiply_VectorFloat(FVector A, double B)
{
	return A * B;
}

FVector UKismetMathLibrary::Multiply_VectorInt(FVector A, int32 B)
{
	return A * double(B);
}

FVector UKismetMathLibrary::Divide_VectorVector(FVector A, FVector B)
{
	const TCHAR* const Name = TEXT("Divide_VectorVector");
	return FVector(KismetMath::Divide(A.X, B.X, Name), KismetMath::Divide(A.Y, B.Y, Name), KismetMath::Divide(A.Z, B.Z, Name));
}

FVector UKismetMathLibrary::Divide_VectorFloat(FVector A, double B)
{
	if (B == 0.0)
	{
		KismetMath::WarnOfDivision(TEXT("Divide_VectorFloat"));
		return Vector_Zero();
	}
	return A / B;
}

FVector UKismetMathLibrary::Divide_VectorInt(FVector A, int32 B)
{
	return Divide_VectorFloat(A, B);
}

FVector UKismetMathLibrary::NegateVector(FVector A)
{
	return -A;
}

bool UKismetMathLibrary::EqualExactly_VectorVector(FVector A, FVector B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqualExactly_VectorVector(FVector A, FVector B)
{
	return A != B;
}

bool UKismetMathLibrary::EqualEqual_VectorVector(FVector A, FVector B, float ErrorTolerance)
{
	return A.Equals(B, ErrorTolerance);
}

bool UKismetMathLibrary::NotEqual_VectorVector(FVector A, FVector B, float ErrorTolerance)
{
	return !A.Equals(B, ErrorTolerance);
}

double UKismetMathLibrary::Dot_VectorVector(FVector A, FVector B)
{
	return A | B;
}

FVector UKismetMathLibrary::Cross_VectorVector(FVector A, FVector B)
{
	return A ^ B;
}

FVector UKismetMathLibrary::GreaterGreater_VectorRotator(FVector A, FRotator B)
{
	return FRotationAxes(B).Rotate(A);
}

FVector UKismetMathLibrary::LessLess_VectorRotator(FVector A, FRotator B)
{
	return FRotationAxes(B).Unrotate(A);
}

/** Rodrigues' rotation formula. */
FVector UKismetMathLibrary::RotateAngleAxis(FVector InVect, double AngleDeg, FVector Axis)
{
	const FVector Unit = Axis.GetSafeNormal();
	const double Radians = FMath::DegreesToRadians(AngleDeg);
	const double Cosine = FMath::Cos(Radians);
	return InVect * Cosine + (Unit ^ InVect) * FMath::Sin(Radians) + Unit * ((Unit | InVect) * (1.0 - Cosine));
}

double UKismetMathLibrary::VSize(FVector A)
{
	return A.Size();
}

double UKismetMathLibrary::VSizeSquared(FVector A)
{
	return A.SizeSquared();
}

double UKismetMathLibrary::VSizeXY(FVector A)
{
	return FMath::Sqrt(VSizeXYSquared(A));
}

double UKismetMathLibrary::VSizeXYSquared(FVector A)
{
	return A.X * A.X + A.Y * A.Y;
}

bool UKismetMathLibrary::Vector_IsNearlyZero(const FVector& A, float Tolerance)
{
	return A.Equals(Vector_Zero(), Tolerance);
}

bool UKismetMathLibrary::Vector_IsZero(const FVector& A)
{
	return A == Vector_Zero();
}

bool UKismetMathLibrary::Vector_IsNAN(const FVector& A)
{
	return !FMath::IsFinite(A.X) || !FMath::IsFinite(A.Y) || !FMath::IsFinite(A.Z);
}

bool UKismetMathLibrary::Vector_IsUnit(const FVector& A, float SquaredLenthTolerance)
{
	return FMath::Abs(1.0 - A.SizeSquared()) < double(SquaredLenthTolerance);
}

bool UKismetMathLibrary::Vector_IsNormal(const FVector& A)
{
	constexpr double Tolerance = 0.01;
	return FMath::Abs(1.0 - A.SizeSquared()) < Tolerance;
}

FVector UKismetMathLibrary::Normal(FVector A, float Tolerance)
{
	return A.SizeSquared() > double(Tolerance) ? A / A.Size() : Vector_Zero();
}

FVector UKismetMathLibrary::Vector_Normal2D(FVector A, float Tolerance)
{
	return Normal(FVector(A.X, A.Y, 0.0), Tolerance);
}

bool UKismetMathLibrary::Vector_Normalize(FVector& A, float Tolerance)
{
	if (A.SizeSquared() <= double(Tolerance))
	{
		return false;
	}
	A = A / A.Size();
	return true;
}

FVector UKismetMathLibrary::VLerp(FVector A, FVector B, double Alpha)
{
	return A + (B - A) * Alpha;
}

double UKismetMathLibrary::Vector_Distance(FVector V1, FVector V2)
{
	return VSize(V2 - V1);
}

double UKismetMathLibrary::Vector_DistanceSquared(FVector V1, FVector V2)
{
	return VSizeSquared(V2 - V1);
}

double UKismetMathLibrary::Vector_Distance2D(FVector V1, FVector V2)
{
	return VSizeXY(V2 - V1);
}

double UKismetMathLibrary::Vector_Distance2DSquared(FVector V1, FVector V2)
{
	return VSizeXYSquared(V2 - V1);
}

FVector UKismetMathLibrary::Vector_GetAbs(const FVector& A)
{
	return FVector(FMath::Abs(A.X), FMath::Abs(A.Y), FMath::Abs(A.Z));
}

double UKismetMathLibrary::GetMaxElement(FVector A)
{
	return FMath::Max3(A.X, A.Y, A.Z);
}

double UKismetMathLibrary::GetMinElement(FVector A)
{
	return FMath::Min3(A.X, A.Y, A.Z);
}

FVector UKismetMathLibrary::Vector_ComponentMin(FVector A, FVector B)
{
	return FVector(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y), FMath::Min(A.Z, B.Z));
}

FVector UKismetMathLibrary::Vector_ComponentMax(FVector A, FVector B)
{
	return FVector(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y), FMath::Max(A.Z, B.Z));
}

FVector UKismetMathLibrary::Vector_SnappedToGrid(FVector InVect, double InGridSize)
{
	return FVector(
		FMath::GridSnap(InVect.X, InGridSize), FMath::GridSnap(InVect.Y, InGridSize), FMath::GridSnap(InVect.Z, InGridSize));
}

FVector UKismetMathLibrary::ProjectVectorOnToVector(FVector V, FVector Target)
{
	const double LengthSquared = Target.SizeSquared();
	if (LengthSquared == 0.0)
	{
		KismetMath::WarnOfDivision(TEXT("ProjectVectorOnToVector"));
		return Vector_Zero();
	}
	return Target * ((V | Target) / LengthSquared);
}

FVector UKismetMathLibrary::ProjectVectorOnToPlane(FVector V, FVector PlaneNormal)
{
	return V - ProjectVectorOnToVector(V, PlaneNormal);
}

FVector UKismetMathLibrary::GetReflectionVector(FVector Direction, FVector SurfaceNormal)
{
	const FVector Unit = SurfaceNormal.GetSafeNormal();
	return Direction - Unit * (2.0 * (Direction | Unit));
}

FRotator UKismetMathLibrary::FindLookAtRotation(const FVector& Start, const FVector& Target)
{
	return Conv_VectorToRotator(Target - Start);
}

FRotator UKismetMathLibrary::Conv_VectorToRotator(FVector InVec)
{
	return FRotator(FMath::RadiansToDegrees(FMath::Atan2(InVec.Z, VSizeXY(InVec))),
		FMath::RadiansToDegrees(FMath::Atan2(InVec.Y, InVec.X)), 0.0);
}

FVector2D UKismetMathLibrary::Conv_VectorToVector2D(FVector InVector)
{
	return FVector2D(InVector.X, InVector.Y);
}

FLinearColor UKismetMathLibrary::Conv_VectorToLinearColor(FVector InVec)
{
	return FLinearColor(NarrowNumber<float>(InVec.X), NarrowNumber<float>(InVec.Y), NarrowNumber<float>(InVec.Z));
}
