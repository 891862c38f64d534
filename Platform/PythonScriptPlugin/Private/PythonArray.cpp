#include "PythonContainers.h"
#include "PythonInterpreter.h"
#include "PythonTypeSpec.h"
#include "UObject/UnrealType.h"

static FScriptArrayHelper HelperOf(const FPythonContainerType& Type, void* Memory)
{
	return FScriptArrayHelper(CastField<FArrayProperty>(Type.Property), Memory);
}

static FScriptArrayHelper HelperOf(PyObject* Self)
{
	const FPythonContainer& Array = FPythonContainer::From(Self);
	return HelperOf(*Array.Type, Array.Memory);
}

/** Adds one value at the end. */
static bool AppendTo(const FPythonContainerType& Type, FScriptArrayHelper& Helper, PyObject* Value)
{
	// The value may be a script's and change the array while it is looked at.
	const FScopedPropertyValue Converted(Type.ElementProperty);
	if (!Type.Element->FromPython(Value, Converted.Get()))
	{
		return false;
	}
	Type.ElementProperty->CopyCompleteValue(Helper.GetRawPtr(Helper.AddValue()), Converted.Get());
	return true;
}

bool PythonContainers::FillArray(const FPythonContainerType& Type, PyObject* Value, void* Memory)
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
	FScriptArrayHelper Helper = HelperOf(Type, Memory);
	Helper.EmptyValues();
	while (const FPythonRef Item = FPythonRef::Steal(PyIter_Next(Iterator.Get())))
	{
		if (!AppendTo(Type, Helper, Item.Get()))
		{
			return false;
		}
	}
	return !PyErr_Occurred();
}

static PyObject* NewArray(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"type", nullptr};
	PyObject* ElementType = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "O:Array", const_cast<char**>(Names), &ElementType))
	{
		return nullptr;
	}
	const TSharedPtr<const FPythonContainerType> ContainerType = FPythonContainerType::MakeArray(ElementType);
	return ContainerType ? PythonContainers::New(Type, ContainerType.ToSharedRef()).Release() : nullptr;
}

static Py_ssize_t ArrayLength(PyObject* Self)
{
	return HelperOf(Self).Num();
}

static PyObject* ArrayItem(PyObject* Self, Py_ssize_t Index)
{
	const FScriptArrayHelper Helper = HelperOf(Self);
	if (Index < 0 || Index >= Helper.Num())
	{
		PyErr_SetString(PyExc_IndexError, "Array index out of range");
		return nullptr;
	}
	return FPythonContainer::From(Self).Type->Element->ToPython(Helper.GetRawPtr(static_cast<int32>(Index))).Release();
}

static bool CheckAssignedIndex(const FScriptArrayHelper& Helper, Py_ssize_t Index)
{
	if (Index < 0 || Index >= Helper.Num())
	{
		PyErr_SetString(PyExc_IndexError, "Array assignment index out of range");
		return false;
	}
	return true;
}

/** array[i] = value and del array[i]. */
static int SetArrayItem(PyObject* Self, Py_ssize_t Index, PyObject* Value)
{
	FScriptArrayHelper Helper = HelperOf(Self);
	if (!CheckAssignedIndex(Helper, Index))
	{
		return -1;
	}
	if (!Value)
	{
		Helper.RemoveValues(static_cast<int32>(Index));
		return 0;
	}
	const FPythonContainerType& Type = *FPythonContainer::From(Self).Type;
	const FScopedPropertyValue Converted(Type.ElementProperty);
	// The conversion may run a script, after which the place may be gone.
	if (!Type.Element->FromPython(Value, Converted.Get()) || !CheckAssignedIndex(Helper, Index))
	{
		return -1;
	}
	Type.ElementProperty->CopyCompleteValue(Helper.GetRawPtr(static_cast<int32>(Index)), Converted.Get());
	return 0;
}

static int ArrayContains(PyObject* Self, PyObject* Value)
{
	for (Py_ssize_t Index = 0; Index < ArrayLength(Self); ++Index)
	{
		const FPythonRef Item = FPythonRef::Steal(ArrayItem(Self, Index));
		const int Equal = Item ? PyObject_RichCompareBool(Item.Get(), Value, Py_EQ) : -1;
		if (Equal != 0)
		{
			return Equal;
		}
	}
	return 0;
}

static bool ReadIndex(PyObject* Self, PyObject* Key, Py_ssize_t& OutIndex)
{
	OutIndex = PyNumber_AsSsize_t(Key, PyExc_IndexError);
	if (OutIndex < 0 && !PyErr_Occurred())
	{
		OutIndex += ArrayLength(Self);
	}
	return !PyErr_Occurred();
}

