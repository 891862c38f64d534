#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

/**
 * Stands in the place of the engine's Python while it lives, and notes the commands it is given instead of running them: what
 * a widget's event hands to the interpreter, and how often.
 */
class FPythonRecorder
{
public:
	FPythonRecorder();
	~FPythonRecorder();

	FPythonRecorder(const FPythonRecorder&) = delete;
	FPythonRecorder& operator=(const FPythonRecorder&) = delete;

	/** The commands since the last call. */
	TArray<FString> Take();

	/** Whether it calls itself available, as it does from the start. Commands arrive in either case. */
	void SetAvailable(bool bAvailable);

	/** Is called during each command, in place of what it would do. */
	void SetOnCommand(TFunction<void()> OnCommand);
};
