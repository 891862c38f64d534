#pragma once

#include "PythonConverter.h"

namespace PythonConverters
{
/** Numbers, bools, texts, names, enumerations and structures; null for other properties. */
TUniquePtr<FPythonConverter> MakeForValue(const FProperty* Property);
}
