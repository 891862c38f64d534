#pragma once

#include "PythonRef.h"

class UClass;
class UEnum;
class UScriptStruct;
class UStruct;

/** The Python types of reflected classes, structures and enumerations. */
namespace PythonTypeTable
{
/** Makes types for all that the loaded modules reflect and Python does not know yet, and adds them to the module. */
bool Update(PyObject* Module);

/** The type of a class or of its nearest parent that has one. */
PyTypeObject* TypeOf(const UClass* Class);

/** Null for a structure that Python does not know. */
PyTypeObject* TypeOf(const UScriptStruct* Struct);

/** The type of just that class or structure; null if it has none. */
PyTypeObject* OwnTypeOf(const UStruct* Struct);

/** The class of a type or of its nearest base that has one; null for types of other kinds. */
UClass* ClassOf(PyTypeObject* Type);
UScriptStruct* StructOf(PyTypeObject* Type);

/** All classes with a type, parents before children; for the stub and iterators. */
const TArray<UClass*>& Classes();
const TArray<UScriptStruct*>& Structs();
const TArray<UEnum*>& Enums();

/** Lets go of all types, before the interpreter ends. */
void ReleaseAll();
}
