#include "PythonTypeSpec.h"

#include <cstring>

FPythonTypeSpec::FPythonTypeSpec(const ANSICHAR* QualifiedName, SIZE_T InInstanceSize, unsigned long InFlags)
	: Name(QualifiedName)
	, InstanceSize(InInstanceSize)
	, Flags(InFlags)
{
}

FPythonTypeSpec& FPythonTypeSpec::Slot(int SlotId, void* Value)
{
	Slots.Add({SlotId, Value});
	return *this;
}

static PyObject* GetClassOfInstance(PyObject* Self, void*)
{
	return FPythonRef::Borrow(reinterpret_cast<PyObject*>(Py_TYPE(Self))).Release();
}

static int RefuseClassOfInstance(PyObject* Self, PyObject*, void*)
{
	PyErr_Format(PyExc_TypeError, "the class of a '%s' cannot be changed", Py_TYPE(Self)->tp_name);
	return -1;
}

/** Python itself allows it between types that a script derived, whatever the engine's value in the instance is. */
static PyGetSetDef GClassOfInstance = {"__class__", GetClassOfInstance, RefuseClassOfInstance, nullptr, nullptr};

static bool FixClassOfInstances(PyTypeObject* Type)
{
	// Setting the attribute would set the class of the type itself.
	const FPythonRef Attribute = FPythonRef::Steal(PyDescr_NewGetSet(Type, &GClassOfInstance));
	const bool bFixed = Attribute && PyDict_SetItemString(Type->tp_dict, GClassOfInstance.name, Attribute.Get()) == 0;
	PyType_Modified(Type);
	return bFixed;
}

FPythonRef FPythonTypeSpec::Make()
{
	Slots.Add({0, nullptr});
	PyType_Spec Spec = {};
	Spec.name = Name;
	Spec.basicsize = static_cast<int>(InstanceSize);
	Spec.flags = static_cast<unsigned int>(Py_TPFLAGS_DEFAULT | Py_TPFLAGS_IMMUTABLETYPE | Flags);
	Spec.slots = Slots.GetData();
	FPythonRef Type = FPythonRef::Steal(PyType_FromSpec(&Spec));
	const bool bDerived = Slots.ContainsByPredicate([](const PyType_Slot& Slot) { return Slot.slot == Py_tp_base; });
	if (Type && !bDerived && !FixClassOfInstances(PythonTypes::AsType(Type)))
	{
		return FPythonRef();
	}
	if (Type)
	{
		// Messages show the bare name, as for a class that a script defines; the module is known by __module__.
		PyTypeObject* const TypeObject = PythonTypes::AsType(Type);
		const ANSICHAR* const Dot = strrchr(TypeObject->tp_name, '.');
		TypeObject->tp_name = Dot ? Dot + 1 : TypeObject->tp_name;
	}
	return Type;
}

void FPythonTypeSpec::Release(PyObject* Self)
{
	PyTypeObject* const Type = Py_TYPE(Self);
	Type->tp_free(Self);
	Py_DECREF(reinterpret_cast<PyObject*>(Type));
}

bool PythonTypes::AddAttribute(PyTypeObject* Type, PyObject* Name, PyObject* Value)
{
	const unsigned long Immutable = Type->tp_flags & Py_TPFLAGS_IMMUTABLETYPE;
	Type->tp_flags &= ~Immutable;
	const bool bAdded = PyObject_SetAttr(reinterpret_cast<PyObject*>(Type), Name, Value) == 0;
	Type->tp_flags |= Immutable;
	return bAdded;
}
