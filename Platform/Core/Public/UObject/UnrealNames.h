#pragma once

#include "CoreTypes.h"

/** Names that the code knows by number. */
enum EName : uint32
{
	NAME_None = 0
};

inline constexpr int32 NAME_SIZE = 1024;

/** A name's number as it is stored: 0 without one, otherwise one more than what is printed. */
inline constexpr int32 NAME_NO_NUMBER_INTERNAL = 0;
#define NAME_INTERNAL_TO_EXTERNAL(Number) ((Number)-1)
#define NAME_EXTERNAL_TO_INTERNAL(Number) ((Number) + 1)
