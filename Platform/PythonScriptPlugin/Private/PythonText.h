#pragma once

#include "Internationalization/Text.h"
#include "PythonRef.h"

/** `unreal.Text`: text that users read. */
namespace PythonText
{
/** Adds the type to the module. */
bool Register(PyObject* Module);

PyTypeObject* Type();

FPythonRef ToPython(const FText& Text);

/** Takes a Text, a str or a Name; false, without an error, for anything else. */
bool FromPython(PyObject* Value, FText& OutText);

/** The text of a Text; null for other values. */
const FText* Get(PyObject* Value);
}
