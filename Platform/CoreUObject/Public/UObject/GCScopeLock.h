#pragma once

#include "CoreTypes.h"

/** While one lives no collection runs: a request waits for the end of the last one and for the frame. */
class COREUOBJECT_API FGCScopeGuard
{
public:
	FGCScopeGuard();
	~FGCScopeGuard();
	FGCScopeGuard(const FGCScopeGuard&) = delete;
	FGCScopeGuard& operator=(const FGCScopeGuard&) = delete;
};
