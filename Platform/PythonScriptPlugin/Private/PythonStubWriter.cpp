#include "PythonStubWriter.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PythonDocs.h"
#include "PythonErrors.h"
#include "PythonFunction.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonMethods.h"
#include "PythonModule.h"
#include "PythonNaming.h"
#include "PythonProperty.h"
#include "PythonStrings.h"
#include "PythonTypeTable.h"
#include "UObject/UnrealType.h"

/** A text as the documentation of a definition, indented by Depth. */
static FString DocString(const FString& Text, int32 Depth)
{
	const FString Indent = FString::ChrN(Depth * 4, TEXT(' '));
	const FString Escaped = Text.Replace(TEXT("\\"), TEXT("\\\\")).Replace(TEXT("\"\"\""), TEXT("\\\"\\\"\\\""));
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

static FString DescribeMethods(const UClass* Class)
{
	FString Text;
	for (TFieldIterator<UFunction> It(Class, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (!PythonMethods::IsExposed(*It))
		{
			continue;
		}
		if (const TUniquePtr<FPythonFunction> Function = FPythonFunction::Make(*It, PythonNaming::NamesOf(*It)[0], FString()))
		{
			Text += DescribeMethod(*Function);
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
		DescribeAttributes(Class) + DescribeMethods(Class));
}

/** The constructor takes all fields, by position or by name. */
static FString DescribeStructConstructor(const UScriptStruct* Struct)
{
	FString Parameters;
	for (const TUniquePtr<FPythonProperty>& Field : FPythonPropertyTable::Of(Struct)->GetAll())
	{
		Parameters += FString::Printf(TEXT(", %s: %s = ..."), *Field->GetName(), *Field->GetConverter().AcceptedTypeName());
	}
	return FString::Printf(TEXT("    def __init__(self%s) -> None:\n        ...\n\n"), *Parameters);
}

static FString DescribeStruct(const UScriptStruct* Struct)
{
	const UScriptStruct* const Parent = static_cast<const UScriptStruct*>(Struct->GetSuperStruct());
	return DescribeType(PythonNaming::NameOf(Struct), Parent ? PythonNaming::NameOf(Parent) : FString(TEXT("StructBase")),
		Struct->GetToolTipText().ToString(), DescribeStructConstructor(Struct) + DescribeAttributes(Struct));
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
	for (const UScriptStruct* Struct : PythonTypeTable::Structs())
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
