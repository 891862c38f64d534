#include "PythonCallbacks.h"

#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "UObject/GCScopeLock.h"

static uint64 GLastHandle = 0;

FPythonCallbacks::FPythonCallbacks(const TCHAR* InScopeName)
	: ScopeName(InScopeName)
{
}

PyObject* FPythonCallbacks::Register(PyObject* Function)
{
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	if (!PyCallable_Check(Function))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("callable"), Function);
		return nullptr;
	}
	Functions.Add(++GLastHandle, FPythonRef::Borrow(Function));
	return PyLong_FromUnsignedLongLong(GLastHandle);
}

PyObject* FPythonCallbacks::Unregister(PyObject* Handle)
{
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	if (!PyLong_Check(Handle))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("the handle of a callback"), Handle);
		return nullptr;
	}
	Functions.Remove(PyLong_AsUnsignedLongLongMask(Handle));
	Py_RETURN_NONE;
}

void FPythonCallbacks::Call(PyObject* Argument) const
{
	TArray<uint64> Handles;
	Functions.GenerateKeyArray(Handles);
	for (const uint64 Handle : Handles)
	{
		if (const FPythonRef* const Function = Functions.Find(Handle))
		{
			CallOne(FPythonRef(*Function), Argument);
		}
	}
}

void FPythonCallbacks::CallOne(const FPythonRef Function, PyObject* Argument) const
{
	TRACE_CPUPROFILER_EVENT_SCOPE_STR(ScopeName);
	const FGCScopeGuard NoCollection;
	const FPythonRef Result =
		FPythonRef::Steal(Argument ? PyObject_CallOneArg(Function.Get(), Argument) : PyObject_CallNoArgs(Function.Get()));
	if (!Result)
	{
		PythonErrors::Report();
	}
	PythonLog::FlushStandardStreams();
}
