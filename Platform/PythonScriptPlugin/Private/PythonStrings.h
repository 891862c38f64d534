#pragma once

#include "PythonRef.h"

/** Text between the engine's UTF-16 and Python's str. Lone surrogates survive the way there and back. */
namespace PythonStrings
{
/** A str of Length UTF-16 units. Null with an error set only when memory runs out. */
FPythonRef ToPython(const TCHAR* Text, int32 Length);
FPythonRef ToPython(const FString& Text);

/** A str that is compared by identity where Python interns names, such as keywords and attribute names. */
FPythonRef Intern(const FString& Text);

/** The text of a str. Value must be one. */
FString FromStr(PyObject* Value);

/** str(Value); an empty text if that raises, with the error cleared. */
FString Describe(PyObject* Value);

/** Name of the value's type, for messages: "int", "NoneType", "VelmoraData". */
FString TypeNameOf(PyObject* Value);

/** The UTF-8 bytes that the C API wants for formats and type names, null-terminated. */
TArray<ANSICHAR> ToUtf8(const FString& Text);
}
