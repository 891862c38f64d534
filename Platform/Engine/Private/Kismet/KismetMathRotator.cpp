#include "Kismet/KismetMathLibrary.h"
#include "RotationAxes.h"

FRotator UKismetMathLibrary::MakeRotator(double Roll, double Pitch, double Yaw)
{
	return FRotator(Pitch, Yaw, Roll);
}

void UKismetMathLibrary::BreakRotator(FRotator InRot, double& Roll, double& Pitch, double& Yaw)
{
	Roll = InRot.Roll;
	Pitch = InRot.Pitch;
	Yaw = InRot.Yaw;
}

bool UKismetMathLibrary::EqualEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance)
{
	return A.Equals(B, ErrorTolerance);
}

bool UKismetMathLibrary::NotEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance)
{
	return !A.Equals(B, ErrorTolerance);
}

FRotator UKismetMathLibrary::Multiply_RotatorFloat(FRotator A, double B)
{
	return A * B;
}

FRotator UKismetMathLibrary::Multiply_RotatorInt(FRotator A, int32 B)
{
	return A * double(B);
}

FRotator UKismetMathLibrary::ComposeRotators(FRotator A, FRotator B)
{
	const FRotationAxes First(A);
	const FRotationAxes Second(B);
	return FRotationAxes(Second.Rotate(First.Forward), Second.Rotate(First.Right), Second.Rotate(First.Up)).ToRotator();
}

FRotator UKismetMathLibrary::NormalizedDeltaRotator(FRotator A, FRotator B)
{
	return FRotator(FRotator::NormalizeAxis(A.Pitch - B.Pitch), FRotator::NormalizeAxis(A.Yaw - B.Yaw),
		FRotator::NormalizeAxis(A.Roll - B.Roll));
}

FRotator UKismetMathLibrary::NegateRotator(FRotator A)
{
	return FRotationAxes(A).Inverse().ToRotator();
}

FRotator UKismetMathLibrary::RLerp(FRotator A, FRotator B, double Alpha, bool bShortestPath)
{
	return A + (bShortestPath ? NormalizedDeltaRotator(B, A) : B - A) * Alpha;
}

FVector UKismetMathLibrary::GetForwardVector(FRotator InRot)
{
	return FRotationAxes(InRot).Forward;
}

FVector UKismetMathLibrary::GetRightVector(FRotator InRot)
{
	return FRotationAxes(InRot).Right;
}

FVector UKismetMathLibrary::GetUpVector(FRotator InRot)
{
	return FRotationAxes(InRot).Up;
}

FVector UKismetMathLibrary::Conv_RotatorToVector(FRotator InRot)
{
	return GetForwardVector(InRot);
}
