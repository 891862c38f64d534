#pragma once

#include "CoreMinimal.h"

/** Where scripts and modules of a project are found. */
namespace PythonSearchPaths
{
/**
 * The folders that go on sys.path: those named by UE_PYTHONPATH and by AdditionalPaths of the section
 * [/Script/PythonScriptPlugin.PythonScriptPluginSettings] of the engine's ini file, Content/Python of each enabled plugin and of
 * the project. Full names without a slash at the end, each once, whether they exist or not.
 */
PYTHONSCRIPTPLUGIN_API TArray<FString> Collect();

/** Appends a folder to sys.path unless it is there. */
void Add(const FString& Folder);

/** The init_unreal.py files that exist in Content/Python of plugins and project, in the order in which they run. */
PYTHONSCRIPTPLUGIN_API TArray<FString> FindStartupScripts();
}
