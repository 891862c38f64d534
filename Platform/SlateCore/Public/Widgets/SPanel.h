#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

/** A widget that only arranges its children. It cannot be hit itself. */
class SLATECORE_API SPanel : public SWidget
{
protected:
	SPanel();

	/** Paints children where they were arranged. @return The highest layer used. */
	int32 PaintArrangedChildren(const FPaintArgs& Args, const FArrangedChildren& ArrangedChildren,
		const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;
};
