#include "PythonContainerIterator.h"
#include "PythonContainers.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonMappings.h"
#include "PythonTypeSpec.h"
#include "UObject/UnrealType.h"

static FScriptMapHelper HelperOf(const FPythonContainerType& Type, void* Memory)
{
	return FScriptMapHelper(CastField<FMapProperty>(Type.Property), Memory);
}

static FScriptMapHelper HelperOf(PyObject* Self)
{
	const FPythonContainer& Map = FPythonContainer::From(Self);
	return HelperOf(*Map.Type, Map.Memory);
}

static bool AddTo(const FPythonContainerType& Type, FScriptMapHelper& Helper, PyObject* Key, PyObject* Value)
{
	const FScopedPropertyValue ConvertedKey(Type.ElementProperty);
	const FScopedPropertyValue ConvertedValue(Type.ValueProperty);
	if (!Type.Element->FromPython(Key, ConvertedKey.Get()) || !Type.Value->FromPython(Value, ConvertedValue.Get()))
	{
		return false;
	}
	Helper.AddPair(ConvertedKey.Get(), ConvertedValue.Get());
	return true;
}

bool PythonContainers::FillMap(const FPythonContainerType& Type, PyObject* Value, void* Memory)
{
	if (IsOfType(Type, Value))
	{
		Type.Property->CopyCompleteValue(Memory, FPythonContainer::From(Value).Memory);
		return true;
	}
	const FPythonRef Items = PyObject_HasAttrString(Value, "keys") ? PythonMappings::ItemsOf(Value) : FPythonRef();
	if (!Items)
	{
		PyErr_Clear();
		return PythonErrors::RaiseUnexpectedType(
			FString::Printf(TEXT("mapping of %s to %s"), *Type.Element->TypeName(), *Type.Value->TypeName()), Value);
	}
	FScriptMapHelper Helper = HelperOf(Type, Memory);
	Helper.EmptyValues();
	for (Py_ssize_t Index = 0; Index < PyList_GET_SIZE(Items.Get()); ++Index)
	{
		PyObject* const Item = PyList_GET_ITEM(Items.Get(), Index);
		if (!AddTo(Type, Helper, PyTuple_GET_ITEM(Item, 0), PyTuple_GET_ITEM(Item, 1)))
		{
			return false;
		}
	}
	return true;
}

static PyObject* NewMap(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"key", "value", nullptr};
	PyObject* KeyType = nullptr;
	PyObject* ValueType = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "OO:Map", const_cast<char**>(Names), &KeyType, &ValueType))
	{
		return nullptr;
	}
	const TSharedPtr<const FPythonContainerType> ContainerType = FPythonContainerType::MakeMap(KeyType, ValueType);
	return ContainerType ? PythonContainers::New(Type, ContainerType.ToSharedRef()).Release() : nullptr;
}

static Py_ssize_t MapLength(PyObject* Self)
{
	return HelperOf(Self).Num();
}

/** Place of a key, INDEX_NONE if it is not there or of another type, which is no error. */
static int32 FindInMap(PyObject* Self, PyObject* Key)
{
	const FPythonContainerType& Type = *FPythonContainer::From(Self).Type;
	const FScopedPropertyValue Converted(Type.ElementProperty);
	if (!Type.Element->FromPython(Key, Converted.Get()))
	{
		PyErr_Clear();
		return INDEX_NONE;
	}
	return HelperOf(Self).FindMapIndexWithKey(Converted.Get());
}

static FPythonRef KeyAt(PyObject* Self, int32 Index)
{
	return FPythonContainer::From(Self).Type->Element->ToPython(HelperOf(Self).GetKeyPtr(Index));
}

static FPythonRef ValueAt(PyObject* Self, int32 Index)
{
	return FPythonContainer::From(Self).Type->Value->ToPython(HelperOf(Self).GetValuePtr(Index));
}

static const PythonContainerIterator::FPlaces GMapPlaces = {
	[](PyObject* Self) { return HelperOf(Self).Num(); },
	[](PyObject* Self) { return HelperOf(Self).GetMaxIndex(); },
	[](PyObject* Self, int32 Index) { return HelperOf(Self).IsValidIndex(Index); },
	&KeyAt,
};

static PyObject* IterateMap(PyObject* Self)
{
	return PythonContainerIterator::Make(Self, GMapPlaces).Release();
}

static PyObject* IterateMapBackwards(PyObject* Self, PyObject*)
{
	return PythonContainerIterator::Make(Self, GMapPlaces, true).Release();
}

