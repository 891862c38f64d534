#pragma once

#include "CoreMinimal.h"

class FProperty;
class UClass;
class UEnum;
class UFunction;
class UScriptStruct;

/** How C++ names become Python names. */
namespace PythonNaming
{
/**
 * Splits a CamelCase name into words joined by underscores, in the case it came in.
 *
 * A break falls between a lower-case and an upper-case letter, and before the last capital of a run of capitals and digits
 * when a lower-case letter follows it; never before a digit. "ClearRenderTarget2D" is "Clear_Render_Target2D".
 */
PYTHONSCRIPTPLUGIN_API FString SplitWords(const FString& Name);

/** "GetText" -> "get_text"; a Python keyword or "property" gets an underscore at its end. */
PYTHONSCRIPTPLUGIN_API FString ToSnakeCase(const FString& Name);

/** "BLEND_AlphaComposite" -> "BLEND_ALPHA_COMPOSITE". */
PYTHONSCRIPTPLUGIN_API FString ToUpperSnakeCase(const FString& Name);

/** True for the words that Python reserves, and "property". */
bool IsReserved(const FString& Name);

/** The first name is the function's, further ones are its deprecated aliases (ScriptName="A;B"). */
TArray<FString> NamesOf(const UFunction* Function);

/** The same for a function as a method of its first parameter (ScriptMethod="A;B"), or as a constant (ScriptConstant="A;B"). */
TArray<FString> MethodNamesOf(const UFunction* Function);
TArray<FString> ConstantNamesOf(const UFunction* Function);

/** Name of a property as attribute; the "b" of a bool goes. */
FString NameOf(const FProperty* Property);

/** Name of a property as function parameter; of an input one the "In" goes too. */
FString NameOfParameter(const FProperty* Parameter);

/** The snake_case name of a member or parameter spelled CppName. */
PYTHONSCRIPTPLUGIN_API FString PropertyName(const FString& CppName, bool bIsBool);
PYTHONSCRIPTPLUGIN_API FString ParameterName(const FString& CppName, bool bIsBool, bool bIsInput);

FString NameOf(const UClass* Class);
FString NameOf(const UScriptStruct* Struct);
FString NameOf(const UEnum* Enum);

/** Name of an entry; the enum's own prefix ("EFoo::") goes, others stay. */
FString NameOfEntry(const UEnum* Enum, int32 Index);
}
