#pragma once

#include "Containers/SparseArray.h"
#include "Templates/TypeHash.h"

/** What a set needs to know about its elements; derive to give it other rules. */
template <typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	using KeyType = InKeyType;
	using KeyInitType = const InKeyType&;
	using ElementInitType = const ElementType&;

	enum
	{
		bAllowDuplicateKeys = bInAllowDuplicateKeys
	};
};

/** An element is its own key. */
template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>
{
	static const ElementType& GetSetKey(const ElementType& Element) { return Element; }
	static bool Matches(const ElementType& Left, const ElementType& Right) { return Left == Right; }
	static uint32 GetKeyHash(const ElementType& Key) { return GetTypeHash(Key); }
};

/** Where an element of a set is. Stays good until the element is removed. */
class FSetElementId
{
public:
	FSetElementId() = default;
	bool IsValidId() const { return Index != INDEX_NONE; }
	int32 AsInteger() const { return Index; }
	static FSetElementId FromInteger(int32 Integer)
	{
		FSetElementId Id;
		Id.Index = Integer;
		return Id;
	}
	bool operator==(const FSetElementId& Other) const { return Index == Other.Index; }
	bool operator!=(const FSetElementId& Other) const { return Index != Other.Index; }

private:
	int32 Index = INDEX_NONE;
};

/** An element with its place in the hash. */
template <typename InElementType>
class TSetElement
{
public:
	template <typename... ArgTypes>
	explicit TSetElement(EInPlace, ArgTypes&&... Args)
		: Value(Forward<ArgTypes>(Args)...)
	{
	}

	InElementType Value;
	/** The next element of the same bucket. */
	int32 HashNextId = INDEX_NONE;
	uint32 KeyHash = 0;
};

/**
 * A hash set that keeps its elements in one block, in the order of adding while nothing was removed. A removal leaves a hole,
 * which the next addition fills. Up to four elements are searched one by one and need no buckets.
 */
template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
	using FElement = TSetElement<InElementType>;
	using FElements = TSparseArray<FElement>;

