#include "PythonNaming.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace PythonNaming
{
// clang-format off
static const TCHAR* const GReservedWords[] = {
	TEXT("False"),  TEXT("None"),     TEXT("True"),  TEXT("and"),    TEXT("as"),       TEXT("assert"),
	TEXT("async"),  TEXT("await"),    TEXT("break"), TEXT("class"),  TEXT("continue"), TEXT("def"),
	TEXT("del"),    TEXT("elif"),     TEXT("else"),  TEXT("except"), TEXT("finally"),  TEXT("for"),
	TEXT("from"),   TEXT("global"),   TEXT("if"),    TEXT("import"), TEXT("in"),       TEXT("is"),
	TEXT("lambda"), TEXT("nonlocal"), TEXT("not"),   TEXT("or"),     TEXT("pass"),     TEXT("property"),
	TEXT("raise"),  TEXT("return"),   TEXT("try"),   TEXT("while"),  TEXT("with"),     TEXT("yield"),
};
// clang-format on

static bool IsLower(TCHAR Character)
{
	return Character >= TEXT('a') && Character <= TEXT('z');
}

static bool IsUpper(TCHAR Character)
{
	return Character >= TEXT('A') && Character <= TEXT('Z');
}

static bool IsUpperOrDigit(TCHAR Character)
{
	return IsUpper(Character) || (Character >= TEXT('0') && Character <= TEXT('9'));
}

static bool IsWordStart(const FString& Name, int32 Index)
{
	if (Index == 0 || !IsUpper(Name[Index]))
	{
		return false;
	}
	if (IsLower(Name[Index - 1]))
	{
		return true;
	}
	return IsUpperOrDigit(Name[Index - 1]) && Index + 1 < Name.Len() && IsLower(Name[Index + 1]);
}

FString SplitWords(const FString& Name)
{
	FString Result;
	Result.Reserve(Name.Len() + 8);
	for (int32 Index = 0; Index < Name.Len(); ++Index)
	{
		if (IsWordStart(Name, Index))
		{
			Result.AppendChar(TEXT('_'));
		}
		Result.AppendChar(Name[Index]);
	}
	return Result;
}

bool IsReserved(const FString& Name)
{
	for (const TCHAR* Word : GReservedWords)
	{
		if (Name.Equals(Word, ESearchCase::CaseSensitive))
		{
			return true;
		}
	}
	return false;
}

static FString AvoidReservedWord(FString Name)
{
	if (IsReserved(Name))
	{
		Name.AppendChar(TEXT('_'));
	}
	return Name;
}

FString ToSnakeCase(const FString& Name)
{
	return AvoidReservedWord(SplitWords(Name).ToLower());
}

FString ToUpperSnakeCase(const FString& Name)
{
	return SplitWords(Name).ToUpper();
}

static FString WithoutPrefix(const FString& Name, const TCHAR* Prefix)
{
	const int32 Length = FCString::Strlen(Prefix);
	const bool bHasPrefix = Name.StartsWith(Prefix, ESearchCase::CaseSensitive) && Name.Len() > Length && IsUpper(Name[Length]);
	return bHasPrefix ? Name.Mid(Length) : Name;
}

FString PropertyName(const FString& CppName, bool bIsBool)
{
	return ToSnakeCase(bIsBool ? WithoutPrefix(CppName, TEXT("b")) : CppName);
}

FString ParameterName(const FString& CppName, bool bIsBool, bool bIsInput)
{
	const FString Name = bIsBool ? WithoutPrefix(CppName, TEXT("b")) : CppName;
	return ToSnakeCase(bIsInput ? WithoutPrefix(Name, TEXT("In")) : Name);
}

static TArray<FString> ScriptNames(const FString& ScriptName)
{
	TArray<FString> Names;
	ScriptName.ParseIntoArray(Names, TEXT(";"));
	for (FString& Name : Names)
	{
		Name.TrimStartAndEndInline();
	}
	return Names;
}

static TArray<FString> NamesBy(const UFunction* Function, const TCHAR* Key, FString (*Respell)(const FString& Name))
{
	TArray<FString> Names = ScriptNames(Function->GetMetaData(Key));
	if (Names.Num() == 0)
	{
		Names = ScriptNames(Function->GetMetaData(TEXT("ScriptName")));
	}
	if (Names.Num() == 0)
	{
		Names.Add(Function->GetName());
	}
	for (FString& Name : Names)
	{
		Name = Respell(Name);
	}
	return Names;
}

TArray<FString> NamesOf(const UFunction* Function)
{
	return NamesBy(Function, TEXT("ScriptName"), &ToSnakeCase);
}

TArray<FString> MethodNamesOf(const UFunction* Function)
{
	return NamesBy(Function, TEXT("ScriptMethod"), &ToSnakeCase);
}

TArray<FString> ConstantNamesOf(const UFunction* Function)
{
	return NamesBy(Function, TEXT("ScriptConstant"), &ToUpperSnakeCase);
}

FString NameOf(const FProperty* Property)
{
	const TArray<FString> Names = ScriptNames(Property->GetMetaData(TEXT("ScriptName")));
	return Names.Num() > 0 ? ToSnakeCase(Names[0]) : PropertyName(Property->GetName(), Property->IsA<FBoolProperty>());
}

FString NameOfParameter(const FProperty* Parameter)
{
	const bool bIsInput =
		!Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ConstParm);
	return ParameterName(Parameter->GetName(), Parameter->IsA<FBoolProperty>(), bIsInput);
}

template <typename TypeType>
static FString TypeName(const TypeType* Type)
{
	const TArray<FString> Names = ScriptNames(Type->GetMetaData(TEXT("ScriptName")));
	return Names.Num() > 0 ? Names[0] : Type->GetName();
}

FString NameOf(const UClass* Class)
{
	return TypeName(Class);
}

FString NameOf(const UScriptStruct* Struct)
{
	return TypeName(Struct);
}

FString NameOf(const UEnum* Enum)
{
	FString Name = TypeName(Enum);
	if (Enum->HasMetaData(TEXT("ScriptName")))
	{
		return Name;
	}

	// Only enums keep the prefix in their reflected name, and those of a namespace also name the inner type.
	Name = WithoutPrefix(Name, TEXT("E"));
	int32 Colon = INDEX_NONE;
	return Name.FindChar(TEXT(':'), Colon) ? Name.Left(Colon) : Name;
}

FString NameOfEntry(const UEnum* Enum, int32 Index)
{
	FString Name = Enum->GetMetaData(TEXT("ScriptName"), Index);
	if (Name.IsEmpty())
	{
		Name = Enum->GetNameStringByIndex(Index);
	}
	return ToUpperSnakeCase(Name);
}
}
