#pragma once

#include "CoreTypes.h"

template <int IndexSize>
class TSizedDefaultAllocator;
using FDefaultAllocator = TSizedDefaultAllocator<32>;
using FDefaultAllocator64 = TSizedDefaultAllocator<64>;
using FHeapAllocator = FDefaultAllocator;

template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator;

class FDefaultSetAllocator;

template <typename T, typename Allocator = FDefaultAllocator>
class TArray;

/** For data that may be large; a type of its own, though it counts its elements as other arrays do. */
template <typename T>
using TArray64 = TArray<T, FDefaultAllocator64>;

template <typename ElementType>
class TArrayView;
template <typename ElementType>
using TArrayView64 = TArrayView<ElementType>;
template <typename ElementType>
using TConstArrayView = TArrayView<const ElementType>;

template <typename ElementType>
class TSparseArray;

template <typename KeyType, typename ValueType>
struct TPair;

template <typename ElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs;

template <typename ElementType, typename KeyFuncs = DefaultKeyFuncs<ElementType>, typename Allocator = FDefaultSetAllocator>
class TSet;

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;

template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, false>>
class TMap;

class FString;
class FName;
class FText;
