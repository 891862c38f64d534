#pragma once

#include "CoreMinimal.h"

/** Describes the `unreal` module for editors and type checkers. */
namespace PythonStubWriter
{
/** Writes unreal.pyi and unreal.py, which have the same text, into a folder. False, with an Error, if a file cannot be written. */
PYTHONSCRIPTPLUGIN_API bool Write(const FString& Folder);

/** The text: all types and functions of the module with their parameters, types and documentation. */
PYTHONSCRIPTPLUGIN_API FString Describe();
}
