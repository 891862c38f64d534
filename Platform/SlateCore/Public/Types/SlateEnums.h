#pragma once

#include "CoreTypes.h"

enum EHorizontalAlignment : int
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right,
};

enum EVerticalAlignment : int
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom,
};

enum EOrientation : int
{
	Orient_Horizontal,
	Orient_Vertical,
};

namespace ETextCommit
{
/** What made a text field commit its text. */
enum Type : int
{
	/** Losing focus or similar event caused implicit commit. */
	Default,
	/** The user pressed Enter. */
	OnEnter,
	/** The user moved the focus away, by mouse or Tab. */
	OnUserMovedFocus,
	/** The keyboard focus was taken away by code, or given up on commit. */
	OnCleared,
};
}

namespace ESelectInfo
{
/** What made a selection change. */
enum Type : int
{
	OnKeyPress,
	OnNavigation,
	OnMouseClick,
	Direct,
};
}

enum class EUINavigation : uint8
{
	Left,
	Right,
	Up,
	Down,
	Next,
	Previous,
	Num,
	Invalid,
};
