#include "PythonScriptOfProcess.h"

#include "PythonScriptPlugin.h"

uint8 RunPythonScriptOfProcess(const TCHAR* Command)
{
	FPythonScriptPlugin* const Plugin = static_cast<FPythonScriptPlugin*>(IPythonScriptPlugin::Get());
	// As the system does it, which keeps the low byte only.
	return Plugin ? static_cast<uint8>(Plugin->RunForStatus(Command)) : 1;
}
