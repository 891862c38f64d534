#pragma once

#include "PythonRef.h"

class FReferenceCollector;
class UClass;
class UObject;

/**
 * Wrappers of engine objects, derived from `unreal._ObjectBase`.
 *
 * The same object gives the same wrapper while one lives. A wrapper keeps its object from being collected. An object that is
 * destroyed all the same leaves its wrapper without one, and every use raises ReferenceError.
 */
namespace PythonObjects
{
/** Adds `unreal._ObjectBase` to the module. */
bool RegisterBase(PyObject* Module);

/** The type `unreal._ObjectBase`. */
PyTypeObject* BaseType();

/** The wrapper of an object, of the Python type of its nearest class that has one; None for null. */
FPythonRef ToPython(UObject* Object);

/** True for a wrapper, whether or not its object lives. */
bool IsWrapper(PyObject* Value);

/** The object of a wrapper; null with ReferenceError if it was destroyed. */
UObject* FromWrapper(PyObject* Wrapper);

/**
 * Takes a wrapper of a Class object, or a type that is made from a class or derived from one by a script, which stands for the
 * same class; null, without an error, for anything else. The default object of a kind of classes is none itself.
 */
UClass* ClassFromPython(PyObject* Value);

/** As ClassFromPython, for what needs the class to be that very type's; null with a TypeError for anything else. */
UClass* OwnClassFromPython(PyObject* Value);

/** Forgets the object in its wrapper, and those inside of it on demand, so that they can be collected. */
void PurgeReferences(UObject* Object, bool bIncludeInners);

/** Keeps the objects of all wrappers through a collection. */
void AddReferencedObjects(FReferenceCollector& Collector);

/** Forgets the objects that a collection destroyed. */
void ForgetDestroyedObjects();

/** Takes all objects from their wrappers, before the interpreter ends. */
void ReleaseAll();
}
