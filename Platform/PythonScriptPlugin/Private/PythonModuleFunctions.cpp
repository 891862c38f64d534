#include "PythonModuleFunctions.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonName.h"
#include "PythonObjectMethods.h"
#include "PythonObjects.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "PythonTypeTable.h"
#include "UObject/UObjectGlobals.h"

template <EPythonLogOutputType Type>
static PyObject* WriteToLog(PyObject*, PyObject* Message)
{
	const FPythonRef Text = FPythonRef::Steal(PyObject_Str(Message));
	if (!Text)
	{
		return nullptr;
	}
	PythonLog::Write(Type, PythonStrings::FromStr(Text.Get()));
	Py_RETURN_NONE;
}

static PyObject* FlushLog(PyObject*, PyObject*)
{
	PythonLog::FlushStandardStreams();
	GLog->Flush();
	Py_RETURN_NONE;
}

/** The arguments (outer, name, type) of functions that look for objects. */
struct FObjectQuery
{
	UObject* Outer = nullptr;
	FString Name;
	UClass* Class = UObject::StaticClass();

	bool Parse(PyObject* Arguments, PyObject* Keywords, const char* Format)
	{
		static const char* const Names[] = {"outer", "name", "type", "follow_redirectors", nullptr};
		PyObject* OuterValue = Py_None;
		PyObject* NameValue = nullptr;
		PyObject* TypeValue = nullptr;
		int bFollowRedirectors = 1;
		return FPythonInterpreter::CheckMainThread() &&
			PyArg_ParseTupleAndKeywords(Arguments, Keywords, Format, const_cast<char**>(Names), &OuterValue, &NameValue,
				&TypeValue, &bFollowRedirectors) &&
			ReadOuter(OuterValue) && ReadName(NameValue) && ReadType(TypeValue);
	}

private:
	bool ReadOuter(PyObject* Value)
	{
		if (Value == Py_None)
		{
			return true;
		}
		if (!PythonObjects::IsWrapper(Value))
		{
			return PythonErrors::RaiseUnexpectedType(TEXT("Object or None as outer"), Value);
		}
		Outer = PythonObjects::FromWrapper(Value);
		return Outer != nullptr;
	}

	bool ReadName(PyObject* Value)
	{
		if (!PyUnicode_Check(Value) && !PythonName::Get(Value))
		{
			return PythonErrors::RaiseUnexpectedType(TEXT("Name or str as name"), Value);
		}
		Name = PythonStrings::Describe(Value);
		return true;
	}

	bool ReadType(PyObject* Value)
	{
		Class = Value ? PythonObjects::ClassFromPython(Value) : Class;
		return Class || PythonErrors::RaiseUnexpectedType(TEXT("Class or type"), Value);
	}
};

static FPythonRef WarnIfMissing(UObject* Object, const FObjectQuery& Query)
{
	if (!Object)
	{
		PythonLog::Write(
			EPythonLogOutputType::Warning, FString::Printf(TEXT("%s '%s' was not found"), *Query.Class->GetName(), *Query.Name));
	}
	return PythonObjects::ToPython(Object);
}

static PyObject* FindObjectByName(PyObject*, PyObject* Arguments, PyObject* Keywords)
{
	FObjectQuery Query;
	if (!Query.Parse(Arguments, Keywords, "OO|Op:find_object"))
	{
		return nullptr;
	}
	return WarnIfMissing(StaticFindObject(Query.Class, Query.Outer, *Query.Name), Query).Release();
}

static PyObject* LoadObjectByName(PyObject*, PyObject* Arguments, PyObject* Keywords)
{
	FObjectQuery Query;
	if (!Query.Parse(Arguments, Keywords, "OO|Op:load_object"))
	{
		return nullptr;
	}
	// A failure is told by the loader itself.
	return PythonObjects::ToPython(StaticLoadObject(Query.Class, Query.Outer, *Query.Name)).Release();
}

static PyObject* NewObjectOfClass(PyObject*, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"type", "outer", "name", nullptr};
	PyObject* Type = nullptr;
	PyObject* OuterValue = Py_None;
	PyObject* NameValue = nullptr;
	if (!FPythonInterpreter::CheckMainThread() ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "O|OO:new_object", const_cast<char**>(Names), &Type, &OuterValue, &NameValue))
	{
		return nullptr;
	}
	FName Name;
	UClass* const Class = PythonObjects::OwnClassFromPython(Type);
	if (!Class || !PythonObjectMethods::ReadObjectName(NameValue, Name))
	{
		return nullptr;
	}
	if (OuterValue != Py_None && !PythonObjects::IsWrapper(OuterValue))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Object or None as outer"), OuterValue);
		return nullptr;
	}
	UObject* const Outer = OuterValue != Py_None ? PythonObjects::FromWrapper(OuterValue) : GetTransientPackage();
	UObject* const Object = Outer ? PythonObjectMethods::MakeObject(Class, Outer, Name) : nullptr;
	return Object ? PythonObjects::ToPython(Object).Release() : nullptr;
}

