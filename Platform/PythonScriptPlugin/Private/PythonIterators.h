#pragma once

#include "PythonRef.h"

/** `unreal.ObjectIterator` and `unreal.ClassIterator`. */
namespace PythonIterators
{
bool Register(PyObject* Module);
}
