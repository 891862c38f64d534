#include "BenchmarkWindow.h"

#include "Framework/Application/SlateApplication.h"
#include "Misc/App.h"
#include "Misc/CommandLine.h"
#include "Widgets/SWindow.h"

FSlateApplication& GetApplication()
{
	if (!FSlateApplication::IsInitialized())
	{
		FCommandLine::Set(TEXT("-RenderOffScreen"));
		FSlateApplication::Create();
	}
	return FSlateApplication::Get();
}

void PassFrame()
{
	FApp::SetCurrentTime(FApp::GetCurrentTime() + 1.0 / 60.0);
	FSlateApplication::Get().PumpMessages();
	FSlateApplication::Get().Tick();
}

TSharedRef<SWindow> ShowWindow(const TSharedRef<SWidget>& Content)
{
	return GetApplication().AddWindow(SNew(SWindow).ClientSize(FVector2D(1280.0, 800.0))[Content]);
}

void CloseWindow(const TSharedRef<SWindow>& Window)
{
	GetApplication().RequestDestroyWindow(Window);
	GetApplication().PumpMessages();
}
