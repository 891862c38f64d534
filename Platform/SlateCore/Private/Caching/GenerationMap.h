#pragma once

#include "CoreMinimal.h"

/**
 * A map that forgets what is no longer asked for. It has two generations: when the younger one is full, the older one is
 * dropped and the younger takes its place; what is found in the older one moves to the younger.
 */
template <typename KeyType, typename ValueType>
class TGenerationMap
{
public:
	/** @param InMaxWeight  Sum of the weights at which a generation is full. */
	explicit TGenerationMap(int64 InMaxWeight)
		: MaxWeight(InMaxWeight)
	{
	}

	/** Null when there is none. Valid until the next call. */
	ValueType* Find(const KeyType& Key)
	{
		if (FEntry* Entry = Young.Find(Key))
		{
			return &Entry->Value;
		}
		const FSetElementId Id = Old.FindId(Key);
		if (!Id.IsValidId())
		{
			return nullptr;
		}
		const KeyType KeptKey = Old.Get(Id).Key;
		FEntry Entry = MoveTemp(Old.Get(Id).Value);
		Old.Remove(Key);
		return &Insert(KeptKey, MoveTemp(Entry));
	}

	/** Valid until the next call. */
	ValueType& Add(const KeyType& Key, ValueType&& Value, int64 Weight = 1)
	{
		return Insert(Key, FEntry{MoveTemp(Value), Weight});
	}

	void Empty()
	{
		Young.Empty();
		Old.Empty();
		WeightOfYoung = 0;
	}

	int32 Num() const { return Young.Num() + Old.Num(); }

private:
	struct FEntry
	{
		ValueType Value;
		int64 Weight;
	};

	ValueType& Insert(const KeyType& Key, FEntry&& Entry)
	{
		if (WeightOfYoung + Entry.Weight > MaxWeight)
		{
			Old = MoveTemp(Young);
			Young = TMap<KeyType, FEntry>();
			WeightOfYoung = 0;
		}
		WeightOfYoung += Entry.Weight;
		return Young.Add(Key, MoveTemp(Entry)).Value;
	}

	TMap<KeyType, FEntry> Young;
	TMap<KeyType, FEntry> Old;
	int64 WeightOfYoung = 0;
	int64 MaxWeight;
};
