#include "PythonIterators.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonObjects.h"
#include "PythonTypeSpec.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

/** A walk over the objects that there were when it began; those that go meanwhile are left out. */
struct FPythonObjectWalk
{
	TArray<FWeakObjectPtr> Objects;
	int32 Next = 0;
};

static FPythonRef MakeWalk(PyTypeObject* Type, const TArray<UObject*>& Objects)
{
	TArray<FWeakObjectPtr> Weak;
	Weak.Reserve(Objects.Num());
	for (UObject* Object : Objects)
	{
		Weak.Add(FWeakObjectPtr(Object));
	}
	return PythonTypes::New<FPythonObjectWalk>(Type, MoveTemp(Weak));
}

/** The class to walk over: as given, or Object. */
static UClass* ParseClass(PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"type", nullptr};
	PyObject* Type = nullptr;
	if (!FPythonInterpreter::CheckMainThread() ||
		!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "|O", const_cast<char**>(Names), &Type))
	{
		return nullptr;
	}
	UClass* const Class = Type ? PythonObjects::ClassFromPython(Type) : UObject::StaticClass();
	if (!Class)
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Class or type"), Type);
	}
	return Class;
}

static PyObject* NewObjectWalk(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	const UClass* const Class = ParseClass(Arguments, Keywords);
	if (!Class)
	{
		return nullptr;
	}
	TArray<UObject*> Objects;
	GetObjectsOfClass(Class, Objects);
	return MakeWalk(Type, Objects).Release();
}

static PyObject* NewClassWalk(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	UClass* const Class = ParseClass(Arguments, Keywords);
	if (!Class)
	{
		return nullptr;
	}
	TArray<UClass*> Derived;
	GetDerivedClasses(Class, Derived);
	TArray<UObject*> Objects;
	Objects.Add(Class);
	for (UClass* Child : Derived)
	{
		Objects.Add(Child);
	}
	return MakeWalk(Type, Objects).Release();
}

static PyObject* NextOfWalk(PyObject* Self)
{
	FPythonObjectWalk& Walk = PythonTypes::StateOf<FPythonObjectWalk>(Self);
	while (Walk.Next < Walk.Objects.Num())
	{
		if (UObject* const Object = Walk.Objects[Walk.Next++].Get())
		{
			return PythonObjects::ToPython(Object).Release();
		}
	}
	return nullptr;
}

static bool RegisterWalk(PyObject* Module, const ANSICHAR* Name, newfunc New, const ANSICHAR* Doc)
{
	const FPythonRef Type = FPythonTypeSpec::Of<FPythonObjectWalk>(Name)
								.Doc(Doc)
								.Function(Py_tp_new, New)
								.Function(Py_tp_iter, &PyObject_SelfIter)
								.Function(Py_tp_iternext, &NextOfWalk)
								.Make();
	return Type && PyModule_AddType(Module, PythonTypes::AsType(Type)) == 0;
}

bool PythonIterators::Register(PyObject* Module)
{
	return RegisterWalk(Module, "unreal.ObjectIterator", &NewObjectWalk,
			   "ObjectIterator(type=Object)\n--\n\nAll objects of a class and of those derived from it, without default "
			   "objects.") &&
		RegisterWalk(Module, "unreal.ClassIterator", &NewClassWalk,
			"ClassIterator(type=Object)\n--\n\nA class and all that derive from it.");
}
