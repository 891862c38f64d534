#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

/** Names one binding of a delegate, for removing it later. A copy of a delegate keeps the handle. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;

	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID())
	{
	}

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle& Left, const FDelegateHandle& Right) { return Left.ID == Right.ID; }
	friend bool operator!=(const FDelegateHandle& Left, const FDelegateHandle& Right) { return Left.ID != Right.ID; }
	friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return GetTypeHash(Handle.ID); }

private:
	/** Unique in the process, on any thread. */
	CORE_API static uint64 GenerateNewID();

	uint64 ID = 0;
};

/** One binding: what is called, and on what. */
class IDelegateInstance
{
public:
	virtual ~IDelegateInstance() = default;

	/** The object that the binding belongs to, or null for functions and plain lambdas. A dead weak object counts as null. */
	virtual const void* GetBoundObject() const = 0;

	/** False once a weakly bound object is gone. */
	virtual bool IsSafeToExecute() const = 0;

	bool HasSameObject(const void* Object) const { return Object != nullptr && GetBoundObject() == Object; }

	FDelegateHandle GetHandle() const { return Handle; }

	/** Takes a binding out of use that cannot be destroyed yet because it may be running. */
	void Retire() { Handle.Reset(); }
	bool IsRetired() const { return !Handle.IsValid(); }

protected:
	IDelegateInstance() = default;
	IDelegateInstance(const IDelegateInstance&) = default;

private:
	FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
};
