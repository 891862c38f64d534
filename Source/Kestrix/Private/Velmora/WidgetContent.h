#pragma once

#include "CoreMinimal.h"

class SWidget;

/** Whether a widget of that type takes the one child of its key "Content". */
bool IsContentWidget(const FString& WidgetType);

/** Gives a child to a widget that holds one; other widgets draw a warning. */
void SetContent(TSharedRef<SWidget> Child, TSharedRef<SWidget> Parent);
