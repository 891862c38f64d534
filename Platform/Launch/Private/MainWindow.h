#pragma once

#include "CoreMinimal.h"

class SWindow;

/** The editor's window with the area in which tabs open, not shown yet. */
TSharedRef<SWindow> MakeMainWindow();
