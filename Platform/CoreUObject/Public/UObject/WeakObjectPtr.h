#pragma once

#include "CoreTypes.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UObject;

/** Refers to an object without keeping it: null once the object is destroyed or marked as garbage. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(std::nullptr_t) {}
	FWeakObjectPtr(const UObject* Object);

	void Reset() { *this = FWeakObjectPtr(); }
	UObject* Get() const { return Get(false); }
	/** With bEvenIfPendingKill also an object that is marked as garbage and not yet destroyed. */
	UObject* Get(bool bEvenIfPendingKill) const;
	bool IsValid(bool bEvenIfPendingKill = false, bool bThreadsafeTest = false) const
	{
		return Get(bEvenIfPendingKill) != nullptr;
	}
	/** True if there once was an object and it is gone. */
	bool IsStale(bool bIncludingGarbage = true, bool bThreadsafeTest = false) const;
	bool IsExplicitlyNull() const { return ObjectIndex == INDEX_NONE; }
	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}

	/** Two pointers to objects that are gone are equal. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return HasSameIndexAndSerialNumber(Other) || (!IsValid() && !Other.IsValid());
	}
	bool operator!=(const FWeakObjectPtr& Other) const { return !(*this == Other); }

	friend uint32 GetTypeHash(const FWeakObjectPtr& Pointer)
	{
		return static_cast<uint32>(Pointer.ObjectIndex ^ Pointer.ObjectSerialNumber);
	}

private:
	int32 ObjectIndex = INDEX_NONE;
	int32 ObjectSerialNumber = 0;
};
