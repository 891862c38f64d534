#include "PythonStubWriter.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PythonConstants.h"
#include "PythonDocs.h"
#include "PythonErrors.h"
#include "PythonFunction.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonMethods.h"
#include "PythonModule.h"
#include "PythonNaming.h"
#include "PythonOperators.h"
#include "PythonProperty.h"
#include "PythonStrings.h"
#include "PythonStructFields.h"
#include "PythonTypeTable.h"
#include "UObject/UnrealType.h"

/** A text as the documentation of a definition, indented by Depth. */
static FString DocString(const FString& Text, int32 Depth)
{
	const FString Indent = FString::ChrN(Depth * 4, TEXT(' '));
	FString Escaped = Text.Replace(TEXT("\\"), TEXT("\\\\")).Replace(TEXT("\"\"\""), TEXT("\\\"\\\"\\\""));
	if (Escaped.EndsWith(TEXT("\"")))
	{
		// It would be one of the marks that end the text.
		Escaped = Escaped.LeftChop(1) + TEXT("\\\"");
	}
	return Indent + TEXT("\"\"\"") + Escaped.Replace(TEXT("\n"), *(TEXT("\n") + Indent)) + TEXT("\"\"\"\n");
}

static FString DescribeMethod(const FPythonFunction& Function)
{
	const FString Parameters = PythonDocs::TypedParameters(Function);
	const TCHAR* const First = Function.IsStatic() ? TEXT("cls") : TEXT("self");
	return FString::Printf(TEXT("%s    def %s(%s%s%s) -> %s:\n%s        ...\n\n"),
		Function.IsStatic() ? TEXT("    @classmethod\n") : TEXT(""), *Function.GetName(), First,
		Parameters.IsEmpty() ? TEXT("") : TEXT(", "), *Parameters, *Function.ResultTypeName(),
		*DocString(PythonDocs::Describe(Function), 2));
}

static FString JoinUnion(const TArray<FString>& Types)
{
	return Types.Num() == 1 ? Types[0] : FString::Printf(TEXT("Union[%s]"), *FString::Join(Types, TEXT(", ")));
}

/** One definition for all functions of an operator: what the right operand may be, what comes out. */
static FString DescribeOperator(const FString& Name, const TArray<const FPythonFunction*>& Functions)
{
	TArray<FString> Operands;
	TArray<FString> Results;
	FString Doc;
	for (const FPythonFunction* Function : Functions)
	{
		if (Function->GetInputs().Num() > 0)
		{
			Operands.AddUnique(Function->GetInputs()[0].Converter->AcceptedTypeName());
		}
		// What gives nothing has changed its left operand, which is the result then.
		Results.AddUnique((Function->GetReturn() ? Function->GetReturn() : Function->GetSelf())->Converter->TypeName());
		Doc += (Doc.IsEmpty() ? TEXT("") : TEXT("\n")) + Function->GetFunction()->GetToolTipText().ToString();
	}
	// Whatever one asks to be equal is no wrong type.
	const bool bTakesAll = Name == TEXT("__eq__") || Name == TEXT("__ne__");
	const FString Right = Operands.Num() == 0 ? TEXT("") : TEXT(", other: ") + (bTakesAll ? TEXT("object") : JoinUnion(Operands));
	return FString::Printf(
		TEXT("    def %s(self%s) -> %s:\n%s        ...\n\n"), *Name, *Right, *JoinUnion(Results), *DocString(Doc, 2));
}

static FString DescribeConstant(const FPythonFunction& Constant)
{
	return FString::Printf(TEXT("    %s: \"%s\" = ...\n%s\n"), *Constant.GetName(), *Constant.ResultTypeName(),
		*DocString(Constant.GetFunction()->GetToolTipText().ToString(), 1));
}

/** The methods, operators and constants that a type got from functions, under all of their names. */
static FString DescribeFunctions(PyTypeObject* Type)
{
	FString Text;
	PyObject* Name = nullptr;
	PyObject* Attribute = nullptr;
	Py_ssize_t Place = 0;
	while (Type && PyDict_Next(Type->tp_dict, &Place, &Name, &Attribute))
	{
		const TArray<const FPythonFunction*> Operators = PythonOperators::FunctionsOf(Attribute);
		if (const FPythonFunction* const Method = PythonMethods::FunctionOf(Attribute))
		{
			Text += DescribeMethod(*Method);
		}
		else if (const FPythonFunction* const Constant = PythonConstants::FunctionOf(Attribute))
		{
			Text += DescribeConstant(*Constant);
		}
		else if (Operators.Num() > 0)
		{
			Text += DescribeOperator(PythonStrings::FromStr(Name), Operators);
		}
	}
	return Text;
}

/** Getter before setter: type checkers want it so. */
static FString DescribeAttribute(const FPythonProperty& Property)
{
	const FString& Name = Property.GetName();
	FString Text = FString::Printf(TEXT("    @property\n    def %s(self) -> %s:\n%s        ...\n\n"), *Name,
		*Property.GetConverter().TypeName(), *DocString(Property.GetProperty()->GetToolTipText().ToString(), 2));
	if (Property.IsAttributeWritable())
	{
		Text += FString::Printf(TEXT("    @%s.setter\n    def %s(self, value: %s) -> None:\n        ...\n\n"), *Name, *Name,
			*Property.GetConverter().AcceptedTypeName());
	}
	return Text;
}

