#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** A receiver of log lines. */
class CORE_API FOutputDevice
{
public:
	FOutputDevice() = default;
	virtual ~FOutputDevice() = default;

	FOutputDevice(const FOutputDevice&) = delete;
	FOutputDevice& operator=(const FOutputDevice&) = delete;

	/**
	 * Receives one log call.
	 *
	 * @param V  The bare text, without time, category or verbosity; it may hold line breaks.
	 */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;

	/**
	 * As above, for a line that was written at another time.
	 *
	 * @param Time  Seconds of FPlatformTime::Seconds() at which the line was written, -1 for now.
	 */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time)
	{
		Serialize(V, Verbosity, Category);
	}

	/** Brings everything received so far to its destination. */
	virtual void Flush() {}

	/** Flushes and closes before the process ends. */
	virtual void TearDown() {}

	/** Whether Serialize may be called from several threads at a time. All other devices hear from the game thread only. */
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }

	void Log(const TCHAR* S);
	void Log(ELogVerbosity::Type Verbosity, const TCHAR* S);
	void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* S);

	/** Formats as FString::Printf does and logs at verbosity Log without a category. */
	void Logf(const TCHAR* Fmt, ...);
	void Logf(ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
	void CategorizedLogf(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
};
