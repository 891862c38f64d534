#include "PythonObjectMethods.h"

#include "PythonErrors.h"
#include "PythonFunction.h"
#include "PythonInterpreter.h"
#include "PythonMappings.h"
#include "PythonName.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonProperty.h"
#include "PythonReferences.h"
#include "PythonScriptTypes.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "PythonTypeTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

/** The object that a method was called on; null with an error off the main thread and for a destroyed one. */
static UObject* ObjectOf(PyObject* Self)
{
	return FPythonInterpreter::CheckMainThread() ? PythonObjects::FromWrapper(Self) : nullptr;
}

/** A method that takes nothing and tells one thing about its object. */
template <FPythonRef (*Get)(UObject* Object)>
static PyObject* Tell(PyObject* Self, PyObject*)
{
	UObject* const Object = ObjectOf(Self);
	return Object ? Get(Object).Release() : nullptr;
}

static FPythonRef TellName(UObject* Object)
{
	return PythonStrings::ToPython(Object->GetName());
}

static FPythonRef TellFName(UObject* Object)
{
	return PythonName::ToPython(Object->GetFName());
}

static FPythonRef TellPathName(UObject* Object)
{
	return PythonStrings::ToPython(Object->GetPathName());
}

static FPythonRef TellFullName(UObject* Object)
{
	return PythonStrings::ToPython(Object->GetFullName());
}

static FPythonRef TellClass(UObject* Object)
{
	return PythonObjects::ToPython(Object->GetClass());
}

static FPythonRef TellOuter(UObject* Object)
{
	return PythonObjects::ToPython(Object->GetOuter());
}

static FPythonRef TellOutermost(UObject* Object)
{
	return PythonObjects::ToPython(Object->GetOutermost());
}

/** A world is an object like any other here; its class belongs to a module above. */
static FPythonRef TellWorld(UObject* Object)
{
	return PythonObjects::ToPython(reinterpret_cast<UObject*>(Object->GetWorld()));
}

static PyObject* GetTypedOuter(PyObject* Self, PyObject* Type)
{
	UObject* const Object = ObjectOf(Self);
	UClass* const Class = Object ? PythonObjects::ClassFromPython(Type) : nullptr;
	if (Object && !Class)
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Class or type"), Type);
	}
	return Class ? PythonObjects::ToPython(Object->GetTypedOuter(Class)).Release() : nullptr;
}

static PyObject* CastObject(PyObject* Type, PyObject* Value)
{
	UClass* const Class = PythonTypeTable::ClassOf(reinterpret_cast<PyTypeObject*>(Type));
	if (!PythonObjects::IsWrapper(Value))
	{
		PythonErrors::RaiseUnexpectedType(Class ? PythonNaming::NameOf(Class) : TEXT("Object"), Value);
		return nullptr;
	}
	UObject* const Object = ObjectOf(Value);
	if (Object && Class && !Object->IsA(Class))
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(
				TEXT("Cannot cast type '%s' to '%s'"), *PythonStrings::TypeNameOf(Value), *PythonNaming::NameOf(Class)));
		return nullptr;
	}
	return Object ? FPythonRef::Borrow(Value).Release() : nullptr;
}

static PyObject* StaticClassOf(PyObject* Type, PyObject*)
{
	return PythonObjects::ToPython(PythonTypeTable::ClassOf(reinterpret_cast<PyTypeObject*>(Type))).Release();
}

static PyObject* GetDefaultObjectOf(PyObject* Type, PyObject*)
{
	UClass* const Class = PythonObjects::OwnClassFromPython(Type);
	return Class ? PythonObjects::ToPython(Class->GetDefaultObject()).Release() : nullptr;
}

static PyObject* ModifyObject(PyObject* Self, PyObject* Arguments)
{
	int bAlwaysMarkDirty = 1;
	UObject* const Object = ObjectOf(Self);
	if (!Object || !PyArg_ParseTuple(Arguments, "|p:modify", &bAlwaysMarkDirty))
	{
		return nullptr;
	}
	return PyBool_FromLong(Object->Modify(bAlwaysMarkDirty != 0));
}

static UObject* ObjectAt(UObject* Outer, FName Name)
{
	return Name.IsNone() ? nullptr : StaticFindObjectFast(nullptr, Outer, Name);
}

