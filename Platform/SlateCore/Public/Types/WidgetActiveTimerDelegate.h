#pragma once

#include "CoreMinimal.h"

/** What an active timer answers after a call. */
enum class EActiveTimerReturnType : uint8
{
	/** The timer ends. */
	Stop,
	/** The timer is called again. */
	Continue,
};

/** A function that an active timer calls, given the time in seconds and the time since its last call. */
DECLARE_DELEGATE_RetVal_TwoParams(EActiveTimerReturnType, FWidgetActiveTimerDelegate, double, float);
