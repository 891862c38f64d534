#pragma once

#include "PythonRef.h"

/** Python functions that run when Python ends. */
namespace PythonShutdownCallbacks
{
/** Adds register_python_shutdown_callback and its opposite to the module. */
bool Register(PyObject* Module);

/** Calls all of them, while scripts can still do everything, and lets go of them. */
void Run();
}
