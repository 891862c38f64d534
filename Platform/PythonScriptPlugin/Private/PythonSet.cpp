#include "PythonContainerIterator.h"
#include "PythonContainers.h"
#include "PythonSetOperations.h"
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
	if (IsOfType(Type, Value))
	{
		Type.Property->CopyCompleteValue(Memory, FPythonContainer::From(Value).Memory);
		return true;
	}
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

static FPythonRef ElementAt(PyObject* Self, int32 Index)
{
	return FPythonContainer::From(Self).Type->Element->ToPython(HelperOf(Self).GetElementPtr(Index));
}

static const PythonContainerIterator::FPlaces GSetPlaces = {
	[](PyObject* Self) { return HelperOf(Self).Num(); },
	[](PyObject* Self) { return HelperOf(Self).GetMaxIndex(); },
	[](PyObject* Self, int32 Index) { return HelperOf(Self).IsValidIndex(Index); },
	&ElementAt,
};

static PyObject* IterateSet(PyObject* Self)
{
	return PythonContainerIterator::Make(Self, GSetPlaces).Release();
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

using PythonSetOperations::FOperation;

/** A method that changes the set by each of its arguments. */
template <const FOperation& Operation>
static PyObject* ChangeSet(PyObject* Self, PyObject* const* Iterables, Py_ssize_t Count)
{
	if (!PythonSetOperations::Apply(Self, Operation, Iterables, Count))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

/** A method that makes another set of the same type. */
template <const FOperation& Operation>
static PyObject* CombineSet(PyObject* Self, PyObject* const* Iterables, Py_ssize_t Count)
{
	FPythonRef Result = FPythonRef::Steal(PythonContainers::Copy(Self, nullptr));
	return Result && PythonSetOperations::Apply(Result.Get(), Operation, Iterables, Count) ? Result.Release() : nullptr;
}

/** The same for operations of two sets. */
template <PyObject* (*Method)(PyObject* Self, PyObject* const* Iterables, Py_ssize_t Count)>
static PyObject* WithOne(PyObject* Self, PyObject* Iterable)
{
	return Method(Self, &Iterable, 1);
}

static bool IsSet(PyObject* Value)
{
	return Py_TYPE(Value) == PythonContainers::SetType();
}

/** self | other and the like, for other sets only. A set of Python at the left gives one of Python. */
template <const FOperation& Operation>
static PyObject* OperateOnSets(PyObject* Left, PyObject* Right)
{
	if (IsSet(Left) && (IsSet(Right) || PyAnySet_Check(Right)))
	{
		return CombineSet<Operation>(Left, &Right, 1);
	}
	if (!PyAnySet_Check(Left))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	const FPythonRef Builtin = PythonContainers::As(&PySet_Type, Right);
	return Builtin ? Operation.Builtin(Left, Builtin.Get()) : nullptr;
}

template <const FOperation& Operation>
static PyObject* OperateInPlace(PyObject* Self, PyObject* Other)
{
	if (!IsSet(Other) && !PyAnySet_Check(Other))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	return PythonSetOperations::Apply(Self, Operation, &Other, 1) ? FPythonRef::Borrow(Self).Release() : nullptr;
}

using PythonSetOperations::FRelation;

template <bool FRelation::*Answer>
static PyObject* TellOfSet(PyObject* Self, PyObject* Iterable)
{
	FRelation Relation;
	return PythonSetOperations::Relate(Self, Iterable, Relation) ? PyBool_FromLong(Relation.*Answer) : nullptr;
}

static PyObject* PopFromSet(PyObject* Self, PyObject*)
{
	FScriptSetHelper Helper = HelperOf(Self);
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			FPythonRef Element = ElementAt(Self, Index);
			if (Element)
			{
				Helper.RemoveAt(Index);
			}
			return Element.Release();
		}
	}
	PyErr_SetString(PyExc_KeyError, "pop from an empty Set");
	return nullptr;
}

static bool Compare(const FRelation& Relation, int Operation)
{
	const bool bEqual = Relation.bIsSubset && Relation.bIsSuperset;
	switch (Operation)
	{
		case Py_EQ:
			return bEqual;
		case Py_NE:
			return !bEqual;
		case Py_LE:
			return Relation.bIsSubset;
		case Py_LT:
			return Relation.bIsSubset && !bEqual;
		case Py_GE:
			return Relation.bIsSuperset;
		default:
			return Relation.bIsSuperset && !bEqual;
	}
}

