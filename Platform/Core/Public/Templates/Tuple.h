#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

/** A key with its value, or any two values. */
template <typename InKeyType, typename InValueType>
struct TPair
{
	using KeyType = InKeyType;
	using ValueType = InValueType;

	TPair() = default;
	template <typename KeyArg = KeyType, typename ValueArg = ValueType>
	TPair(KeyArg&& InKey, ValueArg&& InValue)
		: Key(Forward<KeyArg>(InKey))
		, Value(Forward<ValueArg>(InValue))
	{
	}

	bool operator==(const TPair& Other) const { return Key == Other.Key && Value == Other.Value; }
	bool operator!=(const TPair& Other) const { return !(*this == Other); }
	bool operator<(const TPair& Other) const { return Key < Other.Key || (!(Other.Key < Key) && Value < Other.Value); }

	friend uint32 GetTypeHash(const TPair& Pair) { return HashCombine(GetTypeHash(Pair.Key), GetTypeHash(Pair.Value)); }

	KeyType Key{};
	ValueType Value{};
};

template <typename KeyType, typename ValueType>
TPair<std::decay_t<KeyType>, std::decay_t<ValueType>> MakeTuple(KeyType&& Key, ValueType&& Value)
{
	return {Forward<KeyType>(Key), Forward<ValueType>(Value)};
}
