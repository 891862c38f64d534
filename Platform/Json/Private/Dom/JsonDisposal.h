#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonValue.h"

/**
 * Ends nested values one after the other: the destructor of a container hands its children over, and only the outermost one
 * lets them go, in a loop. Their nesting then costs no stack.
 */
class FJsonDisposal
{
public:
	/** Starts handing over the children of one container. */
	FJsonDisposal();

	/** If this is the outermost container, ends all that was handed over. */
	~FJsonDisposal();

	/** Takes a value that is a container and is about to lose its last reference; leaves any other where it is. */
	void Take(TSharedPtr<FJsonValue>& Value);

private:
	using FPending = TArray<TSharedPtr<FJsonValue>>;

	/** Belongs to the outermost disposal of the thread. */
	static thread_local FPending* Pending;

	FPending Own;
	bool bOutermost;
};
