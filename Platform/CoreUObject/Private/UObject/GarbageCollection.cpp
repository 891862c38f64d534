#include "HAL/PlatformTime.h"
#include "UObject/Class.h"
#include "UObject/CoreUObjectLog.h"
#include "UObject/GCObject.h"
#include "UObject/GCScopeLock.h"
#include "UObject/ObjectLifetime.h"
#include "UObject/ObjectTable.h"
#include "UObject/UObjectGlobals.h"

namespace
{
struct FCollectionState
{
	int32 NumGuards = 0;
	bool bCollecting = false;
	bool bRequested = false;
	EObjectFlags RequestedKeepFlags = RF_NoFlags;
	/** Null where one has gone. */
	TArray<FGCObject*> Referencers;
	TArray<int32> FreeReferencers;
	FSimpleMulticastDelegate PreCollect;
	FSimpleMulticastDelegate PostCollect;

	static FCollectionState& Get()
	{
		static FCollectionState& State = *new FCollectionState;
		return State;
	}
};

/** Marks what is reached. The stack replaces recursion: chains of objects may be long. */
class FMarker final : public FReferenceCollector
{
public:
	void HandleFixedReference(UObject* Object) override
	{
		if (!Object)
		{
			return;
		}
		FObjectItem& Item = FObjectTable::Get().ItemOf(Object);
		if (Item.HasAnyFlags(EInternalObjectFlags::Unreachable))
		{
			Item.Flags &= ~EInternalObjectFlags::Unreachable;
			Pending.Push(Object);
		}
	}

	void Run()
	{
		while (Pending.Num())
		{
			UObject* const Object = Pending.Pop();
			UClass* const Class = Object->GetClass();
			HandleFixedReference(Class);
			HandleFixedReference(Object->GetOuter());
			Class->ClassAddReferencedObjects(Object, *this);
			Class->AddReferencesOf(Object, *this);
		}
	}

protected:
	void HandleReference(UObject*& Object) override
	{
		if (Object && !IsValidChecked(Object))
		{
			Object = nullptr;
		}
		HandleFixedReference(Object);
	}

private:
	TArray<UObject*> Pending;
};

void MarkFromRoots(EObjectFlags KeepFlags)
{
	constexpr EInternalObjectFlags RootFlags = EInternalObjectFlags::Native | EInternalObjectFlags::RootSet;
	TArray<UObject*> Roots;
	for (FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object)
		{
			Item.Flags |= EInternalObjectFlags::Unreachable;
			if (Item.HasAnyFlags(RootFlags) || (Item.Object->HasAnyFlags(KeepFlags) && IsValidChecked(Item.Object)))
			{
				Roots.Add(Item.Object);
			}
		}
	}
	FMarker Marker;
	for (UObject* const Root : Roots)
	{
		Marker.HandleFixedReference(Root);
	}
	for (FGCObject* const Referencer : FCollectionState::Get().Referencers)
	{
		if (Referencer)
		{
			Referencer->AddReferencedObjects(Marker);
		}
	}
	Marker.Run();
}

/** All are told before the first is gone, as one may still look at another. */
int32 DestroyUnreachable()
{
	TArray<UObject*> Unreachable;
	for (const FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && Item.HasAnyFlags(EInternalObjectFlags::Unreachable))
		{
			Unreachable.Add(Item.Object);
		}
	}
	for (UObject* const Object : Unreachable)
	{
		Object->BeginDestroy();
	}
	for (UObject* const Object : Unreachable)
	{
		Object->FinishDestroy();
	}
	// Types go last: the destruction of an object made at run time reads its class, and that of a value its structure.
	for (const bool bTypes : {false, true})
	{
		for (UObject*& Object : Unreachable)
		{
			if (Object && Object->IsA<UField>() == bTypes)
			{
				DestructObject(Object);
				FMemory::Free(Object);
				Object = nullptr;
			}
		}
	}
	return Unreachable.Num();
}
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	if (!TryCollectGarbage(KeepFlags, bPerformFullPurge))
	{
		FCollectionState& State = FCollectionState::Get();
		State.bRequested = true;
		State.RequestedKeepFlags = KeepFlags;
	}
}

bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	FCollectionState& State = FCollectionState::Get();
	checkf(!State.bCollecting, TEXT("Garbage collection was asked for within a garbage collection"));
	if (State.NumGuards > 0)
	{
		return false;
	}
	State.bRequested = false;
	State.PreCollect.Broadcast();
	State.bCollecting = true;
	const double Begin = FPlatformTime::Seconds();
	MarkFromRoots(KeepFlags);
	const int32 NumDestroyed = DestroyUnreachable();
	State.bCollecting = false;
	UE_LOG(LogGarbage, Verbose, TEXT("Collected %d objects in %f ms"), NumDestroyed, (FPlatformTime::Seconds() - Begin) * 1000.0);
	State.PostCollect.Broadcast();
	return true;
}

void RequestGarbageCollection()
{
	FCollectionState& State = FCollectionState::Get();
	State.bRequested = true;
	State.RequestedKeepFlags = GARBAGE_COLLECTION_KEEPFLAGS;
}

bool CollectRequestedGarbage()
{
	const FCollectionState& State = FCollectionState::Get();
	return State.bRequested && TryCollectGarbage(State.RequestedKeepFlags);
}

bool IsGarbageCollecting()
{
	return FCollectionState::Get().bCollecting;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	return FCollectionState::Get().PreCollect;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	return FCollectionState::Get().PostCollect;
}

FGCScopeGuard::FGCScopeGuard()
{
	++FCollectionState::Get().NumGuards;
}

FGCScopeGuard::~FGCScopeGuard()
{
	--FCollectionState::Get().NumGuards;
}

FGCObject::FGCObject()
{
	FCollectionState& State = FCollectionState::Get();
	Index = State.FreeReferencers.Num() ? State.FreeReferencers.Pop() : State.Referencers.Add(nullptr);
	State.Referencers[Index] = this;
}

FGCObject::FGCObject(const FGCObject&)
	: FGCObject()
{
}

FGCObject::~FGCObject()
{
	FCollectionState& State = FCollectionState::Get();
	State.Referencers[Index] = nullptr;
	State.FreeReferencers.Add(Index);
}
