#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

/**
 * Identity of an object: flags, place in the object table, class, name and outer. The object system hands these to the
 * constructor by itself; an object that is not made by NewObject stops the program with a message.
 */
class COREUOBJECT_API UObjectBase
{
public:
	UObjectBase(const UObjectBase&) = delete;
	UObjectBase& operator=(const UObjectBase&) = delete;

	EObjectFlags GetFlags() const { return ObjectFlags; }
	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	FName GetFName() const { return NamePrivate; }
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }

	void AtomicallySetFlags(EObjectFlags FlagsToAdd);
	void AtomicallyClearFlags(EObjectFlags FlagsToClear);

protected:
	UObjectBase();
	virtual ~UObjectBase();

private:
	friend class FObjectTable;

	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	FName NamePrivate;
	UObject* OuterPrivate;
};
