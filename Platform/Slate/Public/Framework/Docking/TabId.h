#pragma once

#include "CoreMinimal.h"

/** Names a tab: the type that its spawner is registered under, and an instance where there are several of a type. */
struct FTabId
{
	FTabId() = default;
	FTabId(const FName InTabType)
		: TabType(InTabType)
	{
	}
	FTabId(const FName InTabType, const int32 InInstanceId)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
	{
	}

	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && InstanceId == Other.InstanceId; }

	/** The type; with an instance, a colon and its number follow. */
	FString ToString() const
	{
		return InstanceId == INDEX_NONE ? TabType.ToString() : FString::Printf(TEXT("%s:%d"), *TabType.ToString(), InstanceId);
	}

	FName TabType;
	int32 InstanceId = INDEX_NONE;
};
