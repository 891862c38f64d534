#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

/** Whether a widget cuts what it and its children paint at its bounds. */
enum class EWidgetClipping : uint8
{
	/** As the parent does. */
	Inherit,
	ClipToBounds,
	ClipToBoundsWithoutIntersecting,
	ClipToBoundsAlways,
	/** Only where the content is larger than the widget. */
	OnDemand,
};

/** A rectangle in window space at which painting is cut. */
class FSlateClippingZone
{
public:
	explicit FSlateClippingZone(const FSlateRect& InRect)
		: Rect(InRect)
	{
	}

	const FSlateRect& GetBoundingBox() const { return Rect; }

	/** With false the zone replaces those around it. */
	void SetShouldIntersectParent(bool bValue) { bIntersect = bValue; }
	bool GetShouldIntersectParent() const { return bIntersect; }

private:
	FSlateRect Rect;
	bool bIntersect = true;
};
