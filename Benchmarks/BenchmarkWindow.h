#pragma once

#include "Templates/SharedPointer.h"

class FSlateApplication;
class SWidget;
class SWindow;

/** The application, made off-screen when it is first asked for. */
FSlateApplication& GetApplication();

/** The work of one frame; 1/60 s passes by the application's clock. */
void PassFrame();

/** A window of 1280 x 800 pixels that shows a widget. */
TSharedRef<SWindow> ShowWindow(const TSharedRef<SWidget>& Content);
void CloseWindow(const TSharedRef<SWindow>& Window);
