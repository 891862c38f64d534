#pragma once

#include "CoreTypes.h"

/** How the references of a shared object are counted. */
enum class ESPMode : uint8
{
	/** Plain counters: all pointers to the object live on one thread. */
	NotThreadSafe = 0,
	/** The fastest mode that suits ordinary objects; the default everywhere. */
	Fast = NotThreadSafe,
	/** Atomic counters: pointers may be copied and dropped on any thread. */
	ThreadSafe = 1
};

template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedRef;

template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedPtr;

template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TWeakPtr;

template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedFromThis;
