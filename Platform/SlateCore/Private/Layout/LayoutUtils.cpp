#include "Layout/LayoutUtils.h"

#include "Widgets/SWidget.h"

namespace
{
enum class EPlace
{
	Fill,
	Start,
	Middle,
	End,
};

AlignmentArrangeResult Align(EPlace Place, float AllottedSize, float DesiredSize, float SpaceBefore, float SpaceAfter)
{
	const float Room = FMath::Max(AllottedSize - SpaceBefore - SpaceAfter, 0.0f);
	const float Size = Place == EPlace::Fill ? Room : FMath::Min(DesiredSize, Room);
	switch (Place)
	{
		case EPlace::Middle:
			return {SpaceBefore + (Room - Size) / 2.0f, Size};
		case EPlace::End:
			return {AllottedSize - SpaceAfter - Size, Size};
		default:
			return {SpaceBefore, Size};
	}
}
}

// Fill, start, middle and end have the same values in both alignments.
AlignmentArrangeResult AlignChild(EHorizontalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding)
{
	return Align(static_cast<EPlace>(Alignment), AllottedSize, DesiredSize, Padding.Left, Padding.Right);
}

AlignmentArrangeResult AlignChild(EVerticalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding)
{
	return Align(static_cast<EPlace>(Alignment), AllottedSize, DesiredSize, Padding.Top, Padding.Bottom);
}

void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const TSharedRef<SWidget>& Child,
	const FMargin& Padding, EHorizontalAlignment HAlign, EVerticalAlignment VAlign)
{
	const EVisibility Visibility = Child->GetVisibility();
	if (!ArrangedChildren.Accepts(Visibility))
	{
		return;
	}
	const FVector2D& Room = AllottedGeometry.GetLocalSize();
	const FVector2D& Desired = Child->GetDesiredSize();
	const AlignmentArrangeResult X = AlignChild(HAlign, Room.X, Desired.X, Padding);
	const AlignmentArrangeResult Y = AlignChild(VAlign, Room.Y, Desired.Y, Padding);
	ArrangedChildren.AddWidget(
		Visibility, AllottedGeometry.MakeChild(Child, FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
}
