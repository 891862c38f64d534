#pragma once

#include "CoreMinimal.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"

class FArrangedWidget;
class SWidget;

/**
 * Where a widget lies: its size in its own units, and the scale and translation that lead from there to absolute space.
 * Absolute space is the window's while painting and the desktop's in events and ticks.
 */
struct SLATECORE_API FGeometry
{
	FGeometry()
		: Size(FVector2D::ZeroVector)
		, AbsolutePosition(FVector2D::ZeroVector)
		, Scale(1.0f)
	{
	}
	FGeometry(const FGeometry&) = default;

	/** The numbers are for reading only; another geometry takes the place of this one as a whole. */
	FGeometry& operator=(const FGeometry& Other)
	{
		FMemory::Memmove(static_cast<void*>(this), &Other, sizeof(FGeometry));
		return *this;
	}

	static FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform);

	/** The geometry of a child of the given size whose top left lies at LocalTransform within this one. */
	FGeometry MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LocalTransform) const;

	FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize,
		float ChildScale = 1.0f) const;

	FPaintGeometry ToPaintGeometry() const;
	FPaintGeometry ToPaintGeometry(const FVector2D& LocalOffset, const FVector2D& InLocalSize) const;

	const FVector2D& GetLocalSize() const { return Size; }
	FVector2D GetAbsolutePosition() const { return AbsolutePosition; }
	FVector2D GetAbsoluteSize() const { return Size * Scale; }
	FVector2D AbsoluteToLocal(const FVector2D& AbsoluteCoordinate) const
	{
		return (AbsoluteCoordinate - AbsolutePosition) / Scale;
	}
	FVector2D LocalToAbsolute(const FVector2D& LocalCoordinate) const { return LocalCoordinate * Scale + AbsolutePosition; }
	FVector2D GetLocalPositionAtCoordinates(const FVector2D& NormalCoordinates) const { return NormalCoordinates * Size; }
	FVector2D GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const
	{
		return LocalToAbsolute(GetLocalPositionAtCoordinates(NormalCoordinates));
	}

	bool IsUnderLocation(const FVector2D& AbsoluteCoordinate) const;

	FSlateRect GetLayoutBoundingRect() const;
	FSlateLayoutTransform GetAccumulatedLayoutTransform() const { return FSlateLayoutTransform(Scale, AbsolutePosition); }
	FSlateRenderTransform GetAccumulatedRenderTransform() const
	{
		return FSlateRenderTransform(FScale2D(Scale), AbsolutePosition);
	}

	/** The same geometry, its absolute space moved by Offset (from a window to the desktop, say). */
	FGeometry MovedBy(const FVector2D& Offset) const;

	bool operator==(const FGeometry& Other) const
	{
		return Size == Other.Size && AbsolutePosition == Other.AbsolutePosition && Scale == Other.Scale;
	}
	bool operator!=(const FGeometry& Other) const { return !(*this == Other); }

	const FVector2D Size;
	const FVector2D AbsolutePosition;
	const float Scale;

private:
	FGeometry(const FVector2D& InSize, const FVector2D& InAbsolutePosition, float InScale)
		: Size(InSize)
		, AbsolutePosition(InAbsolutePosition)
		, Scale(InScale)
	{
	}
};
