#pragma once

#include "CoreMinimal.h"

#include <thread>

/**
 * SIGINT, SIGTERM and SIGHUP, by which the system and the shell ask a process to end. While this lives they are kept for Take; a second
 * one of a kind ends the process at once, for a script may never come back.
 */
class FTerminationSignals
{
public:
	/** @param OnSignal  Is called on another thread soon after a signal. */
	explicit FTerminationSignals(TFunction<void()> OnSignal);
	~FTerminationSignals();

	/** The number of the signal that came since the last call, 0 if none did. */
	static int32 Take();

private:
	std::thread Listener;
};
