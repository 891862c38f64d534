#pragma once

#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ContainersFwd.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Less.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>
#include <initializer_list>

namespace UE::Core::Private
{
/** The fatal ends of container misuse, kept out of line so that the checks themselves stay small. */
[[noreturn]] CORE_API void OnArrayIndexOutOfBounds(int64 Index, int64 Num);
[[noreturn]] CORE_API void OnElementOfModifiedContainer(const void* Element, const void* Data);

template <typename PredicateType>
auto Dereferencing(const PredicateType& Predicate)
{
	return [&Predicate](const auto& Left, const auto& Right) -> bool
	{
		if constexpr (std::is_pointer_v<std::remove_reference_t<decltype(Left)>>)
		{
			return Predicate(*Left, *Right);
		}
		else
		{
			return Predicate(Left, Right);
		}
	};
}
}

/** Walks an array by index, so that elements may be removed on the way. */
template <typename ArrayType, typename ElementType>
class TIndexedContainerIterator
{
public:
	explicit TIndexedContainerIterator(ArrayType& InContainer, int32 StartIndex = 0)
		: Container(InContainer)
		, Index(StartIndex)
	{
	}

	TIndexedContainerIterator& operator++()
	{
		++Index;
		return *this;
	}
	TIndexedContainerIterator& operator--()
	{
		--Index;
		return *this;
	}

	ElementType& operator*() const { return Container[Index]; }
	ElementType* operator->() const { return &Container[Index]; }
	explicit operator bool() const { return Container.IsValidIndex(Index); }
	int32 GetIndex() const { return Index; }
	void Reset() { Index = 0; }

	/** Removes the element; the next ++ goes to the one after it. */
	void RemoveCurrent() { Container.RemoveAt(Index--); }

private:
	ArrayType& Container;
	int32 Index;
};

/**
 * Elements in one block of memory. Growing moves them by plain memory copy, so no element may hold a pointer into itself.
 * An index outside 0..Num()-1 is fatal.
 */
template <typename InElementType, typename InAllocator>
class TArray
{
	template <typename OtherElementType, typename OtherAllocator>
	friend class TArray;

public:
	using ElementType = InElementType;
	using Allocator = InAllocator;
	using SizeType = int32;
	using TIterator = TIndexedContainerIterator<TArray, ElementType>;
	using TConstIterator = TIndexedContainerIterator<const TArray, const ElementType>;

