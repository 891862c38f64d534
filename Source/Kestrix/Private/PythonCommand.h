#pragma once

#include "CoreMinimal.h"

class IPythonScriptPlugin;

/** The engine's Python, whether or not Python is available. Null when the module PythonScriptPlugin is gone, at the editor's end. */
IPythonScriptPlugin* GetPythonScriptPlugin();

/** Runs a command in the engine's Python, without asking whether Python is available; nothing runs when the module is gone. */
void RunPythonCommand(const FString& Command);
