#pragma once

#include "UObject/UnrealType.h"

/** One array value, seen through its property. */
class FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
		: Ops(InProperty->GetOps())
		, ElementSize(InProperty->Inner->ElementSize)
		, Array(const_cast<void*>(InArray))
	{
	}
	static FScriptArrayHelper CreateHelper(const FArrayProperty* InProperty, const void* InArray)
	{
		return {InProperty, InArray};
	}

	int32 Num() const { return Ops.Num(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	uint8* GetRawPtr(int32 Index = 0) const
	{
		return Num() ? static_cast<uint8*>(Ops.GetData(Array)) + SIZE_T(ElementSize) * Index : nullptr;
	}
	/** @return The index of the first new element. */
	int32 AddValues(int32 Count)
	{
		const int32 OldNum = Num();
		Ops.Insert(Array, OldNum, Count);
		return OldNum;
	}
	int32 AddValue() { return AddValues(1); }
	void InsertValues(int32 Index, int32 Count = 1) { Ops.Insert(Array, Index, Count); }
	void RemoveValues(int32 Index, int32 Count = 1) { Ops.RemoveAt(Array, Index, Count); }
	void EmptyValues(int32 Slack = 0) { Ops.Empty(Array, Slack); }
	void EmptyAndAddValues(int32 Count)
	{
		EmptyValues(Count);
		AddValues(Count);
	}
	void Resize(int32 Count)
	{
		const int32 OldNum = Num();
		Count > OldNum ? Ops.Insert(Array, OldNum, Count - OldNum) : Ops.RemoveAt(Array, Count, OldNum - Count);
	}
	void SwapValues(int32 A, int32 B) { FMemory::Memswap(GetRawPtr(A), GetRawPtr(B), SIZE_T(A == B ? 0 : ElementSize)); }

private:
	const FArrayOps& Ops;
	int32 ElementSize;
	void* Array;
};

/** One set value, seen through its property. Indices run to GetMaxIndex() and may have holes. */
class FScriptSetHelper
{
public:
	FScriptSetHelper(const FSetProperty* InProperty, const void* InSet)
		: Ops(InProperty->GetOps())
		, Set(const_cast<void*>(InSet))
	{
	}

	int32 Num() const { return Ops.Num(Set); }
	int32 GetMaxIndex() const { return Ops.GetMaxIndex(Set); }
	bool IsValidIndex(int32 Index) const { return Ops.IsValidIndex(Set, Index); }
	uint8* GetElementPtr(int32 Index) const { return static_cast<uint8*>(Ops.GetElement(Set, Index)); }
	/** INDEX_NONE if it is not there. */
	int32 FindElementIndex(const void* ElementToFind) const { return Ops.FindIndex(Set, ElementToFind); }
	void AddElement(const void* ElementToAdd) { Ops.Add(Set, ElementToAdd); }
	bool RemoveElement(const void* ElementToRemove)
	{
		const int32 Index = FindElementIndex(ElementToRemove);
		if (Index != INDEX_NONE)
		{
			RemoveAt(Index);
		}
		return Index != INDEX_NONE;
	}
	void RemoveAt(int32 Index) { Ops.RemoveAt(Set, Index); }
	void EmptyElements(int32 Slack = 0) { Ops.Empty(Set, Slack); }

private:
	const FSetOps& Ops;
	void* Set;
};

/** One map value, seen through its property. Indices run to GetMaxIndex() and may have holes. */
class FScriptMapHelper
{
public:
	FScriptMapHelper(const FMapProperty* InProperty, const void* InMap)
		: Ops(InProperty->GetOps())
		, Map(const_cast<void*>(InMap))
	{
	}

	int32 Num() const { return Ops.Num(Map); }
	int32 GetMaxIndex() const { return Ops.GetMaxIndex(Map); }
	bool IsValidIndex(int32 Index) const { return Ops.IsValidIndex(Map, Index); }
	uint8* GetKeyPtr(int32 Index) const { return static_cast<uint8*>(Ops.GetKey(Map, Index)); }
	uint8* GetValuePtr(int32 Index) const { return static_cast<uint8*>(Ops.GetValue(Map, Index)); }
	/** INDEX_NONE if it is not there. */
	int32 FindMapIndexWithKey(const void* KeyPtr) const { return Ops.FindIndex(Map, KeyPtr); }
	/** Null if the key is not there. */
	uint8* FindValueFromHash(const void* KeyPtr) const
	{
		const int32 Index = FindMapIndexWithKey(KeyPtr);
		return Index != INDEX_NONE ? GetValuePtr(Index) : nullptr;
	}
	/** Replaces the value of a key that is there. */
	void AddPair(const void* KeyPtr, const void* ValuePtr) { Ops.Add(Map, KeyPtr, ValuePtr); }
	bool RemovePair(const void* KeyPtr)
	{
		const int32 Index = FindMapIndexWithKey(KeyPtr);
		if (Index != INDEX_NONE)
		{
			RemoveAt(Index);
		}
		return Index != INDEX_NONE;
	}
	void RemoveAt(int32 Index) { Ops.RemoveAt(Map, Index); }
	void EmptyValues(int32 Slack = 0) { Ops.Empty(Map, Slack); }

private:
	const FMapOps& Ops;
	void* Map;
};
