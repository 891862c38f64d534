#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"

/** A widget and where it lies. */
class FArrangedWidget
{
public:
	FArrangedWidget(const TSharedRef<SWidget>& InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry)
		, Widget(InWidget)
	{
	}

	FGeometry Geometry;
	TSharedRef<SWidget> Widget;
};
