#pragma once

#include "CoreMinimal.h"

/** The steps of a frame that are not bound to one window. FSlateApplication calls them in this order. */
namespace SlateFrame
{
/** Evaluates the bound attributes of all widgets that are shown, or whose parent is. A changed value invalidates its widget. */
SLATECORE_API void UpdateBoundAttributes();

/**
 * Calls the ticks and the due active timers of all widgets that are shown.
 *
 * @return The time in seconds at which the next active timer of a shown widget is due; beyond all time when there is none.
 */
SLATECORE_API double CallShownWidgets(double CurrentTime, float DeltaTime);

/** The time at which the next active timer of a shown widget is due; beyond all time when there is none. */
SLATECORE_API double GetNextCallTime();
}
