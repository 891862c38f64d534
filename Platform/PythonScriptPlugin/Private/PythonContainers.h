#pragma once

#include "PythonContainerType.h"

/** `unreal.Array`, `unreal.Set` and `unreal.Map`: values over engine memory, each a copy of its own. */
namespace PythonContainers
{
/** Adds the three types to the module. */
bool Register(PyObject* Module);

/** A copy of an array, set or map. */
FPythonRef ToPython(const TSharedRef<const FPythonContainerType>& Type, const void* Value);

/**
 * Fills initialised memory from an iterable, for a map from a mapping.
 *
 * @return False with a TypeError if the value is none or an element does not fit.
 */
bool Fill(const FPythonContainerType& Type, PyObject* Value, void* Memory);

// What Fill does for each type, made by its own source.
bool FillArray(const FPythonContainerType& Type, PyObject* Value, void* Memory);
bool FillSet(const FPythonContainerType& Type, PyObject* Value, void* Memory);
bool FillMap(const FPythonContainerType& Type, PyObject* Value, void* Memory);

/** Replaces all elements of a container; if one does not fit, the container stays as it was. */
bool Refill(PyObject* Self, PyObject* Values);

/** An iterator over the new elements of an array or set; null, with a TypeError, if the value is not iterable or is text. */
FPythonRef Iterate(const FPythonContainerType& Type, PyObject* Value);

/** Class method cast(type, values) of arrays and sets: a new container with the values. */
PyObject* Cast(PyObject* PythonType, PyObject* Arguments);

// The three types, each made by its own source.
FPythonRef MakeArrayType();
FPythonRef MakeSetType();
FPythonRef MakeMapType();

/** The type of arrays, sets or maps, by the kind of the property. */
PyTypeObject* TypeFor(const FProperty* Property);

PyTypeObject* SetType();
PyTypeObject* MapType();

/** Is the value a container of just that type, so that its memory can be copied? */
bool IsOfType(const FPythonContainerType& Type, PyObject* Value);

/** An empty container, as a new Python value. */
FPythonRef New(PyTypeObject* PythonType, const TSharedRef<const FPythonContainerType>& Type);

/** A copy of a container value, of the plain type. */
PyObject* Copy(PyObject* Self, PyObject*);

/** list(self) and the like: calls a built-in type with the container. */
FPythonRef As(PyTypeObject* BuiltinType, PyObject* Self);

/** Answers a comparison by that of BuiltinType over both sides. */
PyObject* CompareAs(PyTypeObject* BuiltinType, PyObject* Self, PyObject* Other, int Operation);
}
