#include "PythonShutdownCallbacks.h"

#include "PythonCallbacks.h"

static FPythonCallbacks GCallbacks(TEXT("a Python shutdown callback"));

static PyObject* RegisterCallback(PyObject*, PyObject* Function)
{
	return GCallbacks.Register(Function);
}

static PyObject* UnregisterCallback(PyObject*, PyObject* Handle)
{
	return GCallbacks.Unregister(Handle);
}

static PyMethodDef GShutdownFunctions[] = {
	{"register_python_shutdown_callback", RegisterCallback, METH_O,
		"register_python_shutdown_callback(callable, /)\n--\n\nCalls callable() when Python ends, while everything still works. "
		"Gives a handle."},
	{"unregister_python_shutdown_callback", UnregisterCallback, METH_O,
		"unregister_python_shutdown_callback(handle, /)\n--\n\nTakes a shutdown callback back."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonShutdownCallbacks::Register(PyObject* Module)
{
	return PyModule_AddFunctions(Module, GShutdownFunctions) == 0;
}

void PythonShutdownCallbacks::Run()
{
	GCallbacks.Call();
	GCallbacks.Empty();
}
