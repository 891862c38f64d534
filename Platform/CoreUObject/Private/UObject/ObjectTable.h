#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "UObject/Object.h"

/** An object's row in the table. */
struct FObjectItem
{
	UObject* Object = nullptr;
	EInternalObjectFlags Flags = EInternalObjectFlags::None;
	/** Differs from that of every earlier object in the row; weak pointers compare it. */
	int32 SerialNumber = 0;

	bool HasAnyFlags(EInternalObjectFlags InFlags) const { return (Flags & InFlags) != EInternalObjectFlags::None; }
};

/** Who is called what within whom. */
struct FNameInOuter
{
	const UObject* Outer;
	FName Name;

	bool operator==(const FNameInOuter& Other) const { return Outer == Other.Outer && Name == Other.Name; }
	friend uint32 GetTypeHash(const FNameInOuter& Key) { return HashCombine(PointerHash(Key.Outer), GetTypeHash(Key.Name)); }
};

/** What an object's first constructor finds. */
struct FObjectHeader
{
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
};

/** All objects of the process, by index and by name. */
class FObjectTable
{
public:
	static FObjectTable& Get();

	/** Announces the object that is constructed next, at Memory. */
	void BeginConstruction(void* Memory, const FObjectHeader& Header);
	/** Called by the root constructor: fills in the header and adds the object. */
	void Adopt(UObjectBase& Object);
	/** Called by the root destructor. */
	void Remove(UObjectBase& Object);

	/** For types that are made before the class of classes or their package is known. */
	void SetClassAndOuter(UObject& Object, UClass* Class, UObject* Outer);
	void SetNameAndOuter(UObject& Object, FName Name, UObject* Outer);

	FObjectItem& ItemOf(const UObjectBase* Object) { return Items[Object->InternalIndex]; }
	TArray<FObjectItem>& GetItems() { return Items; }
	/** True for what lives as long as the process. */
	bool IsPermanent(const UObjectBase* Object)
	{
		return ItemOf(Object).HasAnyFlags(EInternalObjectFlags::Native | EInternalObjectFlags::RootSet);
	}
	/** Null for an index that is free. */
	const FObjectItem* FindItem(int32 Index) const
	{
		return Items.IsValidIndex(Index) && Items[Index].Object ? &Items[Index] : nullptr;
	}
	UObject* FindInOuter(const UObject* Outer, FName Name) const;

	void Lock() { ++NumLocks; }
	void Unlock() { --NumLocks; }

private:
	TArray<FObjectItem> Items;
	TArray<int32> FreeIndices;
	TMap<FNameInOuter, UObject*> Names;
	FObjectHeader PendingHeader;
	void* PendingMemory = nullptr;
	int32 LastSerialNumber = 0;
	int32 NumLocks = 0;
};
