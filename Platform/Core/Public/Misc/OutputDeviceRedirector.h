#pragma once

#include "Misc/OutputDevice.h"
#include "Templates/UniquePtr.h"

/**
 * Hands every line to all its devices. Lines of the game thread arrive at once; lines of other threads arrive at once at
 * the devices that can be used on multiple threads, and at all others on the game thread, before its next line or flush.
 *
 * From the start of the process all lines are kept in a backlog, until it is switched off.
 */
class CORE_API FOutputDeviceRedirector final : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	/** Adds a device, which stays the caller's and must be removed before it is destroyed. Adding it twice changes nothing. */
	void AddOutputDevice(FOutputDevice* OutputDevice);
	void RemoveOutputDevice(FOutputDevice* OutputDevice);
	bool IsRedirectingTo(FOutputDevice* OutputDevice) const;

	/** Replays the lines of the backlog into one device. */
	void SerializeBacklog(FOutputDevice* OutputDevice);

	/** Keeps or drops the lines from now on; switching off also forgets what is kept. */
	void EnableBacklog(bool bEnable);

	/** Delivers what other threads wrote. On any other than the game thread it does nothing. */
	void FlushThreadedLogs();

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time) override;
	virtual void Flush() override;

	/** Flushes, tears all devices down and removes them. */
	virtual void TearDown() override;

	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

	/** Before the process ends by a failure on whichever thread: delivers and flushes everything without waiting for the game thread. */
	void PanicFlush();

private:
	FOutputDeviceRedirector();
	virtual ~FOutputDeviceRedirector() override;

	struct FState;
	TUniquePtr<FState> State;
};

CORE_API FOutputDeviceRedirector* GetGlobalLogSingleton();

/** The log of the process. */
#define GLog GetGlobalLogSingleton()
