#pragma once

#include "PythonRef.h"

/** The functions of the `unreal` module that no class reflects: the log, and finding, loading and making objects. */
namespace PythonModuleFunctions
{
bool Register(PyObject* Module);
}
