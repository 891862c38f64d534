#pragma once

#include "CoreMinimal.h"
#include "PythonScriptTypes.generated.h"

/** Severity of one captured line of Python output. */
UENUM(BlueprintType)
enum class EPythonLogOutputType : uint8
{
	/** Written by print, sys.stdout or unreal.log. */
	Info,
	/** Written by the warnings module or unreal.log_warning. */
	Warning,
	/** Written by sys.stderr, unreal.log_error or an uncaught exception. */
	Error,
};

/** What kind of text a command is. */
UENUM(BlueprintType)
enum class EPythonCommandExecutionMode : uint8
{
	/** Any number of statements, or the name of a script file with arguments. */
	ExecuteFile,
	/** One statement; the value of an expression is printed. Cannot run files. */
	ExecuteStatement,
	/** One expression, whose value is the result of the command. Cannot run files. */
	EvaluateStatement,
};

/** Which variables a script file sees. */
UENUM(BlueprintType)
enum class EPythonFileExecutionScope : uint8
{
	/** The file has globals and locals of its own. */
	Private,
	/** The file shares the globals of the console and of literal commands. */
	Public,
};

/** One line that a command wrote. */
USTRUCT(BlueprintType)
struct FPythonLogOutputEntry
{
	GENERATED_BODY()

	/** Severity of the line. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Python|Output")
	EPythonLogOutputType Type = EPythonLogOutputType::Info;

	/** Text of the line, without a line break at its end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Python|Output")
	FString Output;
};

/** A command with all that can be said about its run, and what came of it. */
struct FPythonCommandEx
{
	/** What kind of text Command is. */
	EPythonCommandExecutionMode ExecutionMode = EPythonCommandExecutionMode::ExecuteFile;

	/** Which variables a script file sees; literal text always runs in the shared ones. */
	EPythonFileExecutionScope FileExecutionScope = EPythonFileExecutionScope::Private;

	/** Literal Python, or a file name ending in ".py" and its arguments. */
	FString Command;

	/** After the run: the value as text for EvaluateStatement, "None" for other successful runs, the traceback of a failed one. */
	FString CommandResult;

	/** After the run: what it wrote, line by line. */
	TArray<FPythonLogOutputEntry> LogOutput;
};

/** When set_editor_property tells an object about its change. */
UENUM(BlueprintType)
enum class EPropertyAccessChangeNotifyMode : uint8
{
	/** Before and after each change. */
	Default,
	/** Not at all. */
	Never,
	/** Before and after, also if nothing changed. */
	Always,
};

PYTHONSCRIPTPLUGIN_API const TCHAR* LexToString(EPythonLogOutputType Type);
