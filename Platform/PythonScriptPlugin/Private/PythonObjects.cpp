#include "PythonObjects.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonName.h"
#include "PythonObjectMethods.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "PythonTypeTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

/** What a wrapper knows. Object is the key of its entry, which the next collection takes away if Live says that the object went. */
struct FPythonObject
{
	UObject* Object = nullptr;
	FWeakObjectPtr Live;

	~FPythonObject();
	static FPythonObject& From(PyObject* Self) { return PythonTypes::StateOf<FPythonObject>(Self); }
};

static FPythonGlobalRef GObjectBaseType;

/** The wrappers by object. They are not owned: a wrapper takes its entry out when it ends. */
static TMap<const UObject*, PyObject*> GWrappers;

FPythonObject::~FPythonObject()
{
	PyObject* const* const Wrapper = GWrappers.Find(Object);
	if (Wrapper && &From(*Wrapper) == this)
	{
		GWrappers.Remove(Object);
	}
}

PyTypeObject* PythonObjects::BaseType()
{
	return GObjectBaseType.GetType();
}

static FPythonRef MakeWrapper(PyTypeObject* Type, UObject* Object)
{
	const FPythonRef Wrapper = PythonTypes::New<FPythonObject>(Type);
	if (Wrapper)
	{
		FPythonObject& State = FPythonObject::From(Wrapper.Get());
		State.Object = Object;
		State.Live = Object;
		GWrappers.Add(Object, Wrapper.Get());
	}
	return Wrapper;
}

FPythonRef PythonObjects::ToPython(UObject* Object)
{
	if (!IsValid(Object))
	{
		return FPythonRef::Borrow(Py_None);
	}
	PyObject* const* const Known = GWrappers.Find(Object);
	// The address may have gone to another object since.
	if (Known && FPythonObject::From(*Known).Live.Get() == Object)
	{
		return FPythonRef::Borrow(*Known);
	}
	return MakeWrapper(PythonTypeTable::TypeOf(Object->GetClass()), Object);
}

bool PythonObjects::IsWrapper(PyObject* Value)
{
	return PyObject_TypeCheck(Value, GObjectBaseType.GetType());
}

UObject* PythonObjects::FromWrapper(PyObject* Wrapper)
{
	UObject* const Object = FPythonObject::From(Wrapper).Live.Get();
	if (!Object)
	{
		PyErr_Format(PyExc_ReferenceError, "the object of this '%s' was destroyed", Py_TYPE(Wrapper)->tp_name);
	}
	return Object;
}

UClass* PythonObjects::ClassFromPython(PyObject* Value)
{
	if (PyType_Check(Value))
	{
		return PythonTypeTable::ClassOf(reinterpret_cast<PyTypeObject*>(Value));
	}
	UObject* const Object = IsWrapper(Value) ? FPythonObject::From(Value).Live.Get() : nullptr;
	const bool bIsClass = Object && Object->IsA<UClass>() && !Object->HasAnyFlags(RF_ClassDefaultObject);
	return bIsClass ? static_cast<UClass*>(Object) : nullptr;
}

UClass* PythonObjects::OwnClassFromPython(PyObject* Value)
{
	UClass* const Class = ClassFromPython(Value);
	if (!Class)
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Class or type"), Value);
	}
	else if (PyType_Check(Value) && PythonTypeTable::TypeOf(Class) != reinterpret_cast<PyTypeObject*>(Value))
	{
		PyErr_Format(PyExc_TypeError, "the type '%s', made by a script, has no class of the engine",
			reinterpret_cast<PyTypeObject*>(Value)->tp_name);
		return nullptr;
	}
	return Class;
}

static void Forget(UObject* Object)
{
	if (PyObject* const* const Wrapper = GWrappers.Find(Object))
	{
		FPythonObject::From(*Wrapper).Live.Reset();
		FPythonObject::From(*Wrapper).Object = nullptr;
		GWrappers.Remove(Object);
	}
}

