#include "Layout/Geometry.h"

#include "Layout/ArrangedWidget.h"

FGeometry FGeometry::MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	return FGeometry(InLocalSize, LayoutTransform.GetTranslation(), LayoutTransform.GetScale());
}

FGeometry FGeometry::MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LocalTransform) const
{
	return FGeometry(InLocalSize, LocalToAbsolute(LocalTransform.GetTranslation()), Scale * LocalTransform.GetScale());
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
	return FGeometry(Size, AbsolutePosition + Offset, Scale);
}
