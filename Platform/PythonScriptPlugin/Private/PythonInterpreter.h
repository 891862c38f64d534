#pragma once

#include "PythonRef.h"

/** The one embedded interpreter. The game thread holds its lock all the time, but for FInterpreterRelease. */
class FPythonInterpreter
{
public:
	/**
	 * Starts an isolated interpreter: no PYTHON* variables, no user site-packages, no signal handlers; the system's library
	 * and dist-packages stay importable. Standard streams go to the log.
	 *
	 * @return False, with Errors in LogPython, if Python could not start.
	 */
	static bool Start();

	/** Ends the interpreter: global references go, then Python itself. */
	static void Stop();

	static bool IsRunning();

	/** Is this the thread that started the interpreter? The caller holds the interpreter lock. */
	static bool IsOnMainThread() { return PyThreadState_Get() == MainThread; }

	/** Raises RuntimeError and returns false anywhere but on the main thread. */
	static bool CheckMainThread() { return IsOnMainThread() || RaiseWrongThread(); }

	/** The variables of the console, which literal commands share. */
	static PyObject* ConsoleGlobals();

	/** Calls a function of the Python part of this module with one argument. Null with an error set on failure. */
	static FPythonRef CallBootstrap(const ANSICHAR* FunctionName, PyObject* Argument);

private:
	static bool RaiseWrongThread();

	static PyThreadState* MainThread;
};

/** Lets other Python threads run during its life. The main thread must not touch Python then. */
class FInterpreterRelease
{
public:
	FInterpreterRelease()
		: State(PyEval_SaveThread())
	{
	}
	~FInterpreterRelease() { PyEval_RestoreThread(State); }
	FInterpreterRelease(const FInterpreterRelease&) = delete;
	FInterpreterRelease& operator=(const FInterpreterRelease&) = delete;

private:
	PyThreadState* const State;
};
