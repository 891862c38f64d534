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

/**
 * Makes an object.
 *
 * @param Name  None for a name of its own.
 * @return Null with an error if the class is abstract or the name belongs to an object of another class.
 */
UObject* MakeObject(UClass* Class, UObject* Outer, FName Name);
}
