#pragma once

#include "Containers/Array.h"
#include "Logging/LogCategory.h"
#include "Templates/Function.h"

/** All categories of the process. */
class FLogCategoryRegistry
{
public:
	static FLogCategoryRegistry& Get();

	void Add(FLogCategoryBase& Category);
	void Remove(FLogCategoryBase& Category);

	/** Calls the visitor for each category of a name, of which there may be several. @return Their number. */
	int32 ForEachOfName(const FName& Name, TFunctionRef<void(FLogCategoryBase&)> Visitor);

	/** The names in alphabetical order, each once. */
	TArray<FName> GetNames() const;

private:
	TArray<FLogCategoryBase*> Categories;
};
