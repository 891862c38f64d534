#include "Offscreen/OffscreenApplication.h"

#include "Offscreen/OffscreenCursor.h"

#include <chrono>

FOffscreenApplication::FOffscreenApplication()
	: GenericApplication(MakeShared<FOffscreenCursor>())
{
}

FOffscreenApplication::~FOffscreenApplication()
{
	DestroyApplication();
}

void FOffscreenApplication::PumpMessages(const float TimeDelta)
{
	// What a report causes to be reported comes in the same pump, as with a platform that reports at once.
	while (Reports.Num() > 0)
	{
		const FReport Report = MoveTemp(Reports[0]);
		Reports.RemoveAt(0);
		Report.Deliver();
	}
}

bool FOffscreenApplication::WaitForMessages(const double Seconds)
{
	std::unique_lock<std::mutex> Lock(SleepMutex);
	if (Reports.Num() == 0)
	{
		Sleep.wait_for(Lock, std::chrono::duration<double>(Seconds), [this] { return bWoken; });
	}
	bWoken = false;
	return Reports.Num() > 0;
}

void FOffscreenApplication::WakeUp()
{
	{
		const std::lock_guard<std::mutex> Lock(SleepMutex);
		bWoken = true;
	}
	Sleep.notify_one();
}

TSharedRef<FGenericWindow> FOffscreenApplication::MakeWindow()
{
	return MakeShared<FOffscreenWindow>(*this);
}

void FOffscreenApplication::InitializeWindow(const TSharedRef<FGenericWindow>& Window,
	const TSharedRef<FGenericWindowDefinition>& InDefinition, const TSharedPtr<FGenericWindow>& InParent,
	const bool bShowImmediately)
{
	const TSharedRef<FOffscreenWindow> NewWindow = StaticCastSharedRef<FOffscreenWindow>(Window);
	NewWindow->Initialize(InDefinition);
	Windows.Add(NewWindow);
	if (bShowImmediately)
	{
		NewWindow->Show();
	}
}

void* FOffscreenApplication::GetCapture() const
{
	const TSharedPtr<FGenericWindow> Window = CaptureWindow.Pin();
	return Window ? Window->GetOSWindowHandle() : nullptr;
}

FPlatformRect FOffscreenApplication::GetWorkArea(const FPlatformRect& CurrentWindow) const
{
	return FPlatformRect(0, 0, 1920, 1080);
}

void FOffscreenApplication::DestroyApplication()
{
	for (const TSharedRef<FOffscreenWindow>& Window : Windows)
	{
		Window->Orphan();
	}
	Windows.Empty();
	Reports.Empty();
}

void FOffscreenApplication::Activate(const TSharedRef<FOffscreenWindow>& Window)
{
	if (IsActive(*Window))
	{
		return;
	}
	if (const TSharedPtr<FOffscreenWindow> Previous = ActiveWindow.Pin())
	{
		Deactivate(*Previous);
	}
	ActiveWindow = Window;
	Report(*Window, &FGenericApplicationMessageHandler::OnWindowActivationChanged, EWindowActivation::Activate);
}

void FOffscreenApplication::Deactivate(const FOffscreenWindow& Window)
{
	const TSharedPtr<FOffscreenWindow> Active = ActiveWindow.Pin();
	if (Active.Get() != &Window)
	{
		return;
	}
	ActiveWindow.Reset();
	Report(*Active, &FGenericApplicationMessageHandler::OnWindowActivationChanged, EWindowActivation::Deactivate);
}

void FOffscreenApplication::Forget(const FOffscreenWindow& Window)
{
	Reports.RemoveAll([&Window](const FReport& Report) { return Report.Window == &Window; });
	if (IsActive(Window))
	{
		ActiveWindow.Reset();
	}
	Windows.RemoveAll([&Window](const TSharedRef<FOffscreenWindow>& Candidate) { return &Candidate.Get() == &Window; });
}
