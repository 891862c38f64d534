#pragma once

#include "PythonFunction.h"

class UClass;

/** The functions of a class as methods of its Python type. */
namespace PythonMethods
{
/** Gives the type a method for each script-callable function that Class itself declares. */
bool Add(PyTypeObject* Type, const UClass* Class);

/** Gives the type of a static function's first parameter a method for it (ScriptMethod). */
bool AddToHost(PyTypeObject* Type, UFunction* Function);

/** The function of an attribute that Add or AddToHost made; null for any other. */
const FPythonFunction* FunctionOf(PyObject* Attribute);

/** True for what scripts may call by its snake_case name. */
bool IsExposed(const UFunction* Function);
}