/** A live view of the map, which is a class of the Python part of this module. */
template <const ANSICHAR* const& ViewClass>
static PyObject* ViewMap(PyObject* Self, PyObject*)
{
	return FPythonInterpreter::CallBootstrap(ViewClass, Self).Release();
}

static const ANSICHAR* const GKeysClass = "MapKeys";
static const ANSICHAR* const GValuesClass = "MapValues";
static const ANSICHAR* const GItemsClass = "MapItems";

static int MapContains(PyObject* Self, PyObject* Key)
{
	return FindInMap(Self, Key) != INDEX_NONE;
}

static PyObject* MapItem(PyObject* Self, PyObject* Key)
{
	const int32 Index = FindInMap(Self, Key);
	if (Index == INDEX_NONE)
	{
		PyErr_SetObject(PyExc_KeyError, Key);
		return nullptr;
	}
	return ValueAt(Self, Index).Release();
}

/** map[key] = value and del map[key]. */
static int SetMapItem(PyObject* Self, PyObject* Key, PyObject* Value)
{
	FScriptMapHelper Helper = HelperOf(Self);
	if (Value)
	{
		return AddTo(*FPythonContainer::From(Self).Type, Helper, Key, Value) ? 0 : -1;
	}
	const int32 Index = FindInMap(Self, Key);
	if (Index == INDEX_NONE)
	{
		PyErr_SetObject(PyExc_KeyError, Key);
		return -1;
	}
	Helper.RemoveAt(Index);
	return 0;
}

static PyObject* GetFromMap(PyObject* Self, PyObject* Arguments)
{
	PyObject* Key = nullptr;
	PyObject* Default = Py_None;
	if (!PyArg_ParseTuple(Arguments, "O|O:get", &Key, &Default))
	{
		return nullptr;
	}
	const int32 Index = FindInMap(Self, Key);
	return Index != INDEX_NONE ? ValueAt(Self, Index).Release() : FPythonRef::Borrow(Default).Release();
}

static PyObject* PopFromMap(PyObject* Self, PyObject* Arguments)
{
	PyObject* Key = nullptr;
	PyObject* Default = nullptr;
	if (!PyArg_ParseTuple(Arguments, "O|O:pop", &Key, &Default))
	{
		return nullptr;
	}
	if (Default && !MapContains(Self, Key))
	{
		return FPythonRef::Borrow(Default).Release();
	}
	FPythonRef Value = FPythonRef::Steal(MapItem(Self, Key));
	return Value && SetMapItem(Self, Key, nullptr) == 0 ? Value.Release() : nullptr;
}

/** The value of a key, which is added first if it is not there. Without a default its value is the usual one of its type. */
static PyObject* SetDefaultInMap(PyObject* Self, PyObject* Arguments)
{
	PyObject* Key = nullptr;
	PyObject* Default = nullptr;
	if (!PyArg_ParseTuple(Arguments, "O|O:setdefault", &Key, &Default))
	{
		return nullptr;
	}
	const FPythonContainerType& Type = *FPythonContainer::From(Self).Type;
	const FScopedPropertyValue ConvertedKey(Type.ElementProperty);
	const FScopedPropertyValue Value(Type.ValueProperty);
	if (!Type.Element->FromPython(Key, ConvertedKey.Get()))
	{
		return nullptr;
	}
	FScriptMapHelper Helper = HelperOf(Self);
	if (Helper.FindMapIndexWithKey(ConvertedKey.Get()) == INDEX_NONE)
	{
		if (Default && !Type.Value->FromPython(Default, Value.Get()))
		{
			return nullptr;
		}
		Helper.AddPair(ConvertedKey.Get(), Value.Get());
	}
	return ValueAt(Self, Helper.FindMapIndexWithKey(ConvertedKey.Get())).Release();
}

static PyObject* PopItemFromMap(PyObject* Self, PyObject*)
{
	FScriptMapHelper Helper = HelperOf(Self);
	for (int32 Index = Helper.GetMaxIndex() - 1; Index >= 0; --Index)
	{
		if (!Helper.IsValidIndex(Index))
		{
			continue;
		}
		const FPythonRef Key = KeyAt(Self, Index);
		const FPythonRef Value = Key ? ValueAt(Self, Index) : FPythonRef();
		FPythonRef Item = Value ? FPythonRef::Steal(PyTuple_Pack(2, Key.Get(), Value.Get())) : FPythonRef();
		if (Item)
		{
			Helper.RemoveAt(Index);
		}
		return Item.Release();
	}
	PyErr_SetString(PyExc_KeyError, "popitem(): Map is empty");
	return nullptr;
}

