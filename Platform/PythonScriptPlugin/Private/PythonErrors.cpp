#include "PythonErrors.h"

#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonStrings.h"

FPythonError FPythonError::Take()
{
	PyObject* Type = nullptr;
	PyObject* Value = nullptr;
	PyObject* Traceback = nullptr;
	PyErr_Fetch(&Type, &Value, &Traceback);
	PyErr_NormalizeException(&Type, &Value, &Traceback);
	if (Traceback)
	{
		PyException_SetTraceback(Value, Traceback);
	}

	const FPythonRef OwnedType = FPythonRef::Steal(Type);
	const FPythonRef OwnedTraceback = FPythonRef::Steal(Traceback);
	FPythonError Error;
	Error.Exception = FPythonRef::Steal(Value);
	return Error;
}

bool FPythonError::IsA(PyObject* ExceptionClass) const
{
	return PyErr_GivenExceptionMatches(Exception.Get(), ExceptionClass) != 0;
}

FString FPythonError::Message() const
{
	return PythonStrings::Describe(Exception.Get());
}

TArray<FString> FPythonError::Lines() const
{
	TArray<FString> Result;
	const FPythonRef Lines = FPythonInterpreter::CallBootstrap("describe_error", Exception.Get());
	if (!Lines)
	{
		// The exception could not be shown in full, for want of memory say. Its one line must not get lost.
		PyErr_Clear();
		Result.Add(PythonStrings::TypeNameOf(Exception.Get()) + TEXT(": ") + Message());
		return Result;
	}
	for (Py_ssize_t Index = 0; Index < PyList_GET_SIZE(Lines.Get()); ++Index)
	{
		Result.Add(PythonStrings::FromStr(PyList_GET_ITEM(Lines.Get(), Index)));
	}
	return Result;
}

/** Names what the editor is busy with, innermost first: "While handling SButton 'OK', Tool.json". */
static void LogWhatIsBeingHandled()
{
	const TArray<FString> Scopes = FCpuProfilerScopeStack::Describe();
	if (Scopes.Num() > 0)
	{
		PythonLog::Write(EPythonLogOutputType::Error, TEXT("While handling ") + FString::Join(Scopes, TEXT(", ")));
	}
}

FString PythonErrors::Report()
{
	PythonLog::FlushStandardStreams();
	const TArray<FString> Lines = FPythonError::Take().Lines();
	for (const FString& Line : Lines)
	{
		PythonLog::Write(EPythonLogOutputType::Error, Line);
	}
	LogWhatIsBeingHandled();
	return FString::Join(Lines, TEXT("\n"));
}

void PythonErrors::Raise(PyObject* ExceptionClass, const FString& Message)
{
	if (const FPythonRef Text = PythonStrings::ToPython(Message))
	{
		PyErr_SetObject(ExceptionClass, Text.Get());
	}
}

void PythonErrors::Prefix(const FString& Place)
{
	for (PyObject* ExceptionClass : {PyExc_TypeError, PyExc_ValueError})
	{
		if (PyErr_ExceptionMatches(ExceptionClass))
		{
			const FString Message = FPythonError::Take().Message();
			Raise(ExceptionClass, Place + TEXT(": ") + Message);
			return;
		}
	}
}

bool PythonErrors::RaiseUnexpectedType(const FString& Expected, PyObject* Value)
{
	Raise(PyExc_TypeError, FString::Printf(TEXT("expected %s, got %s"), *Expected, *PythonStrings::TypeNameOf(Value)));
	return false;
}
