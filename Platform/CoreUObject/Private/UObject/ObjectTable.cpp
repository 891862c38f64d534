#include "UObject/ObjectTable.h"

#include "UObject/Class.h"
#include "UObject/UObjectArray.h"
#include "UObject/WeakObjectPtr.h"

FObjectTable& FObjectTable::Get()
{
	// Never destroyed: objects outlive all other statics.
	static FObjectTable& Table = *new FObjectTable;
	return Table;
}

void FObjectTable::BeginConstruction(void* Memory, const FObjectHeader& Header)
{
	checkf(NumLocks == 0, TEXT("Object %s is made while the object table is locked"), *Header.Name.ToString());
	PendingMemory = Memory;
	PendingHeader = Header;
}

void FObjectTable::Adopt(UObjectBase& Object)
{
	checkf(PendingMemory == &Object, TEXT("An object is constructed without NewObject"));
	PendingMemory = nullptr;

	Object.ClassPrivate = PendingHeader.Class;
	Object.OuterPrivate = PendingHeader.Outer;
	Object.NamePrivate = PendingHeader.Name;
	Object.ObjectFlags = PendingHeader.Flags & ~RF_MarkAsRootSet;
	Object.InternalIndex = FreeIndices.Num() ? FreeIndices.Pop() : Items.AddDefaulted();

	FObjectItem& Item = Items[Object.InternalIndex];
	Item.Object = static_cast<UObject*>(&Object);
	Item.Flags =
		(PendingHeader.Flags & RF_MarkAsRootSet) != RF_NoFlags ? EInternalObjectFlags::RootSet : EInternalObjectFlags::None;
	Item.SerialNumber = ++LastSerialNumber;
	Names.Add({Object.OuterPrivate, Object.NamePrivate}, Item.Object);
}

void FObjectTable::Remove(UObjectBase& Object)
{
	Names.Remove({Object.OuterPrivate, Object.NamePrivate});
	Items[Object.InternalIndex] = FObjectItem();
	FreeIndices.Add(Object.InternalIndex);
}

void FObjectTable::SetClassAndOuter(UObject& Object, UClass* Class, UObject* Outer)
{
	Object.ClassPrivate = Class;
	SetNameAndOuter(Object, Object.NamePrivate, Outer);
}

void FObjectTable::SetNameAndOuter(UObject& Object, FName Name, UObject* Outer)
{
	Names.Remove({Object.OuterPrivate, Object.NamePrivate});
	Object.NamePrivate = Name;
	Object.OuterPrivate = Outer;
	Names.Add({Outer, Name}, &Object);
}

UObject* FObjectTable::FindInOuter(const UObject* Outer, FName Name) const
{
	return Names.FindRef({Outer, Name});
}

UObjectBase::UObjectBase()
{
	FObjectTable::Get().Adopt(*this);
}

UObjectBase::~UObjectBase()
{
	FObjectTable::Get().Remove(*this);
}

void UObjectBase::AtomicallySetFlags(EObjectFlags FlagsToAdd)
{
	ObjectFlags |= FlagsToAdd;
}

void UObjectBase::AtomicallyClearFlags(EObjectFlags FlagsToClear)
{
	ObjectFlags &= ~FlagsToClear;
}

FWeakObjectPtr::FWeakObjectPtr(const UObject* Object)
{
	if (Object)
	{
		ObjectIndex = static_cast<int32>(Object->GetUniqueID());
		ObjectSerialNumber = FObjectTable::Get().ItemOf(Object).SerialNumber;
	}
}

UObject* FWeakObjectPtr::Get(bool bEvenIfPendingKill) const
{
	const FObjectItem* const Item = FObjectTable::Get().FindItem(ObjectIndex);
	if (!Item || Item->SerialNumber != ObjectSerialNumber || Item->HasAnyFlags(EInternalObjectFlags::Unreachable))
	{
		return nullptr;
	}
	return bEvenIfPendingKill || IsValidChecked(Item->Object) ? Item->Object : nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage, bool bThreadsafeTest) const
{
	return !IsExplicitlyNull() && !Get(!bIncludingGarbage);
}

FUObjectArray& GetUObjectArray()
{
	static FUObjectArray Array;
	return Array;
}

int32 FUObjectArray::GetObjectArrayNum() const
{
	return FObjectTable::Get().GetItems().Num();
}

UObject* FUObjectArray::GetObject(int32 Index) const
{
	const FObjectItem* const Item = FObjectTable::Get().FindItem(Index);
	return Item && !Item->HasAnyFlags(EInternalObjectFlags::Unreachable) ? Item->Object : nullptr;
}

void FUObjectArray::LockInternalArray()
{
	FObjectTable::Get().Lock();
}

void FUObjectArray::UnlockInternalArray()
{
	FObjectTable::Get().Unlock();
}
