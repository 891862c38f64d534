#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"

/** An axis-aligned rectangle by its sides. Empty when it has no width or no height. */
class FSlateRect
{
public:
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	FSlateRect() = default;
	FSlateRect(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}
	FSlateRect(const FVector2D& InTopLeft, const FVector2D& InBottomRight)
		: FSlateRect(float(InTopLeft.X), float(InTopLeft.Y), float(InBottomRight.X), float(InBottomRight.Y))
	{
	}

	static FSlateRect FromPointAndExtent(const FVector2D& TopLeft, const FVector2D& Size)
	{
		return FSlateRect(TopLeft, TopLeft + Size);
	}

	bool IsEmpty() const { return !(Right > Left && Bottom > Top); }
	FVector2D GetSize() const { return FVector2D(Right - Left, Bottom - Top); }
	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }
	FVector2D GetBottomRight() const { return FVector2D(Right, Bottom); }
	FVector2D GetCenter() const { return FVector2D((Left + Right) * 0.5, (Top + Bottom) * 0.5); }

	/** The part that both cover; (0, 0, 0, 0) where they do not meet. */
	FSlateRect IntersectionWith(const FSlateRect& Other) const
	{
		const FSlateRect Common(FMath::Max(Left, Other.Left), FMath::Max(Top, Other.Top), FMath::Min(Right, Other.Right),
			FMath::Min(Bottom, Other.Bottom));
		return Common.Right < Common.Left || Common.Bottom < Common.Top ? FSlateRect() : Common;
	}

	/** The smallest rectangle that holds both. */
	FSlateRect Expand(const FSlateRect& Other) const
	{
		return FSlateRect(FMath::Min(Left, Other.Left), FMath::Min(Top, Other.Top), FMath::Max(Right, Other.Right),
			FMath::Max(Bottom, Other.Bottom));
	}

	FSlateRect InsetBy(const FMargin& Inset) const
	{
		return FSlateRect(Left + Inset.Left, Top + Inset.Top, Right - Inset.Right, Bottom - Inset.Bottom);
	}
	FSlateRect ExtendBy(const FMargin& Extension) const
	{
		return FSlateRect(Left - Extension.Left, Top - Extension.Top, Right + Extension.Right, Bottom + Extension.Bottom);
	}
	FSlateRect OffsetBy(const FVector2D& Offset) const { return FSlateRect(GetTopLeft() + Offset, GetBottomRight() + Offset); }

	bool ContainsPoint(const FVector2D& Point) const
	{
		return Point.X >= Left && Point.X <= Right && Point.Y >= Top && Point.Y <= Bottom;
	}

	static bool DoRectanglesIntersect(const FSlateRect& A, const FSlateRect& B)
	{
		return !(B.Left > A.Right || A.Left > B.Right || B.Top > A.Bottom || A.Top > B.Bottom);
	}
	static bool IsRectangleContained(const FSlateRect& Outer, const FSlateRect& Inner)
	{
		return Outer.Left <= Inner.Left && Outer.Top <= Inner.Top && Outer.Right >= Inner.Right && Outer.Bottom >= Inner.Bottom;
	}

	bool operator==(const FSlateRect& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}
	bool operator!=(const FSlateRect& Other) const { return !(*this == Other); }
};
