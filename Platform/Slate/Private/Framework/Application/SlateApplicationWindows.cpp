#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateToolTips.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/SWindow.h"

TSharedRef<SWindow> FSlateApplication::AddWindow(const TSharedRef<SWindow>& InSlateWindow, bool bShowImmediately)
{
	const TSharedRef<FGenericWindow> Native = PlatformApplication->MakeWindow();
	InSlateWindow->SetNativeWindow(Native);
	const TSharedRef<FGenericWindowDefinition> Definition =
		MakeShared<FGenericWindowDefinition>(InSlateWindow->MakeDefinition(PlatformApplication->GetWorkArea(FPlatformRect())));
	PlatformApplication->InitializeWindow(Native, Definition, nullptr, bShowImmediately);

	const FIntRect Client = Native->GetClientRect();
	InSlateWindow->SetCachedScreenPosition(FVector2D(Client.Min));
	const FIntPoint Size = Client.Max - Client.Min;
	Renderer->CreateViewport(&InSlateWindow.Get(), Native, Size);
	InSlateWindow->SetCachedSize(FVector2D(Size));
	Windows.Add(InSlateWindow);
	if (bShowImmediately)
	{
		InSlateWindow->ShowWindow();
		ActiveWindow = InSlateWindow;
	}
	RequestFrame();
	return InSlateWindow;
}

void FSlateApplication::RequestDestroyWindow(const TSharedRef<SWindow>& WindowToDestroy)
{
	// Not at once: an event may be on its way through the window.
	WindowsToDestroy.AddUnique(WindowToDestroy);
	WindowToDestroy->HideWindow();
	RequestFrame();
}

void FSlateApplication::DestroyWindow(const TSharedRef<SWindow>& Window)
{
	if (!Windows.Contains(Window))
	{
		return;
	}
	Window->NotifyWindowBeingDestroyed();
	Windows.Remove(Window);
	if (GetFocusPath().ContainsWidget(&Window.Get()))
	{
		ClearKeyboardFocus(EFocusCause::OtherWidgetLostFocus);
	}
	if (HoverPath.ContainsWidget(&Window.Get()))
	{
		ToolTips->Close();
		HoverPath = FWeakWidgetPath();
	}
	if (ActiveWindow == Window)
	{
		ActiveWindow = Windows.Num() > 0 ? TWeakPtr<SWindow>(Windows.Last()) : nullptr;
	}
	Renderer->OnWindowDestroyed(&Window.Get());
	if (Window->GetNativeWindow().IsValid())
	{
		Window->GetNativeWindow()->Destroy();
	}
	RequestFrame();
}

void FSlateApplication::CloseAllWindowsImmediately()
{
	ToolTips->Close();
	while (Windows.Num() > 0)
	{
		DestroyWindow(TSharedRef<SWindow>(Windows.Last()));
	}
	WindowsToDestroy.Empty();
}

TArray<TSharedRef<SWindow>> FSlateApplication::GetInteractiveTopLevelWindows() const
{
	return Windows.FilterByPredicate([](const TSharedRef<SWindow>& Window) { return Window->IsShown(); });
}

TSharedPtr<SWindow> FSlateApplication::FindWidgetWindow(const TSharedRef<const SWidget>& InWidget) const
{
	SWindow* const Window = const_cast<SWidget&>(InWidget.Get()).GetRootWidget().AsWindow();
	return Window ? TSharedPtr<SWindow>(StaticCastSharedRef<SWindow>(Window->AsShared())) : nullptr;
}

TSharedPtr<SWindow> FSlateApplication::FindWindowByNative(const TSharedRef<FGenericWindow>& Native) const
{
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		if (Window->GetNativeWindow() == Native)
		{
			return Window;
		}
	}
	return nullptr;
}

bool FSlateApplication::OnSizeChanged(
	const TSharedRef<FGenericWindow>& Window, const int32 Width, const int32 Height, bool bWasMinimized)
{
	const TSharedPtr<SWindow> SlateWindow = FindWindowByNative(Window);
	if (SlateWindow.IsValid() && !bWasMinimized)
	{
		SlateWindow->SetCachedSize(FVector2D(Width, Height));
		RequestFrame();
	}
	return SlateWindow.IsValid();
}

void FSlateApplication::OnOSPaint(const TSharedRef<FGenericWindow>& Window)
{
	if (const TSharedPtr<SWindow> SlateWindow = FindWindowByNative(Window))
	{
		SlateWindow->DamageAll();
		RequestFrame();
	}
}

void FSlateApplication::OnMovedWindow(const TSharedRef<FGenericWindow>& Window, const int32 X, const int32 Y)
{
	if (const TSharedPtr<SWindow> SlateWindow = FindWindowByNative(Window))
	{
		SlateWindow->SetCachedScreenPosition(FVector2D(X, Y));
		RequestFrame();
	}
}

bool FSlateApplication::OnWindowActivationChanged(
	const TSharedRef<FGenericWindow>& Window, const EWindowActivation ActivationType)
{
	const TSharedPtr<SWindow> SlateWindow = FindWindowByNative(Window);
	if (!SlateWindow.IsValid())
	{
		return false;
	}
	RequestFrame();
	if (ActivationType == EWindowActivation::Deactivate)
	{
		ReleaseMouseCapture();
		ToolTips->Close();
		return true;
	}
	ActiveWindow = SlateWindow;
	Windows.Remove(SlateWindow.ToSharedRef());
	Windows.Add(SlateWindow.ToSharedRef());
	return true;
}

void FSlateApplication::OnWindowClose(const TSharedRef<FGenericWindow>& Window)
{
	if (const TSharedPtr<SWindow> SlateWindow = FindWindowByNative(Window))
	{
		SlateWindow->RequestDestroyWindow();
		RequestFrame();
	}
}
