#pragma once

#include "UObject/UnrealType.h"

namespace EPropertyChangeType
{
using Type = uint32;
constexpr Type Unspecified = 1 << 0;
constexpr Type ArrayAdd = 1 << 1;
constexpr Type ArrayRemove = 1 << 2;
constexpr Type ArrayClear = 1 << 3;
constexpr Type ValueSet = 1 << 4;
constexpr Type Duplicate = 1 << 5;
constexpr Type Interactive = 1 << 6;
constexpr Type Redirected = 1 << 7;
}

/** What changed. Property may be null: then anything may have. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(
		FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
	}

	FName GetPropertyName() const { return Property ? Property->GetFName() : FName(); }

	FProperty* Property;
	/** The member of the object that Property lies in. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
};
