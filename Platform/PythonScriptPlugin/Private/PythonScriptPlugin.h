#pragma once

#include "IPythonScriptPlugin.h"
#include "Misc/CoreMisc.h"

/** The module: starts Python with the editor, keeps it up to date with the modules that come, and ends it. */
class FPythonScriptPlugin final : public IPythonScriptPlugin, private FSelfRegisteringExec
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	bool IsPythonAvailable() const override { return bIsAvailable; }
	bool ExecPythonCommand(const TCHAR* PythonCommand) override;
	bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) override;
	FSimpleMulticastDelegate& OnPythonInitialized() override { return PythonInitialized; }
	FSimpleMulticastDelegate& OnPythonShutdown() override { return PythonShutdown; }

	/** ExecPythonCommand with the status that Python itself would end with; 1 if it could not run. */
	int32 RunForStatus(const TCHAR* PythonCommand);

private:
	/** The console input "py <text>" or "py <file.py> <arguments>". */
	bool Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar) override;

	bool CanRun() const;
	void FollowModules();
	void FinishStartup();
	void StopPython();
	void RunStartupScripts();

	bool bIsAvailable = false;
	FSimpleMulticastDelegate PythonInitialized;
	FSimpleMulticastDelegate PythonShutdown;
	FDelegateHandle ModulesChanged;
	FDelegateHandle PostEngineInit;
	FDelegateHandle EnginePreExit;
};