	TArray() = default;
	TArray(const ElementType* Ptr, int32 Count) { CopyToEmpty(Ptr, Count); }
	TArray(std::initializer_list<ElementType> List) { CopyToEmpty(List.begin(), int32(List.size())); }
	TArray(const TArray& Other) { CopyToEmpty(Other.GetData(), Other.Num()); }
	template <typename OtherAllocator>
	explicit TArray(const TArray<ElementType, OtherAllocator>& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num());
	}
	TArray(TArray&& Other) noexcept { MoveToEmpty(Other); }
	~TArray() { DestructItems(GetData(), ArrayNum); }

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			CopyToEmpty(Other.GetData(), Other.Num());
		}
		return *this;
	}

	template <typename OtherAllocator>
	TArray& operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(Other.GetData(), Other.Num());
		return *this;
	}

	TArray& operator=(TArray&& Other) noexcept
	{
		if (this != &Other)
		{
			// The old elements go last: one of them may own Other.
			TArray Old(MoveTemp(*this));
			MoveToEmpty(Other);
		}
		return *this;
	}

	TArray& operator=(std::initializer_list<ElementType> List)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(List.begin(), int32(List.size()));
		return *this;
	}

	ElementType* GetData() { return AllocatorInstance.GetAllocation(); }
	const ElementType* GetData() const { return AllocatorInstance.GetAllocation(); }
	int32 Num() const { return ArrayNum; }
	int32 Max() const { return ArrayMax; }
	bool IsEmpty() const { return ArrayNum == 0; }
	int32 GetSlack() const { return ArrayMax - ArrayNum; }
	static constexpr uint32 GetTypeSize() { return sizeof(ElementType); }
	SIZE_T GetAllocatedSize() const { return AllocatorInstance.GetAllocatedSize(ArrayMax); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }

	void RangeCheck(int32 Index) const
	{
		if (UNLIKELY(uint32(Index) >= uint32(ArrayNum)))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(Index, ArrayNum);
		}
	}

	ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}
	const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	ElementType& Last(int32 IndexFromTheEnd = 0) { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }
	const ElementType& Last(int32 IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }
	ElementType& Top() { return Last(); }
	const ElementType& Top() const { return Last(); }

	ElementType* begin() { return GetData(); }
	const ElementType* begin() const { return GetData(); }
	ElementType* end() { return GetData() + ArrayNum; }
	const ElementType* end() const { return GetData() + ArrayNum; }
	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }

	template <typename OtherAllocator>
	bool operator==(const TArray<ElementType, OtherAllocator>& Other) const
	{
		return ArrayNum == Other.Num() && std::equal(begin(), end(), Other.begin());
	}
	template <typename OtherAllocator>
	bool operator!=(const TArray<ElementType, OtherAllocator>& Other) const
	{
		return !(*this == Other);
	}

	// Adding

	/** Makes room for Count elements at the end, which the caller has to construct. @return The index of the first. */
	int32 AddUninitialized(int32 Count = 1)
	{
		const int32 OldNum = ArrayNum;
		const int64 NewNum = int64(OldNum) + Count;
		if (UNLIKELY(Count < 0 || NewNum > MAX_int32))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(NewNum, OldNum);
		}
		if (NewNum > ArrayMax)
		{
			ResizeTo(AllocatorInstance.CalculateGrow(int32(NewNum)));
		}
		ArrayNum = int32(NewNum);
		return OldNum;
	}

	int32 AddZeroed(int32 Count = 1)
	{
		const int32 Index = AddUninitialized(Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), SIZE_T(Count) * sizeof(ElementType));
		return Index;
	}

	int32 AddDefaulted(int32 Count = 1)
	{
		const int32 Index = AddUninitialized(Count);
		DefaultConstructItems(GetData() + Index, Count);
		return Index;
	}

	ElementType& AddDefaulted_GetRef() { return (*this)[AddDefaulted()]; }
	ElementType& AddZeroed_GetRef() { return (*this)[AddZeroed()]; }

	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		const int32 Index = AddUninitialized();
		new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgTypes>(Args)...);
		return Index;
	}

	template <typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args)
	{
		return (*this)[Emplace(Forward<ArgTypes>(Args)...)];
	}

	template <typename... ArgTypes>
	void EmplaceAt(int32 Index, ArgTypes&&... Args)
	{
		InsertUninitialized(Index);
		new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgTypes>(Args)...);
	}

	int32 Add(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace(MoveTempIfPossible(Item));
	}
	int32 Add(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace(Item);
	}
	ElementType& Add_GetRef(ElementType&& Item) { return (*this)[Add(MoveTempIfPossible(Item))]; }
	ElementType& Add_GetRef(const ElementType& Item) { return (*this)[Add(Item)]; }
	void Push(ElementType&& Item) { Add(MoveTempIfPossible(Item)); }
	void Push(const ElementType& Item) { Add(Item); }

	/** @return The index of the new element, or of the equal one that was there. */
	int32 AddUnique(ElementType&& Item) { return AddUniqueImpl(MoveTempIfPossible(Item)); }
	int32 AddUnique(const ElementType& Item) { return AddUniqueImpl(Item); }

	void Append(const ElementType* Ptr, int32 Count)
	{
		if (Count > 0)
		{
			CheckAddress(Ptr);
			const int32 Index = AddUninitialized(Count);
			ConstructItems(GetData() + Index, Ptr, Count);
		}
	}
	void Append(std::initializer_list<ElementType> List) { Append(List.begin(), int32(List.size())); }
	template <typename OtherAllocator>
	void Append(const TArray<ElementType, OtherAllocator>& Source)
	{
		Append(Source.GetData(), Source.Num());
	}
	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		CheckAddress(Source.GetData());
		const int32 Count = Source.Num();
		const int32 Index = AddUninitialized(Count);
		RelocateItems(GetData() + Index, Source.GetData(), Count);
		Source.ArrayNum = 0;
	}
	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}
	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}
	TArray& operator+=(std::initializer_list<ElementType> List)
	{
		Append(List);
		return *this;
	}

	/** Makes the array Count copies of Element. */
	void Init(const ElementType& Element, int32 Count)
	{
		CheckAddress(&Element);
		Empty(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Emplace(Element);
		}
	}

	void InsertUninitialized(int32 Index, int32 Count = 1)
	{
		if (UNLIKELY(Index < 0 || Index > ArrayNum))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(Index, ArrayNum);
		}
		const int32 OldNum = AddUninitialized(Count);
		ElementType* Place = GetData() + Index;
		RelocateItems(Place + Count, Place, OldNum - Index);
	}
	void InsertZeroed(int32 Index, int32 Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), SIZE_T(Count) * sizeof(ElementType));
	}
	void InsertDefaulted(int32 Index, int32 Count = 1)
	{
		InsertUninitialized(Index, Count);
		DefaultConstructItems(GetData() + Index, Count);
	}
	int32 Insert(ElementType&& Item, int32 Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return Index;
	}
	int32 Insert(const ElementType& Item, int32 Index)
	{
		CheckAddress(&Item);
		EmplaceAt(Index, Item);
		return Index;
	}
	int32 Insert(const ElementType* Ptr, int32 Count, int32 Index)
	{
		CheckAddress(Ptr);
		InsertUninitialized(Index, Count);
		ConstructItems(GetData() + Index, Ptr, Count);
		return Index;
	}
	int32 Insert(std::initializer_list<ElementType> List, int32 Index) { return Insert(List.begin(), int32(List.size()), Index); }
	template <typename OtherAllocator>
	int32 Insert(const TArray<ElementType, OtherAllocator>& Items, int32 Index)
	{
		return Insert(Items.GetData(), Items.Num(), Index);
	}

	// Removing

	void RemoveAt(int32 Index) { RemoveAt(Index, 1); }
	void RemoveAt(int32 Index, int32 Count, bool bAllowShrinking = true)
	{
		if (Count > 0)
		{
			CheckRange(Index, Count);
			ElementType* Place = GetData() + Index;
			DestructItems(Place, Count);
			RelocateItems(Place, Place + Count, ArrayNum - Index - Count);
			ArrayNum -= Count;
			ShrinkIfSparse(bAllowShrinking);
		}
	}

	/** Fills the gap with the last elements instead of moving everything behind it. */
	void RemoveAtSwap(int32 Index) { RemoveAtSwap(Index, 1); }
	void RemoveAtSwap(int32 Index, int32 Count, bool bAllowShrinking = true)
	{
		if (Count > 0)
		{
			CheckRange(Index, Count);
			ElementType* Place = GetData() + Index;
			DestructItems(Place, Count);
			const int32 NumBehind = ArrayNum - Index - Count;
			const int32 NumMoved = NumBehind < Count ? NumBehind : Count;
			RelocateItems(Place, GetData() + ArrayNum - NumMoved, NumMoved);
			ArrayNum -= Count;
			ShrinkIfSparse(bAllowShrinking);
		}
	}

	ElementType Pop(bool bAllowShrinking = true)
	{
		RangeCheck(ArrayNum - 1);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, bAllowShrinking);
		return Result;
	}

	/** Removes every element for which the predicate holds, keeping the order of the others. @return How many there were. */
	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate)
	{
		ElementType* const Data = GetData();
		const int32 OldNum = ArrayNum;
		int32 NumKept = 0;
		for (int32 Index = 0; Index < OldNum; ++Index)
		{
			if (Predicate(const_cast<const ElementType&>(Data[Index])))
			{
				DestructItems(Data + Index, 1);
			}
			else
			{
				if (NumKept != Index)
				{
					RelocateItems(Data + NumKept, Data + Index, 1);
				}
				++NumKept;
			}
		}
		ArrayNum = NumKept;
		return OldNum - NumKept;
	}
	template <typename PredicateType>
	int32 RemoveAllSwap(const PredicateType& Predicate, bool bAllowShrinking = true)
	{
		const int32 OldNum = ArrayNum;
		for (int32 Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Predicate(const_cast<const ElementType&>(GetData()[Index])))
			{
				RemoveAtSwap(Index, 1, false);
			}
		}
		ShrinkIfSparse(bAllowShrinking && ArrayNum != OldNum);
		return OldNum - ArrayNum;
	}

	int32 Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}
	int32 RemoveSingle(const ElementType& Item)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index, 1, false);
		return 1;
	}
	int32 RemoveSwap(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAllSwap([&Item](const ElementType& Element) { return Element == Item; });
	}
	int32 RemoveSingleSwap(const ElementType& Item, bool bAllowShrinking = true)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, bAllowShrinking);
		return 1;
	}

	/** Removes everything and keeps just enough memory for Slack elements. */
	void Empty(int32 Slack = 0)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		const int32 NewMax = Slack > 0 ? AllocatorInstance.CalculateReserve(Slack) : AllocatorInstance.InitialCapacity;
		if (ArrayMax != NewMax)
		{
			ResizeTo(NewMax);
		}
	}

	/** Removes everything and keeps the memory. */
	void Reset(int32 NewSize = 0)
	{
		if (NewSize > ArrayMax)
		{
			Empty(NewSize);
			return;
		}
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
	}

	void Reserve(int32 Number)
	{
		if (Number > ArrayMax)
		{
			ResizeTo(AllocatorInstance.CalculateReserve(Number));
		}
	}

	void Shrink()
	{
		if (ArrayMax > ArrayNum && ArrayMax > AllocatorInstance.InitialCapacity)
		{
			ResizeTo(ArrayNum > AllocatorInstance.InitialCapacity ? ArrayNum : AllocatorInstance.InitialCapacity);
		}
	}

	void SetNum(int32 NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > ArrayNum)
		{
			GrowExactly(NewNum);
			AddDefaulted(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
		}
	}
	void SetNumZeroed(int32 NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > ArrayNum)
		{
			GrowExactly(NewNum);
			AddZeroed(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
		}
	}
	void SetNumUninitialized(int32 NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > ArrayNum)
		{
			GrowExactly(NewNum);
			AddUninitialized(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
		}
	}

	// Finding

	int32 Find(const ElementType& Item) const { return IndexOfByKey(Item); }
	bool Find(const ElementType& Item, int32& Index) const
	{
		Index = IndexOfByKey(Item);
		return Index != INDEX_NONE;
	}
	int32 FindLast(const ElementType& Item) const
	{
		return FindLastByPredicate([&Item](const ElementType& Element) { return Element == Item; });
	}
	bool FindLast(const ElementType& Item, int32& Index) const
	{
		Index = FindLast(Item);
		return Index != INDEX_NONE;
	}

	template <typename KeyType>
	int32 IndexOfByKey(const KeyType& Key) const
	{
		const ElementType* const Data = GetData();
		for (int32 Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename PredicateType>
	int32 IndexOfByPredicate(PredicateType Predicate) const
	{
		const ElementType* const Data = GetData();
		for (int32 Index = 0; Index < ArrayNum; ++Index)
		{
			if (Predicate(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename PredicateType>
	int32 FindLastByPredicate(PredicateType Predicate) const
	{
		for (int32 Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Predicate(GetData()[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		const int32 Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}
	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		return const_cast<ElementType*>(const_cast<const TArray*>(this)->FindByKey(Key));
	}
	template <typename PredicateType>
	const ElementType* FindByPredicate(PredicateType Predicate) const
	{
		const int32 Index = IndexOfByPredicate(Predicate);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}
	template <typename PredicateType>
	ElementType* FindByPredicate(PredicateType Predicate)
	{
		return const_cast<ElementType*>(const_cast<const TArray*>(this)->FindByPredicate(Predicate));
	}
	template <typename PredicateType>
	TArray FilterByPredicate(PredicateType Predicate) const
	{
		TArray Result;
		for (const ElementType& Element : *this)
		{
			if (Predicate(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	template <typename KeyType>
	bool Contains(const KeyType& Key) const
	{
		return IndexOfByKey(Key) != INDEX_NONE;
	}
	template <typename PredicateType>
	bool ContainsByPredicate(PredicateType Predicate) const
	{
		return IndexOfByPredicate(Predicate) != INDEX_NONE;
	}

	// Order

	/**
	 * Sorts by the predicate, or by <. An array of plain pointers compares what they point at. Sorting is by merging, stable
	 * or not asked for: a predicate that is no strict order (a NaN is enough) then gives some order, and nothing worse.
	 */
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		std::stable_sort(begin(), end(), UE::Core::Private::Dereferencing(Predicate));
	}
	void StableSort() { StableSort(TLess<>()); }
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		StableSort(Predicate);
	}
	void Sort() { StableSort(TLess<>()); }

	void Swap(int32 FirstIndex, int32 SecondIndex)
	{
		RangeCheck(FirstIndex);
		RangeCheck(SecondIndex);
		if (FirstIndex != SecondIndex)
		{
			FMemory::Memswap(GetData() + FirstIndex, GetData() + SecondIndex, sizeof(ElementType));
		}
	}
	void SwapMemory(int32 FirstIndex, int32 SecondIndex) { Swap(FirstIndex, SecondIndex); }

	/** Fatal if the address lies in the array, whose elements are about to move. */
	void CheckAddress(const ElementType* Address) const
	{
		const ElementType* const Data = GetData();
		if (UNLIKELY(Address >= Data && Address < Data + ArrayNum))
		{
			UE::Core::Private::OnElementOfModifiedContainer(Address, Data);
		}
	}

private:
	using ElementAllocatorType = typename InAllocator::template ForElementType<InElementType>;

	void ResizeTo(int32 NewMax)
	{
		AllocatorInstance.ResizeAllocation(ArrayNum, NewMax);
		ArrayMax = NewMax;
	}

	void GrowExactly(int32 NewNum)
	{
		if (NewNum > ArrayMax && ArrayNum == 0)
		{
			Reserve(NewNum);
		}
	}

	/** Gives memory back when more than three quarters of a large block lie idle. */
	void ShrinkIfSparse(bool bAllowShrinking)
	{
		if (bAllowShrinking && ArrayMax > AllocatorInstance.InitialCapacity && int64(ArrayNum) * 4 < ArrayMax &&
			SIZE_T(ArrayMax) * sizeof(ElementType) > 512)
		{
			ResizeTo(ArrayNum > 0 ? AllocatorInstance.CalculateReserve(ArrayNum) : AllocatorInstance.InitialCapacity);
		}
	}

	void CheckRange(int32 Index, int32 Count) const
	{
		if (UNLIKELY(Index < 0 || int64(Index) + Count > ArrayNum))
		{
			UE::Core::Private::OnArrayIndexOutOfBounds(Index, ArrayNum);
		}
	}

	template <typename ArgType>
	int32 AddUniqueImpl(ArgType&& Item)
	{
		const int32 Index = IndexOfByKey(Item);
		return Index != INDEX_NONE ? Index : Add(Forward<ArgType>(Item));
	}

	void CopyToEmpty(const ElementType* Source, int32 Count)
	{
		if (Count > 0)
		{
			Reserve(Count);
			ConstructItems(GetData(), Source, Count);
			ArrayNum = Count;
		}
	}

	void MoveToEmpty(TArray& Other)
	{
		const int32 LeftMax = AllocatorInstance.MoveFrom(Other.AllocatorInstance, Other.ArrayNum);
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.ArrayNum = 0;
		Other.ArrayMax = LeftMax;
	}

	static void DestructItems(ElementType* Items, int32 Count)
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (; Count > 0; --Count, ++Items)
			{
				Items->~ElementType();
			}
		}
	}

	static void ConstructItems(ElementType* Dest, const ElementType* Source, int32 Count)
	{
		if constexpr (std::is_trivially_copyable_v<ElementType>)
		{
			FMemory::Memcpy(static_cast<void*>(Dest), Source, SIZE_T(Count) * sizeof(ElementType));
		}
		else
		{
			for (; Count > 0; --Count)
			{
				new (static_cast<void*>(Dest++)) ElementType(*Source++);
			}
		}
	}

	static void DefaultConstructItems(ElementType* Items, int32 Count)
	{
		for (; Count > 0; --Count)
		{
			new (static_cast<void*>(Items++)) ElementType();
		}
	}

	static void RelocateItems(ElementType* Dest, const ElementType* Source, int32 Count)
	{
		FMemory::Memmove(static_cast<void*>(Dest), static_cast<const void*>(Source), SIZE_T(Count) * sizeof(ElementType));
	}

	ElementAllocatorType AllocatorInstance;
	int32 ArrayNum = 0;
	int32 ArrayMax = ElementAllocatorType::InitialCapacity;
};

static_assert(sizeof(TArray<int32>) == 16, "An array is a pointer and two counts");
