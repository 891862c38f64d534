#include "Logging/LogCategory.h"

#include "Logging/LogCategoryRegistry.h"

FLogCategoryBase::FLogCategoryBase(
	const FName& InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: DefaultVerbosity(InDefaultVerbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryName(InCategoryName)
{
	ResetVerbosity();
	FLogCategoryRegistry::Get().Add(*this);
}

FLogCategoryBase::~FLogCategoryBase()
{
	FLogCategoryRegistry::Get().Remove(*this);
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	Verbosity = NewVerbosity < CompileTimeVerbosity ? NewVerbosity : CompileTimeVerbosity;
}

void FLogCategoryBase::ResetVerbosity()
{
	SetVerbosity(DefaultVerbosity);
}
