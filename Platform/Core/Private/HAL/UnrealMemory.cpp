#include "HAL/UnrealMemory.h"

#include "Misc/AssertionMacros.h"

#include <algorithm>

void FMemory::Memswap(void* Left, void* Right, SIZE_T Size)
{
	std::swap_ranges(static_cast<uint8*>(Left), static_cast<uint8*>(Left) + Size, static_cast<uint8*>(Right));
}

void FMemory::OutOfMemory(SIZE_T Count)
{
	FDebug::CheckFailed("Out of memory", __FILE__, __LINE__, TEXT("Ran out of memory allocating %llu bytes"), uint64(Count));
}
