#include "PythonInterpreter.h"

#include "PythonErrors.h"
#include "PythonLog.h"
#include "PythonStrings.h"

#include <dlfcn.h>

static const ANSICHAR GBootstrapSource[] =
#include "PythonBootstrap.inl"
	;

static const ANSICHAR GBootstrapName[] = "_unreal_bootstrap";

PyThreadState* FPythonInterpreter::MainThread = nullptr;
static FPythonGlobalRef GConsoleGlobals;
static FPythonGlobalRef GBootstrap;

/**
 * Extension modules of the system look for the interpreter's functions among the global symbols of the process. This module
 * may have been loaded privately, and the interpreter's library with it.
 */
static void PublishInterpreterSymbols()
{
	Dl_info Library = {};
	if (dladdr(reinterpret_cast<void*>(&Py_InitializeFromConfig), &Library) && Library.dli_fname)
	{
		dlopen(Library.dli_fname, RTLD_NOW | RTLD_GLOBAL | RTLD_NOLOAD);
	}
}

static PyStatus InitializeIsolated()
{
	PyPreConfig PreConfig;
	PyPreConfig_InitIsolatedConfig(&PreConfig);
	PreConfig.utf8_mode = 1;
	PyStatus Status = Py_PreInitialize(&PreConfig);
	if (PyStatus_Exception(Status))
	{
		return Status;
	}

	PyConfig Config;
	PyConfig_InitIsolatedConfig(&Config);
	Config.install_signal_handlers = 0;
	Config.parse_argv = 0;
	// The library of the system's interpreter is found from the place of its executable.
	Status = PyConfig_SetBytesString(&Config, &Config.program_name, KESTRIX_PYTHON_EXECUTABLE);
	if (!PyStatus_Exception(Status))
	{
		Status = PyConfig_SetBytesString(&Config, &Config.executable, KESTRIX_PYTHON_EXECUTABLE);
	}
	if (!PyStatus_Exception(Status))
	{
		Status = Py_InitializeFromConfig(&Config);
	}
	PyConfig_Clear(&Config);
	return Status;
}

static FPythonRef MakeBootstrapModule()
{
	const FPythonRef Code = FPythonRef::Steal(Py_CompileString(GBootstrapSource, "<bootstrap>", Py_file_input));
	return Code ? FPythonRef::Steal(PyImport_ExecCodeModule(GBootstrapName, Code.Get())) : FPythonRef();
}

bool FPythonInterpreter::Start()
{
	PublishInterpreterSymbols();
	const PyStatus Status = InitializeIsolated();
	if (PyStatus_Exception(Status))
	{
		UE_LOG(LogPython, Error, TEXT("Python could not start: %s"),
			UTF8_TO_TCHAR(Status.err_msg ? Status.err_msg : "unknown reason"));
		return false;
	}

	MainThread = PyThreadState_Get();
	GConsoleGlobals = FPythonRef::Borrow(PyModule_GetDict(PyImport_AddModule("__main__")));
	GBootstrap = MakeBootstrapModule();
	if (!GBootstrap || !PythonLog::RedirectStandardStreams())
	{
		PythonErrors::Report();
		Stop();
		return false;
	}
	return true;
}

void FPythonInterpreter::Stop()
{
	PythonLog::FlushStandardStreams();
	FPythonGlobalRef::ReleaseAll();
	Py_FinalizeEx();
	MainThread = nullptr;
}

bool FPythonInterpreter::IsRunning()
{
	return MainThread != nullptr;
}

PyObject* FPythonInterpreter::ConsoleGlobals()
{
	return GConsoleGlobals.Get();
}

FPythonRef FPythonInterpreter::CallBootstrap(const ANSICHAR* FunctionName, PyObject* Argument)
{
	if (!GBootstrap)
	{
		PyErr_SetString(PyExc_RuntimeError, "Python has not started");
		return FPythonRef();
	}
	const FPythonRef Name = FPythonRef::Steal(PyUnicode_FromString(FunctionName));
	return Name ? FPythonRef::Steal(PyObject_CallMethodOneArg(GBootstrap.Get(), Name.Get(), Argument)) : FPythonRef();
}

bool FPythonInterpreter::RaiseWrongThread()
{
	PyErr_SetString(PyExc_RuntimeError, "the functions and objects of 'unreal' can be used on the main thread only");
	return false;
}
