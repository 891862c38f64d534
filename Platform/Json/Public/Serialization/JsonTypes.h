#pragma once

#include "CoreTypes.h"

/** The type of a value. None stands for any type where one is asked for. */
enum class EJson : uint8
{
	None,
	Null,
	String,
	Number,
	Boolean,
	Array,
	Object
};
