#include "HAL/CrashHandler.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <execinfo.h>
#include <unistd.h>

#include "CoreGlobals.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformMisc.h"
#include "Misc/DateTime.h"

namespace
{
struct FDeadlySignal
{
	int Number;
	const char* Meaning;
};

constexpr FDeadlySignal GSignals[] = {
	{SIGSEGV, "SIGSEGV, memory that may not be used"},
	{SIGBUS, "SIGBUS, memory that is not there"},
	{SIGFPE, "SIGFPE, arithmetic without a result"},
	{SIGILL, "SIGILL, an instruction that does not exist"},
	{SIGABRT, "SIGABRT, an end by its own doing"},
};

constexpr int32 GMaxFrames = 100;

/** The handler itself, and what the system puts between it and the place that the signal interrupted. */
constexpr int32 GFramesOfHandler = 2;

/** A handler that gets stuck is ended after so many seconds. */
constexpr unsigned int GPatience = 10;

/** In bytes. The usual stack is no place for a handler: its end may be what the signal tells of. */
constexpr SIZE_T GStackSize = 256 * 1024;
alignas(16) uint8 GStack[GStackSize];

/** Handles plus one; 0 is a free place. */
constexpr int32 GMaxLogs = 8;
std::atomic<int> GLogs[GMaxLogs];

void Replace(int Former, int New)
{
	for (std::atomic<int>& Log : GLogs)
	{
		int Expected = Former;
		if (Log.compare_exchange_strong(Expected, New))
		{
			return;
		}
	}
}

/** One line, to the standard error output as it is and to the logs as an error. Allocates nothing and waits for nobody. */
void Say(const char* Format, ...) __attribute__((format(printf, 1, 2)));
void Say(const char* Format, ...)
{
	char Text[1024];
	va_list Args;
	va_start(Args, Format);
	vsnprintf(Text, sizeof(Text), Format, Args);
	va_end(Args);

	char Line[1200];
	const int Length = snprintf(Line, sizeof(Line), "%s\n", Text);
	WriteAll(STDERR_FILENO, Line, static_cast<size_t>(Length));

	const FDateTime Now = FDateTime::UtcNow();
	const int LogLength = snprintf(Line, sizeof(Line), "[%04d.%02d.%02d-%02d.%02d.%02d:%03d][%3llu]LogOutputDevice: Error: %s\n",
		Now.GetYear(), Now.GetMonth(), Now.GetDay(), Now.GetHour(), Now.GetMinute(), Now.GetSecond(), Now.GetMillisecond(),
		GFrameCounter % 1000, Text);
	for (const std::atomic<int>& Log : GLogs)
	{
		if (const int Handle = Log.load() - 1; Handle >= 0)
		{
			WriteAll(Handle, Line, static_cast<size_t>(LogLength));
		}
	}
}

/** Names stay as the linker knows them: making them readable takes memory. */
void SayFrame(void* Address)
{
	const uint64 Place = reinterpret_cast<uint64>(Address);
	Dl_info Info;
	if (!dladdr(Address, &Info))
	{
		Say("[Callstack] 0x%016llx", Place);
		return;
	}
	const char* const Slash = strrchr(Info.dli_fname, '/');
	const char* const Library = Slash ? Slash + 1 : Info.dli_fname;
	const uint64 Offset = Place - reinterpret_cast<uint64>(Info.dli_fbase);
	Say("[Callstack] 0x%016llx %s!%s [+0x%llx]", Place, Library, Info.dli_sname ? Info.dli_sname : "", Offset);
}

void SayWhat(int Signal, const siginfo_t& Info)
{
	const char* Meaning = "";
	for (const FDeadlySignal& Known : GSignals)
	{
		Meaning = Known.Number == Signal ? Known.Meaning : Meaning;
	}
	// Positive codes come from the hardware, and only then there is an address.
	if (Info.si_code > 0)
	{
		Say("Signal %d (%s) at 0x%016llx", Signal, Meaning, reinterpret_cast<uint64>(Info.si_addr));
		return;
	}
	Say("Signal %d (%s), sent by process %d", Signal, Meaning, static_cast<int>(Info.si_pid));
}

FORCENOINLINE void HandleDeadlySignal(int Signal, siginfo_t* Info, void*)
{
	static std::atomic<bool> bEnding = false;
	if (bEnding.exchange(true))
	{
		// Another thread is telling its story, and ends the process.
		sleep(GPatience);
	}
	signal(SIGALRM, SIG_DFL);
	alarm(GPatience);

	Say("=== Critical error: ===");
	SayWhat(Signal, *Info);
	void* Addresses[GMaxFrames];
	const int32 Count = backtrace(Addresses, GMaxFrames);
	for (int32 Index = GFramesOfHandler; Index < Count; ++Index)
	{
		SayFrame(Addresses[Index]);
	}
	// All is told. What other threads had to say takes memory, which may be what is broken.
	GLog->PanicFlush();
	// The signal has its usual effect again, once this function has returned.
	raise(Signal);
}
}

void CrashLogs::Add(int Handle)
{
	Replace(0, Handle + 1);
}

void CrashLogs::Remove(int Handle)
{
	Replace(Handle + 1, 0);
}

void FPlatformMisc::SetCrashHandler()
{
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
	// Its own report says more.
	return;
#endif
#endif
	// The first call loads a library, which takes memory.
	void* Address = nullptr;
	backtrace(&Address, 1);

	stack_t Stack = {};
	Stack.ss_sp = GStack;
	Stack.ss_size = GStackSize;
	sigaltstack(&Stack, nullptr);

	struct sigaction Action = {};
	Action.sa_sigaction = &HandleDeadlySignal;
	Action.sa_flags = SA_SIGINFO | SA_ONSTACK | static_cast<int>(SA_RESETHAND);
	for (const FDeadlySignal& Signal : GSignals)
	{
		sigaction(Signal.Number, &Action, nullptr);
	}
}
