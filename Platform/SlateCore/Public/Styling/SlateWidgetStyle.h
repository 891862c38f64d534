#pragma once

#include "CoreMinimal.h"

/** The base of the looks of one kind of widget. */
struct SLATECORE_API FSlateWidgetStyle
{
	virtual ~FSlateWidgetStyle() = default;

	/** The name of the derived type, by which a style set tells a button's style from a check box's. */
	virtual const FName GetTypeName() const = 0;
};
