#pragma once

#include "CoreTypes.h"

/** How values become text. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	/** The value stands inside a container or a structure, so texts and names are quoted. */
	PPF_Delimited = 0x00000002,
};
