#pragma once

#include "Containers/UnrealString.h"

/**
 * The end by a failure: message and call stack go to the log and to the standard error output, FCoreDelegates::OnHandleSystemError runs, the
 * log is flushed and the process aborts.
 */
[[noreturn]] void EndProcessByError(const FString& Message);
