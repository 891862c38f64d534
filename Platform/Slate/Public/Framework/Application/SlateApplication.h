#pragma once

#include "Application/SlateApplicationBase.h"
#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "GenericPlatform/GenericApplicationMessageHandler.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/WidgetPath.h"
#include "Math/IntVector.h"

class FSlateToolTips;
class SWindow;

/** What an event is doing at the moment, for messages about errors that happen within. */
struct FRoutedEvent
{
	/** E.g. "mouse button up". */
	const TCHAR* Kind;
	TSharedRef<SWidget> Widget;
};

DECLARE_MULTICAST_DELEGATE_OneParam(FSlateTickEvent, float);

/**
 * The application: its windows, the way of input to the widgets, and the frame.
 *
 * A frame is Tick: bound attributes, layout, ticks and active timers of the widgets that are shown, painting. It does
 * nothing, and costs next to nothing, when nothing has happened since the last one; whoever changes something from outside
 * of events and timers says so with RequestFrame.
 */
class SLATE_API FSlateApplication final : public FSlateApplicationBase, public FGenericApplicationMessageHandler
{
public:
	/** Makes the application on the platform of this process. */
	static void Create();

	/** Makes it on a given platform. */
	static TSharedRef<FSlateApplication> Create(const TSharedRef<GenericApplication>& InPlatformApplication);

	static FSlateApplication& Get()
	{
		checkf(CurrentApplication.IsValid(), TEXT("There is no Slate application"));
		return *CurrentApplication;
	}
	static bool IsInitialized() { return CurrentApplication.IsValid(); }

	/** Ends all windows and the application itself. */
	static void Shutdown();

	virtual ~FSlateApplication() override;

	//
	// The frame
	//

	/** Takes what the platform has to report. */
	void PumpMessages();

	/** One frame. */
	void Tick();

	/** Whether Tick has work to do at this moment. */
	bool NeedsFrame() const;

	/** Seconds until a shown widget wants to be called; beyond all time when none does. */
	double GetSecondsToNextCall() const;

	/** Told at the beginning and at the end of each frame that has work to do, with the seconds since the last. */
	FSlateTickEvent& OnPreTick() { return PreTickEvent; }
	FSlateTickEvent& OnPostTick() { return PostTickEvent; }

	/** How many frames had work to do since the start. */
	uint64 GetNumFrames() const { return NumFrames; }

	//
	// Windows
	//

	TSharedRef<SWindow> AddWindow(const TSharedRef<SWindow>& InSlateWindow, bool bShowImmediately = true);
	virtual void RequestDestroyWindow(const TSharedRef<SWindow>& WindowToDestroy) override;

	/** Destroys every window now. Not from within an event. */
	void CloseAllWindowsImmediately();

	/** All windows; the one last activated is the last. */
	const TArray<TSharedRef<SWindow>>& GetTopLevelWindows() const { return Windows; }
	TArray<TSharedRef<SWindow>> GetInteractiveTopLevelWindows() const;
	TSharedPtr<SWindow> GetActiveTopLevelWindow() const { return ActiveWindow.Pin(); }

	/** The window whose tree holds the widget. */
	TSharedPtr<SWindow> FindWidgetWindow(const TSharedRef<const SWidget>& InWidget) const;

	/**
	 * Paints the window of a widget at once and returns the widget's part of it.
	 *
	 * @param OutColorData Top row first, alpha 255.
	 * @param OutSize Width, height and 0.
	 * @return False when no window shows the widget.
	 */
	bool TakeScreenshot(const TSharedRef<SWidget>& Widget, TArray<FColor>& OutColorData, FIntVector& OutSize);

	//
	// Input
	//

	FVector2D GetCursorPos() const;
	FModifierKeysState GetModifierKeys() const;

	/**
	 * The widgets under a place of the desktop, down to the deepest that can be hit and is enabled.
	 *
	 * @param InWindows The windows to look in, the frontmost last, as GetInteractiveTopLevelWindows gives them.
	 * @param bIgnoreEnabledStatus Goes down to disabled widgets too.
	 */
	FWidgetPath LocateWindowUnderMouse(const FVector2D& ScreenSpaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows,
		bool bIgnoreEnabledStatus = false) const;

	bool SetKeyboardFocus(
		const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(EFocusCause ReasonFocusIsChanging = EFocusCause::Cleared);
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const override { return FocusedWidget.Pin(); }
	virtual bool HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const override;

	/** Whether the focus came by the keyboard, so that it should be seen. */
	bool IsFocusVisible() const { return bFocusVisible; }

	TSharedPtr<SWidget> GetMouseCaptor() const { return MouseCaptor.Pin(); }
	virtual bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget>& Widget) const override;
	void ReleaseMouseCapture();

