#pragma once

#include "PythonScriptTypes.h"

/** Runs what the editor hands to Python: literal text and script files. */
namespace PythonCommands
{
/** Runs text or a file in the way of EPythonCommandExecutionMode::ExecuteFile; a repeated text is not compiled again. */
bool Run(const TCHAR* Command);

/** Runs a command in any mode, giving back result and output. */
bool Run(FPythonCommandEx& Command);

/** Forgets all compiled texts, before the interpreter ends. */
void EmptyCache();
}