public:
	using ElementType = InElementType;
	using KeyType = typename KeyFuncs::KeyType;
	using KeyInitType = typename KeyFuncs::KeyInitType;

	static_assert(!KeyFuncs::bAllowDuplicateKeys, "Each key is in a set once");

	TSet() = default;
	TSet(std::initializer_list<ElementType> List) { Append(List); }
	explicit TSet(const TArray<ElementType>& Array) { Append(Array); }
	TSet(const TSet& Other)
		: Elements(Other.Elements)
	{
		RehashTo(WantedBuckets(Num()), Other.Buckets != nullptr);
	}
	TSet(TSet&& Other) noexcept { MoveToEmpty(Other); }
	~TSet() { FMemory::Free(Buckets); }

	TSet& operator=(const TSet& Other)
	{
		if (this != &Other)
		{
			Elements = Other.Elements;
			RehashTo(WantedBuckets(Num()), Other.Buckets != nullptr);
		}
		return *this;
	}
	TSet& operator=(TSet&& Other) noexcept
	{
		if (this != &Other)
		{
			TSet Old(MoveTemp(*this));
			MoveToEmpty(Other);
		}
		return *this;
	}

	int32 Num() const { return Elements.Num(); }
	bool IsEmpty() const { return Elements.IsEmpty(); }
	int32 GetMaxIndex() const { return Elements.GetMaxIndex(); }
	SIZE_T GetAllocatedSize() const { return Elements.GetAllocatedSize() + SIZE_T(NumBuckets()) * sizeof(int32); }
	bool IsValidId(FSetElementId Id) const { return Elements.IsValidIndex(Id.AsInteger()); }
	ElementType& operator[](FSetElementId Id) { return Elements[Id.AsInteger()].Value; }
	const ElementType& operator[](FSetElementId Id) const { return Elements[Id.AsInteger()].Value; }

	/** Adds the element, or puts it in the place of the one with the same key. */
	FSetElementId Add(const ElementType& Element, bool* bIsAlreadyInSet = nullptr) { return Emplace(Element, bIsAlreadyInSet); }
	FSetElementId Add(ElementType&& Element, bool* bIsAlreadyInSet = nullptr)
	{
		return Emplace(MoveTempIfPossible(Element), bIsAlreadyInSet);
	}

	template <typename ArgType = ElementType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSet = nullptr)
	{
		if constexpr (!std::is_same_v<std::decay_t<ArgType>, ElementType>)
		{
			return Emplace(ElementType(Forward<ArgType>(Arg)), bIsAlreadyInSet);
		}
		else
		{
			const auto& Key = KeyFuncs::GetSetKey(Arg);
			const uint32 KeyHash = GetKeyHashFor(Key);
			int32 Index = FindIndex(Key, KeyHash);
			if (bIsAlreadyInSet)
			{
				*bIsAlreadyInSet = Index != INDEX_NONE;
			}
			if (Index != INDEX_NONE)
			{
				ReplaceValue(Elements.GetUnchecked(Index).Value, Forward<ArgType>(Arg));
			}
			else
			{
				Index = EmplaceAtNewIndex(KeyHash, Forward<ArgType>(Arg));
			}
			return FSetElementId::FromInteger(Index);
		}
	}

	/** Adds an element for a key that the caller knows to be absent, given its hash from GetKeyHashFor. */
	template <typename... ArgTypes>
	ElementType& EmplaceNew(uint32 KeyHash, ArgTypes&&... Args)
	{
		return Elements.GetUnchecked(EmplaceAtNewIndex(KeyHash, Forward<ArgTypes>(Args)...)).Value;
	}

	/** The hash that finding and adding want; 0 while the set is too small to need one. */
	template <typename ComparableKey>
	uint32 GetKeyHashFor(const ComparableKey& Key) const
	{
		return Buckets ? KeyFuncs::GetKeyHash(Key) : 0;
	}

	void Append(std::initializer_list<ElementType> List)
	{
		Reserve(Num() + int32(List.size()));
		for (const ElementType& Element : List)
		{
			Add(Element);
		}
	}
	void Append(const TArray<ElementType>& Array)
	{
		Reserve(Num() + Array.Num());
		for (const ElementType& Element : Array)
		{
			Add(Element);
		}
	}
	void Append(const TSet& Other)
	{
		Reserve(Num() + Other.Num());
		for (const ElementType& Element : Other)
		{
			Add(Element);
		}
	}

	FSetElementId FindId(KeyInitType Key) const { return FSetElementId::FromInteger(FindIndex(Key, GetKeyHashFor(Key))); }
	ElementType* Find(KeyInitType Key) { return FindWithHash(Key, GetKeyHashFor(Key)); }
	const ElementType* Find(KeyInitType Key) const { return const_cast<TSet*>(this)->Find(Key); }
	bool Contains(KeyInitType Key) const { return FindIndex(Key, GetKeyHashFor(Key)) != INDEX_NONE; }

	template <typename ComparableKey>
	ElementType* FindWithHash(const ComparableKey& Key, uint32 KeyHash)
	{
		const int32 Index = FindIndex(Key, KeyHash);
		return Index != INDEX_NONE ? &Elements.GetUnchecked(Index).Value : nullptr;
	}

	ElementType& FindOrAdd(const ElementType& Element)
	{
		const auto& Key = KeyFuncs::GetSetKey(Element);
		const uint32 KeyHash = GetKeyHashFor(Key);
		ElementType* const Found = FindWithHash(Key, KeyHash);
		return Found ? *Found : EmplaceNew(KeyHash, Element);
	}

	/** @return How many elements were removed. */
	int32 Remove(KeyInitType Key)
	{
		const int32 Index = FindIndex(Key, GetKeyHashFor(Key));
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveIndex(Index);
		return 1;
	}
	void Remove(FSetElementId Id) { RemoveIndex(Id.AsInteger()); }

	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty(ExpectedNumElements);
		SetNumBuckets(WantedBuckets(ExpectedNumElements));
	}
	/** Removes everything and keeps the memory. */
	void Reset()
	{
		Elements.Reset();
		ClearBuckets();
	}
	void Reserve(int32 Number)
	{
		if (Number > Elements.GetMaxIndex())
		{
			Elements.Reserve(Number);
			if (WantedBuckets(Number) > NumBuckets())
			{
				RehashTo(WantedBuckets(Number), Buckets != nullptr);
			}
		}
	}
	void Compact()
	{
		if (Elements.Compact())
		{
			Rehash();
		}
	}
	void Shrink()
	{
		Elements.Shrink();
		Rehash();
	}

	/** Puts the elements into the order of the predicate. */
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		Elements.Sort([Order = UE::Core::Private::Dereferencing(Predicate)](const FElement& Left, const FElement& Right)
			{ return Order(Left.Value, Right.Value); });
		Rehash();
	}
	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		Sort(Predicate);
	}

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	TSet Intersect(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}
	TSet Difference(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return !Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}
	TSet Union(const TSet& Other) const
	{
		TSet Result = *this;
		Result.Append(Other);
		return Result;
	}
	bool Includes(const TSet& Other) const
	{
		for (const ElementType& Element : Other)
		{
			if (!Contains(KeyFuncs::GetSetKey(Element)))
			{
				return false;
			}
		}
		return true;
	}

	template <bool bConst>
	class TBaseIterator
	{
	public:
		using SetType = std::conditional_t<bConst, const TSet, TSet>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;
		using ElementIterator = std::conditional_t<bConst, typename FElements::TConstIterator, typename FElements::TIterator>;

		TBaseIterator(SetType& InSet, const ElementIterator& InElement)
			: Set(&InSet)
			, Element(InElement)
		{
		}
		explicit TBaseIterator(SetType& InSet)
			: TBaseIterator(InSet, InSet.Elements.begin())
		{
		}
		TBaseIterator& operator++()
		{
			++Element;
			return *this;
		}
		explicit operator bool() const { return bool(Element); }
		bool operator!=(const TBaseIterator& Other) const { return Element != Other.Element; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(Element.GetIndex()); }
		ItElementType& operator*() const { return Element->Value; }
		ItElementType* operator->() const { return &Element->Value; }
		/** Leaves a hole behind the iterator, which goes on as usual. */
		void RemoveCurrent() { Set->RemoveIndex(Element.GetIndex()); }

	private:
		SetType* Set;
		ElementIterator Element;
	};

	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	using TRangedForIterator = TIterator;
	using TRangedForConstIterator = TConstIterator;
	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TIterator begin() { return TIterator(*this, Elements.begin()); }
	TConstIterator begin() const { return TConstIterator(*this, Elements.begin()); }
	TIterator end() { return TIterator(*this, Elements.end()); }
	TConstIterator end() const { return TConstIterator(*this, Elements.end()); }

