#include "SDL/SDLWindow.h"

#include <SDL.h>

namespace
{

uint32 GetFlags(const FGenericWindowDefinition& Definition)
{
	uint32 Flags = SDL_WINDOW_HIDDEN;
	const auto AddIf = [&Flags](bool bCondition, uint32 Flag)
	{
		Flags |= bCondition ? Flag : 0;
	};
	AddIf(!Definition.HasOSWindowBorder, SDL_WINDOW_BORDERLESS);
	AddIf(Definition.HasSizingFrame, SDL_WINDOW_RESIZABLE);
	AddIf(Definition.IsTopmostWindow, SDL_WINDOW_ALWAYS_ON_TOP);
	AddIf(!Definition.AppearsInTaskbar, SDL_WINDOW_SKIP_TASKBAR);
	switch (Definition.Type)
	{
		case EWindowType::Menu:
			return Flags | SDL_WINDOW_POPUP_MENU;
		case EWindowType::ToolTip:
		case EWindowType::CursorDecorator:
			return Flags | SDL_WINDOW_TOOLTIP;
		case EWindowType::Notification:
			return Flags | SDL_WINDOW_UTILITY;
		case EWindowType::Normal:
			break;
	}
	return Flags;
}

/** Displays report dots per inch; below half as fine again as usual the user interface stays at its own size. */
float GetScaleOfDisplay(int Display)
{
	float Dpi = 0.0f;
	if (SDL_GetDisplayDPI(Display, &Dpi, nullptr, nullptr) != 0 || Dpi < 144.0f)
	{
		return 1.0f;
	}
	return FMath::Min(FMath::RoundToFloat(Dpi / 96.0f * 4.0f) / 4.0f, 4.0f);
}

int ToLimit(const TOptional<float>& Value)
{
	return Value.IsSet() ? FMath::Max(FMath::TruncToInt(Value.GetValue()), 0) : 0;
}

}

FSDLWindow::~FSDLWindow()
{
	Destroy();
}

void FSDLWindow::Initialize(const TSharedRef<FGenericWindowDefinition>& InDefinition, const FSDLWindow* Parent)
{
	Definition = InDefinition;
	const FTCHARToUTF8 Title(*Definition->Title);
	Handle = SDL_CreateWindow(Title.Get(), FMath::RoundToInt(Definition->XDesiredPositionOnScreen),
		FMath::RoundToInt(Definition->YDesiredPositionOnScreen),
		FMath::Max(FMath::RoundToInt(Definition->WidthDesiredOnScreen), 1),
		FMath::Max(FMath::RoundToInt(Definition->HeightDesiredOnScreen), 1), GetFlags(*Definition));
	checkf(Handle, TEXT("The window system refuses a window: %s"), UTF8_TO_TCHAR(SDL_GetError()));

	const FWindowSizeLimits& Limits = Definition->SizeLimits;
	SDL_SetWindowMinimumSize(Handle, ToLimit(Limits.GetMinWidth()), ToLimit(Limits.GetMinHeight()));
	SDL_SetWindowMaximumSize(Handle, ToLimit(Limits.GetMaxWidth()), ToLimit(Limits.GetMaxHeight()));
	if (Definition->Opacity < 1.0f)
	{
		SDL_SetWindowOpacity(Handle, Definition->Opacity);
	}
	ParentId = Parent && Parent->Handle ? SDL_GetWindowID(Parent->Handle) : 0;
	if (Definition->IsModalWindow && ParentId != 0)
	{
		SDL_SetWindowModalFor(Handle, Parent->Handle);
	}
	DPIScaleFactor = GetScaleOfDisplay(SDL_GetWindowDisplayIndex(Handle));
	NoteRect();
}

void FSDLWindow::Destroy()
{
	if (Handle)
	{
		SDL_DestroyWindow(Handle);
		Handle = nullptr;
	}
}

void FSDLWindow::ReshapeWindow(int32 X, int32 Y, int32 Width, int32 Height)
{
	MoveWindowTo(X, Y);
	SDL_SetWindowSize(Handle, FMath::Max(Width, 1), FMath::Max(Height, 1));
}

void FSDLWindow::MoveWindowTo(int32 X, int32 Y)
{
	SDL_SetWindowPosition(Handle, X, Y);

	// Only moves by the user are reported on their own.
	SDL_Event Moved = {};
	Moved.window.type = SDL_WINDOWEVENT;
	Moved.window.event = SDL_WINDOWEVENT_MOVED;
	Moved.window.windowID = SDL_GetWindowID(Handle);
	Moved.window.data1 = X;
	Moved.window.data2 = Y;
	SDL_PushEvent(&Moved);
}

