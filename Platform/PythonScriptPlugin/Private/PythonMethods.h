#pragma once

#include "PythonFunction.h"

class UClass;

/** The functions of a class as methods of its Python type. */
namespace PythonMethods
{
/** Gives the type a method for each script-callable function that Class itself declares. */
bool Add(PyTypeObject* Type, const UClass* Class);

/** True for what scripts may call by its snake_case name. */
bool IsExposed(const UFunction* Function);
}
