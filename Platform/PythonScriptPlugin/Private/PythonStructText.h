#pragma once

#include "PythonRef.h"

class UScriptStruct;

/** Structures as text, for logs and the console. */
namespace PythonStructText
{
/** "<Struct 'Vector' (0x00007F0011223344) {x: 1.000000, y: 2.000000, z: 3.000000}>". */
FPythonRef Repr(UScriptStruct* Struct, PyObject* Value);

/** The text of its method to_string for a structure of which scripts see no field, such as a date; otherwise as Repr. */
FPythonRef Str(UScriptStruct* Struct, PyObject* Value);
}
