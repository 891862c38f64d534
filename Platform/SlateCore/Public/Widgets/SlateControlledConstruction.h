#pragma once

#include "CoreMinimal.h"

/** What is made by SNew and SAssignNew only: a plain new does not compile. */
class FSlateControlledConstruction
{
public:
	FSlateControlledConstruction() = default;
	virtual ~FSlateControlledConstruction() = default;

	FSlateControlledConstruction(const FSlateControlledConstruction&) = delete;
	FSlateControlledConstruction& operator=(const FSlateControlledConstruction&) = delete;

	void operator delete(void* Memory) { FMemory::Free(Memory); }

private:
	void* operator new(const size_t Size) { return FMemory::Malloc(Size); }
};
