#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplicationMessageHandler.h"
#include "GenericPlatform/GenericWindow.h"
#include "GenericPlatform/GenericWindowDefinition.h"
#include "GenericPlatform/ICursor.h"

/** Which modifier keys are down. */
class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(const bool bInIsLeftShiftDown, const bool bInIsRightShiftDown, const bool bInIsLeftControlDown,
		const bool bInIsRightControlDown, const bool bInIsLeftAltDown, const bool bInIsRightAltDown,
		const bool bInIsLeftCommandDown, const bool bInIsRightCommandDown, const bool bInAreCapsLocked)
		: bIsLeftShiftDown(bInIsLeftShiftDown)
		, bIsRightShiftDown(bInIsRightShiftDown)
		, bIsLeftControlDown(bInIsLeftControlDown)
		, bIsRightControlDown(bInIsRightControlDown)
		, bIsLeftAltDown(bInIsLeftAltDown)
		, bIsRightAltDown(bInIsRightAltDown)
		, bIsLeftCommandDown(bInIsLeftCommandDown)
		, bIsRightCommandDown(bInIsRightCommandDown)
		, bAreCapsLocked(bInAreCapsLocked)
	{
	}

	bool IsShiftDown() const { return bIsLeftShiftDown || bIsRightShiftDown; }
	bool IsLeftShiftDown() const { return bIsLeftShiftDown; }
	bool IsRightShiftDown() const { return bIsRightShiftDown; }
	bool IsControlDown() const { return bIsLeftControlDown || bIsRightControlDown; }
	bool IsLeftControlDown() const { return bIsLeftControlDown; }
	bool IsRightControlDown() const { return bIsRightControlDown; }
	bool IsAltDown() const { return bIsLeftAltDown || bIsRightAltDown; }
	bool IsLeftAltDown() const { return bIsLeftAltDown; }
	bool IsRightAltDown() const { return bIsRightAltDown; }
	bool IsCommandDown() const { return bIsLeftCommandDown || bIsRightCommandDown; }
	bool IsLeftCommandDown() const { return bIsLeftCommandDown; }
	bool IsRightCommandDown() const { return bIsRightCommandDown; }
	bool AreCapsLocked() const { return bAreCapsLocked; }

private:
	bool bIsLeftShiftDown = false;
	bool bIsRightShiftDown = false;
	bool bIsLeftControlDown = false;
	bool bIsRightControlDown = false;
	bool bIsLeftAltDown = false;
	bool bIsRightAltDown = false;
	bool bIsLeftCommandDown = false;
	bool bIsRightCommandDown = false;
	bool bAreCapsLocked = false;
};

/** A rectangle of the desktop in pixels; right and bottom lie outside. */
struct FPlatformRect
{
	FPlatformRect() = default;
	FPlatformRect(int32 InLeft, int32 InTop, int32 InRight, int32 InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	bool operator==(const FPlatformRect& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}

	int32 Left = 0;
	int32 Top = 0;
	int32 Right = 0;
	int32 Bottom = 0;
};

/** The platform's side of the application: makes windows, reads input and reports it to the message handler. */
class APPLICATIONCORE_API GenericApplication
{
public:
	explicit GenericApplication(const TSharedPtr<ICursor>& InCursor);
	GenericApplication(const GenericApplication&) = delete;
	GenericApplication& operator=(const GenericApplication&) = delete;
	virtual ~GenericApplication() = default;

	/** Reports go nowhere until a handler is set. */
	virtual void SetMessageHandler(const TSharedRef<FGenericApplicationMessageHandler>& InMessageHandler);
	TSharedRef<FGenericApplicationMessageHandler> GetMessageHandler() const { return MessageHandler; }

	/** Reports everything that has happened since the last call. Never waits. */
	virtual void PumpMessages(const float TimeDelta) = 0;

	/**
	 * Sleeps until there is something to pump, but no longer than the given time.
	 *
	 * @return True when there is something to pump.
	 */
	virtual bool WaitForMessages(const double Seconds) = 0;

	/** Ends the sleep of WaitForMessages, or its next one. May be called on any thread. */
	virtual void WakeUp() = 0;

	/** A window without a native counterpart yet; InitializeWindow makes that. */
	virtual TSharedRef<FGenericWindow> MakeWindow() = 0;
	virtual void InitializeWindow(const TSharedRef<FGenericWindow>& Window,
		const TSharedRef<FGenericWindowDefinition>& InDefinition, const TSharedPtr<FGenericWindow>& InParent,
		const bool bShowImmediately) = 0;

	/** Notes which window wants the mouse, also outside of it, for as long as a button is down; null ends that. */
	virtual void SetCapture(const TSharedPtr<FGenericWindow>& InWindow) = 0;
	virtual void* GetCapture() const = 0;

	/** The modifiers that are down in the report that is handled now. */
	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }

	/** For whoever makes up reports in place of the platform. The platform's own next key or mouse report sets it anew. */
	void SetModifierKeys(const FModifierKeysState& InModifierKeys) { ModifierKeys = InModifierKeys; }

	/** The monitor part, without the desktop's bars, of the monitor that holds the middle of a rectangle. */
	virtual FPlatformRect GetWorkArea(const FPlatformRect& CurrentWindow) const = 0;

	/** False for an application whose windows nobody sees. */
	virtual bool HasVisibleWindows() const = 0;

	/** Ends every window; nothing may be called afterwards. */
	virtual void DestroyApplication() = 0;

	const TSharedPtr<ICursor> Cursor;

protected:
	TSharedRef<FGenericApplicationMessageHandler> MessageHandler;
	FModifierKeysState ModifierKeys;
};
