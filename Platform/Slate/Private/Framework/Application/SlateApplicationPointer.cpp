#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SlateHitTest.h"
#include "Framework/Application/SlateRoutingScope.h"
#include "Framework/Application/SlateToolTips.h"
#include "Widgets/SWindow.h"

namespace
{
const FKey& ToKey(EMouseButtons::Type Button)
{
	switch (Button)
	{
		case EMouseButtons::Left:
			return EKeys::LeftMouseButton;
		case EMouseButtons::Middle:
			return EKeys::MiddleMouseButton;
		case EMouseButtons::Right:
			return EKeys::RightMouseButton;
		case EMouseButtons::Thumb01:
			return EKeys::ThumbMouseButton;
		case EMouseButtons::Thumb02:
			return EKeys::ThumbMouseButton2;
		default:
			return EKeys::Invalid;
	}
}

/** A disabled widget takes no input, and neither does anything in it. */
void CutAtDisabled(TArray<SWidget*>& RootToLeaf)
{
	for (int32 Index = 0; Index < RootToLeaf.Num(); ++Index)
	{
		if (!RootToLeaf[Index]->IsEnabled())
		{
			RootToLeaf.SetNum(Index);
			return;
		}
	}
}
}

FVector2D FSlateApplication::GetCursorPos() const
{
	return PlatformApplication->Cursor->GetPosition();
}

FModifierKeysState FSlateApplication::GetModifierKeys() const
{
	return PlatformApplication->GetModifierKeys();
}

FPointerEvent FSlateApplication::MakePointerEvent(const FVector2D& Position, const FKey& Button, float WheelDelta) const
{
	return FPointerEvent(Position, LastCursorPosition, PressedMouseButtons, Button, WheelDelta, GetModifierKeys());
}

FWidgetPath FSlateApplication::LocateWindowUnderMouse(
	const FVector2D& ScreenSpaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows, bool bIgnoreEnabledStatus) const
{
	for (int32 Index = InWindows.Num() - 1; Index >= 0; --Index)
	{
		const TSharedRef<SWindow>& Window = InWindows[Index];
		const FVector2D PlaceInWindow = ScreenSpaceMouseCoordinate - Window->GetPositionInScreen();
		if (!Window->IsShown() || !Window->GetPaintSpaceGeometry().IsUnderLocation(PlaceInWindow))
		{
			continue;
		}
		TArray<SWidget*> RootToLeaf = SlateHitTest::FindPath(Window.Get(), PlaceInWindow);
		if (!bIgnoreEnabledStatus)
		{
			CutAtDisabled(RootToLeaf);
		}

		TArray<FArrangedWidget> Arranged;
		Arranged.Reserve(RootToLeaf.Num());
		for (SWidget* Widget : RootToLeaf)
		{
			Arranged.Emplace(Widget->AsShared(), Widget->GetPaintSpaceGeometry().MovedBy(Window->GetPositionInScreen()));
		}
		return FWidgetPath(Window, MoveTemp(Arranged));
	}
	return FWidgetPath();
}

FWidgetPath FSlateApplication::GetPointerTarget(const FPointerEvent& Event) const
{
	if (const TSharedPtr<SWidget> Captor = MouseCaptor.Pin())
	{
		return FWidgetPath::To(Captor.ToSharedRef());
	}
	return LocateWindowUnderMouse(Event.GetScreenSpacePosition(), GetInteractiveTopLevelWindows());
}

FReply FSlateApplication::RoutePointer(const FWidgetPath& Path, const FPointerEvent& Event, const TCHAR* Kind,
	FReply (SWidget::*Handler)(const FGeometry&, const FPointerEvent&))
{
	const bool bCaptured = MouseCaptor.IsValid();
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FArrangedWidget& Target = Path.Widgets[Index];
		const FRoutingScope Scope(*this, Kind, Target.Widget);
		const FReply Reply = (Target.Widget.Get().*Handler)(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return Reply;
		}
		if (bCaptured)
		{
			// Captured events are the captor's alone.
			break;
		}
	}
	return FReply::Unhandled();
}

void FSlateApplication::ProcessReply(const FReply& Reply, const FWidgetPath& Path)
{
	if (Reply.ShouldReleaseMouse())
	{
		ReleaseMouseCapture();
	}
	if (Reply.ShouldReleaseUserFocus())
	{
		ClearKeyboardFocus(Reply.GetFocusCause());
	}
	if (Reply.ShouldSetUserFocus())
	{
		SetKeyboardFocus(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
	}
	if (Reply.GetMouseCaptor().IsValid())
	{
		MouseCaptor = Reply.GetMouseCaptor();
		if (const TSharedPtr<SWindow> Window = FindWidgetWindow(Reply.GetMouseCaptor().ToSharedRef()))
		{
			PlatformApplication->SetCapture(Window->GetNativeWindow());
		}
	}
}

bool FSlateApplication::DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget>& Widget) const
{
	return MouseCaptor.Pin() == Widget;
}

void FSlateApplication::ReleaseMouseCapture()
{
	const TSharedPtr<SWidget> Captor = MouseCaptor.Pin();
	MouseCaptor.Reset();
	PlatformApplication->SetCapture(nullptr);
	if (Captor.IsValid())
	{
		Captor->OnMouseCaptureLost();
		bSyntheticMouseMoveDue = true;
	}
}

bool FSlateApplication::OnMouseDown(
	const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos)
{
	PressedMouseButtons.Add(ToKey(Button));
	return ProcessMouseButtonDown(MakePointerEvent(CursorPos, ToKey(Button)), false);
}

bool FSlateApplication::OnMouseDoubleClick(
	const TSharedPtr<FGenericWindow>& Window, const EMouseButtons::Type Button, const FVector2D CursorPos)
{
	PressedMouseButtons.Add(ToKey(Button));
	return ProcessMouseButtonDown(MakePointerEvent(CursorPos, ToKey(Button)), true);
}

