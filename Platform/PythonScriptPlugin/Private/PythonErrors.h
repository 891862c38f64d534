#pragma once

#include "PythonRef.h"

/** An exception that was taken out of the interpreter, whose error state is clear from then on. */
class FPythonError
{
public:
	/** Takes the present error. There must be one. */
	static FPythonError Take();

	/** Is it an instance of that exception class? */
	bool IsA(PyObject* ExceptionClass) const;

	/** str() of the exception. */
	FString Message() const;

	/** The traceback and the exception as Python prints them. */
	TArray<FString> Lines() const;

	PyObject* Get() const { return Exception.Get(); }

private:
	FPythonRef Exception;
};

namespace PythonErrors
{
/**
 * Takes the present error and logs it line by line as Errors, followed by what the editor was handling.
 *
 * @return The traceback as one text.
 */
FString Report();

/** Raises an exception with an engine text. */
void Raise(PyObject* ExceptionClass, const FString& Message);

/** Puts a prefix before the message of the present error, if it is one of values and types that did not fit. */
void Prefix(const FString& Place);

/** TypeError "expected <Expected>, got <type of Value>". Returns false, so that a converter can end with it. */
bool RaiseUnexpectedType(const FString& Expected, PyObject* Value);
}
