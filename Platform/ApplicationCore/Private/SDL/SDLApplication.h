#pragma once

#include "GenericPlatform/GenericApplication.h"

class FSDLCursor;
class FSDLWindow;
union SDL_Event;
struct SDL_KeyboardEvent;
struct SDL_MouseButtonEvent;
struct SDL_WindowEvent;

/** Windows and input of the desktop. Pixels are shown by software surfaces alone: no graphics driver is loaded. */
class FSDLApplication final : public GenericApplication
{
public:
	/** Null where there is no display. */
	static FSDLApplication* Create();
	virtual ~FSDLApplication() override;

	virtual void PumpMessages(const float TimeDelta) override;
	virtual bool WaitForMessages(const double Seconds) override;
	virtual void WakeUp() override;
	virtual TSharedRef<FGenericWindow> MakeWindow() override;
	virtual void InitializeWindow(const TSharedRef<FGenericWindow>& Window,
		const TSharedRef<FGenericWindowDefinition>& InDefinition, const TSharedPtr<FGenericWindow>& InParent,
		const bool bShowImmediately) override;
	virtual void SetCapture(const TSharedPtr<FGenericWindow>& InWindow) override;
	virtual void* GetCapture() const override;
	virtual FPlatformRect GetWorkArea(const FPlatformRect& CurrentWindow) const override;
	virtual bool HasVisibleWindows() const override { return true; }
	virtual void DestroyApplication() override;

private:
	explicit FSDLApplication(const TSharedRef<FSDLCursor>& InCursor);

	void Handle(const SDL_Event& Event);
	void HandleKey(const SDL_KeyboardEvent& Event);
	void HandleText(const char* Utf8);
	void HandleMouseButton(const SDL_MouseButtonEvent& Event);
	void HandleFocus();
	void HandleWindow(const SDL_WindowEvent& Event);

	/** Takes the cursor's position from a report, which tells it relative to a window. */
	void NoteCursor(uint32 WindowId, int32 X, int32 Y);

	/** Modifier keys are known as of the last key event that was handled: what SDL would tell now belongs to the last one that came. */
	void NoteModifiers(uint16 Down);
	TSharedPtr<FSDLWindow> FindWindow(uint32 WindowId) const;

	TSharedRef<FSDLCursor> DesktopCursor;
	TArray<TWeakPtr<FSDLWindow>> Windows;
	TWeakPtr<FSDLWindow> ActiveWindow;
	TWeakPtr<FGenericWindow> CaptureWindow;
	bool bLastKeyWasRepeat = false;
	bool bDestroyed = false;
};
