#pragma once

#include "Containers/Set.h"
#include "Templates/Tuple.h"

/** What a map needs to know about its keys; derive to give it other rules. */
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : BaseKeyFuncs<TPair<KeyType, ValueType>, KeyType, bInAllowDuplicateKeys>
{
	static const KeyType& GetSetKey(const TPair<KeyType, ValueType>& Element) { return Element.Key; }
	static bool Matches(const KeyType& Left, const KeyType& Right) { return Left == Right; }
	static uint32 GetKeyHash(const KeyType& Key) { return GetTypeHash(Key); }
};

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapKeyFuncs : TDefaultMapHashableKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>
{
};

/**
 * Values by key, in the order of adding while nothing was removed; a removal leaves a hole, which the next addition fills.
 * Values move when the map grows.
 */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap
{
public:
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = TPair<KeyType, ValueType>;
	using KeyInitType = typename KeyFuncs::KeyInitType;

	TMap() = default;
	TMap(std::initializer_list<ElementType> List)
	{
		Reserve(int32(List.size()));
		for (const ElementType& Pair : List)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }
	SIZE_T GetAllocatedSize() const { return Pairs.GetAllocatedSize(); }

	/** Adds the value, or replaces the one that the key has; the pair keeps its place and takes the spelling of the new key. */
	ValueType& Add(const KeyType& Key, const ValueType& Value) { return Emplace(Key, Value); }
	ValueType& Add(const KeyType& Key, ValueType&& Value) { return Emplace(Key, MoveTempIfPossible(Value)); }
	ValueType& Add(KeyType&& Key, const ValueType& Value) { return Emplace(MoveTempIfPossible(Key), Value); }
	ValueType& Add(KeyType&& Key, ValueType&& Value) { return Emplace(MoveTempIfPossible(Key), MoveTempIfPossible(Value)); }
	ValueType& Add(const KeyType& Key) { return Emplace(Key, ValueType()); }
	ValueType& Add(KeyType&& Key) { return Emplace(MoveTempIfPossible(Key), ValueType()); }
	void Add(const ElementType& Pair) { Emplace(Pair.Key, Pair.Value); }

	template <typename KeyArg, typename ValueArg>
	ValueType& Emplace(KeyArg&& Key, ValueArg&& Value)
	{
		const FSetElementId Id = Pairs.Emplace(ElementType(Forward<KeyArg>(Key), Forward<ValueArg>(Value)));
		return Pairs[Id].Value;
	}
	template <typename KeyArg>
	ValueType& Emplace(KeyArg&& Key)
	{
		return Emplace(Forward<KeyArg>(Key), ValueType());
	}

	ValueType& FindOrAdd(const KeyType& Key) { return FindOrAddImpl(Key); }
	ValueType& FindOrAdd(KeyType&& Key) { return FindOrAddImpl(MoveTempIfPossible(Key)); }
	ValueType& FindOrAdd(const KeyType& Key, const ValueType& Value) { return FindOrAddImpl(Key, Value); }
	ValueType& FindOrAdd(const KeyType& Key, ValueType&& Value) { return FindOrAddImpl(Key, MoveTempIfPossible(Value)); }
	ValueType& FindOrAdd(KeyType&& Key, const ValueType& Value) { return FindOrAddImpl(MoveTempIfPossible(Key), Value); }
	ValueType& FindOrAdd(KeyType&& Key, ValueType&& Value)
	{
		return FindOrAddImpl(MoveTempIfPossible(Key), MoveTempIfPossible(Value));
	}

	ValueType* Find(KeyInitType Key)
	{
		ElementType* const Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}
	const ValueType* Find(KeyInitType Key) const { return const_cast<TMap*>(this)->Find(Key); }

	/** The value, or a default one. */
	ValueType FindRef(KeyInitType Key) const
	{
		const ValueType* const Value = Find(Key);
		return Value ? *Value : ValueType();
	}

	/** The value; a missing key is fatal. */
	ValueType& FindChecked(KeyInitType Key)
	{
		ElementType* const Pair = Pairs.Find(Key);
		check(Pair != nullptr);
		return Pair->Value;
	}
	const ValueType& FindChecked(KeyInitType Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }
	ValueType& operator[](KeyInitType Key) { return FindChecked(Key); }
	const ValueType& operator[](KeyInitType Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }

	bool Contains(KeyInitType Key) const { return Pairs.Contains(Key); }

	/** Pairs by their place, which has holes where pairs were removed: for code that knows the types at run time only. */
	int32 GetMaxIndex() const { return Pairs.GetMaxIndex(); }
	bool IsValidId(FSetElementId Id) const { return Pairs.IsValidId(Id); }
	FSetElementId FindId(KeyInitType Key) const { return Pairs.FindId(Key); }
	ElementType& Get(FSetElementId Id) { return Pairs[Id]; }
	const ElementType& Get(FSetElementId Id) const { return Pairs[Id]; }

	/** The first key that has the value, or null. */
	const KeyType* FindKey(const ValueType& Value) const
	{
		for (const ElementType& Pair : *this)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}

	int32 Remove(KeyInitType Key) { return Pairs.Remove(Key); }

	bool RemoveAndCopyValue(KeyInitType Key, ValueType& OutRemovedValue)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTempIfPossible(Pairs[Id].Value);
		Pairs.Remove(Id);
		return true;
	}

	ValueType FindAndRemoveChecked(KeyInitType Key)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		check(Id.IsValidId());
		ValueType Result = MoveTempIfPossible(Pairs[Id].Value);
		Pairs.Remove(Id);
		return Result;
	}

	void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }
	void Reset() { Pairs.Reset(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }
	void Compact() { Pairs.Compact(); }
	void Shrink() { Pairs.Shrink(); }

	template <typename OtherSetAllocator>
	void Append(const TMap<KeyType, ValueType, OtherSetAllocator, KeyFuncs>& Other)
	{
		Reserve(Num() + Other.Num());
		for (const ElementType& Pair : Other)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	/** Puts the keys into an array or a set, which is emptied first. @return How many keys the map has. */
	template <typename Allocator>
	int32 GetKeys(TArray<KeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		OutKeys.Reserve(Num());
		for (const ElementType& Pair : *this)
		{
			OutKeys.Add(Pair.Key);
		}
		return Num();
	}
	int32 GetKeys(TSet<KeyType>& OutKeys) const
	{
		OutKeys.Reset();
		OutKeys.Reserve(Num());
		for (const ElementType& Pair : *this)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}
	template <typename Allocator>
	void GenerateKeyArray(TArray<KeyType, Allocator>& OutArray) const
	{
		GetKeys(OutArray);
	}
	template <typename Allocator>
	void GenerateValueArray(TArray<ValueType, Allocator>& OutArray) const
	{
		OutArray.Reset();
		OutArray.Reserve(Num());
		for (const ElementType& Pair : *this)
		{
			OutArray.Add(Pair.Value);
		}
	}

	template <typename PredicateType>
	TMap FilterByPredicate(const PredicateType& Predicate) const
	{
		TMap Result;
		for (const ElementType& Pair : *this)
		{
			if (Predicate(Pair))
			{
				Result.Add(Pair);
			}
		}
		return Result;
	}

	template <typename PredicateType>
	void KeySort(const PredicateType& Predicate)
	{
		Pairs.Sort([Order = UE::Core::Private::Dereferencing(Predicate)](const ElementType& Left, const ElementType& Right)
			{ return Order(Left.Key, Right.Key); });
	}
	template <typename PredicateType>
	void KeyStableSort(const PredicateType& Predicate)
	{
		KeySort(Predicate);
	}
	template <typename PredicateType>
	void ValueSort(const PredicateType& Predicate)
	{
		Pairs.Sort([Order = UE::Core::Private::Dereferencing(Predicate)](const ElementType& Left, const ElementType& Right)
			{ return Order(Left.Value, Right.Value); });
	}
	template <typename PredicateType>
	void ValueStableSort(const PredicateType& Predicate)
	{
		ValueSort(Predicate);
	}

	/** Whether both maps have the same pairs, in whatever order. */
	bool OrderIndependentCompareEqual(const TMap& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : *this)
		{
			const ValueType* const OtherValue = Other.Find(Pair.Key);
			if (!OtherValue || !(*OtherValue == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	template <bool bConst>
	class TBaseIterator : public TSet<ElementType, KeyFuncs>::template TBaseIterator<bConst>
	{
		using Super = typename TSet<ElementType, KeyFuncs>::template TBaseIterator<bConst>;

	public:
		using ItValueType = std::conditional_t<bConst, const ValueType, ValueType>;
		using Super::Super;
		TBaseIterator& operator++()
		{
			Super::operator++();
			return *this;
		}
		const KeyType& Key() const { return (*this)->Key; }
		ItValueType& Value() const { return (*this)->Value; }
	};

	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	TIterator CreateIterator() { return TIterator(Pairs); }
	TConstIterator CreateConstIterator() const { return TConstIterator(Pairs); }
	auto begin() { return Pairs.begin(); }
	auto begin() const { return Pairs.begin(); }
	auto end() { return Pairs.end(); }
	auto end() const { return Pairs.end(); }

private:
	template <typename KeyArg, typename... ValueArgs>
	ValueType& FindOrAddImpl(KeyArg&& Key, ValueArgs&&... Value)
	{
		const uint32 KeyHash = Pairs.GetKeyHashFor(Key);
		if (ElementType* const Pair = Pairs.FindWithHash(Key, KeyHash))
		{
			return Pair->Value;
		}
		return Pairs.EmplaceNew(KeyHash, Forward<KeyArg>(Key), ValueType(Forward<ValueArgs>(Value)...)).Value;
	}

	TSet<ElementType, KeyFuncs> Pairs;
};
