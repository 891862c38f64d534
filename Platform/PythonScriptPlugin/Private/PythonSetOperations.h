#pragma once

#include "PythonContainerType.h"

/** What sets do with other sets. Elements are the same by the engine's rule, by which texts have no case. */
namespace PythonSetOperations
{
/** A set, told apart by its elements, as it is changed by another one. */
struct FOperation
{
	void (*Apply)(const FPythonContainerType& Type, void* Target, const void* Operand);
	/** Do elements of the operand come into the set? Then all of them must be of its type; otherwise those that are not are no elements. */
	bool bAddsElements;
	/** The same for a set of Python. */
	binaryfunc Builtin;
};

extern const FOperation Union;
extern const FOperation Intersection;
extern const FOperation Difference;
extern const FOperation SymmetricDifference;

/** Changes a set by each of several iterables. False with an error, and nothing has changed, if one is none or does not fit. */
bool Apply(PyObject* Set, const FOperation& Operation, PyObject* const* Iterables, Py_ssize_t Count);

/** How the elements of a set and those of an iterable relate. */
struct FRelation
{
	bool bIsSubset;
	bool bIsSuperset;
	bool bIsDisjoint;
};

/** False with an error if the value is not iterable. */
bool Relate(PyObject* Set, PyObject* Iterable, FRelation& OutRelation);
}
