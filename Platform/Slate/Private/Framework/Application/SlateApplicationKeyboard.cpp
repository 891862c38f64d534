#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateFocusOrder.h"
#include "Framework/Application/SlateRoutingScope.h"
#include "Framework/Application/SlateToolTips.h"
#include "Widgets/SWindow.h"

FWidgetPath FSlateApplication::GetFocusPath() const
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	return Focused.IsValid() ? FWidgetPath::To(Focused.ToSharedRef()) : FWidgetPath();
}

bool FSlateApplication::HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	return Focused.IsValid() && Focused.Get() != &Widget.Get() && FocusPath.ContainsWidget(&Widget.Get());
}

bool FSlateApplication::SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	if (!ensureMsgf(OptionalWidgetToFocus.IsValid(), TEXT("There is no widget to focus; ClearKeyboardFocus drops the focus.")))
	{
		return false;
	}
	const FWidgetPath Path = FWidgetPath::To(OptionalWidgetToFocus.ToSharedRef());
	return Path.IsValid() && OptionalWidgetToFocus->SupportsKeyboardFocus() && SetFocusToPath(Path, ReasonFocusIsChanging);
}

void FSlateApplication::ClearKeyboardFocus(EFocusCause ReasonFocusIsChanging)
{
	SetFocusToPath(FWidgetPath(), ReasonFocusIsChanging);
}

bool FSlateApplication::SetFocusToPath(const FWidgetPath& NewPath, EFocusCause Cause)
{
	RequestFrame();
	const TSharedPtr<SWidget> Old = FocusedWidget.Pin();
	const TSharedPtr<SWidget> New = NewPath.IsValid() ? TSharedPtr<SWidget>(NewPath.GetLastWidget()) : nullptr;
	if (Old == New)
	{
		return New.IsValid();
	}

	const FFocusEvent Event(Cause);
	const FWeakWidgetPath OldPath = FocusPath;
	FocusPath = FWeakWidgetPath(NewPath);
	FocusedWidget = New;
	FocusLeftFrom = New.IsValid() ? nullptr : Old;
	for (const TWeakPtr<SWidget>& Entry : OldPath.Widgets)
	{
		if (const TSharedPtr<SWidget> Widget = Entry.Pin())
		{
			Widget->OnFocusChanging(OldPath, NewPath, Event);
		}
	}
	for (const FArrangedWidget& Entry : NewPath.Widgets)
	{
		if (!OldPath.ContainsWidget(&Entry.Widget.Get()))
		{
			Entry.Widget->OnFocusChanging(OldPath, NewPath, Event);
		}
	}

	MakeFocusVisible(Cause == EFocusCause::Navigation);
	if (Old.IsValid())
	{
		const FRoutingScope Scope(*this, TEXT("focus lost"), Old.ToSharedRef());
		Old->Invalidate(EInvalidateWidgetReason::Paint);
		Old->OnFocusLost(Event);
	}
	// What lost the focus may have sent it elsewhere.
	if (New.IsValid() && FocusedWidget.Pin() == New)
	{
		const FRoutingScope Scope(*this, TEXT("focus received"), New.ToSharedRef());
		New->Invalidate(EInvalidateWidgetReason::Paint);
		ProcessReply(New->OnFocusReceived(NewPath.Widgets.Last().Geometry, Event), NewPath);
	}
	return FocusedWidget.Pin() == New;
}

void FSlateApplication::MakeFocusVisible(bool bVisible)
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	bFocusVisible = bVisible;
	const SWidget* const NowVisible = bVisible ? Focused.Get() : nullptr;
	if (VisiblyFocused != NowVisible)
	{
		VisiblyFocused = NowVisible;
		if (Focused.IsValid())
		{
			Focused->Invalidate(EInvalidateWidgetReason::Paint);
		}
	}
}

bool FSlateApplication::OnKeyChar(const TCHAR Character, const bool IsRepeat)
{
	RequestFrame();
	const FCharacterEvent Event(Character, GetModifierKeys(), IsRepeat);
	const FWidgetPath Path = GetFocusPath();
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Target = Path.Widgets[Index];
		const FRoutingScope Scope(*this, TEXT("character"), Target.Widget);
		const FReply Reply = Target.Widget->OnKeyChar(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return true;
		}
	}
	return false;
}

bool FSlateApplication::OnKeyDown(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat)
{
	RequestFrame();
	ToolTips->Dismiss();
	const FKey Key = FInputKeyManager::Get().GetKeyFromCodes(KeyCode, CharacterCode);
	const FKeyEvent Event(Key, GetModifierKeys(), IsRepeat, CharacterCode);
	const FWidgetPath Path = GetFocusPath();
	for (const FArrangedWidget& Target : Path.Widgets)
	{
		const FRoutingScope Scope(*this, TEXT("key down"), Target.Widget);
		const FReply Reply = Target.Widget->OnPreviewKeyDown(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return true;
		}
	}
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Target = Path.Widgets[Index];
		const FRoutingScope Scope(*this, TEXT("key down"), Target.Widget);
		const FReply Reply = Target.Widget->OnKeyDown(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return true;
		}
	}
	return Navigate(Event);
}

bool FSlateApplication::OnKeyUp(const int32 KeyCode, const uint32 CharacterCode, const bool IsRepeat)
{
	RequestFrame();
	const FKey Key = FInputKeyManager::Get().GetKeyFromCodes(KeyCode, CharacterCode);
	const FKeyEvent Event(Key, GetModifierKeys(), IsRepeat, CharacterCode);
	const FWidgetPath Path = GetFocusPath();
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Target = Path.Widgets[Index];
		const FRoutingScope Scope(*this, TEXT("key up"), Target.Widget);
		const FReply Reply = Target.Widget->OnKeyUp(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return true;
		}
	}
	return false;
}

bool FSlateApplication::Navigate(const FKeyEvent& Event)
{
	const TSharedPtr<SWindow> Window = ActiveWindow.Pin();
	if (!Window.IsValid() || Event.IsControlDown() || Event.IsAltDown())
	{
		return false;
	}
	const FKey& Key = Event.GetKey();
	if (Key == EKeys::Tab)
	{
		return MoveFocusInOrder(*Window, !Event.IsShiftDown());
	}
	if (Key == EKeys::Left)
	{
		return MoveFocusTowards(*Window, EUINavigation::Left);
	}
	if (Key == EKeys::Right)
	{
		return MoveFocusTowards(*Window, EUINavigation::Right);
	}
	if (Key == EKeys::Up)
	{
		return MoveFocusTowards(*Window, EUINavigation::Up);
	}
	if (Key == EKeys::Down)
	{
		return MoveFocusTowards(*Window, EUINavigation::Down);
	}
	return false;
}

bool FSlateApplication::MoveFocusInOrder(SWindow& Window, bool bForward)
{
	const TSharedPtr<SWidget> Start = FocusedWidget.IsValid() ? FocusedWidget.Pin() : FocusLeftFrom.Pin();
	SWidget* const Next = SlateFocusOrder::FindNext(Window, Start.Get(), bForward);
	return Next && SetKeyboardFocus(Next->AsShared(), EFocusCause::Navigation);
}

bool FSlateApplication::MoveFocusTowards(SWindow& Window, EUINavigation Direction)
{
	const TSharedPtr<SWidget> Focused = FocusedWidget.Pin();
	if (!Focused.IsValid() || Focused->AsWindow())
	{
		return false;
	}
	SWidget* const Next = SlateFocusOrder::FindNearest(Window, *Focused, Direction);
	return Next && SetKeyboardFocus(Next->AsShared(), EFocusCause::Navigation);
}
