#pragma once

#include "CoreMinimal.h"
#include "Misc/EnumClassFlags.h"

/** How the colours of a draw element are changed while it is painted. */
enum class ESlateDrawEffect : uint8
{
	None = 0,
	/** Faded, as everything within a disabled widget is. */
	DisabledEffect = 1 << 0,
};

ENUM_CLASS_FLAGS(ESlateDrawEffect);
