#include "PythonEnum.h"

#include "PythonErrors.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"
#include "UObject/Class.h"

/** One entry as Python sees it. */
struct FPythonEnumEntry
{
	UEnum* Enum;
	FPythonRef Name;
	int64 Value;

	static FPythonEnumEntry& From(PyObject* Self) { return PythonTypes::StateOf<FPythonEnumEntry>(Self); }
};

/** The type of an enumeration and its entries by value; of several names for a value the first. */
struct FPythonEnumType
{
	FPythonRef Type;
	TMap<int64, FPythonRef> Entries;
};

static FPythonGlobalRef GEnumBaseType;
static TMap<const UEnum*, FPythonEnumType> GEnumTypes;

static PyObject* EntryName(PyObject* Self, void*)
{
	return FPythonRef(FPythonEnumEntry::From(Self).Name).Release();
}

static PyObject* EntryValue(PyObject* Self, void*)
{
	return PyLong_FromLongLong(FPythonEnumEntry::From(Self).Value);
}

static PyObject* EntryToInt(PyObject* Self)
{
	return EntryValue(Self, nullptr);
}

static PyObject* EntryToRepr(PyObject* Self)
{
	const FPythonEnumEntry& Entry = FPythonEnumEntry::From(Self);
	return PyUnicode_FromFormat(
		"<%s.%U: %lld>", _PyType_Name(Py_TYPE(Self)), Entry.Name.Get(), static_cast<long long>(Entry.Value));
}

static Py_hash_t HashEntry(PyObject* Self)
{
	const FPythonRef Value = FPythonRef::Steal(EntryToInt(Self));
	return Value ? PyObject_Hash(Value.Get()) : -1;
}

static PyObject* CompareEntries(PyObject* Self, PyObject* Other, int Operation)
{
	const FPythonEnumEntry& Entry = FPythonEnumEntry::From(Self);
	int64 OtherValue = 0;
	if (!PythonEnum::FromPython(Entry.Enum, Other, OtherValue))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	Py_RETURN_RICHCOMPARE(Entry.Value, OtherValue, Operation);
}

static FPythonRef MakeEntry(PyTypeObject* Type, UEnum* Enum, const FString& Name, int64 Value)
{
	return PythonTypes::New<FPythonEnumEntry>(Type, Enum, PythonStrings::Intern(Name), Value);
}

static PyObject* CastToEntry(PyObject* Type, PyObject* Value)
{
	UEnum* const Enum = PythonEnum::EnumOf(reinterpret_cast<PyTypeObject*>(Type));
	int64 Number = 0;
	if (!Enum || !PythonEnum::FromPython(Enum, Value, Number))
	{
		PythonErrors::RaiseUnexpectedType(
			Enum ? PythonNaming::NameOf(Enum) + TEXT(" or int") : TEXT("a type of an enumeration"), Value);
		return nullptr;
	}
	// A parameter takes the low bits of a number that is too large; an entry of that value there is none.
	const char* const Name = reinterpret_cast<PyTypeObject*>(Type)->tp_name;
	int Overflow = 0;
	if (PyLong_Check(Value) && PyLong_AsLongLongAndOverflow(Value, &Overflow) == -1 && Overflow != 0)
	{
		return PyErr_Format(PyExc_TypeError, "%s has no entry of value %S", Name, Value);
	}
	if (const FPythonRef* const Entry = GEnumTypes.FindChecked(Enum).Entries.Find(Number))
	{
		return FPythonRef(*Entry).Release();
	}
	return PyErr_Format(PyExc_TypeError, "%s has no entry of value %lld", Name, static_cast<long long>(Number));
}

static PyObject* StaticEnum(PyObject* Type, PyObject*)
{
	return PythonObjects::ToPython(PythonEnum::EnumOf(reinterpret_cast<PyTypeObject*>(Type))).Release();
}

static PyMethodDef GEnumMethods[] = {
	{"cast", CastToEntry, METH_O | METH_CLASS,
		"cast($type, value, /)\n--\n\nThe entry of a value, or the entry itself; TypeError if there is none."},
	{"static_enum", StaticEnum, METH_NOARGS | METH_CLASS, "static_enum($type, /)\n--\n\nThe engine's object of the enumeration."},
	{nullptr, nullptr, 0, nullptr},
};

