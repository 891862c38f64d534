#pragma once

#include "UObject/UObjectGlobals.h"

/** Passes references on as ones that stay as they are: nulling a key would put it into the wrong place of its container. */
class FFixedReferences final : public FReferenceCollector
{
public:
	explicit FFixedReferences(FReferenceCollector& InCollector)
		: Collector(InCollector)
	{
	}

	void HandleFixedReference(UObject* Object) override { Collector.HandleFixedReference(Object); }

protected:
	void HandleReference(UObject*& Object) override { Collector.HandleFixedReference(Object); }

private:
	FReferenceCollector& Collector;
};
