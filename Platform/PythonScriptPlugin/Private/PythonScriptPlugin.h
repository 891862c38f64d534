#pragma once

#include "IPythonScriptPlugin.h"

/** The module: starts Python with the editor, keeps it up to date with the modules that come, and ends it. */
class FPythonScriptPlugin final : public IPythonScriptPlugin
{
public:
	void StartupModule() override;
	void ShutdownModule() override;

	bool IsPythonAvailable() const override { return bIsAvailable; }
	bool ExecPythonCommand(const TCHAR* PythonCommand) override;
	bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) override;
	FSimpleMulticastDelegate& OnPythonInitialized() override { return PythonInitialized; }
	FSimpleMulticastDelegate& OnPythonShutdown() override { return PythonShutdown; }

private:
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
