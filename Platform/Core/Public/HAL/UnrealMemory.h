#pragma once

#include "CoreTypes.h"

#include <cstdlib>
#include <cstring>

/** Raw memory, on the C library's allocator. Running out of memory is fatal, so no result is ever null but for a size of zero. */
struct FMemory
{
	static void* Malloc(SIZE_T Count, uint32 Alignment = 0)
	{
		void* Result =
			Alignment > 16 ? std::aligned_alloc(Alignment, (Count + Alignment - 1) / Alignment * Alignment) : std::malloc(Count);
		if (UNLIKELY(!Result && Count))
		{
			OutOfMemory(Count);
		}
		return Result;
	}

	static void* MallocZeroed(SIZE_T Count)
	{
		void* Result = std::calloc(Count, 1);
		if (UNLIKELY(!Result && Count))
		{
			OutOfMemory(Count);
		}
		return Result;
	}

	/** A size of zero frees the block and gives null. */
	static void* Realloc(void* Original, SIZE_T Count)
	{
		if (Count == 0)
		{
			std::free(Original);
			return nullptr;
		}
		void* Result = std::realloc(Original, Count);
		if (UNLIKELY(!Result))
		{
			OutOfMemory(Count);
		}
		return Result;
	}

	static void Free(void* Original) { std::free(Original); }

	/** The size that a block for Count bytes really has. */
	static constexpr SIZE_T QuantizeSize(SIZE_T Count) { return Count <= 24 ? 24 : ((Count + 8 + 15) & ~SIZE_T(15)) - 8; }

	static void* Memmove(void* Dest, const void* Src, SIZE_T Count) { return Count ? std::memmove(Dest, Src, Count) : Dest; }
	static void* Memcpy(void* Dest, const void* Src, SIZE_T Count) { return Count ? std::memcpy(Dest, Src, Count) : Dest; }
	static int32 Memcmp(const void* Left, const void* Right, SIZE_T Count) { return Count ? std::memcmp(Left, Right, Count) : 0; }
	static void* Memset(void* Dest, uint8 Char, SIZE_T Count) { return Count ? std::memset(Dest, Char, Count) : Dest; }
	static void* Memzero(void* Dest, SIZE_T Count) { return Count ? std::memset(Dest, 0, Count) : Dest; }

	template <typename T>
	static void Memzero(T& Value)
	{
		std::memset(static_cast<void*>(&Value), 0, sizeof(T));
	}

	/** Swaps two blocks that do not overlap. */
	static CORE_API void Memswap(void* Left, void* Right, SIZE_T Size);

private:
	[[noreturn]] static CORE_API void OutOfMemory(SIZE_T Count);
};
