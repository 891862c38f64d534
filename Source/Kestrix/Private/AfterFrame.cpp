#include "AfterFrame.h"

#include "Framework/Application/SlateApplication.h"

namespace
{
int32 NumTickScopes = 0;
TArray<TFunction<void()>> WaitingWork;
FDelegateHandle PostTickHandle;

void StopListening()
{
	if (PostTickHandle.IsValid() && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().OnPostTick().Remove(PostTickHandle);
	}
	PostTickHandle.Reset();
}

void RunWaitingWork(float DeltaTime)
{
	// A frame within a widget's tick, of a dialog for one, is still within the painting of another.
	if (FWidgetTickScope::IsInside())
	{
		return;
	}
	StopListening();
	const TArray<TFunction<void()>> Works = MoveTemp(WaitingWork);
	WaitingWork.Reset();
	for (const TFunction<void()>& Work : Works)
	{
		Work();
	}
}
}

FWidgetTickScope::FWidgetTickScope()
{
	++NumTickScopes;
}

FWidgetTickScope::~FWidgetTickScope()
{
	--NumTickScopes;
}

bool FWidgetTickScope::IsInside()
{
	return NumTickScopes > 0;
}

void RunAfterFrame(TFunction<void()> Work)
{
	WaitingWork.Add(MoveTemp(Work));
	if (!PostTickHandle.IsValid())
	{
		PostTickHandle = FSlateApplication::Get().OnPostTick().AddStatic(&RunWaitingWork);
	}
}

void DropWorkAfterFrame()
{
	StopListening();
	WaitingWork.Empty();
}
