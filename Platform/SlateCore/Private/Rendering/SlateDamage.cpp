#include "Rendering/SlateDamage.h"

namespace
{
FSlateRect Union(const FSlateRect& A, const FSlateRect& B)
{
	return FSlateRect(
		FMath::Min(A.Left, B.Left), FMath::Min(A.Top, B.Top), FMath::Max(A.Right, B.Right), FMath::Max(A.Bottom, B.Bottom));
}

float AreaOf(const FSlateRect& Rect)
{
	return (Rect.Right - Rect.Left) * (Rect.Bottom - Rect.Top);
}

bool Overlap(const FSlateRect& A, const FSlateRect& B)
{
	return A.Left < B.Right && B.Left < A.Right && A.Top < B.Bottom && B.Top < A.Bottom;
}
}

void FSlateDamage::Add(const FSlateRect& Rect)
{
	// Whole pixels, so that what is repainted meets what stays without a seam.
	FSlateRect Grown(FMath::FloorToFloat(Rect.Left), FMath::FloorToFloat(Rect.Top), FMath::CeilToFloat(Rect.Right),
		FMath::CeilToFloat(Rect.Bottom));
	if (Grown.Left >= Grown.Right || Grown.Top >= Grown.Bottom)
	{
		return;
	}

	for (int32 Index = 0; Index < Rects.Num();)
	{
		if (Overlap(Rects[Index], Grown))
		{
			Grown = Union(Rects[Index], Grown);
			Rects.RemoveAtSwap(Index);
			Index = 0;
		}
		else
		{
			++Index;
		}
	}
	Rects.Add(Grown);

	if (Rects.Num() > MaxRects)
	{
		MergeCheapestPair();
	}
}

bool FSlateDamage::Intersects(const FSlateRect& Rect) const
{
	for (const FSlateRect& Damaged : Rects)
	{
		if (Overlap(Damaged, Rect))
		{
			return true;
		}
	}
	return false;
}

void FSlateDamage::MergeCheapestPair()
{
	int32 BestA = 0;
	int32 BestB = 1;
	float LeastWaste = TNumericLimits<float>::Max();
	for (int32 A = 0; A < Rects.Num(); ++A)
	{
		for (int32 B = A + 1; B < Rects.Num(); ++B)
		{
			const float Waste = AreaOf(Union(Rects[A], Rects[B])) - AreaOf(Rects[A]) - AreaOf(Rects[B]);
			if (Waste < LeastWaste)
			{
				LeastWaste = Waste;
				BestA = A;
				BestB = B;
			}
		}
	}
	const FSlateRect Merged = Union(Rects[BestA], Rects[BestB]);
	Rects.RemoveAtSwap(BestB);
	Rects.RemoveAtSwap(BestA);
	Add(Merged);
}
