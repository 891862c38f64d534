#pragma once

#include "PythonConverter.h"

namespace PythonConverters
{
/** Arrays, sets and maps of what Python can see; null for other properties. */
TUniquePtr<FPythonConverter> MakeForContainer(const FProperty* Property);
}
