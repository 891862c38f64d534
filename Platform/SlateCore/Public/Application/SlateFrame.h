#pragma once

#include "CoreMinimal.h"

class SWidget;

/** The steps of a frame that are not bound to one window. FSlateApplication calls them in this order. */
namespace SlateFrame
{
/** Evaluates the bound attributes of all widgets that are shown, or whose parent is. A changed value invalidates its widget. */
SLATECORE_API void UpdateBoundAttributes();

/**
 * Calls the ticks and the due active timers of all widgets that are shown.
 *
 * @param Around  Is given each widget with the calls that are due, and makes them.
 */
SLATECORE_API void CallShownWidgets(double CurrentTime, float DeltaTime,
	TFunctionRef<void(const TSharedRef<SWidget>& Widget, TFunctionRef<void()> Calls)> Around);

/** The time at which the next active timer of a shown widget is due; beyond all time when there is none. */
SLATECORE_API double GetNextCallTime();
}
