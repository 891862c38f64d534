#include "PythonCommand.h"

#include "IPythonScriptPlugin.h"
#include "Modules/ModuleManager.h"

IPythonScriptPlugin* GetPythonScriptPlugin()
{
	static const FName ModuleName("PythonScriptPlugin");
	return FModuleManager::GetModulePtr<IPythonScriptPlugin>(ModuleName);
}

void RunPythonCommand(const FString& Command)
{
	if (IPythonScriptPlugin* const Python = GetPythonScriptPlugin())
	{
		Python->ExecPythonCommand(*Command);
	}
}
