#pragma once

#include "PythonFunction.h"

/**
 * Static functions that are operators of the type of their first parameter, as their metadata says: ScriptOperator="+;+=".
 *
 * Several functions may stand for one operator of a type. The first whose other parameter takes the right operand is called.
 */
namespace PythonOperators
{
/** Gives the type the operators of a function. What does not have the operator's form is left out with a Warning. */
bool AddToHost(PyTypeObject* Type, UFunction* Function);

/** The functions of an attribute that AddToHost made; none for any other. */
TArray<const FPythonFunction*> FunctionsOf(PyObject* Attribute);
}
