#include "Kismet/KismetMathLibrary.h"
#include "KismetMath.h"

namespace
{
/** The low 32 bits: what does not fit wraps around, as on any processor. */
int32 Wrap(int64 Number)
{
	return static_cast<int32>(static_cast<uint32>(Number));
}
}

FIntPoint UKismetMathLibrary::IntPoint_Zero()
{
	return FIntPoint(0, 0);
}

FIntPoint UKismetMathLibrary::IntPoint_One()
{
	return FIntPoint(1, 1);
}

FIntPoint UKismetMathLibrary::IntPoint_Up()
{
	return FIntPoint(0, -1);
}

FIntPoint UKismetMathLibrary::IntPoint_Down()
{
	return FIntPoint(0, 1);
}

FIntPoint UKismetMathLibrary::IntPoint_Left()
{
	return FIntPoint(-1, 0);
}

FIntPoint UKismetMathLibrary::IntPoint_Right()
{
	return FIntPoint(1, 0);
}

FIntPoint UKismetMathLibrary::Add_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	return FIntPoint(Wrap(int64(A.X) + B.X), Wrap(int64(A.Y) + B.Y));
}

FIntPoint UKismetMathLibrary::Add_IntPointInt(FIntPoint A, int32 B)
{
	return Add_IntPointIntPoint(A, FIntPoint(B, B));
}

FIntPoint UKismetMathLibrary::Subtract_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	return FIntPoint(Wrap(int64(A.X) - B.X), Wrap(int64(A.Y) - B.Y));
}

FIntPoint UKismetMathLibrary::Subtract_IntPointInt(FIntPoint A, int32 B)
{
	return Subtract_IntPointIntPoint(A, FIntPoint(B, B));
}

FIntPoint UKismetMathLibrary::Multiply_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	return FIntPoint(Wrap(int64(A.X) * B.X), Wrap(int64(A.Y) * B.Y));
}

FIntPoint UKismetMathLibrary::Multiply_IntPointInt(FIntPoint A, int32 B)
{
	return Multiply_IntPointIntPoint(A, FIntPoint(B, B));
}

FIntPoint UKismetMathLibrary::Divide_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	const TCHAR* const Name = TEXT("Divide_IntPointIntPoint");
	return FIntPoint(
		Wrap(KismetMath::Divide(int64(A.X), int64(B.X), Name)), Wrap(KismetMath::Divide(int64(A.Y), int64(B.Y), Name)));
}

FIntPoint UKismetMathLibrary::Divide_IntPointInt(FIntPoint A, int32 B)
{
	if (B == 0)
	{
		KismetMath::WarnOfDivision(TEXT("Divide_IntPointInt"));
		return IntPoint_Zero();
	}
	return Divide_IntPointIntPoint(A, FIntPoint(B, B));
}

bool UKismetMathLibrary::Equal_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	return A == B;
}

bool UKismetMathLibrary::NotEqual_IntPointIntPoint(FIntPoint A, FIntPoint B)
{
	return A != B;
}

FVector2D UKismetMathLibrary::Conv_IntPointToVector2D(FIntPoint InIntPoint)
{
	return FVector2D(double(InIntPoint.X), double(InIntPoint.Y));
}
