#pragma once

#include "LogCapture.h"
#include "IPythonScriptPlugin.h"

/** Runs Python for tests. The interpreter starts with the first test and ends after the last. */
namespace PythonTest
{
bool RunPython(const FString& Command);

/** repr() of an expression; what was raised, as "Type: message", if it failed. */
FString Evaluate(const FString& Expression);

/** What statements raise, as "Type: message"; empty if they raise nothing. */
FString ErrorOf(const FString& Statements);

/** The Warnings in LogPython with which Python started. */
const TArray<FString>& WarningsOfStart();

FPythonCommandEx RunEx(const FString& Command, EPythonCommandExecutionMode Mode = EPythonCommandExecutionMode::ExecuteFile,
	EPythonFileExecutionScope Scope = EPythonFileExecutionScope::Private);
}
