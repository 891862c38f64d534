#include "PythonContainers.h"
#include "PythonTypeSpec.h"
#include "UObject/UnrealType.h"

static FScriptSetHelper HelperOf(const FPythonContainerType& Type, void* Memory)
{
	return FScriptSetHelper(CastField<FSetProperty>(Type.Property), Memory);
}

static FScriptSetHelper HelperOf(PyObject* Self)
{
	const FPythonContainer& Set = FPythonContainer::From(Self);
	return HelperOf(*Set.Type, Set.Memory);
}

static bool AddTo(const FPythonContainerType& Type, FScriptSetHelper& Helper, PyObject* Value)
{
	const FScopedPropertyValue Converted(Type.ElementProperty);
	if (!Type.Element->FromPython(Value, Converted.Get()))
	{
		return false;
	}
	Helper.AddElement(Converted.Get());
	return true;
}

bool PythonContainers::FillSet(const FPythonContainerType& Type, PyObject* Value, void* Memory)
{
	const FPythonRef Iterator = Iterate(Type, Value);
	if (!Iterator)
	{
		return false;
	}
	FScriptSetHelper Helper = HelperOf(Type, Memory);
	Helper.EmptyElements();
	while (const FPythonRef Item = FPythonRef::Steal(PyIter_Next(Iterator.Get())))
	{
		if (!AddTo(Type, Helper, Item.Get()))
		{
			return false;
		}
	}
	return !PyErr_Occurred();
}

static PyObject* NewSet(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"type", nullptr};
	PyObject* ElementType = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "O:Set", const_cast<char**>(Names), &ElementType))
	{
		return nullptr;
	}
	const TSharedPtr<const FPythonContainerType> ContainerType = FPythonContainerType::MakeSet(ElementType);
	return ContainerType ? PythonContainers::New(Type, ContainerType.ToSharedRef()).Release() : nullptr;
}

static Py_ssize_t SetLength(PyObject* Self)
{
	return HelperOf(Self).Num();
}

static FPythonRef ListElements(PyObject* Self)
{
	const FScriptSetHelper Helper = HelperOf(Self);
	FPythonRef List = FPythonRef::Steal(PyList_New(0));
	for (int32 Index = 0; List && Index < Helper.GetMaxIndex(); ++Index)
	{
		if (!Helper.IsValidIndex(Index))
		{
			continue;
		}
		const FPythonRef Element = FPythonContainer::From(Self).Type->Element->ToPython(Helper.GetElementPtr(Index));
		if (!Element || PyList_Append(List.Get(), Element.Get()) < 0)
		{
			return FPythonRef();
		}
	}
	return List;
}

static PyObject* IterateSet(PyObject* Self)
{
	const FPythonRef List = ListElements(Self);
	return List ? PyObject_GetIter(List.Get()) : nullptr;
}

/** Place of an element, INDEX_NONE if it is not there or of another type, which is no error. */
static int32 FindInSet(PyObject* Self, PyObject* Value)
{
	const FPythonContainerType& Type = *FPythonContainer::From(Self).Type;
	const FScopedPropertyValue Converted(Type.ElementProperty);
	if (!Type.Element->FromPython(Value, Converted.Get()))
	{
		PyErr_Clear();
		return INDEX_NONE;
	}
	return HelperOf(Self).FindElementIndex(Converted.Get());
}

static int SetContains(PyObject* Self, PyObject* Value)
{
	return FindInSet(Self, Value) != INDEX_NONE;
}