bool FSlateApplication::ProcessMouseButtonDown(const FPointerEvent& Event, bool bDoubleClick)
{
	RequestFrame();
	ToolTips->Dismiss();
	const FWidgetPath Path = GetPointerTarget(Event);
	const TSharedPtr<SWidget> FocusedBefore = FocusedWidget.Pin();
	MakeFocusVisible(false);

	for (const FArrangedWidget& Target : Path.Widgets)
	{
		const FRoutingScope Scope(*this, TEXT("mouse button down"), Target.Widget);
		const FReply Reply = Target.Widget->OnPreviewMouseButtonDown(Target.Geometry, Event);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply, Path);
			return true;
		}
	}

	const FReply Reply = bDoubleClick ? RoutePointer(Path, Event, TEXT("double click"), &SWidget::OnMouseButtonDoubleClick)
									  : RoutePointer(Path, Event, TEXT("mouse button down"), &SWidget::OnMouseButtonDown);

	if (!Reply.ShouldSetUserFocus() && FocusedWidget.Pin() == FocusedBefore)
	{
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
		{
			if (Path.Widgets[Index].Widget->SupportsKeyboardFocus())
			{
				SetKeyboardFocus(Path.Widgets[Index].Widget, EFocusCause::Mouse);
				break;
			}
		}
	}
	return Reply.IsEventHandled();
}

bool FSlateApplication::OnMouseUp(const EMouseButtons::Type Button, const FVector2D CursorPos)
{
	RequestFrame();
	PressedMouseButtons.Remove(ToKey(Button));
	const FPointerEvent Event = MakePointerEvent(CursorPos, ToKey(Button));
	return RoutePointer(GetPointerTarget(Event), Event, TEXT("mouse button up"), &SWidget::OnMouseButtonUp).IsEventHandled();
}

bool FSlateApplication::OnMouseWheel(const float Delta, const FVector2D CursorPos)
{
	RequestFrame();
	const FPointerEvent Event = MakePointerEvent(CursorPos, EKeys::MouseWheelAxis, Delta);
	ToolTips->Close();
	return RoutePointer(GetPointerTarget(Event), Event, TEXT("mouse wheel"), &SWidget::OnMouseWheel).IsEventHandled();
}

bool FSlateApplication::OnMouseMove()
{
	const FVector2D Position = GetCursorPos();
	const bool bHandled = ProcessMouseMove(MakePointerEvent(Position, EKeys::Invalid));
	LastCursorPosition = Position;
	return bHandled;
}

bool FSlateApplication::OnCursorSet()
{
	bSyntheticMouseMoveDue = true;
	return true;
}

void FSlateApplication::ProcessSyntheticMouseMove()
{
	// The pointer stood still and the widgets moved: a move of zero length lets the hover follow them.
	LastCursorPosition = GetCursorPos();
	ProcessMouseMove(MakePointerEvent(LastCursorPosition, EKeys::Invalid));
}

bool FSlateApplication::ProcessMouseMove(const FPointerEvent& Event)
{
	RequestFrame();
	const FWidgetPath UnderMouse = LocateWindowUnderMouse(Event.GetScreenSpacePosition(), GetInteractiveTopLevelWindows());
	UpdateHover(UnderMouse, Event);
	const FWidgetPath Path = MouseCaptor.IsValid() ? GetPointerTarget(Event) : UnderMouse;
	const FReply Reply = RoutePointer(Path, Event, TEXT("mouse move"), &SWidget::OnMouseMove);
	UpdateCursor(Path, Event);
	if (!MouseCaptor.IsValid() && PressedMouseButtons.Num() == 0)
	{
		ToolTips->OnHover(UnderMouse, Event.GetScreenSpacePosition(), CurrentTime);
	}
	return Reply.IsEventHandled();
}

void FSlateApplication::UpdateHover(const FWidgetPath& NewPath, const FPointerEvent& Event)
{
	const TSharedPtr<SWidget> Captor = MouseCaptor.Pin();
	const auto MayHover = [&](const SWidget& Widget)
	{
		return !Captor.IsValid() || &Widget == Captor.Get();
	};

	const FWeakWidgetPath OldPath = HoverPath;
	HoverPath = FWeakWidgetPath();
	for (int32 Index = OldPath.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const TSharedPtr<SWidget> Widget = OldPath.Widgets[Index].Pin();
		if (Widget.IsValid() && !(NewPath.ContainsWidget(Widget.Get()) && MayHover(*Widget)))
		{
			const FRoutingScope Scope(*this, TEXT("mouse leave"), Widget.ToSharedRef());
			Widget->OnMouseLeave(Event);
		}
	}
	for (const FArrangedWidget& Entry : NewPath.Widgets)
	{
		if (!MayHover(Entry.Widget.Get()))
		{
			continue;
		}
		HoverPath.Widgets.Add(Entry.Widget);
		if (!OldPath.ContainsWidget(&Entry.Widget.Get()))
		{
			const FRoutingScope Scope(*this, TEXT("mouse enter"), Entry.Widget);
			Entry.Widget->OnMouseEnter(Entry.Geometry, Event);
		}
	}
}

void FSlateApplication::UpdateCursor(const FWidgetPath& Path, const FPointerEvent& Event)
{
	EMouseCursor::Type Cursor = EMouseCursor::Default;
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FCursorReply Reply = Path.Widgets[Index].Widget->OnCursorQuery(Path.Widgets[Index].Geometry, Event);
		if (Reply.IsEventHandled())
		{
			Cursor = Reply.GetCursorType();
			break;
		}
	}
	PlatformApplication->Cursor->SetType(Cursor);
}
