#include "SDL/SDLCursor.h"

#include <SDL.h>

namespace
{

SDL_SystemCursor GetSystemCursor(EMouseCursor::Type Type)
{
	switch (Type)
	{
		case EMouseCursor::TextEditBeam:
			return SDL_SYSTEM_CURSOR_IBEAM;
		case EMouseCursor::ResizeLeftRight:
			return SDL_SYSTEM_CURSOR_SIZEWE;
		case EMouseCursor::ResizeUpDown:
			return SDL_SYSTEM_CURSOR_SIZENS;
		case EMouseCursor::ResizeSouthEast:
			return SDL_SYSTEM_CURSOR_SIZENWSE;
		case EMouseCursor::ResizeSouthWest:
			return SDL_SYSTEM_CURSOR_SIZENESW;
		case EMouseCursor::CardinalCross:
		case EMouseCursor::GrabHandClosed:
			return SDL_SYSTEM_CURSOR_SIZEALL;
		case EMouseCursor::Crosshairs:
		case EMouseCursor::EyeDropper:
			return SDL_SYSTEM_CURSOR_CROSSHAIR;
		case EMouseCursor::Hand:
		case EMouseCursor::GrabHand:
			return SDL_SYSTEM_CURSOR_HAND;
		case EMouseCursor::SlashedCircle:
			return SDL_SYSTEM_CURSOR_NO;
		default:
			return SDL_SYSTEM_CURSOR_ARROW;
	}
}

}

FSDLCursor::FSDLCursor()
{
	int X = 0;
	int Y = 0;
	SDL_GetGlobalMouseState(&X, &Y);
	Position = FVector2D(X, Y);
}

FSDLCursor::~FSDLCursor()
{
	for (SDL_Cursor* Shape : Shapes)
	{
		SDL_FreeCursor(Shape);
	}
}

void FSDLCursor::SetPosition(const int32 X, const int32 Y)
{
	SDL_WarpMouseGlobal(X, Y);
	Position = FVector2D(X, Y);
}

void FSDLCursor::SetType(const EMouseCursor::Type InNewCursor)
{
	if (Type == InNewCursor)
	{
		return;
	}
	Type = InNewCursor;
	if (Type != EMouseCursor::None)
	{
		SDL_Cursor*& Shape = Shapes[Type];
		if (!Shape)
		{
			Shape = SDL_CreateSystemCursor(GetSystemCursor(Type));
		}
		SDL_SetCursor(Shape);
	}
	SDL_ShowCursor(bShown && Type != EMouseCursor::None ? SDL_ENABLE : SDL_DISABLE);
}

void FSDLCursor::Show(bool bShow)
{
	bShown = bShow;
	SDL_ShowCursor(bShown && Type != EMouseCursor::None ? SDL_ENABLE : SDL_DISABLE);
}