void FSDLWindow::BringToFront(bool bForce)
{
	SDL_RaiseWindow(Handle);
}

void FSDLWindow::Minimize()
{
	SDL_MinimizeWindow(Handle);
}

void FSDLWindow::Maximize()
{
	SDL_MaximizeWindow(Handle);
}

void FSDLWindow::Restore()
{
	SDL_RestoreWindow(Handle);
}

void FSDLWindow::Show()
{
	SDL_ShowWindow(Handle);

	// Where no window manager runs, every window that is shown is given the keyboard.
	SDL_Window* const Parent = SDL_GetWindowFromID(ParentId);
	if (!IsRegular() && Parent)
	{
		SDL_SetWindowInputFocus(Parent);
	}
}

void FSDLWindow::Hide()
{
	SDL_HideWindow(Handle);
}

bool FSDLWindow::HasFlags(uint32 Flags) const
{
	return Handle && (SDL_GetWindowFlags(Handle) & Flags) == Flags;
}

bool FSDLWindow::IsMaximized() const
{
	return HasFlags(SDL_WINDOW_MAXIMIZED);
}

bool FSDLWindow::IsMinimized() const
{
	return HasFlags(SDL_WINDOW_MINIMIZED);
}

bool FSDLWindow::IsVisible() const
{
	return HasFlags(SDL_WINDOW_SHOWN);
}

void FSDLWindow::NoteRect()
{
	if (!IsMaximized() && !IsMinimized())
	{
		RestoredRect = GetClientRect();
	}
}

bool FSDLWindow::GetRestoredDimensions(int32& X, int32& Y, int32& Width, int32& Height)
{
	X = RestoredRect.Min.X;
	Y = RestoredRect.Min.Y;
	Width = RestoredRect.Width();
	Height = RestoredRect.Height();
	return true;
}

FIntRect FSDLWindow::GetClientRect() const
{
	FIntPoint Position;
	FIntPoint Size;
	SDL_GetWindowPosition(Handle, &Position.X, &Position.Y);
	SDL_GetWindowSize(Handle, &Size.X, &Size.Y);
	return FIntRect(Position, Position + Size);
}

void FSDLWindow::SetWindowFocus()
{
	SDL_RaiseWindow(Handle);
}

void FSDLWindow::SetOpacity(const float InOpacity)
{
	SDL_SetWindowOpacity(Handle, InOpacity);
}

bool FSDLWindow::IsPointInWindow(int32 X, int32 Y) const
{
	const FIntRect Rect = GetClientRect();
	return X >= 0 && Y >= 0 && X < Rect.Width() && Y < Rect.Height();
}

bool FSDLWindow::IsForegroundWindow() const
{
	return HasFlags(SDL_WINDOW_INPUT_FOCUS);
}

void FSDLWindow::SetText(const TCHAR* const Text)
{
	Definition->Title = Text;
	SDL_SetWindowTitle(Handle, TCHAR_TO_UTF8(Text));
}

void FSDLWindow::PresentPixels(const uint8* Bgra, int32 Width, int32 Height, int32 Stride, const TArray<FIntRect>& Damage)
{
	SDL_Surface* Target = SDL_GetWindowSurface(Handle);
	if (!Target || Damage.Num() == 0)
	{
		return;
	}

	// Without alpha, so that the copy blends nothing.
	SDL_Surface* Source =
		SDL_CreateRGBSurfaceWithFormatFrom(const_cast<uint8*>(Bgra), Width, Height, 32, Stride, SDL_PIXELFORMAT_RGB888);
	TArray<SDL_Rect> Rects;
	Rects.Reserve(Damage.Num());
	for (const FIntRect& Part : Damage)
	{
		SDL_Rect Rect{Part.Min.X, Part.Min.Y, Part.Width(), Part.Height()};
		SDL_Rect Where = Rect;
		SDL_BlitSurface(Source, &Rect, Target, &Where);
		if (Where.w > 0 && Where.h > 0)
		{
			Rects.Add(Where);
		}
	}
	SDL_FreeSurface(Source);
	SDL_UpdateWindowSurfaceRects(Handle, Rects.GetData(), Rects.Num());
	bPresented = true;
}

bool FSDLWindow::RepaintFromKeptPixels()
{
	return bPresented && SDL_UpdateWindowSurface(Handle) == 0;
}
