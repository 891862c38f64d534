#pragma once

#include "Containers/UnrealString.h"

#include <atomic>

/** What copies of a text share. */
class FTextData
{
public:
	explicit FTextData(FString&& InString)
		: String(MoveTemp(InString))
	{
	}

	void AddReference() { ReferenceCount.fetch_add(1, std::memory_order_relaxed); }

	void Release()
	{
		if (ReferenceCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
		{
			delete this;
		}
	}

	const FString String;

private:
	std::atomic<int32> ReferenceCount{1};
};
