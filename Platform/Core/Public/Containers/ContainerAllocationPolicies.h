#pragma once

#include "Containers/ContainersFwd.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTypeTraits.h"

/** How many elements a container makes room for when it must grow to Num. */
struct FContainerGrowth
{
	static int32 Grow(int32 Num, SIZE_T ElementSize)
	{
		const SIZE_T Wanted = Num <= 4 ? SIZE_T(Num) : SIZE_T(Num) + SIZE_T(Num) / 2;
		return Quantize(Wanted, ElementSize);
	}

	/** As many elements as the block holds that the allocator gives anyway. */
	static int32 Quantize(SIZE_T Num, SIZE_T ElementSize)
	{
		const SIZE_T Elements = FMemory::QuantizeSize(Num * ElementSize) / ElementSize;
		return Elements < SIZE_T(MAX_int32) ? int32(Elements) : MAX_int32;
	}
};

/** Elements live in one heap block, which moves as plain memory when it grows. */
template <int IndexSize>
class TSizedDefaultAllocator
{
public:
	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;
		~ForElementType() { FMemory::Free(Data); }

		static constexpr int32 InitialCapacity = 0;

		ElementType* GetAllocation() const { return Data; }

		void ResizeAllocation(int32 PreviousNum, int32 NewMax)
		{
			if constexpr (alignof(ElementType) > 16)
			{
				void* NewData = NewMax ? FMemory::Malloc(SIZE_T(NewMax) * sizeof(ElementType), alignof(ElementType)) : nullptr;
				FMemory::Memcpy(
					NewData, static_cast<void*>(Data), SIZE_T(PreviousNum < NewMax ? PreviousNum : NewMax) * sizeof(ElementType));
				FMemory::Free(Data);
				Data = static_cast<ElementType*>(NewData);
			}
			else
			{
				Data =
					static_cast<ElementType*>(FMemory::Realloc(static_cast<void*>(Data), SIZE_T(NewMax) * sizeof(ElementType)));
			}
		}

		static int32 CalculateGrow(int32 Num) { return FContainerGrowth::Grow(Num, sizeof(ElementType)); }
		static int32 CalculateReserve(int32 Num) { return FContainerGrowth::Quantize(SIZE_T(Num), sizeof(ElementType)); }
		SIZE_T GetAllocatedSize(int32 Max) const { return SIZE_T(Max) * sizeof(ElementType); }

		/** Takes over the other's elements, which are Num. @return The capacity that the other has left. */
		int32 MoveFrom(ForElementType& Other, int32 Num)
		{
			FMemory::Free(Data);
			Data = Other.Data;
			Other.Data = nullptr;
			return 0;
		}

	private:
		ElementType* Data = nullptr;
	};
};

/** The first few elements live inside the container itself; only more of them need a heap block. */
template <uint32 NumInlineElements, typename SecondaryAllocator>
class TInlineAllocator
{
public:
	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;
		~ForElementType() { FMemory::Free(Heap); }

		static constexpr int32 InitialCapacity = NumInlineElements;

		ElementType* GetAllocation() const { return Heap ? Heap : reinterpret_cast<ElementType*>(const_cast<uint8*>(Inline)); }

		void ResizeAllocation(int32 PreviousNum, int32 NewMax)
		{
			const SIZE_T KeptBytes = SIZE_T(PreviousNum < NewMax ? PreviousNum : NewMax) * sizeof(ElementType);
			if (NewMax <= int32(NumInlineElements))
			{
				if (Heap)
				{
					FMemory::Memcpy(Inline, static_cast<void*>(Heap), KeptBytes);
					FMemory::Free(Heap);
					Heap = nullptr;
				}
				return;
			}
			const SIZE_T NewBytes = SIZE_T(NewMax) * sizeof(ElementType);
			if (Heap)
			{
				Heap = static_cast<ElementType*>(FMemory::Realloc(static_cast<void*>(Heap), NewBytes));
			}
			else
			{
				Heap = static_cast<ElementType*>(FMemory::Malloc(NewBytes));
				FMemory::Memcpy(static_cast<void*>(Heap), Inline, KeptBytes);
			}
		}

		static int32 CalculateGrow(int32 Num)
		{
			return Num <= int32(NumInlineElements) ? int32(NumInlineElements) : FContainerGrowth::Grow(Num, sizeof(ElementType));
		}
		static int32 CalculateReserve(int32 Num)
		{
			return Num <= int32(NumInlineElements) ? int32(NumInlineElements)
												   : FContainerGrowth::Quantize(SIZE_T(Num), sizeof(ElementType));
		}
		SIZE_T GetAllocatedSize(int32 Max) const { return Heap ? SIZE_T(Max) * sizeof(ElementType) : 0; }

		int32 MoveFrom(ForElementType& Other, int32 Num)
		{
			FMemory::Free(Heap);
			Heap = Other.Heap;
			Other.Heap = nullptr;
			if (!Heap)
			{
				FMemory::Memcpy(Inline, Other.Inline, SIZE_T(Num) * sizeof(ElementType));
			}
			return InitialCapacity;
		}

	private:
		alignas(ElementType) uint8 Inline[NumInlineElements * sizeof(ElementType)];
		ElementType* Heap = nullptr;

		static_assert(alignof(ElementType) <= 16, "Inline containers hold no over-aligned elements");
	};
};

/** TSet and TMap have one way to keep their elements; the name stands in the engine's signatures. */
class FDefaultSetAllocator
{
};
