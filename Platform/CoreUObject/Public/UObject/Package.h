#pragma once

#include "UObject/Object.h"

/** The outermost object: what is saved as one file, or the types of one module ("/Script/Module"). */
class COREUOBJECT_API UPackage : public UObject
{
public:
	DECLARE_CLASS(UPackage, UObject)
	DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(UPackage)

	explicit UPackage(const FObjectInitializer& ObjectInitializer)
		: Super(ObjectInitializer)
	{
	}

	bool IsDirty() const { return bDirty; }
	void SetDirtyFlag(bool bIsDirty) { bDirty = bIsDirty; }

private:
	bool bDirty = false;
};
