#include "Misc/OutputDeviceRedirector.h"

#include <mutex>

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "HAL/PlatformTime.h"

namespace
{
struct FLogLine
{
	FString Text;
	ELogVerbosity::Type Verbosity;
	FName Category;
	double Time;

	void SerializeTo(FOutputDevice& Device) const { Device.Serialize(*Text, Verbosity, Category, Time); }
};
}

struct FOutputDeviceRedirector::FState
{
	/** Guards all members. It is not held while a device of the game thread is called, which may log itself. */
	std::recursive_mutex Mutex;

	/** Changed by the game thread only. */
	TArray<FOutputDevice*> Devices;

	/** Lines of other threads that the devices of the game thread have not seen yet. */
	TArray<FLogLine> Waiting;

	TArray<FLogLine> Backlog;
	bool bKeepBacklog = true;

	void CallDevices(const FLogLine& Line, bool bMultipleThreads)
	{
		// A device may remove itself or others while it is called.
		const TArray<FOutputDevice*, TInlineAllocator<16>> Present(Devices);
		for (FOutputDevice* const Device : Present)
		{
			if (Devices.Contains(Device) && Device->CanBeUsedOnMultipleThreads() == bMultipleThreads)
			{
				Line.SerializeTo(*Device);
			}
		}
	}
};

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Globals log until the very end of the process, so it is never destroyed.
	static FOutputDeviceRedirector* const Redirector = new FOutputDeviceRedirector;
	return Redirector;
}

FOutputDeviceRedirector* GetGlobalLogSingleton()
{
	return FOutputDeviceRedirector::Get();
}

FOutputDeviceRedirector::FOutputDeviceRedirector()
	: State(MakeUnique<FState>())
{
}

FOutputDeviceRedirector::~FOutputDeviceRedirector() = default;

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	check(IsInGameThread());
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->Devices.AddUnique(OutputDevice);
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	check(IsInGameThread());
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->Devices.Remove(OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(FOutputDevice* OutputDevice) const
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	return State->Devices.Contains(OutputDevice);
}

void FOutputDeviceRedirector::SerializeBacklog(FOutputDevice* OutputDevice)
{
	TArray<FLogLine> Lines;
	{
		const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
		Lines = State->Backlog;
	}
	for (const FLogLine& Line : Lines)
	{
		Line.SerializeTo(*OutputDevice);
	}
}

void FOutputDeviceRedirector::EnableBacklog(bool bEnable)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->bKeepBacklog = bEnable;
	if (!bEnable)
	{
		State->Backlog.Empty();
	}
}

void FOutputDeviceRedirector::FlushThreadedLogs()
{
	if (!IsInGameThread())
	{
		return;
	}

	TArray<FLogLine> Lines;
	{
		const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
		Swap(Lines, State->Waiting);
	}
	for (const FLogLine& Line : Lines)
	{
		State->CallDevices(Line, false);
	}
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, -1.0);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time)
{
	const bool bGameThread = IsInGameThread();
	if (bGameThread)
	{
		FlushThreadedLogs();
	}

	const FLogLine Line{V, Verbosity, Category, Time < 0.0 ? FPlatformTime::Seconds() : Time};
	{
		const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
		if (State->bKeepBacklog)
		{
			State->Backlog.Add(Line);
		}
		State->CallDevices(Line, true);
		if (!bGameThread)
		{
			State->Waiting.Add(Line);
			return;
		}
	}
	State->CallDevices(Line, false);
}

void FOutputDeviceRedirector::Flush()
{
	FlushThreadedLogs();
	const TArray<FOutputDevice*> Present = State->Devices;
	for (FOutputDevice* const Device : Present)
	{
		Device->Flush();
	}
}

void FOutputDeviceRedirector::TearDown()
{
	Flush();
	TArray<FOutputDevice*> Former;
	{
		const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
		Swap(Former, State->Devices);
	}
	for (FOutputDevice* const Device : Former)
	{
		Device->TearDown();
	}
}

void FOutputDeviceRedirector::PanicFlush()
{
	// Another thread may have stopped with the lock in its hands.
	const std::unique_lock<std::recursive_mutex> Lock(State->Mutex, std::try_to_lock);
	if (!Lock)
	{
		return;
	}
	for (const FLogLine& Line : State->Waiting)
	{
		State->CallDevices(Line, false);
	}
	State->Waiting.Empty();
	for (FOutputDevice* const Device : State->Devices)
	{
		Device->Flush();
	}
}
