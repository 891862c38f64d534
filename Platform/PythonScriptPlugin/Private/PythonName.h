#pragma once

#include "PythonRef.h"
#include "UObject/NameTypes.h"

/** `unreal.Name`: text that the engine compares without regard to case. */
namespace PythonName
{
/** Adds the type to the module. */
bool Register(PyObject* Module);

PyTypeObject* Type();

FPythonRef ToPython(FName Name);

/** Takes a Name or a str; false, without an error, for anything else. */
bool FromPython(PyObject* Value, FName& OutName);

/** The name of a Name; null for other values. */
const FName* Get(PyObject* Value);
}