static PyObject* GetDefaultObjectOfClass(PyObject*, PyObject* Type)
{
	UClass* const Class = FPythonInterpreter::CheckMainThread() ? PythonObjects::OwnClassFromPython(Type) : nullptr;
	return Class ? PythonObjects::ToPython(Class->GetDefaultObject()).Release() : nullptr;
}

static PyObject* GetTypeFromClass(PyObject*, PyObject* Value)
{
	const UClass* const Class = PythonObjects::ClassFromPython(Value);
	if (!Class)
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Class"), Value);
		return nullptr;
	}
	return FPythonRef::Borrow(reinterpret_cast<PyObject*>(PythonTypeTable::TypeOf(Class))).Release();
}

static PyObject* PurgeObjectReferences(PyObject*, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"object", "include_inners", nullptr};
	PyObject* Wrapper = nullptr;
	int bIncludeInners = 1;
	if (!FPythonInterpreter::CheckMainThread() ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "O|p:purge_object_references", const_cast<char**>(Names), &Wrapper, &bIncludeInners))
	{
		return nullptr;
	}
	if (!PythonObjects::IsWrapper(Wrapper))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Object"), Wrapper);
		return nullptr;
	}
	UObject* const Object = PythonObjects::FromWrapper(Wrapper);
	if (!Object)
	{
		return nullptr;
	}
	PythonObjects::PurgeReferences(Object, bIncludeInners != 0);
	Py_RETURN_NONE;
}

static PyObject* GetInterpreterExecutablePath(PyObject*, PyObject*)
{
	return PyUnicode_FromString(KESTRIX_PYTHON_EXECUTABLE);
}

static PyMethodDef GFunctions[] = {
	{"log", WriteToLog<EPythonLogOutputType::Info>, METH_O, "log(arg, /)\n--\n\nWrites to LogPython."},
	{"log_warning", WriteToLog<EPythonLogOutputType::Warning>, METH_O,
		"log_warning(arg, /)\n--\n\nWrites a Warning to LogPython."},
	{"log_error", WriteToLog<EPythonLogOutputType::Error>, METH_O, "log_error(arg, /)\n--\n\nWrites an Error to LogPython."},
	{"log_flush", FlushLog, METH_NOARGS, "log_flush()\n--\n\nShows unfinished lines and writes the log to disk."},
	{"find_object", PythonKeywordFunction(FindObjectByName), METH_VARARGS | METH_KEYWORDS,
		"find_object(outer, name, type=Object, follow_redirectors=True)\n--\n\nAn object in memory; None, with a Warning, if "
		"there "
		"is none."},
	{"load_object", PythonKeywordFunction(LoadObjectByName), METH_VARARGS | METH_KEYWORDS,
		"load_object(outer, name, type=Object, follow_redirectors=True)\n--\n\nAn object, loaded if need be; None, with a "
		"Warning, "
		"if there is none."},
	{"new_object", PythonKeywordFunction(NewObjectOfClass), METH_VARARGS | METH_KEYWORDS,
		"new_object(type, outer=None, name='None')\n--\n\nMakes an object."},
	{"get_default_object", GetDefaultObjectOfClass, METH_O,
		"get_default_object(type, /)\n--\n\nThe object that holds the first values of a class."},
	{"get_type_from_class", GetTypeFromClass, METH_O,
		"get_type_from_class(class_, /)\n--\n\nThe Python type of objects of a class."},
	{"purge_object_references", PythonKeywordFunction(PurgeObjectReferences), METH_VARARGS | METH_KEYWORDS,
		"purge_object_references(object, include_inners=True)\n--\n\nLets go of an object, so that it can be collected; its "
		"wrapper "
		"cannot be used any more."},
	{"get_interpreter_executable_path", GetInterpreterExecutablePath, METH_NOARGS,
		"get_interpreter_executable_path()\n--\n\nA Python executable of the same version, for subprocesses."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonModuleFunctions::Register(PyObject* Module)
{
	return PyModule_AddFunctions(Module, GFunctions) == 0;
}