static PyGetSetDef GEnumGetters[] = {
	{"name", EntryName, nullptr, "Name of the entry.", nullptr},
	{"value", EntryValue, nullptr, "Number of the entry.", nullptr},
	{nullptr, nullptr, nullptr, nullptr, nullptr},
};

bool PythonEnum::RegisterBase(PyObject* Module)
{
	GEnumBaseType =
		FPythonTypeSpec::Of<FPythonEnumEntry>("unreal.EnumBase", Py_TPFLAGS_BASETYPE | Py_TPFLAGS_DISALLOW_INSTANTIATION)
			.Doc("Base of all enumerations.")
			.Methods(GEnumMethods)
			.Getters(GEnumGetters)
			.Function(Py_tp_repr, &EntryToRepr)
			.Function(Py_tp_hash, &HashEntry)
			.Function(Py_tp_richcompare, &CompareEntries)
			.Function(Py_nb_int, &EntryToInt)
			.Make();
	return GEnumBaseType && PyModule_AddType(Module, GEnumBaseType.GetType()) == 0;
}

static bool IsHidden(const UEnum* Enum, int32 Index)
{
	const bool bIsLast = Index == Enum->NumEnums() - 1;
	return Enum->HasMetaData(TEXT("Hidden"), Index) || (bIsLast && Enum->ContainsExistingMax());
}

FPythonRef PythonEnum::MakeType(UEnum* Enum)
{
	const TArray<ANSICHAR> Name = PythonStrings::ToUtf8(TEXT("unreal.") + PythonNaming::NameOf(Enum));
	const TArray<ANSICHAR> Doc = PythonStrings::ToUtf8(Enum->GetToolTipText().ToString());
	FPythonEnumType Result;
	Result.Type = FPythonTypeSpec(Name.GetData(), 0, Py_TPFLAGS_DISALLOW_INSTANTIATION)
					  .Base(GEnumBaseType.GetType())
					  .Doc(Doc.GetData())
					  .Make();
	if (!Result.Type)
	{
		return FPythonRef();
	}
	for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
	{
		if (IsHidden(Enum, Index))
		{
			continue;
		}
		const FString EntryName = PythonNaming::NameOfEntry(Enum, Index);
		const int64 Value = Enum->GetValueByIndex(Index);
		PyTypeObject* const Type = PythonTypes::AsType(Result.Type);
		const FPythonRef Entry = MakeEntry(Type, Enum, EntryName, Value);
		if (!Entry || !PythonTypes::AddAttribute(Type, FPythonEnumEntry::From(Entry.Get()).Name.Get(), Entry.Get()))
		{
			return FPythonRef();
		}
		Result.Entries.FindOrAdd(Value, Entry);
	}
	return GEnumTypes.Add(Enum, MoveTemp(Result)).Type;
}

FPythonRef PythonEnum::ToPython(const UEnum* Enum, int64 Value)
{
	const FPythonEnumType* const Type = GEnumTypes.Find(Enum);
	if (!Type)
	{
		return FPythonRef::Steal(PyLong_FromLongLong(Value));
	}
	if (const FPythonRef* const Entry = Type->Entries.Find(Value))
	{
		return *Entry;
	}
	return MakeEntry(PythonTypes::AsType(Type->Type), const_cast<UEnum*>(Enum), FString(), Value);
}

bool PythonEnum::FromPython(const UEnum* Enum, PyObject* Value, int64& OutValue)
{
	if (PyObject_TypeCheck(Value, GEnumBaseType.GetType()))
	{
		const FPythonEnumEntry& Entry = FPythonEnumEntry::From(Value);
		OutValue = Entry.Value;
		return Entry.Enum == Enum;
	}
	if (PyLong_Check(Value))
	{
		OutValue = static_cast<int64>(PyLong_AsUnsignedLongLongMask(Value));
		return true;
	}
	return false;
}

bool PythonEnum::IsEnumType(PyTypeObject* Type)
{
	return PyType_IsSubtype(Type, GEnumBaseType.GetType()) != 0;
}

UEnum* PythonEnum::EnumOf(PyTypeObject* Type)
{
	for (const TPair<const UEnum*, FPythonEnumType>& Pair : GEnumTypes)
	{
		if (PythonTypes::AsType(Pair.Value.Type) == Type)
		{
			return const_cast<UEnum*>(Pair.Key);
		}
	}
	return nullptr;
}

void PythonEnum::ReleaseAll()
{
	GEnumTypes.Empty();
}
