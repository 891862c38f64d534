#pragma once

#include "PythonScriptTypes.h"

/** Runs what the editor hands to Python: literal text and script files. */
namespace PythonCommands
{
/**
 * Runs text or a file in the way of EPythonCommandExecutionMode::ExecuteFile; a repeated text is not compiled again.
 *
 * @return The status that Python itself would end with: 0 if all went well, 1 after an exception, what sys.exit() was given.
 */
int32 Run(const TCHAR* Command);

/** Runs a command in any mode, giving back result and output. */
bool Run(FPythonCommandEx& Command);

/** Forgets all compiled texts, before the interpreter ends. */
void EmptyCache();
}