static PyObject* RenameObject(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", "outer", nullptr};
	PyObject* NameValue = Py_None;
	PyObject* OuterValue = Py_None;
	UObject* const Object = ObjectOf(Self);
	if (!Object ||
		!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "|OO:rename", const_cast<char**>(Names), &NameValue, &OuterValue))
	{
		return nullptr;
	}
	FName Name;
	if (!PythonObjectMethods::ReadObjectName(NameValue, Name))
	{
		return nullptr;
	}
	UObject* Outer = Object->GetOuter();
	if (OuterValue != Py_None)
	{
		if (!PythonObjects::IsWrapper(OuterValue))
		{
			PythonErrors::RaiseUnexpectedType(TEXT("Object or None as outer"), OuterValue);
			return nullptr;
		}
		Outer = PythonObjects::FromWrapper(OuterValue);
		if (!Outer)
		{
			return nullptr;
		}
	}
	const UObject* const Taken = ObjectAt(Outer, Name);
	if (Taken && Taken != Object)
	{
		PythonErrors::Raise(PyExc_ValueError, FString::Printf(TEXT("the name is taken by '%s'"), *Taken->GetPathName()));
		return nullptr;
	}
	return PyBool_FromLong(Object->Rename(Name.IsNone() ? nullptr : *Name.ToString(), Outer));
}

bool PythonObjectMethods::ReadObjectName(PyObject* Value, FName& OutName)
{
	if (!Value || Value == Py_None)
	{
		return true;
	}
	if (!PythonName::FromPython(Value, OutName))
	{
		return PythonErrors::RaiseUnexpectedType(TEXT("Name, str or None as name"), Value);
	}
	// The engine would see the name only up to there, or none at all.
	if (PyUnicode_Check(Value) && PyUnicode_FindChar(Value, 0, 0, PyUnicode_GET_LENGTH(Value), 1) >= 0)
	{
		PyErr_SetString(PyExc_ValueError, "embedded null character in a name");
		return false;
	}
	return true;
}

/** Whether the name is free for an object of that class, or belongs to one that a new one may replace. */
static bool CheckPlaceOfObject(const UClass* Class, UObject* Outer, FName Name)
{
	const UObject* const Taken = ObjectAt(Outer, Name);
	if (!Taken)
	{
		return true;
	}
	if (Taken->GetClass() != Class)
	{
		PythonErrors::Raise(PyExc_ValueError,
			FString::Printf(
				TEXT("'%s' is an object of another class, %s"), *Taken->GetPathName(), *Taken->GetClass()->GetName()));
		return false;
	}
	if (Taken->HasAnyFlags(RF_ClassDefaultObject))
	{
		PythonErrors::Raise(PyExc_ValueError, FString::Printf(TEXT("'%s' is a default object"), *Taken->GetPathName()));
		return false;
	}
	return true;
}

UObject* PythonObjectMethods::MakeObject(UClass* Class, UObject* Outer, FName Name)
{
	if (!Class || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("the class '%s' is abstract"), Class ? *PythonNaming::NameOf(Class) : TEXT("_ObjectBase")));
		return nullptr;
	}
	if (Class->IsChildOf(UField::StaticClass()) || !Class->ClassConstructor)
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("objects of the class '%s' are made by reflection alone"), *PythonNaming::NameOf(Class)));
		return nullptr;
	}
	return CheckPlaceOfObject(Class, Outer, Name) ? NewObject<UObject>(Outer, Class, Name) : nullptr;
}

static PyObject* GetEditorProperty(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", nullptr};
	PyObject* Name = nullptr;
	const UObject* const Object = ObjectOf(Self);
	if (!Object || !PyArg_ParseTupleAndKeywords(Arguments, Keywords, "O:get_editor_property", const_cast<char**>(Names), &Name))
	{
		return nullptr;
	}
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Object->GetClass());
	const FPythonProperty* const Property = PythonProperty::FindOrRaise(*Table, Object->GetClass(), Name);
	return Property ? Property->Get(Object).Release() : nullptr;
}

