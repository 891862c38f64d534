#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "PythonScriptTypes.h"
#include "PythonScriptLibrary.generated.h"

/** Runs Python from blueprints and from Python itself. */
UCLASS()
class PYTHONSCRIPTPLUGIN_API UPythonScriptLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Tells whether Python can be used in this run of the editor.
	 *
	 * @return False if Python is turned off.
	 */
	UFUNCTION(BlueprintPure, Category = "Python|Execution")
	static bool IsPythonAvailable();

	/**
	 * Runs literal Python text, or a script file with arguments.
	 *
	 * @param PythonCommand  Text of any number of statements, or a file name ending in ".py" and its arguments.
	 * @return False if the command raised; its traceback is in the log.
	 */
	UFUNCTION(BlueprintCallable, Category = "Python|Execution")
	static bool ExecutePythonCommand(const FString& PythonCommand);

	/**
	 * Runs Python in a chosen mode, giving back result and output.
	 *
	 * @param PythonCommand  Text, or with ExecuteFile also a file name with arguments.
	 * @param CommandResult  The value as text for EvaluateStatement, the traceback after a failure, otherwise "None".
	 * @param LogOutput  What the command wrote, line by line.
	 * @param ExecutionMode  What kind of text the command is.
	 * @param FileExecutionScope  Which variables a script file sees.
	 * @return False if the command raised.
	 */
	UFUNCTION(BlueprintCallable, Category = "Python|Execution")
	static bool ExecutePythonCommandEx(const FString& PythonCommand, FString& CommandResult,
		TArray<FPythonLogOutputEntry>& LogOutput,
		EPythonCommandExecutionMode ExecutionMode = EPythonCommandExecutionMode::ExecuteFile,
		EPythonFileExecutionScope FileExecutionScope = EPythonFileExecutionScope::Private);
};
