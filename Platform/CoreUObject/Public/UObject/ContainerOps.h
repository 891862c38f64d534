#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"

#include <new>

/**
 * What a reflected array does with the memory of its values. A native array leaves it to its C++ type, one that is made at
 * run time to its inner property.
 */
class FArrayOps
{
public:
	virtual ~FArrayOps() = default;
	virtual int32 GetSize() const = 0;
	virtual void Construct(void* Array) const = 0;
	virtual void Destruct(void* Array) const = 0;
	virtual int32 Num(const void* Array) const = 0;
	virtual void* GetData(const void* Array) const = 0;
	/** New elements have their default values. */
	virtual void Insert(void* Array, int32 Index, int32 Count) const = 0;
	virtual void RemoveAt(void* Array, int32 Index, int32 Count) const = 0;
	virtual void Empty(void* Array, int32 Slack) const = 0;
};

/** The same for a set. Indices run to GetMaxIndex and may have holes. */
class FSetOps
{
public:
	virtual ~FSetOps() = default;
	virtual int32 GetSize() const = 0;
	virtual void Construct(void* Set) const = 0;
	virtual void Destruct(void* Set) const = 0;
	virtual int32 Num(const void* Set) const = 0;
	virtual int32 GetMaxIndex(const void* Set) const = 0;
	virtual bool IsValidIndex(const void* Set, int32 Index) const = 0;
	virtual void* GetElement(const void* Set, int32 Index) const = 0;
	virtual int32 FindIndex(const void* Set, const void* Element) const = 0;
	virtual void Add(void* Set, const void* Element) const = 0;
	virtual void RemoveAt(void* Set, int32 Index) const = 0;
	virtual void Empty(void* Set, int32 Slack) const = 0;
};

/** The same for a map. */
class FMapOps
{
public:
	virtual ~FMapOps() = default;
	virtual int32 GetSize() const = 0;
	virtual void Construct(void* Map) const = 0;
	virtual void Destruct(void* Map) const = 0;
	virtual int32 Num(const void* Map) const = 0;
	virtual int32 GetMaxIndex(const void* Map) const = 0;
	virtual bool IsValidIndex(const void* Map, int32 Index) const = 0;
	virtual void* GetKey(const void* Map, int32 Index) const = 0;
	virtual void* GetValue(const void* Map, int32 Index) const = 0;
	virtual int32 FindIndex(const void* Map, const void* Key) const = 0;
	virtual void Add(void* Map, const void* Key, const void* Value) const = 0;
	virtual void RemoveAt(void* Map, int32 Index) const = 0;
	virtual void Empty(void* Map, int32 Slack) const = 0;
};

/** Becomes an EForceInit and nothing else: whoever takes it has a constructor for just that. */
struct FForceInitOnly
{
	template <typename T, typename = std::enable_if_t<std::is_same_v<T, EForceInit>>>
	operator T() const
	{
		return ForceInit;
	}
};

/** A value as reflection makes it: what the constructor of a vector or colour leaves unset is zero. */
template <typename T>
T MakeZeroedValue()
{
	if constexpr (std::is_class_v<T> && std::is_constructible_v<T, FForceInitOnly>)
	{
		return T(ForceInit);
	}
	else
	{
		return T();
	}
}

template <typename T>
class TArrayOps final : public FArrayOps
{
	using FArrayType = TArray<T>;
	static FArrayType& In(void* Array) { return *static_cast<FArrayType*>(Array); }
	static FArrayType& In(const void* Array) { return *static_cast<FArrayType*>(const_cast<void*>(Array)); }

public:
	static const TArrayOps& Get()
	{
		static const TArrayOps Ops;
		return Ops;
	}

	int32 GetSize() const override { return sizeof(FArrayType); }
	void Construct(void* Array) const override { ::new (Array) FArrayType; }
	void Destruct(void* Array) const override { In(Array).~FArrayType(); }
	int32 Num(const void* Array) const override { return In(Array).Num(); }
	void* GetData(const void* Array) const override { return In(Array).GetData(); }
	void Insert(void* Array, int32 Index, int32 Count) const override
	{
		for (int32 New = 0; New < Count; ++New)
		{
			In(Array).Insert(MakeZeroedValue<T>(), Index + New);
		}
	}
	void RemoveAt(void* Array, int32 Index, int32 Count) const override { In(Array).RemoveAt(Index, Count); }
	void Empty(void* Array, int32 Slack) const override { In(Array).Empty(Slack); }
};

template <typename T>
class TSetOps final : public FSetOps
{
	using FSetType = TSet<T>;
	static FSetType& In(const void* Set) { return *static_cast<FSetType*>(const_cast<void*>(Set)); }

public:
	static const TSetOps& Get()
	{
		static const TSetOps Ops;
		return Ops;
	}

	int32 GetSize() const override { return sizeof(FSetType); }
	void Construct(void* Set) const override { ::new (Set) FSetType; }
	void Destruct(void* Set) const override { In(Set).~FSetType(); }
	int32 Num(const void* Set) const override { return In(Set).Num(); }
	int32 GetMaxIndex(const void* Set) const override { return In(Set).GetMaxIndex(); }
	bool IsValidIndex(const void* Set, int32 Index) const override
	{
		return In(Set).IsValidId(FSetElementId::FromInteger(Index));
	}
	void* GetElement(const void* Set, int32 Index) const override { return &In(Set)[FSetElementId::FromInteger(Index)]; }
	int32 FindIndex(const void* Set, const void* Element) const override
	{
		return In(Set).FindId(*static_cast<const T*>(Element)).AsInteger();
	}
	void Add(void* Set, const void* Element) const override { In(Set).Add(*static_cast<const T*>(Element)); }
	void RemoveAt(void* Set, int32 Index) const override { In(Set).Remove(FSetElementId::FromInteger(Index)); }
	void Empty(void* Set, int32 Slack) const override { In(Set).Empty(Slack); }
};

template <typename K, typename V>
class TMapOps final : public FMapOps
{
	using FMapType = TMap<K, V>;
	static FMapType& In(const void* Map) { return *static_cast<FMapType*>(const_cast<void*>(Map)); }

public:
	static const TMapOps& Get()
	{
		static const TMapOps Ops;
		return Ops;
	}

	int32 GetSize() const override { return sizeof(FMapType); }
	void Construct(void* Map) const override { ::new (Map) FMapType; }
	void Destruct(void* Map) const override { In(Map).~FMapType(); }
	int32 Num(const void* Map) const override { return In(Map).Num(); }
	int32 GetMaxIndex(const void* Map) const override { return In(Map).GetMaxIndex(); }
	bool IsValidIndex(const void* Map, int32 Index) const override
	{
		return In(Map).IsValidId(FSetElementId::FromInteger(Index));
	}
	void* GetKey(const void* Map, int32 Index) const override
	{
		return const_cast<K*>(&In(Map).Get(FSetElementId::FromInteger(Index)).Key);
	}
	void* GetValue(const void* Map, int32 Index) const override { return &In(Map).Get(FSetElementId::FromInteger(Index)).Value; }
	int32 FindIndex(const void* Map, const void* Key) const override
	{
		return In(Map).FindId(*static_cast<const K*>(Key)).AsInteger();
	}
	void Add(void* Map, const void* Key, const void* Value) const override
	{
		In(Map).Add(*static_cast<const K*>(Key), *static_cast<const V*>(Value));
	}
	void RemoveAt(void* Map, int32 Index) const override { In(Map).Remove(*static_cast<const K*>(GetKey(Map, Index))); }
	void Empty(void* Map, int32 Slack) const override { In(Map).Empty(Slack); }
};
