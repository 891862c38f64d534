#pragma once

#include "PythonRef.h"

class UEnum;

/** The Python types of enumerations, derived from `unreal.EnumBase`, with one object per entry as class attribute. */
namespace PythonEnum
{
/** Adds `unreal.EnumBase` to the module. */
bool RegisterBase(PyObject* Module);

/** Makes the type of an enumeration. Hidden and _MAX entries are left out. */
FPythonRef MakeType(UEnum* Enum);

/** The entry of that value; one that is no entry's gives an object without name that keeps the value. */
FPythonRef ToPython(const UEnum* Enum, int64 Value);

/** Takes an entry of this enumeration or an int; false, without an error, for anything else. */
bool FromPython(const UEnum* Enum, PyObject* Value, int64& OutValue);

/** True for the type of an entry. */
bool IsEnumType(PyTypeObject* Type);

/** The enumeration of a type that MakeType made, or null. */
UEnum* EnumOf(PyTypeObject* Type);

/** Lets go of all entries, before the interpreter ends. */
void ReleaseAll();
}
