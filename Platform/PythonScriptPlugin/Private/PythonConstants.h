#pragma once

#include "PythonFunction.h"

/** Static functions that are constants of a type, as their metadata says: ScriptConstant="Zero" is `Vector.ZERO`. */
namespace PythonConstants
{
/** Gives the type a constant for a function without parameters. Each use calls it, so that nobody can change the constant. */
bool AddToHost(PyTypeObject* Type, UFunction* Function);

/** The function of an attribute that AddToHost made; null for any other. */
const FPythonFunction* FunctionOf(PyObject* Attribute);
}
