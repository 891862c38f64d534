#include "GarbageSchedule.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Misc/App.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Docking/SDockTab.h"

bool FGarbageSchedule::FollowTabs()
{
	const bool bGone = Tabs.RemoveAll([](const TWeakPtr<SDockTab>& Tab) { return !Tab.IsValid(); }) > 0;
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		Tabs.AddUnique(Tab);
	}
	return bGone;
}

void FGarbageSchedule::EndFrame()
{
	const uint64 NumFrames = FSlateApplication::Get().GetNumFrames();
	if (FramesSeen != NumFrames)
	{
		FramesSeen = NumFrames;
		if (FollowTabs())
		{
			RequestGarbageCollection();
		}
	}
	const double Now = FApp::GetCurrentTime();
	if (FramesAtCollection != NumFrames && Now - LastCollection >= Period)
	{
		RequestGarbageCollection();
	}
	if (CollectRequestedGarbage())
	{
		LastCollection = Now;
		FramesAtCollection = NumFrames;
	}
}
