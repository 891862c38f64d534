#pragma once

#include "CoreMinimal.h"

/**
 * Stands around a command that runs with a widget's active timer. Active timers run while their window is being painted: what opens
 * or paints a window of its own there would enter painting again, and has to wait until the frame is done.
 */
class FWidgetTickScope
{
public:
	FWidgetTickScope();
	~FWidgetTickScope();

	FWidgetTickScope(const FWidgetTickScope&) = delete;
	FWidgetTickScope& operator=(const FWidgetTickScope&) = delete;

	/** Whether a command of a widget's tick is running, be it through calls of others. */
	static bool IsInside();
};

/** Runs work once the current frame is painted, in the application's next post-tick event, in the order of the calls. */
void RunAfterFrame(TFunction<void()> Work);

/** Forgets the work that waits. The module's end calls it. */
void DropWorkAfterFrame();
