#include "PythonStructText.h"

#include "PythonContainers.h"
#include "PythonErrors.h"
#include "PythonName.h"
#include "PythonProperty.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonText.h"
#include "UObject/UnrealType.h"

static bool DescribeStruct(UScriptStruct* Struct, PyObject* Value, FString& OutText);

/** repr() of a value; an empty text with an error if it raises. */
static bool DescribeByRepr(PyObject* Value, FString& OutText)
{
	const FPythonRef Text = FPythonRef::Steal(PyObject_Repr(Value));
	OutText = Text ? PythonStrings::FromStr(Text.Get()) : FString();
	return static_cast<bool>(Text);
}

static bool DescribeField(PyObject* Value, FString& OutText)
{
	if (PyFloat_Check(Value))
	{
		OutText = FString::Printf(TEXT("%f"), PyFloat_AS_DOUBLE(Value));
		return true;
	}
	if (PyUnicode_Check(Value) || PythonName::Get(Value) || PythonText::Get(Value))
	{
		OutText = TEXT("\"") + PythonStrings::Describe(Value).ReplaceCharWithEscapedChar() + TEXT("\"");
		return true;
	}
	if (UScriptStruct* const Struct = PythonStruct::StructOfValue(Value))
	{
		return DescribeStruct(Struct, Value, OutText);
	}
	return DescribeByRepr(Value, OutText);
}

static bool DescribeFields(const FPythonPropertyTable& Table, const void* Memory, FString& OutText)
{
	TArray<FString> Fields;
	for (const TUniquePtr<FPythonProperty>& Field : Table.GetAll())
	{
		const FPythonRef Value = Field->Get(Memory);
		FString Text;
		if (!Value || !DescribeField(Value.Get(), Text))
		{
			return false;
		}
		Fields.Add(Field->GetName() + TEXT(": ") + Text);
	}
	OutText = TEXT("{") + FString::Join(Fields, TEXT(", ")) + TEXT("}");
	return true;
}

/** What to_string() of a value gives, where scripts see no field of it and it has that method; otherwise null without an error. */
static FPythonRef OwnTextOf(const FPythonPropertyTable& Table, PyObject* Value)
{
	for (const TUniquePtr<FPythonProperty>& Field : Table.GetAll())
	{
		if (Field->IsAttribute())
		{
			return FPythonRef();
		}
	}
	if (!PyObject_HasAttrString(Value, "to_string"))
	{
		return FPythonRef();
	}
	return FPythonRef::Steal(PyObject_CallMethod(Value, "to_string", nullptr));
}

static bool DescribeStruct(UScriptStruct* Struct, PyObject* Value, FString& OutText)
{
	const TSharedRef<const FPythonPropertyTable> Table = FPythonPropertyTable::Of(Struct);
	if (const FPythonRef Text = OwnTextOf(*Table, Value))
	{
		OutText = TEXT("{") + PythonStrings::Describe(Text.Get()) + TEXT("}");
		return true;
	}
	return !PyErr_Occurred() && DescribeFields(*Table, PythonStruct::MemoryOf(Value), OutText);
}

FPythonRef PythonStructText::Repr(UScriptStruct* Struct, PyObject* Value)
{
	FString Fields;
	if (!DescribeStruct(Struct, Value, Fields))
	{
		return FPythonRef();
	}
	const uint64 Address = reinterpret_cast<uint64>(PythonStruct::MemoryOf(Value));
	return PythonStrings::ToPython(FString::Printf(TEXT("<Struct '%s' (0x%016llX) %s>"), *Struct->GetName(), Address, *Fields));
}

FPythonRef PythonStructText::Str(UScriptStruct* Struct, PyObject* Value)
{
	FPythonRef Text = OwnTextOf(*FPythonPropertyTable::Of(Struct), Value);
	return Text || PyErr_Occurred() ? MoveTemp(Text) : Repr(Struct, Value);
}