/** A change of one property that is known to fit: made as a user's edit is, with notifications before and after. */
class FPropertyChange
{
public:
	/** Null with an error if there is no such property, if it is read-only, or if the value does not fit. */
	static TUniquePtr<FPropertyChange> Prepare(UObject* Object, PyObject* Name, PyObject* Value)
	{
		const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Object->GetClass());
		const FPythonProperty* const Property = PythonProperty::FindOrRaise(*Table, Object->GetClass(), Name);
		if (!Property)
		{
			return nullptr;
		}
		if (!Property->IsEditable())
		{
			PythonErrors::Raise(PyExc_Exception,
				FString::Printf(TEXT("%s: Property '%s' on '%s' is read-only and cannot be set"), *Object->GetClass()->GetName(),
					*Property->GetName(), *Object->GetClass()->GetName()));
			return nullptr;
		}
		TUniquePtr<FPropertyChange> Change = MakeUnique<FPropertyChange>(Property->GetProperty());
		return Property->Convert(Value, Change->Converted.Get()) ? MoveTemp(Change) : nullptr;
	}

	explicit FPropertyChange(FProperty* InProperty)
		: Property(InProperty)
		, Converted(InProperty)
	{
	}

	void Apply(UObject* Object, bool bNotify) const
	{
		if (bNotify)
		{
			Object->Modify();
			Object->PreEditChange(Property);
		}
		Property->CopyCompleteValue(Property->ContainerPtrToValuePtr<void>(Object), Converted.Get());
		if (bNotify)
		{
			FPropertyChangedEvent Event(Property, EPropertyChangeType::ValueSet);
			Object->PostEditChangeProperty(Event);
		}
	}

private:
	FProperty* const Property;
	const FScopedPropertyValue Converted;
};

static bool ReadNotifyMode(PyObject* Value, bool& bOutNotify)
{
	const FPythonRef Number = FPythonRef::Steal(PyNumber_Long(Value));
	if (!Number)
	{
		PyErr_Clear();
		return PythonErrors::RaiseUnexpectedType(TEXT("PropertyAccessChangeNotifyMode"), Value);
	}
	bOutNotify = PyLong_AsLong(Number.Get()) != static_cast<long>(EPropertyAccessChangeNotifyMode::Never);
	return true;
}

static PyObject* SetEditorProperty(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", "value", "notify_mode", nullptr};
	PyObject* Name = nullptr;
	PyObject* Value = nullptr;
	PyObject* NotifyMode = nullptr;
	bool bNotify = true;
	UObject* const Object = ObjectOf(Self);
	if (!Object ||
		!PyArg_ParseTupleAndKeywords(
			Arguments, Keywords, "OO|O:set_editor_property", const_cast<char**>(Names), &Name, &Value, &NotifyMode) ||
		(NotifyMode && !ReadNotifyMode(NotifyMode, bNotify)))
	{
		return nullptr;
	}
	const TUniquePtr<FPropertyChange> Change = FPropertyChange::Prepare(Object, Name, Value);
	if (!Change)
	{
		return nullptr;
	}
	Change->Apply(Object, bNotify);
	Py_RETURN_NONE;
}

static PyObject* SetEditorProperties(PyObject* Self, PyObject* Properties)
{
	UObject* const Object = ObjectOf(Self);
	const FPythonRef Items = Object ? PythonMappings::ItemsOf(Properties) : FPythonRef();
	if (!Items)
	{
		return nullptr;
	}
	TArray<TUniquePtr<FPropertyChange>> Changes;
	for (Py_ssize_t Index = 0; Index < PyList_GET_SIZE(Items.Get()); ++Index)
	{
		PyObject* const Item = PyList_GET_ITEM(Items.Get(), Index);
		Changes.Add(FPropertyChange::Prepare(Object, PyTuple_GET_ITEM(Item, 0), PyTuple_GET_ITEM(Item, 1)));
		if (!Changes.Last())
		{
			return nullptr;
		}
	}
	for (const TUniquePtr<FPropertyChange>& Change : Changes)
	{
		Change->Apply(Object, true);
	}
	Py_RETURN_NONE;
}

/** Positional arguments and the values of keywords in one row, with the names of the keywords beside it. */
static PyObject* CallWithTuples(const FPythonFunction& Function, UObject* Object, PyObject* Arguments, PyObject* Keywords)
{
	TArray<PyObject*> Values;
	for (Py_ssize_t Index = 0; Index < PyTuple_GET_SIZE(Arguments); ++Index)
	{
		Values.Add(PyTuple_GET_ITEM(Arguments, Index));
	}
	const FPythonRef Names = Keywords ? FPythonRef::Steal(PySequence_Tuple(Keywords)) : FPythonRef();
	for (Py_ssize_t Index = 0; Names && Index < PyTuple_GET_SIZE(Names.Get()); ++Index)
	{
		Values.Add(PyDict_GetItemWithError(Keywords, PyTuple_GET_ITEM(Names.Get(), Index)));
	}
	return Function.Call(Object, Values.GetData(), PyTuple_GET_SIZE(Arguments), Names.Get());
}

