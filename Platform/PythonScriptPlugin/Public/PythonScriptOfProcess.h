#pragma once

#include "CoreMinimal.h"

/**
 * Runs the script that a process was started for.
 *
 * @param Command  As for IPythonScriptPlugin::ExecPythonCommand.
 * @return The status for the process: 0 if the script ended well, what it gave to sys.exit(), 1 if it raised, could not be found
 * or gave a text to sys.exit(), which is an Error in LogPython then, and 1 without Python.
 */
PYTHONSCRIPTPLUGIN_API uint8 RunPythonScriptOfProcess(const TCHAR* Command);
