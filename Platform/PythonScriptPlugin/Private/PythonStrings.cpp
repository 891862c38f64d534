#include "PythonStrings.h"

namespace PythonStrings
{
FPythonRef ToPython(const TCHAR* Text, int32 Length)
{
	TCHAR AllBits = 0;
	for (int32 Index = 0; Index < Length; ++Index)
	{
		AllBits |= Text[Index];
	}

	if (AllBits < 0x80)
	{
		FPythonRef Result = FPythonRef::Steal(PyUnicode_New(Length, 0x7F));
		if (Result)
		{
			Py_UCS1* const Target = PyUnicode_1BYTE_DATA(Result.Get());
			for (int32 Index = 0; Index < Length; ++Index)
			{
				Target[Index] = static_cast<Py_UCS1>(Text[Index]);
			}
		}
		return Result;
	}

	int ByteOrder = -1;
	return FPythonRef::Steal(PyUnicode_DecodeUTF16(
		reinterpret_cast<const char*>(Text), Length * static_cast<Py_ssize_t>(sizeof(TCHAR)), "surrogatepass", &ByteOrder));
}

FPythonRef ToPython(const FString& Text)
{
	return ToPython(*Text, Text.Len());
}

FPythonRef Intern(const FString& Text)
{
	PyObject* Name = ToPython(Text).Release();
	PyUnicode_InternInPlace(&Name);
	return FPythonRef::Steal(Name);
}

template <typename UnitType>
static void AppendUnits(FString& Result, const UnitType* Units, Py_ssize_t Length)
{
	TArray<TCHAR>& Characters = Result.GetCharArray();
	Characters.SetNumUninitialized(static_cast<int32>(Length) + 1);
	TCHAR* const Target = Characters.GetData();
	for (Py_ssize_t Index = 0; Index < Length; ++Index)
	{
		Target[Index] = static_cast<TCHAR>(Units[Index]);
	}
	Target[Length] = 0;
}

static void AppendCodePoints(FString& Result, const Py_UCS4* CodePoints, Py_ssize_t Length)
{
	TArray<TCHAR>& Characters = Result.GetCharArray();
	Characters.Reserve(static_cast<int32>(Length) + 1);
	for (Py_ssize_t Index = 0; Index < Length; ++Index)
	{
		const Py_UCS4 CodePoint = CodePoints[Index];
		if (CodePoint >= 0x10000)
		{
			Characters.Add(static_cast<TCHAR>(0xD800 + ((CodePoint - 0x10000) >> 10)));
			Characters.Add(static_cast<TCHAR>(0xDC00 + ((CodePoint - 0x10000) & 0x3FF)));
		}
		else
		{
			Characters.Add(static_cast<TCHAR>(CodePoint));
		}
	}
	Characters.Add(0);
}

FString FromStr(PyObject* Value)
{
	FString Result;
	const Py_ssize_t Length = PyUnicode_GET_LENGTH(Value);
	if (Length == 0)
	{
		return Result;
	}
	switch (PyUnicode_KIND(Value))
	{
		case PyUnicode_1BYTE_KIND:
			AppendUnits(Result, PyUnicode_1BYTE_DATA(Value), Length);
			break;
		case PyUnicode_2BYTE_KIND:
			AppendUnits(Result, PyUnicode_2BYTE_DATA(Value), Length);
			break;
		default:
			AppendCodePoints(Result, PyUnicode_4BYTE_DATA(Value), Length);
			break;
	}
	return Result;
}

FString Describe(PyObject* Value)
{
	const FPythonRef Text = FPythonRef::Steal(PyObject_Str(Value));
	if (!Text)
	{
		PyErr_Clear();
		return FString();
	}
	return FromStr(Text.Get());
}

FString TypeNameOf(PyObject* Value)
{
	const FPythonRef Name = FPythonRef::Steal(PyType_GetName(Py_TYPE(Value)));
	return Name ? FromStr(Name.Get()) : FString();
}

TArray<ANSICHAR> ToUtf8(const FString& Text)
{
	const FTCHARToUTF8 Converted(*Text);
	TArray<ANSICHAR> Bytes;
	Bytes.Append(reinterpret_cast<const ANSICHAR*>(Converted.Get()), Converted.Length());
	Bytes.Add('\0');
	return Bytes;
}
}
