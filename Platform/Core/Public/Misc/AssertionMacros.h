#pragma once

#include "CoreTypes.h"

/** What a failed check does: message and call stack in the log, then the end of the process (or, for an ensure, going on). */
struct CORE_API FDebug
{
	/** Logs the failure with its call stack, runs the error handlers and ends the process. */
	[[noreturn]] static void CheckFailed(
		const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format = TEXT(""), ...);

	/** Logs the failure with its call stack. @return False, so that a caller can return it as the value of the condition. */
	static bool EnsureFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format = TEXT(""), ...);
};

#define checkCode(Code) \
	do \
	{ \
		Code; \
	} while (false)

#define check(Expression) \
	do \
	{ \
		if (UNLIKELY(!(Expression))) \
		{ \
			FDebug::CheckFailed(#Expression, __FILE__, __LINE__); \
		} \
	} while (false)

#define checkf(Expression, Format, ...) \
	do \
	{ \
		if (UNLIKELY(!(Expression))) \
		{ \
			FDebug::CheckFailed(#Expression, __FILE__, __LINE__, Format, ##__VA_ARGS__); \
		} \
	} while (false)

#define verify(Expression) check(Expression)
#define verifyf(Expression, Format, ...) checkf(Expression, Format, ##__VA_ARGS__)
#define checkSlow(Expression) ((void)sizeof(!(Expression)))
#define checkfSlow(Expression, Format, ...) ((void)sizeof(!(Expression)))
#define verifySlow(Expression) ((void)(Expression))

#define checkNoEntry() FDebug::CheckFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define checkNoReentry() \
	do \
	{ \
		static bool bBeenHere = false; \
		checkf(!bBeenHere, TEXT("Enclosing block was called more than once")); \
		bBeenHere = true; \
	} while (false)
#define unimplemented() FDebug::CheckFailed("Unimplemented function called", __FILE__, __LINE__)

/** The condition's value; a false one is reported the first time that it is met at this place. */
#define ensure(Expression) \
	(LIKELY(!!(Expression)) || \
		[](const ANSICHAR* Expr) \
		{ \
			static bool bReported = false; \
			return !bReported && (bReported = true) && FDebug::EnsureFailed(Expr, __FILE__, __LINE__); \
		}(#Expression))

#define ensureAlways(Expression) (LIKELY(!!(Expression)) || FDebug::EnsureFailed(#Expression, __FILE__, __LINE__))

#define ensureMsgf(Expression, Format, ...) \
	(LIKELY(!!(Expression)) || \
		[&](const ANSICHAR* Expr) \
		{ \
			static bool bReported = false; \
			return !bReported && (bReported = true) && FDebug::EnsureFailed(Expr, __FILE__, __LINE__, Format, ##__VA_ARGS__); \
		}(#Expression))

#define ensureAlwaysMsgf(Expression, Format, ...) \
	(LIKELY(!!(Expression)) || FDebug::EnsureFailed(#Expression, __FILE__, __LINE__, Format, ##__VA_ARGS__))
