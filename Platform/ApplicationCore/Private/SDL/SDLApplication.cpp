#include "SDL/SDLApplication.h"

#include "PlatformClipboard.h"
#include "SDL/SDLCursor.h"
#include "SDL/SDLWindow.h"
#include "SDL/X11Errors.h"

#include <SDL.h>

namespace
{

class FSDLClipboard final : public IPlatformClipboard
{
public:
	virtual void SetText(const TCHAR* Text) override { SDL_SetClipboardText(TCHAR_TO_UTF8(Text)); }
	virtual FString GetText() const override
	{
		char* Utf8 = SDL_GetClipboardText();
		const FString Text(UTF8_TO_TCHAR(Utf8));
		SDL_free(Utf8);
		return Text;
	}
};

EMouseButtons::Type ToMouseButton(uint8 Button)
{
	switch (Button)
	{
		case SDL_BUTTON_LEFT:
			return EMouseButtons::Left;
		case SDL_BUTTON_MIDDLE:
			return EMouseButtons::Middle;
		case SDL_BUTTON_RIGHT:
			return EMouseButtons::Right;
		case SDL_BUTTON_X1:
			return EMouseButtons::Thumb01;
		case SDL_BUTTON_X2:
			return EMouseButtons::Thumb02;
		default:
			return EMouseButtons::Invalid;
	}
}

/** The upper-case character that a key prints in the user's layout, 0 for a key that prints nothing. */
uint32 ToCharacterCode(SDL_Keycode Key)
{
	if ((Key & SDLK_SCANCODE_MASK) != 0 || Key < ' ' || Key == SDLK_DELETE)
	{
		return 0;
	}
	const bool bIsSmallLatin = Key >= 'a' && Key <= 'z';
	return uint32(bIsSmallLatin ? Key - 'a' + 'A' : Key);
}

/** Of moves in a row only the last counts: where the mouse is captured or set free, SDL reports false ones before it. */
bool IsMoveFollowed()
{
	SDL_Event Next;
	return SDL_PeepEvents(&Next, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1 && Next.type == SDL_MOUSEMOTION;
}

/** Keys that edit text type control characters. */
TCHAR ToControlCharacter(SDL_Scancode Key)
{
	switch (Key)
	{
		case SDL_SCANCODE_BACKSPACE:
			return u'\b';
		case SDL_SCANCODE_TAB:
			return u'\t';
		case SDL_SCANCODE_RETURN:
		case SDL_SCANCODE_KP_ENTER:
			return u'\r';
		default:
			return 0;
	}
}

}

FSDLApplication* FSDLApplication::Create()
{
	SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11,wayland");
	SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
	SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
	SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
	SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
	SDL_SetHint(SDL_HINT_MOUSE_AUTO_CAPTURE, "1");
	SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
	SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
	// SDL sets a handler of its own, and at its end the one from before.
	X11Errors::TurnIntoWarnings();
	if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
	{
		return nullptr;
	}
	X11Errors::TurnIntoWarnings();
	SDL_StartTextInput();
	return new FSDLApplication(MakeShared<FSDLCursor>());
}

FSDLApplication::FSDLApplication(const TSharedRef<FSDLCursor>& InCursor)
	: GenericApplication(InCursor)
	, DesktopCursor(InCursor)
{
	SetPlatformClipboard(MakeUnique<FSDLClipboard>());
}

FSDLApplication::~FSDLApplication()
{
	DestroyApplication();
}

void FSDLApplication::DestroyApplication()
{
	if (bDestroyed)
	{
		return;
	}
	bDestroyed = true;
	ResetPlatformClipboard();
	for (const TWeakPtr<FSDLWindow>& Window : Windows)
	{
		if (const TSharedPtr<FSDLWindow> Pinned = Window.Pin())
		{
			Pinned->Destroy();
		}
	}
	Windows.Empty();
	SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

void FSDLApplication::PumpMessages(const float TimeDelta)
{
	SDL_Event Event;
	while (SDL_PollEvent(&Event))
	{
		Handle(Event);
	}
}

bool FSDLApplication::WaitForMessages(const double Seconds)
{
	const double Milliseconds = FMath::Clamp(Seconds * 1000.0, 0.0, 1.0e9);
	return SDL_WaitEventTimeout(nullptr, int(FMath::CeilToDouble(Milliseconds))) != 0;
}

void FSDLApplication::WakeUp()
{
	SDL_Event Event = {};
	Event.type = SDL_USEREVENT;
	SDL_PushEvent(&Event);
}

TSharedRef<FGenericWindow> FSDLApplication::MakeWindow()
{
	return MakeShared<FSDLWindow>();
}

void FSDLApplication::InitializeWindow(const TSharedRef<FGenericWindow>& Window,
	const TSharedRef<FGenericWindowDefinition>& InDefinition, const TSharedPtr<FGenericWindow>& InParent,
	const bool bShowImmediately)
{
	Windows.RemoveAll([](const TWeakPtr<FSDLWindow>& Candidate) { return !Candidate.IsValid(); });
	const TSharedRef<FSDLWindow> NewWindow = StaticCastSharedRef<FSDLWindow>(Window);
	NewWindow->Initialize(InDefinition, static_cast<const FSDLWindow*>(InParent.Get()));
	Windows.Add(NewWindow);
	if (bShowImmediately)
	{
		NewWindow->Show();
	}
}

void FSDLApplication::SetCapture(const TSharedPtr<FGenericWindow>& InWindow)
{
	// While a button is down the mouse is followed outside of the windows in any case.
	CaptureWindow = InWindow;
}

void* FSDLApplication::GetCapture() const
{
	const TSharedPtr<FGenericWindow> Window = CaptureWindow.Pin();
	return Window ? Window->GetOSWindowHandle() : nullptr;
}

FPlatformRect FSDLApplication::GetWorkArea(const FPlatformRect& CurrentWindow) const
{
	const SDL_Point Middle{(CurrentWindow.Left + CurrentWindow.Right) / 2, (CurrentWindow.Top + CurrentWindow.Bottom) / 2};
	SDL_Rect Area{0, 0, 0, 0};
	SDL_GetDisplayUsableBounds(FMath::Max(SDL_GetPointDisplayIndex(&Middle), 0), &Area);
	return FPlatformRect(Area.x, Area.y, Area.x + Area.w, Area.y + Area.h);
}

TSharedPtr<FSDLWindow> FSDLApplication::FindWindow(uint32 WindowId) const
{
	SDL_Window* const Handle = SDL_GetWindowFromID(WindowId);
	for (const TWeakPtr<FSDLWindow>& Window : Windows)
	{
		const TSharedPtr<FSDLWindow> Pinned = Window.Pin();
		if (Handle && Pinned && Pinned->GetHandle() == Handle)
		{
			return Pinned;
		}
	}
	return nullptr;
}

void FSDLApplication::NoteCursor(uint32 WindowId, int32 X, int32 Y)
{
	if (SDL_Window* const Window = SDL_GetWindowFromID(WindowId))
	{
		FIntPoint Position;
		SDL_GetWindowPosition(Window, &Position.X, &Position.Y);
		DesktopCursor->NotePosition(FVector2D(Position + FIntPoint(X, Y)));
	}
}

void FSDLApplication::NoteModifiers(const uint16 Down)
{
	ModifierKeys = FModifierKeysState((Down & KMOD_LSHIFT) != 0, (Down & KMOD_RSHIFT) != 0, (Down & KMOD_LCTRL) != 0,
		(Down & KMOD_RCTRL) != 0, (Down & KMOD_LALT) != 0, (Down & KMOD_RALT) != 0, (Down & KMOD_LGUI) != 0,
		(Down & KMOD_RGUI) != 0, (Down & KMOD_CAPS) != 0);
}

void FSDLApplication::Handle(const SDL_Event& Event)
{
	switch (Event.type)
	{
		case SDL_KEYDOWN:
		case SDL_KEYUP:
			HandleKey(Event.key);
			break;
		case SDL_TEXTINPUT:
			HandleText(Event.text.text);
			break;
		case SDL_MOUSEMOTION:
			if (!IsMoveFollowed())
			{
				NoteCursor(Event.motion.windowID, Event.motion.x, Event.motion.y);
				MessageHandler->OnMouseMove();
			}
			break;
		case SDL_MOUSEBUTTONDOWN:
		case SDL_MOUSEBUTTONUP:
			HandleMouseButton(Event.button);
			break;
		case SDL_MOUSEWHEEL:
			NoteCursor(Event.wheel.windowID, Event.wheel.mouseX, Event.wheel.mouseY);
			if (Event.wheel.preciseY != 0.0f)
			{
				MessageHandler->OnMouseWheel(Event.wheel.preciseY, DesktopCursor->GetPosition());
			}
			break;
		case SDL_WINDOWEVENT:
			HandleWindow(Event.window);
			break;
		default:
			break;
	}
}

void FSDLApplication::HandleKey(const SDL_KeyboardEvent& Event)
{
	NoteModifiers(Event.keysym.mod);
	const bool bRepeat = Event.repeat != 0;
	const int32 KeyCode = int32(Event.keysym.scancode);
	const uint32 CharacterCode = ToCharacterCode(Event.keysym.sym);
	if (Event.type == SDL_KEYUP)
	{
		MessageHandler->OnKeyUp(KeyCode, CharacterCode, bRepeat);
		return;
	}

	bLastKeyWasRepeat = bRepeat;
	MessageHandler->OnKeyDown(KeyCode, CharacterCode, bRepeat);
	const TCHAR Control = ToControlCharacter(Event.keysym.scancode);
	if (Control != 0 && (Event.keysym.mod & (KMOD_CTRL | KMOD_ALT | KMOD_GUI)) == 0)
	{
		MessageHandler->OnKeyChar(Control, bRepeat);
	}
}

void FSDLApplication::HandleText(const char* Utf8)
{
	const FString Text(UTF8_TO_TCHAR(Utf8));
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		MessageHandler->OnKeyChar(Text[Index], bLastKeyWasRepeat);
	}
}

void FSDLApplication::HandleMouseButton(const SDL_MouseButtonEvent& Event)
{
	const EMouseButtons::Type Button = ToMouseButton(Event.button);
	if (Button == EMouseButtons::Invalid)
	{
		return;
	}

	NoteCursor(Event.windowID, Event.x, Event.y);
	const FVector2D Position = DesktopCursor->GetPosition();
	if (Event.type == SDL_MOUSEBUTTONUP)
	{
		MessageHandler->OnMouseUp(Button, Position);
		return;
	}

	const TSharedPtr<FGenericWindow> Window = FindWindow(Event.windowID);
	if (Event.clicks > 0 && Event.clicks % 2 == 0)
	{
		MessageHandler->OnMouseDoubleClick(Window, Button, Position);
		return;
	}
	MessageHandler->OnMouseDown(Window, Button, Position);
}

void FSDLApplication::HandleFocus()
{
	// What counts is where the keyboard is now, not where it went in between.
	SDL_Window* const FocusedHandle = SDL_GetKeyboardFocus();
	const TSharedPtr<FSDLWindow> Focused = FocusedHandle ? FindWindow(SDL_GetWindowID(FocusedHandle)) : nullptr;
	const TSharedPtr<FSDLWindow> Active = ActiveWindow.Pin();
	if (Focused == Active || (Focused && !Focused->IsRegular()))
	{
		return;
	}
	ActiveWindow = Focused;
	if (Active && Active->GetHandle())
	{
		MessageHandler->OnWindowActivationChanged(Active.ToSharedRef(), EWindowActivation::Deactivate);
	}
	if (Focused)
	{
		MessageHandler->OnWindowActivationChanged(Focused.ToSharedRef(), EWindowActivation::Activate);
	}
}

void FSDLApplication::HandleWindow(const SDL_WindowEvent& Event)
{
	const TSharedPtr<FSDLWindow> Found = FindWindow(Event.windowID);
	if (!Found)
	{
		return;
	}

	const TSharedRef<FSDLWindow> Window = Found.ToSharedRef();
	switch (Event.event)
	{
		case SDL_WINDOWEVENT_EXPOSED:
			if (!Window->RepaintFromKeptPixels())
			{
				MessageHandler->OnOSPaint(Window);
			}
			break;
		case SDL_WINDOWEVENT_SIZE_CHANGED:
			Window->NoteRect();
			MessageHandler->OnSizeChanged(Window, Event.data1, Event.data2, Window->IsMinimized());
			break;
		case SDL_WINDOWEVENT_MOVED:
			Window->NoteRect();
			MessageHandler->OnMovedWindow(Window, Event.data1, Event.data2);
			break;
		case SDL_WINDOWEVENT_FOCUS_GAINED:
		case SDL_WINDOWEVENT_FOCUS_LOST:
			HandleFocus();
			break;
		case SDL_WINDOWEVENT_ENTER:
		case SDL_WINDOWEVENT_LEAVE:
			MessageHandler->OnCursorSet();
			break;
		case SDL_WINDOWEVENT_CLOSE:
			MessageHandler->OnWindowClose(Window);
			break;
		default:
			break;
	}
}
