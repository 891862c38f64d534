#pragma once

#include "PythonRef.h"

/** Iterators over sets and maps, whose places have holes. Like those of Python they raise if the container grows or shrinks. */
namespace PythonContainerIterator
{
/** How to walk through the places of a container. */
struct FPlaces
{
	int32 (*Num)(PyObject* Container);
	int32 (*MaxIndex)(PyObject* Container);
	bool (*IsValid)(PyObject* Container, int32 Index);
	/** What the iterator gives for a place. */
	FPythonRef (*At)(PyObject* Container, int32 Index);
};

/** An iterator over the places from first to last, or back. Places is a constant of the program. */
FPythonRef Make(PyObject* Container, const FPlaces& Places, bool bBackwards = false);
}