static PyObject* CompareSets(PyObject* Self, PyObject* Other, int Operation)
{
	if (!IsSet(Other) && !PyAnySet_Check(Other))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	FRelation Relation;
	return PythonSetOperations::Relate(Self, Other, Relation) ? PyBool_FromLong(Compare(Relation, Operation)) : nullptr;
}

static PyObject* SetToRepr(PyObject* Self)
{
	const FPythonRef List = PythonContainers::As(&PyList_Type, Self);
	return List ? PyUnicode_FromFormat("Set(%R)", List.Get()) : nullptr;
}

static PyCFunction FastMethod(PyObject* (*Function)(PyObject* Self, PyObject* const* Arguments, Py_ssize_t Count))
{
	return reinterpret_cast<PyCFunction>(reinterpret_cast<void*>(Function));
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
	{"pop", PopFromSet, METH_NOARGS, "pop($self, /)\n--\n\nRemoves a value and gives it; KeyError for an empty set."},
	{"union", FastMethod(CombineSet<PythonSetOperations::Union>), METH_FASTCALL,
		"union($self, *others)\n--\n\nThe values of this and all others."},
	{"intersection", FastMethod(CombineSet<PythonSetOperations::Intersection>), METH_FASTCALL,
		"intersection($self, *others)\n--\n\nThe values that all have."},
	{"difference", FastMethod(CombineSet<PythonSetOperations::Difference>), METH_FASTCALL,
		"difference($self, *others)\n--\n\nThe values that no other has."},
	{"symmetric_difference", WithOne<CombineSet<PythonSetOperations::SymmetricDifference>>, METH_O,
		"symmetric_difference($self, other, /)\n--\n\nThe values that one of both has."},
	{"update", FastMethod(ChangeSet<PythonSetOperations::Union>), METH_FASTCALL,
		"update($self, *others)\n--\n\nAdds the values of all others."},
	{"intersection_update", FastMethod(ChangeSet<PythonSetOperations::Intersection>), METH_FASTCALL,
		"intersection_update($self, *others)\n--\n\nKeeps the values that all have."},
	{"difference_update", FastMethod(ChangeSet<PythonSetOperations::Difference>), METH_FASTCALL,
		"difference_update($self, *others)\n--\n\nRemoves the values of all others."},
	{"symmetric_difference_update", WithOne<ChangeSet<PythonSetOperations::SymmetricDifference>>, METH_O,
		"symmetric_difference_update($self, other, /)\n--\n\nKeeps and adds the values that one of both has."},
	{"issubset", TellOfSet<&FRelation::bIsSubset>, METH_O,
		"issubset($self, other, /)\n--\n\nWhether the other has all values of this."},
	{"issuperset", TellOfSet<&FRelation::bIsSuperset>, METH_O,
		"issuperset($self, other, /)\n--\n\nWhether this has all values of the other."},
	{"isdisjoint", TellOfSet<&FRelation::bIsDisjoint>, METH_O,
		"isdisjoint($self, other, /)\n--\n\nWhether both have no value in common."},
	{"__class_getitem__", Py_GenericAlias, METH_O | METH_CLASS,
		"__class_getitem__($type, item, /)\n--\n\nSet[type], for annotations."},
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
		.Function(Py_nb_or, &OperateOnSets<PythonSetOperations::Union>)
		.Function(Py_nb_and, &OperateOnSets<PythonSetOperations::Intersection>)
		.Function(Py_nb_subtract, &OperateOnSets<PythonSetOperations::Difference>)
		.Function(Py_nb_xor, &OperateOnSets<PythonSetOperations::SymmetricDifference>)
		.Function(Py_nb_inplace_or, &OperateInPlace<PythonSetOperations::Union>)
		.Function(Py_nb_inplace_and, &OperateInPlace<PythonSetOperations::Intersection>)
		.Function(Py_nb_inplace_subtract, &OperateInPlace<PythonSetOperations::Difference>)
		.Function(Py_nb_inplace_xor, &OperateInPlace<PythonSetOperations::SymmetricDifference>)
		.Function(Py_sq_length, &SetLength)
		.Function(Py_sq_contains, &SetContains)
		.Make();
}
