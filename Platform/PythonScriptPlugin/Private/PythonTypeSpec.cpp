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

FPythonRef FPythonTypeSpec::Make()
{
	Slots.Add({0, nullptr});
	PyType_Spec Spec = {};
	Spec.name = Name;
	Spec.basicsize = static_cast<int>(InstanceSize);
	Spec.flags = static_cast<unsigned int>(Py_TPFLAGS_DEFAULT | Flags);
	Spec.slots = Slots.GetData();
	FPythonRef Type = FPythonRef::Steal(PyType_FromSpec(&Spec));
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
	return PyObject_SetAttr(reinterpret_cast<PyObject*>(Type), Name, Value) == 0;
}
