#pragma once

#include <type_traits>

#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"
#include "Templates/IsValidVariadicFunctionArg.h"

/** The functions behind the log macros. */
struct CORE_API FMsg
{
	/**
	 * Formats a line and hands it to GLog. A Fatal line is written with the call stack and ends the process.
	 *
	 * @param Fmt  Format as for FString::Printf; the arguments must match it.
	 */
	template <typename... Types>
	static void Logf(
		const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, Types... Args)
	{
		static_assert((... && TIsValidVariadicFunctionArg<Types>::Value), "Only numbers, enums and pointers can be printed");
		LogfImpl(File, Line, Category, Verbosity, Fmt, Args...);
	}

private:
	static void LogfImpl(
		const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
};

/** Declares a category for a header; DEFINE_LOG_CATEGORY in one source file defines it. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName \
		: public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

/** A category for one source file. */
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName \
		: public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

/** Whether a line of this verbosity would be written now. */
#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	(ELogVerbosity::Verbosity <= FLogCategory##CategoryName::CompileTimeVerbosity && \
		!CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

/** Writes one line; the arguments are not evaluated when the category suppresses it. */
#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	{ \
		static_assert(std::is_array_v<std::remove_reference_t<decltype(Format)>>, "The format must be a TEXT literal."); \
		if (ELogVerbosity::Verbosity == ELogVerbosity::Fatal || UE_LOG_ACTIVE(CategoryName, Verbosity)) \
		{ \
			FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity, Format, ##__VA_ARGS__); \
		} \
	}

/** As UE_LOG, if the condition holds. */
#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	{ \
		if (Condition) \
		{ \
			UE_LOG(CategoryName, Verbosity, Format, ##__VA_ARGS__) \
		} \
	}
