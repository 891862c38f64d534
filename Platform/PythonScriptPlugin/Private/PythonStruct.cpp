#include "PythonStruct.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonProperty.h"
#include "PythonReferences.h"
#include "PythonStrings.h"
#include "PythonStructFields.h"
#include "PythonStructText.h"
#include "PythonTypeSpec.h"
#include "PythonTypeTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

static bool ContainsReferences(const UScriptStruct* Struct)
{
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (It->ContainsObjectReference())
		{
			return true;
		}
	}
	return false;
}

/** A structure's value inside of a Python object, behind which its memory lies. */
class FPythonStruct : public FPythonReferenceHolder
{
public:
	FPythonStruct(UScriptStruct* InStruct, void* InMemory)
		: FPythonReferenceHolder(ContainsReferences(InStruct))
		, Struct(InStruct)
		, Memory(InMemory)
	{
		Struct->InitializeStruct(Memory);
	}

	~FPythonStruct() override { Struct->DestroyStruct(Memory); }

	void AddReferencedObjects(FReferenceCollector& Collector) override
	{
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			It->AddReferencedObjects_InContainer(Memory, Collector);
		}
	}

	static FPythonStruct& From(PyObject* Self) { return PythonTypes::StateOf<FPythonStruct>(Self); }

	UScriptStruct* const Struct;
	void* const Memory;
};

static FPythonGlobalRef GStructBaseType;

/** Python gives memory for this alignment. */
static constexpr SIZE_T MaxAlignment = 16;
static constexpr SIZE_T MemoryOffset = (sizeof(TPythonInstance<FPythonStruct>) + MaxAlignment - 1) / MaxAlignment * MaxAlignment;

static FPythonRef NewValue(PyTypeObject* Type, UScriptStruct* Struct)
{
	FPythonRef Result = FPythonRef::Steal(Type->tp_alloc(Type, 0));
	if (Result)
	{
		new (&FPythonStruct::From(Result.Get())) FPythonStruct(Struct, reinterpret_cast<uint8*>(Result.Get()) + MemoryOffset);
	}
	return Result;
}

FPythonRef PythonStruct::ToPython(UScriptStruct* Struct, const void* Value)
{
	PyTypeObject* const Type = PythonTypeTable::TypeOf(Struct);
	if (!Type)
	{
		PythonErrors::Raise(
			PyExc_TypeError, FString::Printf(TEXT("Python does not know the structure '%s'"), *Struct->GetName()));
		return FPythonRef();
	}
	FPythonRef Result = NewValue(Type, Struct);
	if (Result)
	{
		Struct->CopyScriptStruct(FPythonStruct::From(Result.Get()).Memory, Value);
	}
	return Result;
}

UScriptStruct* PythonStruct::StructOfValue(PyObject* Value)
{
	return PyObject_TypeCheck(Value, GStructBaseType.GetType()) ? FPythonStruct::From(Value).Struct : nullptr;
}

void* PythonStruct::MemoryOf(PyObject* Value)
{
	return FPythonStruct::From(Value).Memory;
}

bool PythonStruct::FromPython(UScriptStruct* Struct, PyObject* Value, void* Memory)
{
	if (const UScriptStruct* const ValueStruct = StructOfValue(Value))
	{
		if (ValueStruct->IsChildOf(Struct))
		{
			Struct->CopyScriptStruct(Memory, MemoryOf(Value));
			return true;
		}
	}
	else if (PyDict_Check(Value) || (PyMapping_Check(Value) && PyObject_HasAttrString(Value, "keys")))
	{
		return PythonStructFields::SetByName(Struct, Value, Memory);
	}
	else if (PySequence_Check(Value) && !PyUnicode_Check(Value) && !PyBytes_Check(Value))
	{
		return PythonStructFields::SetInOrder(Struct, Value, Memory);
	}
	return PythonErrors::RaiseUnexpectedType(PythonNaming::NameOf(Struct) + TEXT(", mapping or sequence"), Value);
}

static PyObject* NewStruct(PyTypeObject* Type, PyObject*, PyObject*)
{
	UScriptStruct* const Struct = PythonTypeTable::StructOf(Type);
	if (!Struct)
	{
		return PyErr_Format(PyExc_TypeError, "cannot create '%s' instances", Type->tp_name);
	}
	return FPythonInterpreter::CheckMainThread() ? NewValue(Type, Struct).Release() : nullptr;
}

