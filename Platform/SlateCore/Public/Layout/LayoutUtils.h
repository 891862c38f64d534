#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Margin.h"

/** Where a child lies along one axis of its slot. */
struct AlignmentArrangeResult
{
	float Offset;
	float Size;
};

/**
 * Places a child along one axis.
 *
 * @param AllottedSize The slot's room, padding included.
 * @param DesiredSize The child's desired size. A child that does not fill gets it, but never more than the room.
 */
SLATECORE_API AlignmentArrangeResult AlignChild(
	EHorizontalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding);
SLATECORE_API AlignmentArrangeResult AlignChild(
	EVerticalAlignment Alignment, float AllottedSize, float DesiredSize, const FMargin& Padding);

/** Arranges one child by padding and alignment within the whole geometry. */
SLATECORE_API void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren,
	const TSharedRef<SWidget>& Child, const FMargin& Padding, EHorizontalAlignment HAlign, EVerticalAlignment VAlign);
