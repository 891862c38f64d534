#pragma once

#include "CoreMinimal.h"

class SWidget;
class SWindow;

namespace SlateHitTest
{
/** The widgets under a place of a window, from the window down to the deepest that can be hit. Empty outside of the window. */
TArray<SWidget*> FindPath(SWindow& Window, const FVector2D& PlaceInWindow);
}
