#pragma once

#include "CoreMinimal.h"

/** Shapes of the mouse cursor. */
namespace EMouseCursor
{
enum Type
{
	None,
	Default,
	TextEditBeam,
	ResizeLeftRight,
	ResizeUpDown,
	ResizeSouthEast,
	ResizeSouthWest,
	CardinalCross,
	Crosshairs,
	Hand,
	GrabHand,
	GrabHandClosed,
	SlashedCircle,
	EyeDropper,
	TotalCursorCount,
};
}

/** The mouse cursor of the desktop. */
class ICursor
{
public:
	virtual ~ICursor() = default;

	/** Desktop pixels. */
	virtual FVector2D GetPosition() const = 0;
	virtual void SetPosition(const int32 X, const int32 Y) = 0;
	virtual void SetType(const EMouseCursor::Type InNewCursor) = 0;
	virtual EMouseCursor::Type GetType() const = 0;
	virtual void Show(bool bShow) = 0;
};