private:
	static constexpr int32 MaxUnhashed = 4;

	int32 NumBuckets() const { return Buckets ? 1 << BucketBits : 0; }

	static int32 WantedBuckets(int32 NumElements)
	{
		int32 Wanted = 0;
		if (NumElements > MaxUnhashed)
		{
			for (Wanted = 8; Wanted < NumElements && Wanted < (1 << 30);)
			{
				Wanted *= 2;
			}
		}
		return Wanted;
	}

	int32& BucketOf(uint32 KeyHash) const { return Buckets[(KeyHash * 0x9E3779B1u) >> (32 - BucketBits)]; }

	template <typename ComparableKey>
	int32 FindIndex(const ComparableKey& Key, uint32 KeyHash) const
	{
		if (Buckets)
		{
			for (int32 Index = BucketOf(KeyHash); Index != INDEX_NONE;)
			{
				const FElement& Element = Elements.GetUnchecked(Index);
				if (Element.KeyHash == KeyHash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Element.Value), Key))
				{
					return Index;
				}
				Index = Element.HashNextId;
			}
			return INDEX_NONE;
		}
		for (int32 Index = 0; Index < Elements.GetMaxIndex(); ++Index)
		{
			if (Elements.IsAllocated(Index) && KeyFuncs::Matches(KeyFuncs::GetSetKey(Elements.GetUnchecked(Index).Value), Key))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename ArgType>
	static void ReplaceValue(ElementType& Old, ArgType&& New)
	{
		if (&Old != &New)
		{
			Old.~ElementType();
			new (static_cast<void*>(&Old)) ElementType(Forward<ArgType>(New));
		}
	}

	template <typename... ArgTypes>
	int32 EmplaceAtNewIndex(uint32 KeyHash, ArgTypes&&... Args)
	{
		const int32 Index = Elements.Emplace(InPlace, Forward<ArgTypes>(Args)...);
		Elements.GetUnchecked(Index).KeyHash = KeyHash;
		LinkNew(Index);
		return Index;
	}

	void LinkNew(int32 Index)
	{
		if (WantedBuckets(Elements.Num()) > NumBuckets())
		{
			RehashTo(WantedBuckets(Elements.Num()), Buckets != nullptr);
		}
		else if (Buckets)
		{
			Link(Index);
		}
	}

	void Link(int32 Index)
	{
		FElement& Element = Elements.GetUnchecked(Index);
		int32& Bucket = BucketOf(Element.KeyHash);
		Element.HashNextId = Bucket;
		Bucket = Index;
	}

	void RemoveIndex(int32 Index)
	{
		if (Buckets)
		{
			int32* Link = &BucketOf(Elements[Index].KeyHash);
			while (*Link != Index)
			{
				Link = &Elements.GetUnchecked(*Link).HashNextId;
			}
			*Link = Elements.GetUnchecked(Index).HashNextId;
		}
		Elements.RemoveAt(Index);
	}

	void Rehash() { RehashTo(WantedBuckets(Elements.Num()), Buckets != nullptr); }

	/** @param bHashesAreKnown  False if the elements were added while nobody needed their hashes. */
	void RehashTo(int32 NewNumBuckets, bool bHashesAreKnown)
	{
		SetNumBuckets(NewNumBuckets);
		if (!Buckets)
		{
			return;
		}
		for (auto It = Elements.begin(); It; ++It)
		{
			if (!bHashesAreKnown)
			{
				It->KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(It->Value));
			}
			Link(It.GetIndex());
		}
	}

	void SetNumBuckets(int32 NewNumBuckets)
	{
		if (NewNumBuckets != NumBuckets())
		{
			FMemory::Free(Buckets);
			Buckets = NewNumBuckets ? static_cast<int32*>(FMemory::Malloc(SIZE_T(NewNumBuckets) * sizeof(int32))) : nullptr;
			BucketBits = NewNumBuckets ? __builtin_ctz(uint32(NewNumBuckets)) : 0;
		}
		ClearBuckets();
	}

	/** All bits set is INDEX_NONE. */
	void ClearBuckets() { FMemory::Memset(Buckets, 0xff, SIZE_T(NumBuckets()) * sizeof(int32)); }

	void MoveToEmpty(TSet& Other)
	{
		Elements = MoveTemp(Other.Elements);
		FMemory::Free(Buckets);
		Buckets = Exchange(Other.Buckets, nullptr);
		BucketBits = Exchange(Other.BucketBits, 0);
	}

	template <typename PredicateType>
	TSet Filter(const PredicateType& Predicate) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (Predicate(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	FElements Elements;
	int32* Buckets = nullptr;
	int32 BucketBits = 0;
};