/** unreal.SomeStruct(first, second, third=value): all optional. */
static int InitStruct(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	const FPythonStruct& Value = FPythonStruct::From(Self);
	return PythonStructFields::Construct(Value.Struct, Arguments, Keywords, Value.Memory) ? 0 : -1;
}

static PyObject* CastToStruct(PyObject* Type, PyObject* Value)
{
	FPythonRef Result = FPythonRef::Steal(NewStruct(reinterpret_cast<PyTypeObject*>(Type), nullptr, nullptr));
	if (!Result)
	{
		return nullptr;
	}
	const FPythonStruct& State = FPythonStruct::From(Result.Get());
	return PythonStruct::FromPython(State.Struct, Value, State.Memory) ? Result.Release() : nullptr;
}

static PyObject* StaticStruct(PyObject* Type, PyObject*)
{
	return PythonObjects::ToPython(PythonTypeTable::StructOf(reinterpret_cast<PyTypeObject*>(Type))).Release();
}

static PyObject* CopyStruct(PyObject* Self, PyObject*)
{
	const FPythonStruct& Value = FPythonStruct::From(Self);
	return PythonStruct::ToPython(Value.Struct, Value.Memory).Release();
}

static PyObject* AssignStruct(PyObject* Self, PyObject* Value)
{
	// A value that does not fit must not leave half of it here.
	const FPythonStruct& State = FPythonStruct::From(Self);
	const FPythonRef Converted = FPythonRef::Steal(CopyStruct(Self, nullptr));
	if (!Converted || !PythonStruct::FromPython(State.Struct, Value, PythonStruct::MemoryOf(Converted.Get())))
	{
		return nullptr;
	}
	State.Struct->CopyScriptStruct(State.Memory, PythonStruct::MemoryOf(Converted.Get()));
	Py_RETURN_NONE;
}

static PyObject* StructToTuple(PyObject* Self, PyObject*)
{
	return PythonStructFields::ToTuple(FPythonStruct::From(Self).Struct, Self).Release();
}

static PyObject* GetStructProperty(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", nullptr};
	PyObject* Name = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "O:get_editor_property", const_cast<char**>(Names), &Name))
	{
		return nullptr;
	}
	const FPythonStruct& Value = FPythonStruct::From(Self);
	const FPythonProperty* const Field = PythonProperty::FindOrRaise(*FPythonPropertyTable::Of(Value.Struct), Value.Struct, Name);
	return Field ? Field->Get(Value.Memory).Release() : nullptr;
}

static PyObject* SetStructProperty(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", "value", "notify_mode", nullptr};
	PyObject* Name = nullptr;
	PyObject* NewFieldValue = nullptr;
	PyObject* NotifyMode = nullptr;
	if (!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "OO|O:set_editor_property", const_cast<char**>(Names), &Name, &NewFieldValue, &NotifyMode))
	{
		return nullptr;
	}
	const FPythonStruct& Value = FPythonStruct::From(Self);
	const FPythonProperty* const Field = PythonProperty::FindOrRaise(*FPythonPropertyTable::Of(Value.Struct), Value.Struct, Name);
	if (!Field || !Field->Set(Value.Memory, NewFieldValue))
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* SetStructProperties(PyObject* Self, PyObject* Mapping)
{
	if (!PyMapping_Check(Mapping))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("mapping"), Mapping);
		return nullptr;
	}
	return AssignStruct(Self, Mapping);
}

/** Inequality is the opposite of equality, of which the type may have an operator of its own. */
static PyObject* StructsDiffer(PyObject* Self, PyObject* Other)
{
	const FPythonRef Equal = FPythonRef::Steal(Py_TYPE(Self)->tp_richcompare(Self, Other, Py_EQ));
	if (!Equal || Equal.Get() == Py_NotImplemented)
	{
		return FPythonRef(Equal).Release();
	}
	const int bEqual = PyObject_IsTrue(Equal.Get());
	return bEqual < 0 ? nullptr : PyBool_FromLong(!bEqual);
}

