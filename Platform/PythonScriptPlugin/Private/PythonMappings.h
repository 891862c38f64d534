#pragma once

#include "PythonRef.h"

/** Dictionaries and whatever behaves like one. */
namespace PythonMappings
{
/**
 * The (key, value) pairs of a mapping as a list that nobody else has.
 *
 * @return A list of tuples of two; null with an error if the mapping gives none. Its items() may be a script's.
 */
FPythonRef ItemsOf(PyObject* Mapping);
}
