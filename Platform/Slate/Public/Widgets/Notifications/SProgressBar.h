#pragma once

#include "CoreTypes.h"

/** The ways in which a progress bar fills. */
namespace EProgressBarFillType
{
enum Type : int
{
	LeftToRight,
	RightToLeft,
	FillFromCenter,
	TopToBottom,
	BottomToTop,
};
}
