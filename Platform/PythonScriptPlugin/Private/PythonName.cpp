#include "PythonName.h"

#include "PythonErrors.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"

static FPythonGlobalRef GNameType;

PyTypeObject* PythonName::Type()
{
	return GNameType.GetType();
}

const FName* PythonName::Get(PyObject* Value)
{
	return PyObject_TypeCheck(Value, GNameType.GetType()) ? &PythonTypes::StateOf<FName>(Value) : nullptr;
}

FPythonRef PythonName::ToPython(FName Name)
{
	return PythonTypes::New<FName>(GNameType.GetType(), Name);
}

/**
 * Names of the str objects that were seen last, by identity. The literals of a cached command are the same objects at every run,
 * and a look here costs a tenth of one in the name table.
 */
class FRecentNames
{
public:
	FName Find(PyObject* Text)
	{
		FSlot& Slot = Slots[(reinterpret_cast<UPTRINT>(Text) >> 5) % SlotCount];
		if (Slot.Text.Get() != Text)
		{
			Slot.Name = FName(PythonStrings::FromStr(Text));
			Slot.Text = FPythonRef::Borrow(Text);
		}
		return Slot.Name;
	}

private:
	static constexpr UPTRINT SlotCount = 256;

	struct FSlot
	{
		FPythonGlobalRef Text;
		FName Name;
	};
	FSlot Slots[SlotCount];
};

static FRecentNames GRecentNames;

bool PythonName::FromPython(PyObject* Value, FName& OutName)
{
	if (PyUnicode_Check(Value))
	{
		OutName = GRecentNames.Find(Value);
		return true;
	}
	if (const FName* const Name = Get(Value))
	{
		OutName = *Name;
		return true;
	}
	return false;
}

static FName NameOf(PyObject* Self)
{
	return PythonTypes::StateOf<FName>(Self);
}

static PyObject* NewName(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"value", nullptr};
	PyObject* Value = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "|O:Name", const_cast<char**>(Names), &Value))
	{
		return nullptr;
	}
	FName Name;
	if (Value && !PythonName::FromPython(Value, Name))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Name or str"), Value);
		return nullptr;
	}
	return PythonTypes::New<FName>(Type, Name).Release();
}

static PyObject* CastToName(PyObject* Type, PyObject* Value)
{
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Value));
	return Arguments ? NewName(reinterpret_cast<PyTypeObject*>(Type), Arguments.Get(), nullptr) : nullptr;
}

static PyObject* NameToStr(PyObject* Self)
{
	return PythonStrings::ToPython(NameOf(Self).ToString()).Release();
}

static PyObject* NameToRepr(PyObject* Self)
{
	const FPythonRef Text = FPythonRef::Steal(NameToStr(Self));
	return Text ? PyUnicode_FromFormat("Name(%R)", Text.Get()) : nullptr;
}

/** Equal names have equal hashes, and so does the lower-case str that they are equal to. */
static Py_hash_t HashName(PyObject* Self)
{
	const FPythonRef Text = PythonStrings::ToPython(NameOf(Self).ToString().ToLower());
	return Text ? PyObject_Hash(Text.Get()) : -1;
}

static PyObject* CompareNames(PyObject* Self, PyObject* Other, int Operation)
{
	FName OtherName;
	if (!PythonName::FromPython(Other, OtherName))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	const int32 Order = NameOf(Self).Compare(OtherName);
	Py_RETURN_RICHCOMPARE(Order, 0, Operation);
}

static PyObject* IsNone(PyObject* Self, PyObject*)
{
	return PyBool_FromLong(NameOf(Self).IsNone());
}

static PyObject* IsValidName(PyObject* Self, PyObject*)
{
	return PyBool_FromLong(NameOf(Self).IsValid());
}

static PyMethodDef GNameMethods[] = {
	{"cast", CastToName, METH_O | METH_CLASS, "cast($type, value, /)\n--\n\nMakes a Name of a Name or str."},
	{"is_none", IsNone, METH_NOARGS, "is_none($self, /)\n--\n\nTrue for the name None."},
	{"is_valid", IsValidName, METH_NOARGS, "is_valid($self, /)\n--\n\nTrue unless the name is corrupt."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonName::Register(PyObject* Module)
{
	GNameType = FPythonTypeSpec::Of<FName>("unreal.Name", Py_TPFLAGS_BASETYPE)
					.Doc("Name(value='None')\n--\n\nA short text that is compared without regard to case.")
					.Methods(GNameMethods)
					.Function(Py_tp_new, &NewName)
					.Function(Py_tp_str, &NameToStr)
					.Function(Py_tp_repr, &NameToRepr)
					.Function(Py_tp_hash, &HashName)
					.Function(Py_tp_richcompare, &CompareNames)
					.Make();
	return GNameType && PyModule_AddType(Module, GNameType.GetType()) == 0;
}