static PyObject* ClearMap(PyObject* Self, PyObject*)
{
	HelperOf(Self).EmptyValues();
	Py_RETURN_NONE;
}

/** Adds the pairs of a mapping or of an iterable of pairs and of keywords, all or none. */
static PyObject* UpdateMap(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	const FPythonRef Merged = PythonContainers::As(&PyDict_Type, Self);
	const FPythonRef Update = Merged ? FPythonRef::Steal(PyObject_GetAttrString(Merged.Get(), "update")) : FPythonRef();
	const FPythonRef Done = Update ? FPythonRef::Steal(PyObject_Call(Update.Get(), Arguments, Keywords)) : FPythonRef();
	if (!Done)
	{
		return nullptr;
	}
	const FPythonContainer& Map = FPythonContainer::From(Self);
	const FScopedPropertyValue Converted(Map.Type->Property);
	if (!PythonContainers::FillMap(*Map.Type, Merged.Get(), Converted.Get()))
	{
		return nullptr;
	}
	Map.Type->Property->CopyCompleteValue(Map.Memory, Converted.Get());
	Py_RETURN_NONE;
}

static PyObject* CastToMap(PyObject* Type, PyObject* Arguments)
{
	PyObject* KeyType = nullptr;
	PyObject* ValueType = nullptr;
	PyObject* Values = nullptr;
	if (!PyArg_ParseTuple(Arguments, "OOO:cast", &KeyType, &ValueType, &Values))
	{
		return nullptr;
	}
	FPythonRef Result = FPythonRef::Steal(PyObject_CallFunctionObjArgs(Type, KeyType, ValueType, nullptr));
	const FPythonRef UpdateArguments = Result ? FPythonRef::Steal(PyTuple_Pack(1, Values)) : FPythonRef();
	const FPythonRef Done =
		UpdateArguments ? FPythonRef::Steal(UpdateMap(Result.Get(), UpdateArguments.Get(), nullptr)) : FPythonRef();
	return Done ? Result.Release() : nullptr;
}

/** Makes a map of the types of its first key and of the value, which all keys get. */
static PyObject* MapFromKeys(PyObject* Type, PyObject* Arguments)
{
	PyObject* Keys = nullptr;
	PyObject* Value = nullptr;
	if (!PyArg_ParseTuple(Arguments, "OO:fromkeys", &Keys, &Value))
	{
		return nullptr;
	}
	const FPythonRef List = FPythonRef::Steal(PySequence_List(Keys));
	if (List && PyList_GET_SIZE(List.Get()) == 0)
	{
		PyErr_SetString(PyExc_ValueError, "fromkeys() of no key does not know the type of the keys");
	}
	if (PyErr_Occurred())
	{
		return nullptr;
	}
	PyObject* const KeyType = reinterpret_cast<PyObject*>(Py_TYPE(PyList_GET_ITEM(List.Get(), 0)));
	PyObject* const ValueType = reinterpret_cast<PyObject*>(Py_TYPE(Value));
	FPythonRef Result = FPythonRef::Steal(PyObject_CallFunctionObjArgs(Type, KeyType, ValueType, nullptr));
	for (Py_ssize_t Index = 0; Result && Index < PyList_GET_SIZE(List.Get()); ++Index)
	{
		if (SetMapItem(Result.Get(), PyList_GET_ITEM(List.Get(), Index), Value) < 0)
		{
			return nullptr;
		}
	}
	return Result.Release();
}

static bool Merge(PyObject* Map, PyObject* Pairs)
{
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Pairs));
	return Arguments && FPythonRef::Steal(UpdateMap(Map, Arguments.Get(), nullptr));
}

/** map | other and other | map, for other maps and dictionaries. */
static PyObject* MergeMaps(PyObject* Left, PyObject* Right)
{
	PyTypeObject* const MapType = PythonContainers::MapType();
	for (PyObject* Side : {Left, Right})
	{
		if (Py_TYPE(Side) != MapType && !PyDict_Check(Side))
		{
			Py_RETURN_NOTIMPLEMENTED;
		}
	}
	const FPythonContainer& Typed = FPythonContainer::From(Py_TYPE(Left) == MapType ? Left : Right);
	FPythonRef Result = PythonContainers::New(MapType, Typed.Type);
	return Result && Merge(Result.Get(), Left) && Merge(Result.Get(), Right) ? Result.Release() : nullptr;
}

