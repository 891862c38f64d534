#include "Kismet/KismetMathLibrary.h"
#include "KismetMath.h"
#include "Math/NumericNarrowing.h"

FVector2D UKismetMathLibrary::Vector2D_Zero()
{
	return FVector2D(0.0, 0.0);
}

FVector2D UKismetMathLibrary::Vector2D_One()
{
	return FVector2D(1.0, 1.0);
}

FVector2D UKismetMathLibrary::MakeVector2D(double X, double Y)
{
	return FVector2D(X, Y);
}

void UKismetMathLibrary::BreakVector2D(FVector2D InVec, double& X, double& Y)
{
	X = InVec.X;
	Y = InVec.Y;
}

void UKismetMathLibrary::Set2D(FVector2D& A, double X, double Y)
{
	A = FVector2D(X, Y);
}

FVector2D UKismetMathLibrary::Add_Vector2DVector2D(FVector2D A, FVector2D B)
{
	return A + B;
}

FVector2D UKismetMathLibrary::Add_Vector2DFloat(FVector2D A, double B)
{
	return A + B;
}

FVector2D UKismetMathLibrary::Subtract_Vector2DVector2D(FVector2D A, FVector2D B)
{
	return A - B;
}

FVector2D UKismetMathLibrary::Subtract_Vector2DFloat(FVector2D A, double B)
{
	return A - B;
}

FVector2D UKismetMathLibrary::Multiply_Vector2DVector2D(FVector2D A, FVector2D B)
{
	return A * B;
}

FVector2D UKismetMathLibrary::Multiply_Vector2DFloat(FVector2D A, double B)
{
	return A * B;
}

FVector2D UKismetMathLibrary::Divide_Vector2DVector2D(FVector2D A, FVector2D B)
{
	const TCHAR* const Name = TEXT("Divide_Vector2DVector2D");
	return FVector2D(KismetMath::Divide(A.X, B.X, Name), KismetMath::Divide(A.Y, B.Y, Name));
}

FVector2D UKismetMathLibrary::Divide_Vector2DFloat(FVector2D A, double B)
{
	if (B == 0.0)
	{
		KismetMath::WarnOfDivision(TEXT("Divide_Vector2DFloat"));
		return Vector2D_Zero();
	}
	return A / B;
}

FVector2D UKismetMathLibrary::Negated2D(const FVector2D& A)
{
	return -A;
}

bool UKismetMathLibrary::EqualExactly_Vector2DVector2D(FVector2D A, FVector2D B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqualExactly_Vector2DVector2D(FVector2D A, FVector2D B)
{
	return A != B;
}

bool UKismetMathLibrary::EqualEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance)
{
	return A.Equals(B, ErrorTolerance);
}

bool UKismetMathLibrary::NotEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance)
{
	return !A.Equals(B, ErrorTolerance);
}

double UKismetMathLibrary::DotProduct2D(FVector2D A, FVector2D B)
{
	return A | B;
}

double UKismetMathLibrary::CrossProduct2D(FVector2D A, FVector2D B)
{
	return A ^ B;
}

double UKismetMathLibrary::VSize2D(FVector2D A)
{
	return A.Size();
}

double UKismetMathLibrary::VSize2DSquared(FVector2D A)
{
	return A.SizeSquared();
}

bool UKismetMathLibrary::IsNearlyZero2D(const FVector2D& A, float Tolerance)
{
	return A.Equals(Vector2D_Zero(), Tolerance);
}

bool UKismetMathLibrary::IsZero2D(const FVector2D& A)
{
	return A == Vector2D_Zero();
}

FVector2D UKismetMathLibrary::NormalSafe2D(FVector2D A, float Tolerance)
{
	return A.SizeSquared() > double(Tolerance) ? A / A.Size() : Vector2D_Zero();
}

void UKismetMathLibrary::Normalize2D(FVector2D& A, float Tolerance)
{
	A = NormalSafe2D(A, Tolerance);
}

double UKismetMathLibrary::Distance2D(FVector2D V1, FVector2D V2)
{
	return VSize2D(V2 - V1);
}

double UKismetMathLibrary::DistanceSquared2D(FVector2D V1, FVector2D V2)
{
	return VSize2DSquared(V2 - V1);
}

FVector2D UKismetMathLibrary::GetAbs2D(FVector2D A)
{
	return A.GetAbs();
}

double UKismetMathLibrary::GetMax2D(FVector2D A)
{
	return A.GetMax();
}

double UKismetMathLibrary::GetMin2D(FVector2D A)
{
	return A.GetMin();
}

FVector2D UKismetMathLibrary::GetRotated2D(FVector2D A, double AngleDeg)
{
	const double Sine = FMath::Sin(FMath::DegreesToRadians(AngleDeg));
	const double Cosine = FMath::Cos(FMath::DegreesToRadians(AngleDeg));
	return FVector2D(Cosine * A.X - Sine * A.Y, Sine * A.X + Cosine * A.Y);
}

FVector UKismetMathLibrary::Conv_Vector2DToVector(FVector2D InVector2D, double Z)
{
	return FVector(InVector2D.X, InVector2D.Y, Z);
}

FIntPoint UKismetMathLibrary::Conv_Vector2DToIntPoint(FVector2D InVector2D)
{
	return FIntPoint(NarrowNumber<int32>(InVector2D.X), NarrowNumber<int32>(InVector2D.Y));
}
