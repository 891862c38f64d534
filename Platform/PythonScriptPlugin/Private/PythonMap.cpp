#include "PythonContainers.h"
#include "PythonErrors.h"
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

static FPythonRef ItemAt(PyObject* Self, int32 Index)
{
	const FPythonRef Key = KeyAt(Self, Index);
	const FPythonRef Value = Key ? ValueAt(Self, Index) : FPythonRef();
	return Value ? FPythonRef::Steal(PyTuple_Pack(2, Key.Get(), Value.Get())) : FPythonRef();
}

/** A list of what Get gives for each place. */
template <FPythonRef (*Get)(PyObject* Self, int32 Index)>
static PyObject* ListMap(PyObject* Self, PyObject*)
{
	const FScriptMapHelper Helper = HelperOf(Self);
	const FPythonRef List = FPythonRef::Steal(PyList_New(0));
	for (int32 Index = 0; List && Index < Helper.GetMaxIndex(); ++Index)
	{
		if (!Helper.IsValidIndex(Index))
		{
			continue;
		}
		const FPythonRef Part = Get(Self, Index);
		if (!Part || PyList_Append(List.Get(), Part.Get()) < 0)
		{
			return nullptr;
		}
	}
	return FPythonRef(List).Release();
}

static PyObject* IterateMap(PyObject* Self)
{
	const FPythonRef Keys = FPythonRef::Steal(ListMap<&KeyAt>(Self, nullptr));
	return Keys ? PyObject_GetIter(Keys.Get()) : nullptr;
}

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
	{"keys", ListMap<&KeyAt>, METH_NOARGS, "keys($self, /)\n--\n\nThe keys as a list."},
	{"values", ListMap<&ValueAt>, METH_NOARGS, "values($self, /)\n--\n\nThe values as a list."},
	{"items", ListMap<&ItemAt>, METH_NOARGS, "items($self, /)\n--\n\nPairs of key and value as a list."},
	{"get", GetFromMap, METH_VARARGS, "get($self, key, default=None, /)\n--\n\nThe value of a key, or the default."},
	{"pop", PopFromMap, METH_VARARGS,
		"pop($self, key, default, /)\n--\n\nRemoves a key and gives its value; KeyError without key and default."},
	{"clear", ClearMap, METH_NOARGS, "clear($self, /)\n--\n\nRemoves all keys."},
	{"update", PythonKeywordFunction(UpdateMap), METH_VARARGS | METH_KEYWORDS,
		"update($self, mapping=(), /, **kwargs)\n--\n\nAdds the pairs of a mapping."},
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
		.Function(Py_sq_contains, &MapContains)
		.Function(Py_mp_length, &MapLength)
		.Function(Py_mp_subscript, &MapItem)
		.Function(Py_mp_ass_subscript, &SetMapItem)
		.Make();
}
