#pragma once

#include "UObject/UnrealType.h"

/** The text of a parameter's C++ default (metadata CPP_Default_<Parameter>), null if it has none. */
COREUOBJECT_API const FString* FindParameterDefault(const UFunction& Function, const FProperty& Parameter);

/**
 * Puts the C++ default of a parameter into its initialised value.
 *
 * @return False if it has none, or its text is no such value; the value is as initialised then.
 */
COREUOBJECT_API bool ImportParameterDefault(const UFunction& Function, const FProperty& Parameter, void* Value);