static PyObject* AddToSet(PyObject* Self, PyObject* Value)
{
	FScriptSetHelper Helper = HelperOf(Self);
	if (!AddTo(*FPythonContainer::From(Self).Type, Helper, Value))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* DiscardFromSet(PyObject* Self, PyObject* Value)
{
	const int32 Index = FindInSet(Self, Value);
	if (Index != INDEX_NONE)
	{
		HelperOf(Self).RemoveAt(Index);
	}
	Py_RETURN_NONE;
}

static PyObject* RemoveFromSet(PyObject* Self, PyObject* Value)
{
	if (!SetContains(Self, Value))
	{
		PyErr_SetObject(PyExc_KeyError, Value);
		return nullptr;
	}
	return DiscardFromSet(Self, Value);
}

static PyObject* ClearSet(PyObject* Self, PyObject*)
{
	HelperOf(Self).EmptyElements();
	Py_RETURN_NONE;
}

/** Adds the items of any number of iterables, all or none. */
static PyObject* UpdateSet(PyObject* Self, PyObject* Iterables)
{
	const FPythonRef Elements = ListElements(Self);
	for (Py_ssize_t Index = 0; Elements && Index < PyTuple_GET_SIZE(Iterables); ++Index)
	{
		const FPythonRef Extended =
			FPythonRef::Steal(PySequence_InPlaceConcat(Elements.Get(), PyTuple_GET_ITEM(Iterables, Index)));
		if (!Extended)
		{
			return nullptr;
		}
	}
	if (!Elements || !PythonContainers::Refill(Self, Elements.Get()))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

/** Runs a method of set over the elements. */
static FPythonRef CallAsSet(PyObject* Self, const ANSICHAR* Method, PyObject* Arguments)
{
	const FPythonRef Elements = PythonContainers::As(&PySet_Type, Self);
	const FPythonRef Callable = Elements ? FPythonRef::Steal(PyObject_GetAttrString(Elements.Get(), Method)) : FPythonRef();
	return Callable ? FPythonRef::Steal(PyObject_CallObject(Callable.Get(), Arguments)) : FPythonRef();
}

/** A method of set that tells something about the elements. */
template <const ANSICHAR* const& Method>
static PyObject* TellAsSet(PyObject* Self, PyObject* Arguments)
{
	return CallAsSet(Self, Method, Arguments).Release();
}

/** A method of set that makes another set, which has the same type here. */
template <const ANSICHAR* const& Method>
static PyObject* CombineAsSet(PyObject* Self, PyObject* Arguments)
{
	const FPythonRef Elements = CallAsSet(Self, Method, Arguments);
	FPythonRef Result = Elements ? PythonContainers::New(Py_TYPE(Self), FPythonContainer::From(Self).Type) : FPythonRef();
	return Result && PythonContainers::Refill(Result.Get(), Elements.Get()) ? Result.Release() : nullptr;
}

static const ANSICHAR* const GUnion = "union";
static const ANSICHAR* const GIntersection = "intersection";
static const ANSICHAR* const GDifference = "difference";
static const ANSICHAR* const GSymmetricDifference = "symmetric_difference";
static const ANSICHAR* const GIsSubset = "issubset";
static const ANSICHAR* const GIsSuperset = "issuperset";
static const ANSICHAR* const GIsDisjoint = "isdisjoint";

/** self | other and the like, for other sets only. */
template <const ANSICHAR* const& Method>
static PyObject* OperateAsSet(PyObject* Self, PyObject* Other)
{
	PyTypeObject* const SetType = PythonContainers::SetType();
	if (Py_TYPE(Self) != SetType || (Py_TYPE(Other) != SetType && !PyAnySet_Check(Other)))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Other));
	return Arguments ? CombineAsSet<Method>(Self, Arguments.Get()) : nullptr;
}

static PyObject* PopFromSet(PyObject* Self, PyObject*)
{
	const FPythonRef Elements = ListElements(Self);
	if (!Elements || PyList_GET_SIZE(Elements.Get()) == 0)
	{
		PyErr_SetString(PyExc_KeyError, "pop from an empty Set");
		return nullptr;
	}
	PyObject* const First = PyList_GET_ITEM(Elements.Get(), 0);
	const FPythonRef Removed = FPythonRef::Steal(RemoveFromSet(Self, First));
	return Removed ? FPythonRef::Borrow(First).Release() : nullptr;
}

