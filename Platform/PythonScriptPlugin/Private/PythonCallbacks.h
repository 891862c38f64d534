#pragma once

#include "PythonRef.h"

/** Python functions that wait for an event, in the order of their registration. */
class FPythonCallbacks
{
public:
	/** @param ScopeName  What errors name as being handled: "a Slate pre-tick callback". */
	explicit FPythonCallbacks(const TCHAR* InScopeName);

	/** Adds a function of a script and gives its handle. Null with an error for what cannot be called, and off the main thread. */
	PyObject* Register(PyObject* Function);

	/** Takes the function of a handle out, if it is there, and gives None. Null with an error for what is no handle. */
	PyObject* Unregister(PyObject* Handle);

	/**
	 * Calls all with one argument, or with none if it is null. One that raises is logged and stays. One that was taken out by an
	 * earlier one is not called any more, one that was added is not called yet.
	 */
	void Call(PyObject* Argument = nullptr) const;

	bool IsEmpty() const { return Functions.Num() == 0; }
	void Empty() { Functions.Empty(); }

private:
	void CallOne(const FPythonRef Function, PyObject* Argument) const;

	const TCHAR* const ScopeName;
	TMap<uint64, FPythonRef> Functions;
};
