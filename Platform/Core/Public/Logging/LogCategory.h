#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/**
 * A named source of log lines with a verbosity that may change while the process runs. It registers itself under its
 * name when it is made, and unregisters itself in its destructor; several categories may share a name.
 */
struct CORE_API FLogCategoryBase
{
	/**
	 * @param CategoryName            Name in the log and for the console command "Log".
	 * @param InDefaultVerbosity      Verbosity to begin with.
	 * @param InCompileTimeVerbosity  Upper limit for any later verbosity.
	 */
	FLogCategoryBase(
		const FName& CategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);
	~FLogCategoryBase();

	FLogCategoryBase(const FLogCategoryBase&) = delete;
	FLogCategoryBase& operator=(const FLogCategoryBase&) = delete;

	FORCEINLINE bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const
	{
		return (VerbosityLevel & ELogVerbosity::VerbosityMask) > Verbosity;
	}

	FORCEINLINE const FName& GetCategoryName() const { return CategoryName; }

	FORCEINLINE ELogVerbosity::Type GetVerbosity() const { return Verbosity; }

	FORCEINLINE ELogVerbosity::Type GetCompileTimeVerbosity() const { return CompileTimeVerbosity; }

	/** Takes the verbosity, or the compile-time verbosity if that is lower. */
	void SetVerbosity(ELogVerbosity::Type NewVerbosity);

	/** Goes back to the verbosity the category was made with. */
	void ResetVerbosity();

private:
	ELogVerbosity::Type Verbosity;
	const ELogVerbosity::Type DefaultVerbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
	const FName CategoryName;
};

/** A category whose compile-time verbosity the compiler knows, so that lines above it cost nothing. */
template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	FORCEINLINE explicit FLogCategory(const FName& InCategoryName)
		: FLogCategoryBase(InCategoryName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
