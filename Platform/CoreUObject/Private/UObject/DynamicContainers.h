#pragma once

#include "UObject/UnrealType.h"

/** A value of a property in memory of its own. */
class FPropertyValue
{
public:
	explicit FPropertyValue(const FProperty& InProperty)
		: Property(InProperty)
		, Data(FMemory::Malloc(SIZE_T(InProperty.GetSize()), uint32(InProperty.GetMinAlignment())))
	{
		Property.InitializeValue(Data);
	}
	~FPropertyValue()
	{
		Property.DestroyValue(Data);
		FMemory::Free(Data);
	}
	FPropertyValue(const FPropertyValue&) = delete;
	FPropertyValue& operator=(const FPropertyValue&) = delete;

	void* Get() const { return Data; }

private:
	const FProperty& Property;
	void* Data;
};

// What containers made at run time do with their values: the properties of their elements know how.

TUniquePtr<FArrayOps> MakeDynamicArrayOps(const FProperty& Inner);
TUniquePtr<FSetOps> MakeDynamicSetOps(const FProperty& Element);
TUniquePtr<FMapOps> MakeDynamicMapOps(const FProperty& Key, const FProperty& Value);