/** object.call_method("CppName", args=(), kwargs={}) calls a reflected function that may have no Python name. */
static PyObject* CallMethod(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"name", "args", "kwargs", nullptr};
	PyObject* Name = nullptr;
	PyObject* CallArguments = nullptr;
	PyObject* CallKeywords = nullptr;
	UObject* const Object = ObjectOf(Self);
	if (!Object ||
		!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "O|O!O!:call_method", const_cast<char**>(Names), &Name, &PyTuple_Type,
			&CallArguments, &PyDict_Type, &CallKeywords))
	{
		return nullptr;
	}
	FName FunctionName;
	UFunction* const Function = PythonName::FromPython(Name, FunctionName) ? Object->FindFunction(FunctionName) : nullptr;
	if (!Function)
	{
		PythonErrors::Raise(PyExc_Exception,
			FString::Printf(TEXT("%s: Failed to find function '%s' on '%s'"), *Object->GetClass()->GetName(),
				*PythonStrings::Describe(Name), *Object->GetClass()->GetName()));
		return nullptr;
	}
	const TUniquePtr<FPythonFunction> Binding = FPythonFunction::Make(Function, Function->GetName(), FString());
	if (!Binding)
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("%s() has a parameter of a kind that Python cannot carry"), *Function->GetName()));
		return nullptr;
	}
	const FPythonRef NoArguments = FPythonRef::Steal(PyTuple_New(0));
	return CallWithTuples(*Binding, Object, CallArguments ? CallArguments : NoArguments.Get(), CallKeywords);
}

static PyMethodDef GObjectMethods[] = {
	{"cast", CastObject, METH_O | METH_CLASS,
		"cast($type, object, /)\n--\n\nThe object, if it is of this class; TypeError otherwise."},
	{"static_class", StaticClassOf, METH_NOARGS | METH_CLASS, "static_class($type, /)\n--\n\nThe engine's object of the class."},
	{"get_default_object", GetDefaultObjectOf, METH_NOARGS | METH_CLASS,
		"get_default_object($type, /)\n--\n\nThe object that holds the first values of the class."},
	{"get_class", Tell<&TellClass>, METH_NOARGS, "get_class($self, /)\n--\n\nThe class of the object."},
	{"get_name", Tell<&TellName>, METH_NOARGS, "get_name($self, /)\n--\n\nName of the object as str."},
	{"get_fname", Tell<&TellFName>, METH_NOARGS, "get_fname($self, /)\n--\n\nName of the object as Name."},
	{"get_path_name", Tell<&TellPathName>, METH_NOARGS,
		"get_path_name($self, /)\n--\n\nPath of the object, such as /Game/Dir/A.A."},
	{"get_full_name", Tell<&TellFullName>, METH_NOARGS, "get_full_name($self, /)\n--\n\nClass and path of the object."},
	{"get_outer", Tell<&TellOuter>, METH_NOARGS, "get_outer($self, /)\n--\n\nThe object that this one lies in, or None."},
	{"get_outermost", Tell<&TellOutermost>, METH_NOARGS, "get_outermost($self, /)\n--\n\nThe package of the object."},
	{"get_typed_outer", GetTypedOuter, METH_O, "get_typed_outer($self, type, /)\n--\n\nThe nearest outer of a class, or None."},
	{"get_world", Tell<&TellWorld>, METH_NOARGS, "get_world($self, /)\n--\n\nThe world that the object lives in, or None."},
	{"modify", ModifyObject, METH_VARARGS,
		"modify($self, always_mark_dirty=True, /)\n--\n\nSays that the object is about to change; True if a transaction recorded "
		"it."},
	{"rename", PythonKeywordFunction(RenameObject), METH_VARARGS | METH_KEYWORDS,
		"rename($self, name=None, outer=None)\n--\n\nGives the object another name, another outer or both."},
	{"call_method", PythonKeywordFunction(CallMethod), METH_VARARGS | METH_KEYWORDS,
		"call_method($self, name, args=(), kwargs={})\n--\n\nCalls a reflected function by its C++ name."},
	{"get_editor_property", PythonKeywordFunction(GetEditorProperty), METH_VARARGS | METH_KEYWORDS,
		"get_editor_property($self, name)\n--\n\nThe value of an editable or script-visible property."},
	{"set_editor_property", PythonKeywordFunction(SetEditorProperty), METH_VARARGS | METH_KEYWORDS,
		"set_editor_property($self, name, value, notify_mode=None)\n--\n\nSets a property as an edit in the editor does."},
	{"set_editor_properties", SetEditorProperties, METH_O,
		"set_editor_properties($self, properties, /)\n--\n\nSets the properties that a mapping names, all or none."},
	{nullptr, nullptr, 0, nullptr},
};

PyMethodDef* PythonObjectMethods::Table()
{
	return GObjectMethods;
}