/** Runs a method of list over the elements; what the list is afterwards becomes the array if bWriteBack. */
static PyObject* CallAsList(PyObject* Self, const ANSICHAR* Method, PyObject* Arguments, PyObject* Keywords, bool bWriteBack)
{
	const FPythonRef List = PythonContainers::As(&PyList_Type, Self);
	const FPythonRef Callable = List ? FPythonRef::Steal(PyObject_GetAttrString(List.Get(), Method)) : FPythonRef();
	FPythonRef Result = Callable ? FPythonRef::Steal(PyObject_Call(Callable.Get(), Arguments, Keywords)) : FPythonRef();
	return Result && (!bWriteBack || PythonContainers::Refill(Self, List.Get())) ? Result.Release() : nullptr;
}

static PyObject* ArraySubscript(PyObject* Self, PyObject* Key)
{
	if (PyIndex_Check(Key))
	{
		Py_ssize_t Index = 0;
		return ReadIndex(Self, Key, Index) ? ArrayItem(Self, Index) : nullptr;
	}
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Key));
	const FPythonRef Slice = FPythonRef::Steal(CallAsList(Self, "__getitem__", Arguments.Get(), nullptr, false));
	if (!Slice)
	{
		return nullptr;
	}
	FPythonRef Result = PythonContainers::New(
		PythonContainers::TypeFor(FPythonContainer::From(Self).Type->Property), FPythonContainer::From(Self).Type);
	return Result && PythonContainers::Refill(Result.Get(), Slice.Get()) ? Result.Release() : nullptr;
}

static int SetArraySubscript(PyObject* Self, PyObject* Key, PyObject* Value)
{
	if (PyIndex_Check(Key))
	{
		Py_ssize_t Index = 0;
		return ReadIndex(Self, Key, Index) ? SetArrayItem(Self, Index, Value) : -1;
	}
	const FPythonRef Arguments = FPythonRef::Steal(Value ? PyTuple_Pack(2, Key, Value) : PyTuple_Pack(1, Key));
	const FPythonRef Done =
		FPythonRef::Steal(CallAsList(Self, Value ? "__setitem__" : "__delitem__", Arguments.Get(), nullptr, true));
	return Done ? 0 : -1;
}

static PyObject* AppendToArray(PyObject* Self, PyObject* Value)
{
	FScriptArrayHelper Helper = HelperOf(Self);
	if (!AppendTo(*FPythonContainer::From(Self).Type, Helper, Value))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* ResizeArray(PyObject* Self, PyObject* Length)
{
	const Py_ssize_t Count = PyNumber_AsSsize_t(Length, PyExc_OverflowError);
	if (PyErr_Occurred())
	{
		return nullptr;
	}
	if (Count < 0 || Count > MAX_int32)
	{
		PyErr_SetString(PyExc_ValueError, "the length of an Array is between 0 and 2147483647");
		return nullptr;
	}
	HelperOf(Self).Resize(static_cast<int32>(Count));
	Py_RETURN_NONE;
}

static PyObject* ClearArray(PyObject* Self, PyObject*)
{
	HelperOf(Self).EmptyValues();
	Py_RETURN_NONE;
}

template <const ANSICHAR* const& Method, bool bWriteBack>
static PyObject* ListMethod(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	return CallAsList(Self, Method, Arguments, Keywords, bWriteBack);
}

static PyObject* ConcatenateArray(PyObject* Self, PyObject* Other)
{
	const FPythonRef Result = FPythonRef::Steal(PythonContainers::Copy(Self, nullptr));
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Other));
	const FPythonRef Done =
		Result ? FPythonRef::Steal(CallAsList(Result.Get(), "extend", Arguments.Get(), nullptr, true)) : FPythonRef();
	return Done ? FPythonRef(Result).Release() : nullptr;
}

static PyObject* ExtendInPlace(PyObject* Self, PyObject* Other)
{
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Other));
	const FPythonRef Done = FPythonRef::Steal(CallAsList(Self, "extend", Arguments.Get(), nullptr, true));
	return Done ? FPythonRef::Borrow(Self).Release() : nullptr;
}

/** The elements of an array Count times, in an array that had them once. */
static bool Repeat(PyObject* Self, Py_ssize_t Count)
{
	FScriptArrayHelper Helper = HelperOf(Self);
	const int32 Num = Helper.Num();
	const Py_ssize_t Wanted = Count > 0 ? Num : 0;
	if (Wanted > 0 && Count > MAX_int32 / Wanted)
	{
		PyErr_NoMemory();
		return false;
	}
	Helper.Resize(static_cast<int32>(Wanted * (Count > 0 ? Count : 0)));
	const FProperty& Element = *FPythonContainer::From(Self).Type->ElementProperty;
	for (int32 Index = Num; Index < Helper.Num(); ++Index)
	{
		Element.CopyCompleteValue(Helper.GetRawPtr(Index), Helper.GetRawPtr(Index - Num));
	}
	return true;
}

static PyObject* RepeatArray(PyObject* Self, Py_ssize_t Count)
{
	FPythonRef Result = FPythonRef::Steal(PythonContainers::Copy(Self, nullptr));
	return Result && Repeat(Result.Get(), Count) ? Result.Release() : nullptr;
}