static PyObject* CompareStructs(PyObject* Self, PyObject* Other, int Operation)
{
	if (Operation == Py_NE)
	{
		return StructsDiffer(Self, Other);
	}
	const FPythonStruct& Value = FPythonStruct::From(Self);
	if (Operation != Py_EQ || PythonStruct::StructOfValue(Other) != Value.Struct)
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	return PyBool_FromLong(Value.Struct->CompareScriptStruct(Value.Memory, PythonStruct::MemoryOf(Other), PPF_None));
}

static PyObject* StructToRepr(PyObject* Self)
{
	return PythonStructText::Repr(FPythonStruct::From(Self).Struct, Self).Release();
}

static PyObject* StructToStr(PyObject* Self)
{
	return PythonStructText::Str(FPythonStruct::From(Self).Struct, Self).Release();
}

static PyMethodDef GStructMethods[] = {
	{"cast", CastToStruct, METH_O | METH_CLASS,
		"cast($type, value, /)\n--\n\nMakes a value of a structure, a mapping of fields or a sequence of fields."},
	{"static_struct", StaticStruct, METH_NOARGS | METH_CLASS,
		"static_struct($type, /)\n--\n\nThe engine's object of the structure."},
	{"copy", CopyStruct, METH_NOARGS, "copy($self, /)\n--\n\nA copy of the value."},
	{"__copy__", CopyStruct, METH_NOARGS, "__copy__($self, /)\n--\n\nA copy of the value."},
	{"assign", AssignStruct, METH_O, "assign($self, value, /)\n--\n\nTakes over another value, whole or not at all."},
	{"to_tuple", StructToTuple, METH_NOARGS, "to_tuple($self, /)\n--\n\nThe values that the constructor takes, in its order."},
	{"get_editor_property", PythonKeywordFunction(GetStructProperty), METH_VARARGS | METH_KEYWORDS,
		"get_editor_property($self, name)\n--\n\nThe value of an editable or script-visible field."},
	{"set_editor_property", PythonKeywordFunction(SetStructProperty), METH_VARARGS | METH_KEYWORDS,
		"set_editor_property($self, name, value, notify_mode=None)\n--\n\nSets an editable or script-visible field."},
	{"set_editor_properties", SetStructProperties, METH_O,
		"set_editor_properties($self, properties, /)\n--\n\nSets the fields that a mapping names, all or none."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonStruct::RegisterBase(PyObject* Module)
{
	GStructBaseType = FPythonTypeSpec::Of<FPythonStruct>("unreal.StructBase", Py_TPFLAGS_BASETYPE)
						  .Doc("Base of all structures of the engine.")
						  .Methods(GStructMethods)
						  .Function(Py_tp_new, &NewStruct)
						  .Function(Py_tp_init, &InitStruct)
						  .Function(Py_tp_repr, &StructToRepr)
						  .Function(Py_tp_str, &StructToStr)
						  .Function(Py_tp_richcompare, &CompareStructs)
						  .Function(Py_tp_hash, &PyObject_HashNotImplemented)
						  .Make();
	return GStructBaseType && PyModule_AddType(Module, GStructBaseType.GetType()) == 0;
}

FPythonRef PythonStruct::MakeType(UScriptStruct* Struct, PyTypeObject* ParentType)
{
	if (static_cast<SIZE_T>(Struct->GetMinAlignment()) > MaxAlignment)
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("the structure '%s' is aligned to %d bytes, more than Python gives"), *Struct->GetName(),
				Struct->GetMinAlignment()));
		return FPythonRef();
	}
	const TArray<ANSICHAR> Name = PythonStrings::ToUtf8(TEXT("unreal.") + PythonNaming::NameOf(Struct));
	const TArray<ANSICHAR> Doc = PythonStrings::ToUtf8(Struct->GetToolTipText().ToString());
	return FPythonTypeSpec(
		Name.GetData(), MemoryOffset + Align(Struct->GetStructureSize(), static_cast<int32>(sizeof(void*))), Py_TPFLAGS_BASETYPE)
		.Base(ParentType ? ParentType : GStructBaseType.GetType())
		.Doc(Doc.GetData())
		.Make();
}
