#pragma once

#include "InputCoreTypes.h"

/** Whether a key presses what has the focus. */
inline bool IsAcceptKey(const FKey& Key)
{
	return Key == EKeys::Enter || Key == EKeys::SpaceBar;
}
