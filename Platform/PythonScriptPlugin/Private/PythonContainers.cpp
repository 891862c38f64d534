#include "PythonContainers.h"

#include "PythonErrors.h"
#include "PythonTypeSpec.h"
#include "UObject/UnrealType.h"

static FPythonGlobalRef GArrayType;
static FPythonGlobalRef GSetType;
static FPythonGlobalRef GMapType;

bool PythonContainers::Register(PyObject* Module)
{
	GArrayType = MakeArrayType();
	GSetType = MakeSetType();
	GMapType = MakeMapType();
	for (const FPythonGlobalRef* Type : {&GArrayType, &GSetType, &GMapType})
	{
		if (!*Type || PyModule_AddType(Module, Type->GetType()) < 0)
		{
			return false;
		}
	}
	return true;
}

PyTypeObject* PythonContainers::TypeFor(const FProperty* Property)
{
	if (Property->IsA<FArrayProperty>())
	{
		return GArrayType.GetType();
	}
	return Property->IsA<FSetProperty>() ? GSetType.GetType() : GMapType.GetType();
}

PyTypeObject* PythonContainers::SetType()
{
	return GSetType.GetType();
}

PyTypeObject* PythonContainers::MapType()
{
	return GMapType.GetType();
}

FPythonRef PythonContainers::New(PyTypeObject* PythonType, const TSharedRef<const FPythonContainerType>& Type)
{
	FPythonRef Result = FPythonRef::Steal(PythonType->tp_alloc(PythonType, 0));
	if (Result)
	{
		new (&FPythonContainer::From(Result.Get())) FPythonContainer(Type);
	}
	return Result;
}

FPythonRef PythonContainers::ToPython(const TSharedRef<const FPythonContainerType>& Type, const void* Value)
{
	const FPythonRef Result = New(TypeFor(Type->Property), Type);
	if (Result)
	{
		FPythonContainer::From(Result.Get()).CopyFrom(Value);
	}
	return Result;
}

bool PythonContainers::Fill(const FPythonContainerType& Type, PyObject* Value, void* Memory)
{
	if (Type.Property->IsA<FArrayProperty>())
	{
		return FillArray(Type, Value, Memory);
	}
	return Type.Property->IsA<FSetProperty>() ? FillSet(Type, Value, Memory) : FillMap(Type, Value, Memory);
}

bool PythonContainers::Refill(PyObject* Self, PyObject* Values)
{
	const FPythonContainer& Container = FPythonContainer::From(Self);
	const FScopedPropertyValue Converted(Container.Type->Property);
	if (!Fill(*Container.Type, Values, Converted.Get()))
	{
		return false;
	}
	Container.Type->Property->CopyCompleteValue(Container.Memory, Converted.Get());
	return true;
}

FPythonRef PythonContainers::Iterate(const FPythonContainerType& Type, PyObject* Value)
{
	// Text is iterable too, but its letters are never meant.
	FPythonRef Iterator = PyUnicode_Check(Value) ? FPythonRef() : FPythonRef::Steal(PyObject_GetIter(Value));
	if (!Iterator)
	{
		PyErr_Clear();
		PythonErrors::RaiseUnexpectedType(TEXT("iterable of ") + Type.Element->TypeName(), Value);
	}
	return Iterator;
}

PyObject* PythonContainers::Cast(PyObject* PythonType, PyObject* Arguments)
{
	PyObject* ElementType = nullptr;
	PyObject* Values = nullptr;
	if (!PyArg_ParseTuple(Arguments, "OO:cast", &ElementType, &Values))
	{
		return nullptr;
	}
	FPythonRef Result = FPythonRef::Steal(PyObject_CallOneArg(PythonType, ElementType));
	return Result && Refill(Result.Get(), Values) ? Result.Release() : nullptr;
}

PyObject* PythonContainers::Copy(PyObject* Self, PyObject*)
{
	const FPythonContainer& Container = FPythonContainer::From(Self);
	return ToPython(Container.Type, Container.Memory).Release();
}

FPythonRef PythonContainers::As(PyTypeObject* BuiltinType, PyObject* Self)
{
	return FPythonRef::Steal(PyObject_CallOneArg(reinterpret_cast<PyObject*>(BuiltinType), Self));
}

PyObject* PythonContainers::CompareAs(PyTypeObject* BuiltinType, PyObject* Self, PyObject* Other, int Operation)
{
	if (Py_TYPE(Other) != Py_TYPE(Self) && !PyObject_TypeCheck(Other, BuiltinType))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	const FPythonRef Left = As(BuiltinType, Self);
	const FPythonRef Right = Left ? As(BuiltinType, Other) : FPythonRef();
	return Right ? PyObject_RichCompare(Left.Get(), Right.Get(), Operation) : nullptr;
}

bool PythonContainers::IsOfType(const FPythonContainerType& Type, PyObject* Value)
{
	return Py_TYPE(Value) == TypeFor(Type.Property) && FPythonContainer::From(Value).Type->Property->SameType(Type.Property);
}
