#include "PythonScriptLibrary.h"

#include "IPythonScriptPlugin.h"
#include "PythonLog.h"

bool UPythonScriptLibrary::IsPythonAvailable()
{
	const IPythonScriptPlugin* const Python = IPythonScriptPlugin::Get();
	return Python && Python->IsPythonAvailable();
}

bool UPythonScriptLibrary::ExecutePythonCommand(const FString& PythonCommand)
{
	IPythonScriptPlugin* const Python = IPythonScriptPlugin::Get();
	return Python && Python->ExecPythonCommand(*PythonCommand);
}

bool UPythonScriptLibrary::ExecutePythonCommandEx(const FString& PythonCommand, FString& CommandResult,
	TArray<FPythonLogOutputEntry>& LogOutput, EPythonCommandExecutionMode ExecutionMode,
	EPythonFileExecutionScope FileExecutionScope)
{
	IPythonScriptPlugin* const Python = IPythonScriptPlugin::Get();
	if (!Python)
	{
		return false;
	}
	FPythonCommandEx Command;
	Command.Command = PythonCommand;
	Command.ExecutionMode = ExecutionMode;
	Command.FileExecutionScope = FileExecutionScope;
	const bool bSucceeded = Python->ExecPythonCommandEx(Command);
	CommandResult = MoveTemp(Command.CommandResult);
	LogOutput = MoveTemp(Command.LogOutput);
	return bSucceeded;
}