	virtual TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) override;

	/** The tool tip that shows at the moment. */
	TSharedPtr<IToolTip> GetShownToolTip() const;

	/** The event that is with a widget right now, the innermost; null outside of events. */
	const FRoutedEvent* GetRoutedEvent() const { return RoutedEvent; }

	/** The platform below. */
	const TSharedRef<GenericApplication>& GetPlatformApplication() const { return PlatformApplication; }

	//
	// What the platform reports
	//

	virtual bool OnKeyChar(const TCHAR Character, const bool IsRepeat) override;
	virtual bool OnKeyDown(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat) override;
	virtual bool OnKeyUp(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat) override;
	virtual bool OnMouseDown(
		const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos) override;
	virtual bool OnMouseUp(const EMouseButtons::Type Button, const FVector2D CursorPos) override;
	virtual bool OnMouseDoubleClick(
		const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos) override;
	virtual bool OnMouseWheel(const float Delta, const FVector2D CursorPos) override;
	virtual bool OnMouseMove() override;
	virtual bool OnCursorSet() override;
	virtual bool OnSizeChanged(
		const TSharedRef<FGenericWindow>& Window, const int32 Width, const int32 Height, bool bWasMinimized = false) override;
	virtual void OnOSPaint(const TSharedRef<FGenericWindow>& Window) override;
	virtual void OnMovedWindow(const TSharedRef<FGenericWindow>& Window, const int32 X, const int32 Y) override;
	virtual bool OnWindowActivationChanged(
		const TSharedRef<FGenericWindow>& Window, const EWindowActivation ActivationType) override;
	virtual void OnWindowClose(const TSharedRef<FGenericWindow>& Window) override;

private:
	explicit FSlateApplication(const TSharedRef<GenericApplication>& InPlatformApplication);

	// SlateApplicationFrame.cpp
	void UpdateWindowLayouts();
	bool DrawWindows(const TArray<TSharedRef<SWindow>>& ToDraw);

	// SlateApplicationWindows.cpp
	TSharedPtr<SWindow> FindWindowByNative(const TSharedRef<FGenericWindow>& Native) const;
	void DestroyWindow(const TSharedRef<SWindow>& Window);

	// SlateApplicationPointer.cpp
	FPointerEvent MakePointerEvent(const FVector2D& Position, const FKey& Button, float WheelDelta = 0.0f) const;
	bool ProcessMouseButtonDown(const FPointerEvent& Event, bool bDoubleClick);
	bool ProcessMouseMove(const FPointerEvent& Event);
	void ProcessSyntheticMouseMove();
	void UpdateHover(const FWidgetPath& NewPath, const FPointerEvent& Event);
	void UpdateCursor(const FWidgetPath& Path, const FPointerEvent& Event);
	FWidgetPath GetPointerTarget(const FPointerEvent& Event) const;
	FReply RoutePointer(const FWidgetPath& Path, const FPointerEvent& Event, const TCHAR* Kind,
		FReply (SWidget::*Handler)(const FGeometry&, const FPointerEvent&));

	// SlateApplicationKeyboard.cpp
	FWidgetPath GetFocusPath() const;
	bool SetFocusToPath(const FWidgetPath& NewPath, EFocusCause Cause);
	bool Navigate(const FKeyEvent& Event);
	bool MoveFocusInOrder(SWindow& Window, bool bForward);
	bool MoveFocusTowards(SWindow& Window, EUINavigation Direction);
	void MakeFocusVisible(bool bVisible);

	/** Does what a reply asks for. @param Path The widgets the event was with. */
	void ProcessReply(const FReply& Reply, const FWidgetPath& Path);

	/** Says that an event is with a widget, for as long as it lives. */
	class FRoutingScope;

	static TSharedPtr<FSlateApplication> CurrentApplication;

	const TSharedRef<GenericApplication> PlatformApplication;
	TArray<TSharedRef<SWindow>> Windows;
	TArray<TSharedRef<SWindow>> WindowsToDestroy;
	TWeakPtr<SWindow> ActiveWindow;

	FWeakWidgetPath FocusPath;
	TWeakPtr<SWidget> FocusedWidget;

	/** What had the focus before nothing did; Tab goes on from there. */
	TWeakPtr<SWidget> FocusLeftFrom;
	FWeakWidgetPath HoverPath;
	TWeakPtr<SWidget> MouseCaptor;
	TSet<FKey> PressedMouseButtons;
	FVector2D LastCursorPosition = FVector2D::ZeroVector;
	const FRoutedEvent* RoutedEvent = nullptr;
	TUniquePtr<FSlateToolTips> ToolTips;

	FSlateTickEvent PreTickEvent;
	FSlateTickEvent PostTickEvent;
	double LastTickTime = 0.0;
	double NextCallTime = 0.0;
	uint64 NumFrames = 0;
	bool bFocusVisible = false;
	bool bSyntheticMouseMoveDue = false;
	bool bTicking = false;
};
