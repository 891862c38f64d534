#pragma once

#include "CoreMinimal.h"

class SWidget;

/** What is shown when the mouse rests over a widget. */
class IToolTip
{
public:
	virtual ~IToolTip() = default;

	virtual TSharedRef<SWidget> AsWidget() = 0;

	/** True when there is nothing to show at the moment. */
	virtual bool IsEmpty() const = 0;

	/** Makes it no wider, in slate units, than there is room for. */
	virtual void LimitWidth(float MaxWidth) = 0;
};
