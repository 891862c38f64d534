#include "Application/SlateFrame.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateRoutingScope.h"
#include "Framework/Application/SlateToolTips.h"
#include "Misc/App.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/SWindow.h"

namespace
{
/** A layout may change what it depends on (a scroll bar appears, text wraps); it settles within a few rounds. */
constexpr int32 MaxLayoutRounds = 4;
}

void FSlateApplication::PumpMessages()
{
	PlatformApplication->PumpMessages(static_cast<float>(FApp::GetDeltaTime()));
	for (const TSharedRef<SWindow>& Window : TArray<TSharedRef<SWindow>>(MoveTemp(WindowsToDestroy)))
	{
		DestroyWindow(Window);
	}
}

bool FSlateApplication::NeedsFrame() const
{
	return bFrameRequested || bSyntheticMouseMoveDue || GetSecondsToNextCall() <= 0.0;
}

double FSlateApplication::GetSecondsToNextCall() const
{
	return FMath::Min(SlateFrame::GetNextCallTime(), ToolTips->GetNextCallTime()) - FApp::GetCurrentTime();
}

void FSlateApplication::Tick()
{
	CurrentTime = FApp::GetCurrentTime();
	if (bTicking || !NeedsFrame())
	{
		return;
	}
	const TGuardValue<bool> Guard(bTicking, true);
	const float DeltaTime = static_cast<float>(CurrentTime - LastTickTime);
	LastTickTime = CurrentTime;
	bFrameRequested = false;
	++NumFrames;

	PreTickEvent.Broadcast(DeltaTime);
	if (bSyntheticMouseMoveDue)
	{
		bSyntheticMouseMoveDue = false;
		ProcessSyntheticMouseMove();
	}
	ToolTips->Tick(CurrentTime);
	SlateFrame::UpdateBoundAttributes();
	UpdateWindowLayouts();
	SlateFrame::CallShownWidgets(CurrentTime, DeltaTime,
		[this](const TSharedRef<SWidget>& Widget, TFunctionRef<void()> Calls)
		{
			const FRoutingScope Scope(*this, TEXT("timer"), Widget);
			Calls();
		});
	// What the ticks and timers changed shows in this frame.
	UpdateWindowLayouts();
	DrawWindows(Windows);
	PostTickEvent.Broadcast(DeltaTime);
}

void FSlateApplication::UpdateWindowLayouts()
{
	for (const TSharedRef<SWindow>& Window : TArray<TSharedRef<SWindow>>(Windows))
	{
		for (int32 Round = 0; Round < MaxLayoutRounds && Window->IsShown() && Window->NeedsLayout(); ++Round)
		{
			Window->UpdateLayout();
			bSyntheticMouseMoveDue = true;
		}
	}
}

bool FSlateApplication::DrawWindows(const TArray<TSharedRef<SWindow>>& ToDraw)
{
	FSlateDrawBuffer& Buffer = Renderer->GetDrawBuffer();
	Buffer.ClearBuffer();
	for (const TSharedRef<SWindow>& Window : ToDraw)
	{
		if (Window->IsShown() && !Window->GetDamage().IsEmpty())
		{
			Window->PaintWindow(
				CurrentTime, static_cast<float>(FApp::GetDeltaTime()), Buffer.AddWindowElementList(&Window.Get()));
		}
	}
	if (Buffer.GetNumWindows() == 0)
	{
		return false;
	}
	Renderer->DrawWindows(Buffer);
	return true;
}

bool FSlateApplication::TakeScreenshot(const TSharedRef<SWidget>& Widget, TArray<FColor>& OutColorData, FIntVector& OutSize)
{
	const TSharedPtr<SWindow> Window = FindWidgetWindow(Widget);
	if (!Window.IsValid())
	{
		return false;
	}
	SlateFrame::UpdateBoundAttributes();
	for (int32 Round = 0; Round < MaxLayoutRounds && Window->NeedsLayout(); ++Round)
	{
		Window->UpdateLayout();
	}
	DrawWindows({Window.ToSharedRef()});

	TArray<FColor> Pixels;
	FIntPoint WindowSize;
	if (!Renderer->ReadPixels(Window.Get(), Pixels, WindowSize))
	{
		return false;
	}
	if (&Widget.Get() == Window.Get())
	{
		OutColorData = MoveTemp(Pixels);
		OutSize = FIntVector(WindowSize.X, WindowSize.Y, 0);
		return true;
	}

	const FSlateRect Part = Widget->GetPaintSpaceGeometry().GetLayoutBoundingRect().IntersectionWith(
		FSlateRect(0.0f, 0.0f, WindowSize.X, WindowSize.Y));
	const FIntPoint TopLeft(FMath::FloorToInt(Part.Left), FMath::FloorToInt(Part.Top));
	const FIntPoint Size(FMath::CeilToInt(Part.Right) - TopLeft.X, FMath::CeilToInt(Part.Bottom) - TopLeft.Y);
	OutColorData.Reset();
	for (int32 Row = 0; Row < Size.Y; ++Row)
	{
		OutColorData.Append(&Pixels[(TopLeft.Y + Row) * WindowSize.X + TopLeft.X], Size.X);
	}
	OutSize = FIntVector(Size.X, Size.Y, 0);
	return true;
}
