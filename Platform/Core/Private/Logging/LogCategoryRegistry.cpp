#include "Logging/LogCategoryRegistry.h"

#include "Containers/UnrealString.h"
#include "HAL/IConsoleManager.h"
#include "Misc/OutputDevice.h"

FLogCategoryRegistry& FLogCategoryRegistry::Get()
{
	// Categories are globals of many libraries; the registry outlives them all.
	static FLogCategoryRegistry& Registry = *new FLogCategoryRegistry;
	return Registry;
}

void FLogCategoryRegistry::Add(FLogCategoryBase& Category)
{
	Categories.Add(&Category);
}

void FLogCategoryRegistry::Remove(FLogCategoryBase& Category)
{
	Categories.Remove(&Category);
}

int32 FLogCategoryRegistry::ForEachOfName(const FName& Name, TFunctionRef<void(FLogCategoryBase&)> Visitor)
{
	int32 Count = 0;
	for (FLogCategoryBase* const Category : Categories)
	{
		if (Category->GetCategoryName() == Name)
		{
			Visitor(*Category);
			++Count;
		}
	}
	return Count;
}

TArray<FName> FLogCategoryRegistry::GetNames() const
{
	TArray<FName> Names;
	for (const FLogCategoryBase* const Category : Categories)
	{
		Names.AddUnique(Category->GetCategoryName());
	}
	Names.Sort([](const FName& A, const FName& B) { return A.ToString() < B.ToString(); });
	return Names;
}

namespace
{
void ListCategories(FOutputDevice& Ar)
{
	for (const FName& Name : FLogCategoryRegistry::Get().GetNames())
	{
		FLogCategoryRegistry::Get().ForEachOfName(Name,
			[&Ar](const FLogCategoryBase& Category)
			{ Ar.Logf(TEXT("%-40s %s"), *Category.GetCategoryName().ToString(), ToString(Category.GetVerbosity())); });
	}
}

void ExecuteLogCommand(const TArray<FString>& Args, FOutputDevice& Ar)
{
	if (Args.Num() == 1 && Args[0] == TEXT("List"))
	{
		ListCategories(Ar);
		return;
	}
	if (Args.Num() != 2)
	{
		Ar.Logf(ELogVerbosity::Warning,
			TEXT("Log: expected \"Log <Category> <Verbosity>\", \"Log <Category> Default\" or \"Log List\""));
		return;
	}

	const bool bReset = Args[1] == TEXT("Default");
	ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
	if (!bReset && !ParseLogVerbosityFromString(Args[1], Verbosity))
	{
		Ar.Logf(ELogVerbosity::Warning,
			TEXT("Log: unknown verbosity \"%s\", expected Off, Fatal, Error, Warning, Display, Log, Verbose, VeryVerbose, All or "
				 "Default"),
			*Args[1]);
		return;
	}

	const int32 Count = FLogCategoryRegistry::Get().ForEachOfName(FName(*Args[0]),
		[&](FLogCategoryBase& Category)
		{
			if (bReset)
			{
				Category.ResetVerbosity();
			}
			else
			{
				Category.SetVerbosity(Verbosity);
			}
			Ar.Logf(TEXT("%s: %s"), *Category.GetCategoryName().ToString(), ToString(Category.GetVerbosity()));
		});
	if (Count == 0)
	{
		Ar.Logf(ELogVerbosity::Warning, TEXT("Log: unknown category \"%s\", see \"Log List\""), *Args[0]);
	}
}

const FAutoConsoleCommand GLogCommand(TEXT("Log"),
	TEXT("Log <Category> <Verbosity> sets which lines of a category are written; Log List shows all categories"),
	FConsoleCommandWithArgsAndOutputDeviceDelegate::CreateStatic(&ExecuteLogCommand));
}
