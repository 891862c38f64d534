#pragma once

#include "CoreMinimal.h"

class SDockTab;

/**
 * When the editor collects garbage by itself: after a minute of its time in which something ran, and once a closed tab is gone, with
 * what only it referred to. An editor in which nothing runs drops nothing, and is left alone.
 */
class FGarbageSchedule
{
public:
	/** To be called after each frame, with nothing of the editor on the stack. Collects if it is time to, or if somebody asked for it. */
	void EndFrame();

private:
	/** In seconds of the editor's time. */
	static constexpr double Period = 60.0;

	/** Looks at the tabs anew. @return Whether one of those seen before is gone. */
	bool FollowTabs();

	double LastCollection = 0.0;
	/** What ran since the last collection is told by these. */
	uint64 FramesAtCollection = 0;
	uint64 FramesSeen = 0;
	TArray<TWeakPtr<SDockTab>> Tabs;
};
