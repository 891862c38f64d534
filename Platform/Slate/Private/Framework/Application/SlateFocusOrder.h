#pragma once

#include "Types/SlateEnums.h"

class SWidget;
class SWindow;

/** Where the keyboard focus goes next. Only widgets that take the focus, are enabled and not hidden are considered. */
namespace SlateFocusOrder
{
/** The one behind, or before, the given widget in the order of the tree; round at the ends. From null it is the first, or last. */
SWidget* FindNext(SWindow& Window, const SWidget* From, bool bForward);

/** The nearest one that lies in a direction of the given widget; null when there is none. */
SWidget* FindNearest(SWindow& Window, const SWidget& From, EUINavigation Direction);
}
