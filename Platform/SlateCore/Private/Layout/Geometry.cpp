#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	FGeometry Root;
	Root.Size = InLocalSize;
	Root.AbsolutePosition = LayoutTransform.GetTranslation();
	Root.Scale = LayoutTransform.GetScale();
	return Root;
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LocalTransform) const
{
	FGeometry Child;
	Child.Size = InLocalSize;
	Child.Scale = Scale * LocalTransform.GetScale();
	Child.AbsolutePosition = LocalToAbsolute(LocalTransform.GetTranslation());
	return Child;
}

FArrangedWidget FGeometry::MakeChild(
	const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale) const
{
	return FArrangedWidget(ChildWidget, MakeChild(InLocalSize, FSlateLayoutTransform(ChildScale, ChildOffset)));
}

FPaintGeometry FGeometry::ToPaintGeometry() const
{
	return FPaintGeometry(GetAccumulatedLayoutTransform(), GetAccumulatedRenderTransform(), Size, false);
}

FPaintGeometry FGeometry::ToPaintGeometry(const FVector2D& LocalOffset, const FVector2D& InLocalSize) const
{
	const FGeometry Part = MakeChild(InLocalSize, FSlateLayoutTransform(LocalOffset));
	return Part.ToPaintGeometry();
}

bool FGeometry::IsUnderLocation(const FVector2D& AbsoluteCoordinate) const
{
	const FVector2D Local = AbsoluteToLocal(AbsoluteCoordinate);
	return Local.X >= 0.0 && Local.Y >= 0.0 && Local.X < Size.X && Local.Y < Size.Y;
}

FSlateRect FGeometry::GetLayoutBoundingRect() const
{
	const FVector2D BottomRight = AbsolutePosition + GetAbsoluteSize();
	return FSlateRect(AbsolutePosition.X, AbsolutePosition.Y, BottomRight.X, BottomRight.Y);
}

FGeometry FGeometry::MovedBy(const FVector2D& Offset) const
{
	FGeometry Moved = *this;
	Moved.AbsolutePosition += Offset;
	return Moved;
}