static PyObject* CompareSets(PyObject* Self, PyObject* Other, int Operation)
{
	return PythonContainers::CompareAs(&PySet_Type, Self, Other, Operation);
}

static PyObject* SetToRepr(PyObject* Self)
{
	const FPythonRef List = ListElements(Self);
	return List ? PyUnicode_FromFormat("Set(%R)", List.Get()) : nullptr;
}

static PyMethodDef GSetMethods[] = {
	{"cast", PythonContainers::Cast, METH_VARARGS | METH_CLASS,
		"cast($type, type, obj, /)\n--\n\nMakes a Set of a type of the items of an iterable."},
	{"copy", PythonContainers::Copy, METH_NOARGS, "copy($self, /)\n--\n\nA copy of the set."},
	{"__copy__", PythonContainers::Copy, METH_NOARGS, "__copy__($self, /)\n--\n\nA copy of the set."},
	{"add", AddToSet, METH_O, "add($self, value, /)\n--\n\nAdds a value."},
	{"discard", DiscardFromSet, METH_O, "discard($self, value, /)\n--\n\nRemoves a value if it is there."},
	{"remove", RemoveFromSet, METH_O, "remove($self, value, /)\n--\n\nRemoves a value; KeyError if it is not there."},
	{"clear", ClearSet, METH_NOARGS, "clear($self, /)\n--\n\nRemoves all values."},
	{"update", UpdateSet, METH_VARARGS, "update($self, *iterables)\n--\n\nAdds the items of iterables."},
	{"pop", PopFromSet, METH_NOARGS, "pop($self, /)\n--\n\nRemoves a value and gives it; KeyError for an empty set."},
	{"union", CombineAsSet<GUnion>, METH_VARARGS, "union($self, *others)\n--\n\nThe values of this and all others."},
	{"intersection", CombineAsSet<GIntersection>, METH_VARARGS, "intersection($self, *others)\n--\n\nThe values that all have."},
	{"difference", CombineAsSet<GDifference>, METH_VARARGS, "difference($self, *others)\n--\n\nThe values that no other has."},
	{"symmetric_difference", CombineAsSet<GSymmetricDifference>, METH_VARARGS,
		"symmetric_difference($self, other, /)\n--\n\nThe values that one of both has."},
	{"issubset", TellAsSet<GIsSubset>, METH_VARARGS,
		"issubset($self, other, /)\n--\n\nWhether the other has all values of this."},
	{"issuperset", TellAsSet<GIsSuperset>, METH_VARARGS,
		"issuperset($self, other, /)\n--\n\nWhether this has all values of the other."},
	{"isdisjoint", TellAsSet<GIsDisjoint>, METH_VARARGS,
		"isdisjoint($self, other, /)\n--\n\nWhether both have no value in common."},
	{nullptr, nullptr, 0, nullptr},
};

FPythonRef PythonContainers::MakeSetType()
{
	return FPythonTypeSpec::Of<FPythonContainer>("unreal.Set")
		.Doc("Set(type)\n--\n\nA set of values of one type, in the order of adding.")
		.Methods(GSetMethods)
		.Function(Py_tp_new, &NewSet)
		.Function(Py_tp_repr, &SetToRepr)
		.Function(Py_tp_iter, &IterateSet)
		.Function(Py_tp_richcompare, &CompareSets)
		.Function(Py_tp_hash, &PyObject_HashNotImplemented)
		.Function(Py_nb_or, &OperateAsSet<GUnion>)
		.Function(Py_nb_and, &OperateAsSet<GIntersection>)
		.Function(Py_nb_subtract, &OperateAsSet<GDifference>)
		.Function(Py_nb_xor, &OperateAsSet<GSymmetricDifference>)
		.Function(Py_sq_length, &SetLength)
		.Function(Py_sq_contains, &SetContains)
		.Make();
}
