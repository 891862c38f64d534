#include "UObject/DynamicContainers.h"

namespace
{
/** Laid out as any TArray, so that C++ that knows the type of the elements reads the value as one. */
struct FRawArray
{
	uint8* Data;
	int32 Num;
	int32 Max;
};
static_assert(sizeof(FRawArray) == sizeof(TArray<int32>));

class FDynamicArrayOps final : public FArrayOps
{
public:
	explicit FDynamicArrayOps(const FProperty& InInner)
		: Inner(InInner)
	{
	}

	int32 GetSize() const override { return sizeof(FRawArray); }
	void Construct(void* Array) const override { ::new (Array) FRawArray{nullptr, 0, 0}; }
	void Destruct(void* Array) const override { Empty(Array, 0); }
	int32 Num(const void* Array) const override { return In(Array).Num; }
	void* GetData(const void* Array) const override { return In(Array).Data; }

	void Insert(void* Array, int32 Index, int32 Count) const override
	{
		FRawArray& Raw = In(Array);
		check(Index >= 0 && Index <= Raw.Num && Count >= 0);
		Reserve(Raw, Raw.Num + Count);
		FMemory::Memmove(At(Raw, Index + Count), At(Raw, Index), SizeOf(Raw.Num - Index));
		Raw.Num += Count;
		for (int32 New = Index; New < Index + Count; ++New)
		{
			Inner.InitializeValue(At(Raw, New));
		}
	}

	void RemoveAt(void* Array, int32 Index, int32 Count) const override
	{
		FRawArray& Raw = In(Array);
		check(Index >= 0 && Count >= 0 && Index + Count <= Raw.Num);
		for (int32 Old = Index; Old < Index + Count; ++Old)
		{
			Inner.DestroyValue(At(Raw, Old));
		}
		FMemory::Memmove(At(Raw, Index), At(Raw, Index + Count), SizeOf(Raw.Num - Index - Count));
		Raw.Num -= Count;
	}

	void Empty(void* Array, int32 Slack) const override
	{
		FRawArray& Raw = In(Array);
		RemoveAt(Array, 0, Raw.Num);
		FMemory::Free(Raw.Data);
		Raw = {nullptr, 0, 0};
		Reserve(Raw, Slack);
	}

private:
	static FRawArray& In(const void* Array) { return *static_cast<FRawArray*>(const_cast<void*>(Array)); }
	uint8* At(const FRawArray& Raw, int32 Index) const { return Raw.Data + SizeOf(Index); }
	SIZE_T SizeOf(int32 Count) const { return SIZE_T(Inner.GetSize()) * Count; }

	void Reserve(FRawArray& Raw, int32 Count) const
	{
		if (Count > Raw.Max)
		{
			Raw.Max = FMath::Max(Count, Raw.Max + Raw.Max / 2);
			Raw.Data = static_cast<uint8*>(FMemory::Realloc(Raw.Data, SizeOf(Raw.Max)));
		}
	}

	const FProperty& Inner;
};

/** Rows of elements that are found by the hash of the first part. A free row is null. */
class FRows
{
public:
	int32 Num() const { return Rows.Num() - FreeRows.Num(); }
	int32 GetMaxIndex() const { return Rows.Num(); }
	bool IsValidIndex(int32 Index) const { return Rows.IsValidIndex(Index) && Rows[Index]; }
	uint8* Get(int32 Index) const { return Rows[Index]; }

	int32 Find(const FProperty& Key, const void* KeyValue) const
	{
		const TArray<int32>* const Candidates = ByHash.Find(Key.GetValueTypeHash(KeyValue));
		if (Candidates)
		{
			for (const int32 Index : *Candidates)
			{
				if (Key.Identical(Rows[Index], KeyValue))
				{
					return Index;
				}
			}
		}
		return INDEX_NONE;
	}

	void Add(uint32 Hash, uint8* Row)
	{
		const int32 Index = FreeRows.Num() ? FreeRows.Pop() : Rows.Add(nullptr);
		Rows[Index] = Row;
		ByHash.FindOrAdd(Hash).Add(Index);
	}

	void Remove(uint32 Hash, int32 Index)
	{
		Rows[Index] = nullptr;
		FreeRows.Add(Index);
		ByHash.FindChecked(Hash).Remove(Index);
	}

private:
	TArray<uint8*> Rows;
	TArray<int32> FreeRows;
	TMap<uint32, TArray<int32>> ByHash;
};

/** Rows of a key and, for a map, a value behind it. */
class FRowLayout
{
public:
	FRowLayout(const FProperty& InKey, const FProperty* InValue)
		: Key(InKey)
		, Value(InValue)
		, ValueOffset(InValue ? Align(InKey.GetSize(), InValue->GetMinAlignment()) : InKey.GetSize())
	{
	}

	static FRows*& In(const void* Container) { return *static_cast<FRows**>(const_cast<void*>(Container)); }
	uint8* ValueOf(uint8* Row) const { return Row + ValueOffset; }

