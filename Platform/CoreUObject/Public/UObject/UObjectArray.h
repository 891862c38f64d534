#pragma once

#include "UObject/ObjectMacros.h"

class UObjectBase;

/** All objects by index, with holes. */
class COREUOBJECT_API FUObjectArray
{
public:
	/** One more than the highest index in use. */
	int32 GetObjectArrayNum() const;
	/** Null for a hole and for what a running collection is about to destroy. */
	UObject* GetObject(int32 Index) const;
	/** The walk over the table is safe while it is locked: making an object is fatal. */
	void LockInternalArray();
	void UnlockInternalArray();
};

COREUOBJECT_API FUObjectArray& GetUObjectArray();
#define GUObjectArray GetUObjectArray()
