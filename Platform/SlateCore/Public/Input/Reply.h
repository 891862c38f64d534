#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"

class SWidget;

/** What a widget answers to an event: whether it took it, and what it asks of the application. */
class SLATECORE_API FReply
{
public:
	/** The widget took the event; it goes no further. */
	static FReply Handled() { return FReply(true); }

	/** The widget did not take the event; its parent is asked next. */
	static FReply Unhandled() { return FReply(false); }

	bool IsEventHandled() const { return bIsHandled; }

	/** Asks for all mouse events until the capture is given back. */
	FReply& CaptureMouse(const TSharedRef<SWidget>& InMouseCaptor)
	{
		MouseCaptor = InMouseCaptor;
		return *this;
	}

	FReply& ReleaseMouseCapture()
	{
		bReleaseMouseCapture = true;
		return *this;
	}

	FReply& SetUserFocus(const TSharedRef<SWidget>& GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly)
	{
		bSetUserFocus = true;
		FocusRecipient = GiveMeFocus;
		FocusChangeReason = ReasonFocusIsChanging;
		return *this;
	}

	FReply& ClearUserFocus(EFocusCause ReasonFocusIsChanging = EFocusCause::Cleared)
	{
		bReleaseUserFocus = true;
		FocusChangeReason = ReasonFocusIsChanging;
		return *this;
	}

	const TSharedPtr<SWidget>& GetMouseCaptor() const { return MouseCaptor; }
	const TSharedPtr<SWidget>& GetUserFocusRecepient() const { return FocusRecipient; }
	bool ShouldReleaseMouse() const { return bReleaseMouseCapture; }
	bool ShouldSetUserFocus() const { return bSetUserFocus; }
	bool ShouldReleaseUserFocus() const { return bReleaseUserFocus; }
	EFocusCause GetFocusCause() const { return FocusChangeReason; }

private:
	explicit FReply(bool bInIsHandled)
		: bIsHandled(bInIsHandled)
	{
	}

	TSharedPtr<SWidget> MouseCaptor;
	TSharedPtr<SWidget> FocusRecipient;
	EFocusCause FocusChangeReason = EFocusCause::SetDirectly;
	bool bIsHandled;
	bool bReleaseMouseCapture = false;
	bool bSetUserFocus = false;
	bool bReleaseUserFocus = false;
};
