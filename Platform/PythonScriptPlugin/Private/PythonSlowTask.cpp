#include "PythonSlowTask.h"

#include "PythonErrors.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"

/** The work of a task. Nothing shows it without a window, but the calls and their checks are the same. */
struct FPythonSlowTask
{
	double TotalWork = 0.0;
	double CompletedWork = 0.0;
	bool bEntered = false;

	static FPythonSlowTask& From(PyObject* Self) { return PythonTypes::StateOf<FPythonSlowTask>(Self); }
};

static PyObject* NewTask(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"work", "desc", "enabled", nullptr};
	FPythonSlowTask Task;
	PyObject* Description = nullptr;
	int bEnabled = 1;
	if (!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "d|Op:ScopedSlowTask", const_cast<char**>(Names), &Task.TotalWork, &Description, &bEnabled))
	{
		return nullptr;
	}
	return PythonTypes::New<FPythonSlowTask>(Type, Task).Release();
}

static bool CheckEntered(PyObject* Self)
{
	if (!FPythonSlowTask::From(Self).bEntered)
	{
		PyErr_SetString(PyExc_RuntimeError, "a ScopedSlowTask is used inside of its 'with' block");
		return false;
	}
	return true;
}

static PyObject* EnterTask(PyObject* Self, PyObject*)
{
	FPythonSlowTask::From(Self).bEntered = true;
	return FPythonRef::Borrow(Self).Release();
}

static PyObject* LeaveTask(PyObject* Self, PyObject*)
{
	FPythonSlowTask::From(Self).bEntered = false;
	Py_RETURN_FALSE;
}

static PyObject* MakeDialog(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"can_cancel", "allow_in_pie", nullptr};
	int bCanCancel = 0;
	int bAllowInPie = 0;
	if (!CheckEntered(Self) ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "|pp:make_dialog", const_cast<char**>(Names), &bCanCancel, &bAllowInPie))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* MakeDialogDelayed(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"delay", "can_cancel", "allow_in_pie", nullptr};
	double Delay = 0.0;
	int bCanCancel = 0;
	int bAllowInPie = 0;
	if (!CheckEntered(Self) ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "d|pp:make_dialog_delayed", const_cast<char**>(Names), &Delay, &bCanCancel, &bAllowInPie))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* EnterProgressFrame(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"work", "desc", nullptr};
	double Work = 1.0;
	PyObject* Description = nullptr;
	if (!CheckEntered(Self) ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "|dO:enter_progress_frame", const_cast<char**>(Names), &Work, &Description))
	{
		return nullptr;
	}
	FPythonSlowTask& Task = FPythonSlowTask::From(Self);
	Task.CompletedWork = FMath::Min(Task.CompletedWork + Work, Task.TotalWork);
	Py_RETURN_NONE;
}

static PyObject* ShouldCancel(PyObject* Self, PyObject*)
{
	return CheckEntered(Self) ? PyBool_FromLong(0) : nullptr;
}

static PyMethodDef GTaskMethods[] = {
	{"__enter__", EnterTask, METH_NOARGS, nullptr},
	{"__exit__", LeaveTask, METH_VARARGS, nullptr},
	{"make_dialog", PythonKeywordFunction(MakeDialog), METH_VARARGS | METH_KEYWORDS,
		"make_dialog($self, can_cancel=False, allow_in_pie=False)\n--\n\nShows the progress, where there is somebody to see it."},
	{"make_dialog_delayed", PythonKeywordFunction(MakeDialogDelayed), METH_VARARGS | METH_KEYWORDS,
		"make_dialog_delayed($self, delay, can_cancel=False, allow_in_pie=False)\n--\n\nShows the progress after a time in "
		"seconds."},
	{"enter_progress_frame", PythonKeywordFunction(EnterProgressFrame), METH_VARARGS | METH_KEYWORDS,
		"enter_progress_frame($self, work=1.0, desc='')\n--\n\nSays that a further part of the work begins."},
	{"should_cancel", ShouldCancel, METH_NOARGS, "should_cancel($self, /)\n--\n\nTrue once the user asked to stop."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonSlowTask::Register(PyObject* Module)
{
	const FPythonRef Type =
		FPythonTypeSpec::Of<FPythonSlowTask>("unreal.ScopedSlowTask")
			.Doc("ScopedSlowTask(work, desc='', enabled=True)\n--\n\nProgress of long work, as a 'with' block.")
			.Methods(GTaskMethods)
			.Function(Py_tp_new, &NewTask)
			.Make();
	return Type && PyModule_AddType(Module, PythonTypes::AsType(Type)) == 0;
}