static FString DescribeAttributes(const UStruct* Struct)
{
	FString Text;
	for (TFieldIterator<FProperty> It(Struct, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_BlueprintVisible) && FPythonProperty::IsExposed(*It))
		{
			Text += DescribeAttribute(FPythonProperty(*It));
		}
	}
	return Text;
}

static FString DescribeType(const FString& Name, const FString& Base, const FString& Doc, const FString& Body)
{
	return FString::Printf(
			   TEXT("class %s(%s):\n%s\n%s"), *Name, *Base, *DocString(Doc, 1), Body.IsEmpty() ? TEXT("    ...\n\n") : *Body) +
		TEXT("\n");
}

static FString DescribeClass(const UClass* Class)
{
	const FString Base = Class->GetSuperClass() ? PythonNaming::NameOf(Class->GetSuperClass()) : FString(TEXT("_ObjectBase"));
	return DescribeType(PythonNaming::NameOf(Class), Base, Class->GetToolTipText().ToString(),
		DescribeAttributes(Class) + DescribeFunctions(PythonTypeTable::OwnTypeOf(Class)));
}

/** The constructor takes what the native make function takes, otherwise all fields, by position or by name. */
static FString DescribeStructConstructor(UScriptStruct* Struct)
{
	FString Parameters;
	if (const FPythonFunction* const Make = PythonStructFields::FindMake(Struct))
	{
		Parameters = TEXT(", ") + PythonDocs::TypedParameters(*Make);
	}
	else
	{
		for (const TUniquePtr<FPythonProperty>& Field : FPythonPropertyTable::Of(Struct)->GetAll())
		{
			Parameters += FString::Printf(TEXT(", %s: %s = ..."), *Field->GetName(), *Field->GetConverter().AcceptedTypeName());
		}
	}
	return FString::Printf(TEXT("    def __init__(self%s) -> None:\n        ...\n\n"), *Parameters);
}

static FString DescribeStruct(UScriptStruct* Struct)
{
	const UScriptStruct* const Parent = static_cast<const UScriptStruct*>(Struct->GetSuperStruct());
	return DescribeType(PythonNaming::NameOf(Struct), Parent ? PythonNaming::NameOf(Parent) : FString(TEXT("StructBase")),
		Struct->GetToolTipText().ToString(),
		DescribeStructConstructor(Struct) + DescribeAttributes(Struct) + DescribeFunctions(PythonTypeTable::OwnTypeOf(Struct)));
}

static FString DescribeEnum(UEnum* Enum)
{
	FString Body;
	const FString Name = PythonNaming::NameOf(Enum);
	const FPythonRef Type = FPythonRef::Steal(PyObject_GetAttr(PythonModule::Get(), PythonStrings::Intern(Name).Get()));
	PyErr_Clear();
	for (int32 Index = 0; Type && Index < Enum->NumEnums(); ++Index)
	{
		const FString Entry = PythonNaming::NameOfEntry(Enum, Index);
		if (PyObject_HasAttr(Type.Get(), PythonStrings::Intern(Entry).Get()))
		{
			Body += FString::Printf(
				TEXT("    %s: \"%s\" = ...\n%s"), *Entry, *Name, *DocString(Enum->GetToolTipTextByIndex(Index).ToString(), 1));
		}
	}
	return DescribeType(Name, TEXT("EnumBase"), Enum->GetToolTipText().ToString(), Body + TEXT("\n"));
}

/** The types and functions that no class reflects are described from Python's own view of them. */
static FString DescribeBuiltIns()
{
	const FPythonRef Text = FPythonInterpreter::CallBootstrap("describe_built_ins", PythonModule::Get());
	if (!Text)
	{
		PythonErrors::Report();
		return FString();
	}
	return PythonStrings::FromStr(Text.Get());
}

FString PythonStubWriter::Describe()
{
	FString Text = TEXT("# Written by the editor from what its modules reflect. Changes will be lost.\n\n")
		TEXT("from __future__ import annotations\n\n")
			TEXT("from typing import Any, Iterable, Mapping, Optional, Sequence, Tuple, Union\n\n\n");
	Text += DescribeBuiltIns();
	for (UEnum* Enum : PythonTypeTable::Enums())
	{
		Text += DescribeEnum(Enum);
	}
	for (UScriptStruct* Struct : PythonTypeTable::Structs())
	{
		Text += DescribeStruct(Struct);
	}
	for (const UClass* Class : PythonTypeTable::Classes())
	{
		Text += DescribeClass(Class);
	}
	return Text;
}

bool PythonStubWriter::Write(const FString& Folder)
{
	const FString Text = Describe();
	for (const TCHAR* FileName : {TEXT("unreal.pyi"), TEXT("unreal.py")})
	{
		const FString FullName = FPaths::Combine(Folder, FileName);
		if (!FFileHelper::SaveStringToFile(Text, *FullName, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM))
		{
			UE_LOG(LogPython, Error, TEXT("Could not write the Python stub '%s'"), *FullName);
			return false;
		}
	}
	return true;
}