void PythonObjects::PurgeReferences(UObject* Object, bool bIncludeInners)
{
	Forget(Object);
	if (bIncludeInners)
	{
		TArray<UObject*> Inners;
		GetObjectsWithOuter(Object, Inners);
		for (UObject* Inner : Inners)
		{
			Forget(Inner);
		}
	}
}

void PythonObjects::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (const TPair<const UObject*, PyObject*>& Pair : GWrappers)
	{
		// The collector may null the reference to garbage, but the wrapper needs its key. No weak pointer tells anything now.
		UObject* Object = FPythonObject::From(Pair.Value).Object;
		Collector.AddReferencedObject(Object);
	}
}

void PythonObjects::ForgetDestroyedObjects()
{
	for (auto It = GWrappers.CreateIterator(); It; ++It)
	{
		FPythonObject& Wrapper = FPythonObject::From(It->Value);
		if (!Wrapper.Live.Get())
		{
			Wrapper.Object = nullptr;
			It.RemoveCurrent();
		}
	}
}

void PythonObjects::ReleaseAll()
{
	for (const TPair<const UObject*, PyObject*>& Pair : GWrappers)
	{
		FPythonObject::From(Pair.Value).Live.Reset();
		FPythonObject::From(Pair.Value).Object = nullptr;
	}
	GWrappers.Empty();
}

/** The outer of a new object: as given, or the transient package. */
static bool ReadOuter(PyObject* Value, UObject*& OutOuter)
{
	if (!Value || Value == Py_None)
	{
		OutOuter = GetTransientPackage();
		return true;
	}
	if (!PythonObjects::IsWrapper(Value))
	{
		return PythonErrors::RaiseUnexpectedType(TEXT("Object or None as outer"), Value);
	}
	OutOuter = PythonObjects::FromWrapper(Value);
	return OutOuter != nullptr;
}

/** unreal.SomeClass(outer=None, name='None') makes an object. */
static PyObject* NewObjectOfType(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"outer", "name", nullptr};
	PyObject* OuterValue = nullptr;
	PyObject* NameValue = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	if (!FPythonInterpreter::CheckMainThread() ||
		!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "|OO", const_cast<char**>(Names), &OuterValue, &NameValue) ||
		!ReadOuter(OuterValue, Outer) || !PythonObjectMethods::ReadObjectName(NameValue, Name))
	{
		return nullptr;
	}

	UClass* const Class = PythonTypeTable::ClassOf(Type);
	UObject* const Object = PythonObjectMethods::MakeObject(Class, Outer, Name);
	if (!Object)
	{
		return nullptr;
	}
	return PythonTypeTable::TypeOf(Class) == Type ? PythonObjects::ToPython(Object).Release()
												  : MakeWrapper(Type, Object).Release();
}

static int AcceptArguments(PyObject*, PyObject*, PyObject*)
{
	return 0;
}

static PyObject* WrapperToRepr(PyObject* Self)
{
	UObject* const Object = FPythonObject::From(Self).Live.Get();
	if (!Object)
	{
		return PyUnicode_FromFormat("<Destroyed object of type '%s'>", Py_TYPE(Self)->tp_name);
	}
	const FString Text = FString::Printf(TEXT("<Object '%s' (%p) Class '%s'>"), *Object->GetPathName(),
		static_cast<void*>(Object), *Object->GetClass()->GetName());
	return PythonStrings::ToPython(Text).Release();
}

bool PythonObjects::RegisterBase(PyObject* Module)
{
	GObjectBaseType = FPythonTypeSpec::Of<FPythonObject>("unreal._ObjectBase", Py_TPFLAGS_BASETYPE)
						  .Doc("Base of all objects of the engine.")
						  .Methods(PythonObjectMethods::Table())
						  .Function(Py_tp_new, &NewObjectOfType)
						  .Function(Py_tp_init, &AcceptArguments)
						  .Function(Py_tp_repr, &WrapperToRepr)
						  .Make();
	return GObjectBaseType && PyModule_AddType(Module, GObjectBaseType.GetType()) == 0;
}
