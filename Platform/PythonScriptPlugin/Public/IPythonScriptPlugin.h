#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "PythonScriptTypes.h"

/** The editor's Python: an embedded interpreter with the `unreal` module, run on the game thread. */
class IPythonScriptPlugin : public IModuleInterface
{
public:
	/** The loaded module, or null. Never loads it. */
	static IPythonScriptPlugin* Get()
	{
		static const FName ModuleName = TEXT("PythonScriptPlugin");
		return FModuleManager::GetModulePtr<IPythonScriptPlugin>(ModuleName);
	}

	/** False when Python is turned off by -DisablePython or by the project, and before and after the interpreter's life. */
	virtual bool IsPythonAvailable() const = 0;

	/**
	 * Runs literal Python text, or a script file if the first word ends in ".py" (the other words are its arguments).
	 *
	 * An uncaught exception goes line by line to LogPython as Errors.
	 *
	 * @param PythonCommand  Null-terminated text; an empty one succeeds.
	 * @return False if the command raised, could not be compiled or found, or if Python is not available.
	 */
	virtual bool ExecPythonCommand(const TCHAR* PythonCommand) = 0;

	/** ExecPythonCommand with a choice of mode and scope, giving back the result and what was written. */
	virtual bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) = 0;

	/** Told when the editor is up, with all its types in `unreal` and before the start-up scripts run. */
	virtual FSimpleMulticastDelegate& OnPythonInitialized() = 0;

	/** Told before the interpreter ends, while scripts can still run. */
	virtual FSimpleMulticastDelegate& OnPythonShutdown() = 0;
};
