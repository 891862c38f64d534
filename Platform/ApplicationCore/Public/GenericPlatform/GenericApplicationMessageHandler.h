#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"

class FGenericWindow;

namespace EMouseButtons
{
enum Type
{
	Left = 0,
	Middle,
	Right,
	Thumb01,
	Thumb02,
	Invalid,
};
}

enum class EWindowActivation : uint8
{
	Activate,
	ActivateByMouse,
	Deactivate,
};

/**
 * Takes what the platform reports. Each function answers whether the report was handled; the defaults do nothing.
 * Cursor positions are desktop pixels. Key and character codes are those of FInputKeyManager.
 */
class FGenericApplicationMessageHandler
{
public:
	virtual ~FGenericApplicationMessageHandler() = default;

	/**
	 * A character was typed, with the keyboard layout and its dead keys applied. Backspace, Tab and Enter come as '\b', '\t'
	 * and '\r' after their OnKeyDown. A character beyond 16 bits comes as its two surrogates.
	 */
	virtual bool OnKeyChar(const TCHAR Character, const bool IsRepeat) { return false; }
	virtual bool OnKeyDown(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat) { return false; }
	virtual bool OnKeyUp(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat) { return false; }

	virtual bool OnMouseDown(
		const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos)
	{
		return false;
	}
	virtual bool OnMouseUp(const EMouseButtons::Type Button, const FVector2D CursorPos) { return false; }

	/** Comes in place of the second OnMouseDown of a double click. */
	virtual bool OnMouseDoubleClick(
		const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos)
	{
		return false;
	}

	/** @param Delta  Notches; positive away from the user. */
	virtual bool OnMouseWheel(const float Delta, const FVector2D CursorPos) { return false; }

	/** The cursor has moved; its position is the platform cursor's. */
	virtual bool OnMouseMove() { return false; }

	/** The mouse has entered a window, or has left all of them. */
	virtual bool OnCursorSet() { return false; }

	/** The client area has a new size in pixels. */
	virtual bool OnSizeChanged(
		const TSharedRef<FGenericWindow>& Window, const int32 Width, const int32 Height, bool bWasMinimized = false)
	{
		return false;
	}

	/** The window's pixels are lost and must be presented again, all of them. */
	virtual void OnOSPaint(const TSharedRef<FGenericWindow>& Window) {}

	/** The client area's top left corner has moved. */
	virtual void OnMovedWindow(const TSharedRef<FGenericWindow>& Window, const int32 X, const int32 Y) {}
	virtual bool OnWindowActivationChanged(const TSharedRef<FGenericWindow>& Window, const EWindowActivation ActivationType)
	{
		return false;
	}
	/** The user wants the window closed; it stays until Destroy. */
	virtual void OnWindowClose(const TSharedRef<FGenericWindow>& Window) {}
};
