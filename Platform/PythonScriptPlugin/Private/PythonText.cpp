#include "PythonText.h"

#include "PythonErrors.h"
#include "PythonMappings.h"
#include "PythonName.h"
#include "PythonStrings.h"
#include "PythonTypeSpec.h"

static FPythonGlobalRef GTextType;

PyTypeObject* PythonText::Type()
{
	return GTextType.GetType();
}

const FText* PythonText::Get(PyObject* Value)
{
	return PyObject_TypeCheck(Value, GTextType.GetType()) ? &PythonTypes::StateOf<FText>(Value) : nullptr;
}

FPythonRef PythonText::ToPython(const FText& Text)
{
	return PythonTypes::New<FText>(GTextType.GetType(), Text);
}

bool PythonText::FromPython(PyObject* Value, FText& OutText)
{
	if (PyUnicode_Check(Value))
	{
		OutText = FText::FromString(PythonStrings::FromStr(Value));
		return true;
	}
	if (const FText* const Text = Get(Value))
	{
		OutText = *Text;
		return true;
	}
	if (const FName* const Name = PythonName::Get(Value))
	{
		OutText = FText::FromName(*Name);
		return true;
	}
	return false;
}

static const FText& TextOf(PyObject* Self)
{
	return PythonTypes::StateOf<FText>(Self);
}

static PyObject* NewText(PyTypeObject* Type, PyObject* Arguments, PyObject* Keywords)
{
	static const char* const Names[] = {"value", nullptr};
	PyObject* Value = nullptr;
	if (!PyArg_ParseTupleAndKeywords(Arguments, Keywords, "|O:Text", const_cast<char**>(Names), &Value))
	{
		return nullptr;
	}
	FText Text;
	if (Value && !PythonText::FromPython(Value, Text))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Text or str"), Value);
		return nullptr;
	}
	return PythonTypes::New<FText>(Type, Text).Release();
}

static PyObject* CastToText(PyObject* Type, PyObject* Value)
{
	const FPythonRef Arguments = FPythonRef::Steal(PyTuple_Pack(1, Value));
	return Arguments ? NewText(reinterpret_cast<PyTypeObject*>(Type), Arguments.Get(), nullptr) : nullptr;
}

static PyObject* TextToStr(PyObject* Self)
{
	return PythonStrings::ToPython(TextOf(Self).ToString()).Release();
}

static PyObject* TextToRepr(PyObject* Self)
{
	const FPythonRef Text = FPythonRef::Steal(TextToStr(Self));
	return Text ? PyUnicode_FromFormat("Text(%R)", Text.Get()) : nullptr;
}

static Py_hash_t HashText(PyObject* Self)
{
	const FPythonRef Text = FPythonRef::Steal(TextToStr(Self));
	return Text ? PyObject_Hash(Text.Get()) : -1;
}

static PyObject* CompareTexts(PyObject* Self, PyObject* Other, int Operation)
{
	FText OtherText;
	if (!PythonText::FromPython(Other, OtherText))
	{
		Py_RETURN_NOTIMPLEMENTED;
	}
	const int32 Order = TextOf(Self).EqualTo(OtherText) ? 0 : (TextOf(Self).CompareTo(OtherText) < 0 ? -1 : 1);
	Py_RETURN_RICHCOMPARE(Order, 0, Operation);
}

/** A value for a place of a pattern: texts and numbers as such, anything else by its str(). */
static FFormatArgumentValue ToFormatArgument(PyObject* Value)
{
	FText Text;
	if (PythonText::FromPython(Value, Text))
	{
		return FFormatArgumentValue(Text);
	}
	if (PyFloat_Check(Value))
	{
		return FFormatArgumentValue(PyFloat_AS_DOUBLE(Value));
	}
	int bOverflow = 0;
	if (PyLong_Check(Value) && !PyBool_Check(Value))
	{
		const int64 Number = PyLong_AsLongLongAndOverflow(Value, &bOverflow);
		if (!bOverflow)
		{
			return FFormatArgumentValue(Number);
		}
	}
	return FFormatArgumentValue(FText::FromString(PythonStrings::Describe(Value)));
}

