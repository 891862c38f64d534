#pragma once

#include "CoreMinimal.h"

class SWidget;

/**
 * The widgets that want to be called in each frame in which they are shown: those with active timers and those that tick.
 * A widget may enter or leave while it is being called.
 */
class FFrameCalledWidgets
{
public:
	static FFrameCalledWidgets& Get();

	void Add(SWidget& Widget);
	void Remove(SWidget& Widget);

	/** All widgets of the list at this moment. */
	TArray<TWeakPtr<SWidget>> Snapshot() const;
	bool IsEmpty() const { return Widgets.Num() == 0; }

private:
	TSet<SWidget*> Widgets;
};
