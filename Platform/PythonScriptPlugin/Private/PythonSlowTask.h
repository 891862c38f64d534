#pragma once

#include "PythonRef.h"

/** `unreal.ScopedSlowTask`: progress of long work. */
namespace PythonSlowTask
{
bool Register(PyObject* Module);
}
