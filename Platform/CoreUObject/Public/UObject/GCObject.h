#pragma once

#include "Containers/UnrealString.h"
#include "UObject/UObjectGlobals.h"

/** Something outside of the object system that keeps objects alive as long as it lives itself. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject&);
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	/** For reports about who holds an object. */
	virtual FString GetReferencerName() const = 0;

private:
	int32 Index;
};