/** map |= pairs, which may be any mapping or iterable of pairs. */
static PyObject* MergeInPlace(PyObject* Self, PyObject* Pairs)
{
	return Merge(Self, Pairs) ? FPythonRef::Borrow(Self).Release() : nullptr;
}

static PyObject* CompareMaps(PyObject* Self, PyObject* Other, int Operation)
{
	return PythonContainers::CompareAs(&PyDict_Type, Self, Other, Operation);
}

static PyObject* MapToRepr(PyObject* Self)
{
	const FPythonRef Dict = PythonContainers::As(&PyDict_Type, Self);
	return Dict ? PyObject_Repr(Dict.Get()) : nullptr;
}

static PyMethodDef GMapMethods[] = {
	{"cast", CastToMap, METH_VARARGS | METH_CLASS,
		"cast($type, key, value, obj, /)\n--\n\nMakes a Map of two types of a mapping."},
	{"copy", PythonContainers::Copy, METH_NOARGS, "copy($self, /)\n--\n\nA copy of the map."},
	{"__copy__", PythonContainers::Copy, METH_NOARGS, "__copy__($self, /)\n--\n\nA copy of the map."},
	{"keys", ViewMap<GKeysClass>, METH_NOARGS, "keys($self, /)\n--\n\nThe keys, as a view that follows the map."},
	{"values", ViewMap<GValuesClass>, METH_NOARGS, "values($self, /)\n--\n\nThe values, as a view that follows the map."},
	{"items", ViewMap<GItemsClass>, METH_NOARGS,
		"items($self, /)\n--\n\nPairs of key and value, as a view that follows the map."},
	{"get", GetFromMap, METH_VARARGS, "get($self, key, default=None, /)\n--\n\nThe value of a key, or the default."},
	{"pop", PopFromMap, METH_VARARGS,
		"pop($self, key, default, /)\n--\n\nRemoves a key and gives its value; KeyError without key and default."},
	{"clear", ClearMap, METH_NOARGS, "clear($self, /)\n--\n\nRemoves all keys."},
	{"update", PythonKeywordFunction(UpdateMap), METH_VARARGS | METH_KEYWORDS,
		"update($self, mapping=(), /, **kwargs)\n--\n\nAdds the pairs of a mapping."},
	{"setdefault", SetDefaultInMap, METH_VARARGS,
		"setdefault($self, key, default=None, /)\n--\n\nThe value of a key, which gets the default if it is not there."},
	{"popitem", PopItemFromMap, METH_NOARGS,
		"popitem($self, /)\n--\n\nRemoves the last pair and gives it; KeyError for an empty map."},
	{"fromkeys", MapFromKeys, METH_VARARGS | METH_CLASS,
		"fromkeys($type, iterable, value, /)\n--\n\nMakes a Map of keys that all have one value; its types are theirs."},
	{"__reversed__", IterateMapBackwards, METH_NOARGS, "__reversed__($self, /)\n--\n\nThe keys from last to first."},
	{"__class_getitem__", Py_GenericAlias, METH_O | METH_CLASS,
		"__class_getitem__($type, item, /)\n--\n\nMap[key, value], for annotations."},
	{nullptr, nullptr, 0, nullptr},
};

FPythonRef PythonContainers::MakeMapType()
{
	return FPythonTypeSpec::Of<FPythonContainer>("unreal.Map", Py_TPFLAGS_MAPPING)
		.Doc("Map(key, value)\n--\n\nA dictionary from values of one type to values of another, in the order of adding.")
		.Methods(GMapMethods)
		.Function(Py_tp_new, &NewMap)
		.Function(Py_tp_repr, &MapToRepr)
		.Function(Py_tp_iter, &IterateMap)
		.Function(Py_tp_richcompare, &CompareMaps)
		.Function(Py_tp_hash, &PyObject_HashNotImplemented)
		.Function(Py_nb_or, &MergeMaps)
		.Function(Py_nb_inplace_or, &MergeInPlace)
		.Function(Py_sq_contains, &MapContains)
		.Function(Py_mp_length, &MapLength)
		.Function(Py_mp_subscript, &MapItem)
		.Function(Py_mp_ass_subscript, &SetMapItem)
		.Make();
}
