#pragma once

#include "CoreMinimal.h"

class FJsonValue;
class SWidget;

/**
 * Applies a behaviour key to a widget that exists already, through the widget's public setters.
 *
 * A key that has no setter for this widget draws a warning, unless the widget's builder has read it.
 *
 * @param Path  Place in the tree, for the warning.
 */
void Decorate(const TSharedRef<SWidget>& Widget, const FString& Key, const TSharedPtr<FJsonValue>& Value, const FString& Path);
