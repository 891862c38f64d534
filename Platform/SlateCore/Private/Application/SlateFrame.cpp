#include "Application/SlateFrame.h"

#include "Application/FrameCalledWidgets.h"
#include "Widgets/SWidget.h"

namespace
{
constexpr double BeyondAllTime = 1e300;
}

FFrameCalledWidgets& FFrameCalledWidgets::Get()
{
	static FFrameCalledWidgets Instance;
	return Instance;
}

void FFrameCalledWidgets::Add(SWidget& Widget)
{
	Widgets.Add(&Widget);
}

void FFrameCalledWidgets::Remove(SWidget& Widget)
{
	Widgets.Remove(&Widget);
}

TArray<TWeakPtr<SWidget>> FFrameCalledWidgets::Snapshot() const
{
	TArray<TWeakPtr<SWidget>> Result;
	Result.Reserve(Widgets.Num());
	for (SWidget* Widget : Widgets)
	{
		Result.Add(Widget->AsShared());
	}
	return Result;
}

void SlateFrame::CallShownWidgets(
	double CurrentTime, float DeltaTime, TFunctionRef<void(const TSharedRef<SWidget>& Widget, TFunctionRef<void()> Calls)> Around)
{
	for (const TWeakPtr<SWidget>& Entry : FFrameCalledWidgets::Get().Snapshot())
	{
		const TSharedPtr<SWidget> Widget = Entry.Pin();
		if (!Widget.IsValid() || !Widget->IsShownInFrame() || Widget->GetNextCallTime() > CurrentTime)
		{
			continue;
		}
		Around(Widget.ToSharedRef(),
			[&Widget, CurrentTime, DeltaTime]
			{
				if (Widget->GetCanTick())
				{
					Widget->Tick(Widget->GetTickSpaceGeometry(), CurrentTime, DeltaTime);
				}
				Widget->ExecuteActiveTimers(CurrentTime, DeltaTime);
			});
	}
}

double SlateFrame::GetNextCallTime()
{
	double NextCallTime = BeyondAllTime;
	for (const TWeakPtr<SWidget>& Entry : FFrameCalledWidgets::Get().Snapshot())
	{
		const TSharedPtr<SWidget> Widget = Entry.Pin();
		if (Widget.IsValid() && Widget->IsShownInFrame())
		{
			NextCallTime = FMath::Min(NextCallTime, Widget->GetNextCallTime());
		}
	}
	return NextCallTime;
}
