#include "SlateTestWindow.h"

#include <gtest/gtest.h>

#include "Misc/App.h"
#include "Rendering/SlateRenderer.h"

namespace
{
constexpr double FrameTime = 1.0 / 60.0;

FSlateApplication& App()
{
	return FSlateApplication::Get();
}
}

FSlateTestWindow::FSlateTestWindow(const TSharedRef<SWidget>& Content, const FVector2D& Size)
{
	// Whatever was done before, the mouse begins in the far corner of the desktop.
	App().GetPlatformApplication()->Cursor->SetPosition(1919, 1079);
	App().OnMouseMove();
	Window = App().AddWindow(SNew(SWindow).ClientSize(Size).Title(FText::FromString(TEXT("Test")))[Content]);
	Frame();
	Frame();
}

FSlateTestWindow::~FSlateTestWindow()
{
	App().ReleaseMouseCapture();
	App().RequestDestroyWindow(Window.ToSharedRef());
	App().PumpMessages();
}

void FSlateTestWindow::Frame()
{
	FApp::SetDeltaTime(FrameTime);
	FApp::SetCurrentTime(FApp::GetCurrentTime() + FrameTime);
	App().PumpMessages();
	App().Tick();
}

void FSlateTestWindow::Wait(double Seconds)
{
	for (double Passed = 0.0; Passed < Seconds; Passed += FrameTime)
	{
		Frame();
	}
}

void FSlateTestWindow::MoveMouse(const FVector2D& Place)
{
	const FVector2D OnDesktop = Place + Window->GetPositionInScreen();
	App().GetPlatformApplication()->Cursor->SetPosition(FMath::RoundToInt32(OnDesktop.X), FMath::RoundToInt32(OnDesktop.Y));
	App().OnMouseMove();
	Frame();
}

void FSlateTestWindow::Press(EMouseButtons::Type Button)
{
	App().OnMouseDown(Window->GetNativeWindow(), Button, App().GetCursorPos());
	Frame();
}

void FSlateTestWindow::Release(EMouseButtons::Type Button)
{
	App().OnMouseUp(Button, App().GetCursorPos());
	Frame();
}

FVector2D FSlateTestWindow::MiddleOf(const SWidget& Widget) const
{
	return Widget.GetPaintSpaceGeometry().GetLayoutBoundingRect().GetCenter();
}

void FSlateTestWindow::Click(const TSharedRef<SWidget>& Widget, EMouseButtons::Type Button)
{
	ClickAt(MiddleOf(Widget.Get()), Button);
}

void FSlateTestWindow::ClickAt(const FVector2D& Place, EMouseButtons::Type Button)
{
	MoveMouse(Place);
	Press(Button);
	Release(Button);
}

void FSlateTestWindow::DoubleClickAt(const FVector2D& Place)
{
	ClickAt(Place);
	App().OnMouseDoubleClick(Window->GetNativeWindow(), EMouseButtons::Left, App().GetCursorPos());
	Frame();
	Release();
}

void FSlateTestWindow::Wheel(float Delta)
{
	App().OnMouseWheel(Delta, App().GetCursorPos());
	Frame();
}

void FSlateTestWindow::SetModifiers(const FHeldModifiers& Modifiers)
{
	App().GetPlatformApplication()->SetModifierKeys(
		FModifierKeysState(Modifiers.bShift, false, Modifiers.bControl, false, Modifiers.bAlt, false, false, false, false));
}

void FSlateTestWindow::KeyDown(const FKey& Key, FHeldModifiers Modifiers, bool bRepeat)
{
	const uint32* KeyCode = nullptr;
	const uint32* CharacterCode = nullptr;
	FInputKeyManager::Get().GetCodesFromKey(Key, KeyCode, CharacterCode);
	SetModifiers(Modifiers);
	App().OnKeyDown(KeyCode ? *KeyCode : 0, CharacterCode ? *CharacterCode : 0, bRepeat);
	Frame();
}

void FSlateTestWindow::KeyUp(const FKey& Key, FHeldModifiers Modifiers)
{
	const uint32* KeyCode = nullptr;
	const uint32* CharacterCode = nullptr;
	FInputKeyManager::Get().GetCodesFromKey(Key, KeyCode, CharacterCode);
	SetModifiers(Modifiers);
	App().OnKeyUp(KeyCode ? *KeyCode : 0, CharacterCode ? *CharacterCode : 0, false);
	SetModifiers(FHeldModifiers());
	Frame();
}

void FSlateTestWindow::PressKey(const FKey& Key, FHeldModifiers Modifiers)
{
	KeyDown(Key, Modifiers);
	KeyUp(Key, Modifiers);
}

void FSlateTestWindow::TypeText(const FString& Text)
{
	for (const TCHAR Character : Text)
	{
		App().OnKeyChar(Character, false);
		Frame();
	}
}

FColor FSlateTestWindow::GetPixel(int32 X, int32 Y)
{
	TArray<FColor> Pixels;
	FIntVector Size;
	EXPECT_TRUE(App().TakeScreenshot(Window.ToSharedRef(), Pixels, Size));
	return Pixels[Y * Size.X + X];
}

int32 FSlateTestWindow::CountPaintedElements()
{
	return App().GetRenderer()->GetStatistics().ElementsPainted;
}