static void AddNamedArguments(PyObject* Values, FFormatNamedArguments& OutArguments)
{
	const FPythonRef Items = PythonMappings::ItemsOf(Values);
	for (Py_ssize_t Index = 0; Items && Index < PyList_GET_SIZE(Items.Get()); ++Index)
	{
		PyObject* const Item = PyList_GET_ITEM(Items.Get(), Index);
		OutArguments.Add(PythonStrings::Describe(PyTuple_GET_ITEM(Item, 0)), ToFormatArgument(PyTuple_GET_ITEM(Item, 1)));
	}
}

/** text.format(value, ...), text.format(name=value, ...) or text.format({name: value}). */
static PyObject* FormatText(PyObject* Self, PyObject* Arguments, PyObject* Keywords)
{
	FFormatNamedArguments Named;
	for (Py_ssize_t Index = 0; Index < PyTuple_GET_SIZE(Arguments); ++Index)
	{
		PyObject* const Value = PyTuple_GET_ITEM(Arguments, Index);
		if (PyDict_Check(Value))
		{
			AddNamedArguments(Value, Named);
		}
		else
		{
			Named.Add(FString::FromInt(static_cast<int32>(Index)), ToFormatArgument(Value));
		}
	}
	if (Keywords)
	{
		AddNamedArguments(Keywords, Named);
	}
	return PyErr_Occurred() ? nullptr : PythonText::ToPython(FText::Format(TextOf(Self), Named)).Release();
}

static PyObject* AsNumber(PyObject*, PyObject* Value)
{
	if (!PyLong_Check(Value) && !PyFloat_Check(Value))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("int or float"), Value);
		return nullptr;
	}
	return PythonText::ToPython(ToFormatArgument(Value).ToFormattedText()).Release();
}

static PyObject* IsEmpty(PyObject* Self, PyObject*)
{
	return PyBool_FromLong(TextOf(Self).IsEmpty());
}

static PyObject* IsEmptyOrWhitespace(PyObject* Self, PyObject*)
{
	return PyBool_FromLong(TextOf(Self).IsEmptyOrWhitespace());
}

static PyMethodDef GTextMethods[] = {
	{"cast", CastToText, METH_O | METH_CLASS, "cast($type, value, /)\n--\n\nMakes a Text of a Text, Name or str."},
	{"format", PythonKeywordFunction(FormatText), METH_VARARGS | METH_KEYWORDS,
		"format($self, *args, **kwargs)\n--\n\nPuts values into the places {0} or {name}; a mapping gives names too."},
	{"as_number", AsNumber, METH_O | METH_STATIC, "as_number(value, /)\n--\n\nA number with its thousands grouped."},
	{"is_empty", IsEmpty, METH_NOARGS, "is_empty($self, /)\n--\n\nTrue for a text without characters."},
	{"is_empty_or_whitespace", IsEmptyOrWhitespace, METH_NOARGS,
		"is_empty_or_whitespace($self, /)\n--\n\nTrue for a text of blanks or without characters."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonText::Register(PyObject* Module)
{
	GTextType = FPythonTypeSpec::Of<FText>("unreal.Text", Py_TPFLAGS_BASETYPE)
					.Doc("Text(value='')\n--\n\nA text for users to read.")
					.Methods(GTextMethods)
					.Function(Py_tp_new, &NewText)
					.Function(Py_tp_str, &TextToStr)
					.Function(Py_tp_repr, &TextToRepr)
					.Function(Py_tp_hash, &HashText)
					.Function(Py_tp_richcompare, &CompareTexts)
					.Make();
	return GTextType && PyModule_AddType(Module, GTextType.GetType()) == 0;
}
