#pragma once

#include "PythonRef.h"

/** Memory of an instance of a Python type whose C++ fields are a StateType. */
template <typename StateType>
struct TPythonInstance
{
	PyObject_HEAD StateType State;
};

/**
 * Describes a Python type implemented here, then makes it.
 *
 * Every type is a heap type, so that all types of the `unreal` module behave alike and end with the interpreter. Scripts cannot
 * change any of them, nor make an instance one of another type.
 */
class FPythonTypeSpec
{
public:
	/** A type whose instances hold a StateType, which is destroyed with them. QualifiedName is like "unreal.Name". */
	template <typename StateType>
	static FPythonTypeSpec Of(const ANSICHAR* QualifiedName, unsigned long Flags = 0)
	{
		FPythonTypeSpec Spec(QualifiedName, sizeof(TPythonInstance<StateType>), Flags);
		Spec.Function(
			Py_tp_dealloc,
			+[](PyObject* Self)
			{
				reinterpret_cast<TPythonInstance<StateType>*>(Self)->State.~StateType();
				Release(Self);
			});
		return Spec;
	}

	/** A type without a state that needs care. InstanceSize 0 takes the base type's. */
	FPythonTypeSpec(const ANSICHAR* QualifiedName, SIZE_T InstanceSize, unsigned long Flags = 0);

	/** A function for the slot of that number; its type is the one that Python documents for the slot. */
	template <typename FunctionType>
	FPythonTypeSpec& Function(int SlotId, FunctionType* Value)
	{
		return Slot(SlotId, reinterpret_cast<void*>(Value));
	}

	/** Tables outlive the type; the text is copied. */
	FPythonTypeSpec& Methods(PyMethodDef* Table) { return Slot(Py_tp_methods, Table); }
	FPythonTypeSpec& Getters(PyGetSetDef* Table) { return Slot(Py_tp_getset, Table); }
	FPythonTypeSpec& Members(PyMemberDef* Table) { return Slot(Py_tp_members, Table); }
	FPythonTypeSpec& Doc(const ANSICHAR* Text) { return Slot(Py_tp_doc, const_cast<ANSICHAR*>(Text)); }
	FPythonTypeSpec& Base(PyTypeObject* Type) { return Slot(Py_tp_base, Type); }

	/** The type, or null with a Python error. */
	FPythonRef Make();

	/** Frees the memory of an instance and drops its reference to the type. */
	static void Release(PyObject* Self);

private:
	FPythonTypeSpec& Slot(int SlotId, void* Value);

	const ANSICHAR* Name;
	SIZE_T InstanceSize;
	unsigned long Flags;
	TArray<PyType_Slot> Slots;
};

namespace PythonTypes
{
inline PyTypeObject* AsType(const FPythonRef& Type)
{
	return reinterpret_cast<PyTypeObject*>(Type.Get());
}

/** Gives a type an attribute, which scripts cannot do. False with a Python error when memory runs out. */
bool AddAttribute(PyTypeObject* Type, PyObject* Name, PyObject* Value);

template <typename StateType>
StateType& StateOf(PyObject* Self)
{
	return reinterpret_cast<TPythonInstance<StateType>*>(Self)->State;
}

/** A new instance of Type, its state made from Arguments. Null with a Python error when memory runs out. */
template <typename StateType, typename... ArgumentTypes>
FPythonRef New(PyTypeObject* Type, ArgumentTypes&&... Arguments)
{
	FPythonRef Result = FPythonRef::Steal(Type->tp_alloc(Type, 0));
	if (Result)
	{
		new (&StateOf<StateType>(Result.Get())) StateType{Forward<ArgumentTypes>(Arguments)...};
	}
	return Result;
}
}

/** A function with the signature (self, args, kwargs), as method tables want it. */
inline PyCFunction PythonKeywordFunction(PyCFunctionWithKeywords Function)
{
	return reinterpret_cast<PyCFunction>(reinterpret_cast<void*>(Function));
}
