#pragma once

#include "PythonFunction.h"

class UScriptStruct;

/**
 * What a structure is made of for scripts: the parameters of the native function that makes it (metadata HasNativeMake), otherwise
 * its fields in declared order. A native function that takes it apart (HasNativeBreak) gives the same values back.
 */
namespace PythonStructFields
{
/** The function that makes the structure; null if it is made of its fields. */
const FPythonFunction* FindMake(UScriptStruct* Struct);

/** SomeStruct(first, third=value): writes to initialised memory. Keywords may be null. False with a TypeError as of CPython's calls. */
bool Construct(UScriptStruct* Struct, PyObject* Arguments, PyObject* Keywords, void* Memory);

/** Writes the first values of a sequence or those that a mapping names to initialised memory, where the others stay. */
bool SetInOrder(UScriptStruct* Struct, PyObject* Sequence, void* Memory);
bool SetByName(UScriptStruct* Struct, PyObject* Mapping, void* Memory);

/** The values as a tuple. Value is the structure as Python sees it. */
FPythonRef ToTuple(UScriptStruct* Struct, PyObject* Value);

void ReleaseAll();
}