	void Add(const void* Container, const void* KeyValue, const void* ValueValue) const
	{
		FRows& Rows = *In(Container);
		const int32 Index = Rows.Find(Key, KeyValue);
		if (Index != INDEX_NONE)
		{
			Key.CopyCompleteValue(Rows.Get(Index), KeyValue);
			if (Value)
			{
				Value->CopyCompleteValue(ValueOf(Rows.Get(Index)), ValueValue);
			}
			return;
		}
		uint8* const Row = static_cast<uint8*>(FMemory::Malloc(SIZE_T(ValueOffset) + (Value ? Value->GetSize() : 0), 16));
		Key.InitializeValue(Row);
		Key.CopyCompleteValue(Row, KeyValue);
		if (Value)
		{
			Value->InitializeValue(ValueOf(Row));
			Value->CopyCompleteValue(ValueOf(Row), ValueValue);
		}
		Rows.Add(Key.GetValueTypeHash(KeyValue), Row);
	}

	void RemoveAt(const void* Container, int32 Index) const
	{
		FRows& Rows = *In(Container);
		check(Rows.IsValidIndex(Index));
		uint8* const Row = Rows.Get(Index);
		Rows.Remove(Key.GetValueTypeHash(Row), Index);
		Key.DestroyValue(Row);
		if (Value)
		{
			Value->DestroyValue(ValueOf(Row));
		}
		FMemory::Free(Row);
	}

	void Empty(const void* Container) const
	{
		for (int32 Index = 0; Index < In(Container)->GetMaxIndex(); ++Index)
		{
			if (In(Container)->IsValidIndex(Index))
			{
				RemoveAt(Container, Index);
			}
		}
		*In(Container) = FRows();
	}

	const FProperty& Key;
	const FProperty* const Value;

private:
	const int32 ValueOffset;
};

class FDynamicSetOps final : public FSetOps
{
public:
	explicit FDynamicSetOps(const FProperty& Element)
		: Layout(Element, nullptr)
	{
	}

	int32 GetSize() const override { return sizeof(FRows*); }
	void Construct(void* Set) const override { Layout.In(Set) = new FRows; }
	void Destruct(void* Set) const override
	{
		Layout.Empty(Set);
		delete Layout.In(Set);
	}
	int32 Num(const void* Set) const override { return Layout.In(Set)->Num(); }
	int32 GetMaxIndex(const void* Set) const override { return Layout.In(Set)->GetMaxIndex(); }
	bool IsValidIndex(const void* Set, int32 Index) const override { return Layout.In(Set)->IsValidIndex(Index); }
	void* GetElement(const void* Set, int32 Index) const override { return Layout.In(Set)->Get(Index); }
	int32 FindIndex(const void* Set, const void* Element) const override { return Layout.In(Set)->Find(Layout.Key, Element); }
	void Add(void* Set, const void* Element) const override { Layout.Add(Set, Element, nullptr); }
	void RemoveAt(void* Set, int32 Index) const override { Layout.RemoveAt(Set, Index); }
	void Empty(void* Set, int32 Slack) const override { Layout.Empty(Set); }

private:
	FRowLayout Layout;
};

class FDynamicMapOps final : public FMapOps
{
public:
	FDynamicMapOps(const FProperty& Key, const FProperty& Value)
		: Layout(Key, &Value)
	{
	}

	int32 GetSize() const override { return sizeof(FRows*); }
	void Construct(void* Map) const override { Layout.In(Map) = new FRows; }
	void Destruct(void* Map) const override
	{
		Layout.Empty(Map);
		delete Layout.In(Map);
	}
	int32 Num(const void* Map) const override { return Layout.In(Map)->Num(); }
	int32 GetMaxIndex(const void* Map) const override { return Layout.In(Map)->GetMaxIndex(); }
	bool IsValidIndex(const void* Map, int32 Index) const override { return Layout.In(Map)->IsValidIndex(Index); }
	void* GetKey(const void* Map, int32 Index) const override { return Layout.In(Map)->Get(Index); }
	void* GetValue(const void* Map, int32 Index) const override { return Layout.ValueOf(Layout.In(Map)->Get(Index)); }
	int32 FindIndex(const void* Map, const void* Key) const override { return Layout.In(Map)->Find(Layout.Key, Key); }
	void Add(void* Map, const void* Key, const void* Value) const override { Layout.Add(Map, Key, Value); }
	void RemoveAt(void* Map, int32 Index) const override { Layout.RemoveAt(Map, Index); }
	void Empty(void* Map, int32 Slack) const override { Layout.Empty(Map); }

private:
	FRowLayout Layout;
};
}

TUniquePtr<FArrayOps> MakeDynamicArrayOps(const FProperty& Inner)
{
	return TUniquePtr<FArrayOps>(new FDynamicArrayOps(Inner));
}

TUniquePtr<FSetOps> MakeDynamicSetOps(const FProperty& Element)
{
	return TUniquePtr<FSetOps>(new FDynamicSetOps(Element));
}

TUniquePtr<FMapOps> MakeDynamicMapOps(const FProperty& Key, const FProperty& Value)
{
	return TUniquePtr<FMapOps>(new FDynamicMapOps(Key, Value));
}
