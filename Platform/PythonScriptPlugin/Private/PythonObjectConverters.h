#pragma once

#include "PythonConverter.h"

namespace PythonConverters
{
/** References to objects and classes; null for other properties. */
TUniquePtr<FPythonConverter> MakeForObject(const FProperty* Property);
}