static PyObject* RepeatInPlace(PyObject* Self, Py_ssize_t Count)
{
	return Repeat(Self, Count) ? FPythonRef::Borrow(Self).Release() : nullptr;
}

static PyObject* IterateArrayBackwards(PyObject* Self, PyObject*)
{
	return FPythonInterpreter::CallBootstrap("reversed_items", Self).Release();
}

static PyObject* CompareArrays(PyObject* Self, PyObject* Other, int Operation)
{
	return PythonContainers::CompareAs(&PyList_Type, Self, Other, Operation);
}

static PyObject* ArrayToRepr(PyObject* Self)
{
	const FPythonRef List = PythonContainers::As(&PyList_Type, Self);
	return List ? PyObject_Repr(List.Get()) : nullptr;
}

static const ANSICHAR* const GCount = "count";
static const ANSICHAR* const GIndex = "index";
static const ANSICHAR* const GExtend = "extend";
static const ANSICHAR* const GInsert = "insert";
static const ANSICHAR* const GPop = "pop";
static const ANSICHAR* const GRemove = "remove";
static const ANSICHAR* const GReverse = "reverse";
static const ANSICHAR* const GSort = "sort";

template <const ANSICHAR* const& Method, bool bWriteBack>
static PyMethodDef MethodOfList(const ANSICHAR* Doc)
{
	return {Method, PythonKeywordFunction(&ListMethod<Method, bWriteBack>), METH_VARARGS | METH_KEYWORDS, Doc};
}

static PyMethodDef GArrayMethods[] = {
	{"cast", PythonContainers::Cast, METH_VARARGS | METH_CLASS,
		"cast($type, type, obj, /)\n--\n\nMakes an Array of a type of the items of an iterable."},
	{"copy", PythonContainers::Copy, METH_NOARGS, "copy($self, /)\n--\n\nA copy of the array."},
	{"__copy__", PythonContainers::Copy, METH_NOARGS, "__copy__($self, /)\n--\n\nA copy of the array."},
	{"append", AppendToArray, METH_O, "append($self, value, /)\n--\n\nAdds a value at the end."},
	{"clear", ClearArray, METH_NOARGS, "clear($self, /)\n--\n\nRemoves all values."},
	{"resize", ResizeArray, METH_O, "resize($self, len, /)\n--\n\nCuts the array off, or adds default values."},
	MethodOfList<GCount, false>("count($self, value, /)\n--\n\nHow often a value occurs."),
	MethodOfList<GIndex, false>(
		"index($self, value, start=0, stop=sys.maxsize, /)\n--\n\nFirst place of a value; ValueError if there is none."),
	MethodOfList<GExtend, true>("extend($self, iterable, /)\n--\n\nAdds all items at the end."),
	MethodOfList<GInsert, true>("insert($self, index, value, /)\n--\n\nAdds a value before a place."),
	MethodOfList<GPop, true>("pop($self, index=-1, /)\n--\n\nRemoves a place and gives its value."),
	MethodOfList<GRemove, true>("remove($self, value, /)\n--\n\nRemoves the first of equal values; ValueError if there is none."),
	MethodOfList<GReverse, true>("reverse($self, /)\n--\n\nTurns the order round."),
	MethodOfList<GSort, true>("sort($self, *, key=None, reverse=False)\n--\n\nSorts the values in place."),
	{"__reversed__", IterateArrayBackwards, METH_NOARGS, "__reversed__($self, /)\n--\n\nThe values from last to first."},
	{"__class_getitem__", Py_GenericAlias, METH_O | METH_CLASS,
		"__class_getitem__($type, item, /)\n--\n\nArray[type], for annotations."},
	{nullptr, nullptr, 0, nullptr},
};

FPythonRef PythonContainers::MakeArrayType()
{
	return FPythonTypeSpec::Of<FPythonContainer>("unreal.Array", Py_TPFLAGS_SEQUENCE)
		.Doc("Array(type)\n--\n\nA list of values of one type.")
		.Methods(GArrayMethods)
		.Function(Py_tp_new, &NewArray)
		.Function(Py_tp_repr, &ArrayToRepr)
		.Function(Py_tp_richcompare, &CompareArrays)
		.Function(Py_tp_hash, &PyObject_HashNotImplemented)
		.Function(Py_tp_iter, &PySeqIter_New)
		.Function(Py_sq_length, &ArrayLength)
		.Function(Py_sq_contains, &ArrayContains)
		.Function(Py_sq_repeat, &RepeatArray)
		.Function(Py_sq_inplace_repeat, &RepeatInPlace)
		.Function(Py_sq_item, &ArrayItem)
		.Function(Py_sq_concat, &ConcatenateArray)
		.Function(Py_sq_inplace_concat, &ExtendInPlace)
		.Function(Py_mp_length, &ArrayLength)
		.Function(Py_mp_subscript, &ArraySubscript)
		.Function(Py_mp_ass_subscript, &SetArraySubscript)
		.Make();
}
