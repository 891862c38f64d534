#pragma once

#include "PythonRef.h"
#include "UObject/NameTypes.h"

class UClass;
class UObject;

/** What every object of the engine can do in Python. */
namespace PythonObjectMethods
{
/** Methods of `unreal._ObjectBase`. */
PyMethodDef* Table();

/** A name for an object from a Name, a str, or null or None for no name. False with an error for anything else. */
bool ReadObjectName(PyObject* Value, FName& OutName);

/**
 * Makes an object.
 *
 * @param Name  None for a name of its own.
 * @return Null with an error if the class is abstract or makes types, which come from reflection alone, or if the name belongs to
 * a default object or to an object of another class.
 */
UObject* MakeObject(UClass* Class, UObject* Outer, FName Name);
}
