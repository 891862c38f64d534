#pragma once

#include "PythonRef.h"

class UScriptStruct;

/**
 * Values of reflected structures, derived from `unreal.StructBase`. Each Python value has memory of its own: what comes from an
 * object is a copy, and a changed copy is set back as a whole.
 */
namespace PythonStruct
{
/** Adds `unreal.StructBase` to the module. */
bool RegisterBase(PyObject* Module);

/** Makes the type of a structure. BaseType is the type of its parent, or null for StructBase. */
FPythonRef MakeType(UScriptStruct* Struct, PyTypeObject* ParentType);

/** A copy of a value. Null with an error if the structure has no type. */
FPythonRef ToPython(UScriptStruct* Struct, const void* Value);

/**
 * Writes a structure of that type or one derived from it, a mapping of some fields or a sequence in the order of the constructor's
 * arguments to initialised memory.
 *
 * @return False with a TypeError if the value is none of these or a field does not fit.
 */
bool FromPython(UScriptStruct* Struct, PyObject* Value, void* Memory);

/** The structure of a value; null if it is no value of a structure. */
UScriptStruct* StructOfValue(PyObject* Value);

/** The memory of a structure's value. */
void* MemoryOf(PyObject* Value);
}
