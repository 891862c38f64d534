#include "Misc/AssertionMacros.h"

#include <csignal>
#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <unistd.h>

#include <atomic>

#include "Containers/Array.h"
#include "CoreGlobals.h"
#include "HAL/NativePath.h"
#include "Misc/CoreDelegates.h"
#include "Misc/FatalError.h"
#include "Misc/FormatVarArgs.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogOutputDevice, Log, All);

namespace
{
constexpr int32 GMaxFrames = 100;

FString DescribeFrame(void* Address)
{
	const uint64 Place = reinterpret_cast<uint64>(Address);
	Dl_info Info;
	if (!dladdr(Address, &Info))
	{
		return FString::Printf(TEXT("0x%016llx"), Place);
	}

	const FString Library = FPaths::GetCleanFilename(FromUtf8(Info.dli_fname));
	const uint64 Offset = Place - reinterpret_cast<uint64>(Info.dli_fbase);
	if (!Info.dli_sname)
	{
		return FString::Printf(TEXT("0x%016llx %s!+0x%llx"), Place, *Library, Offset);
	}

	char* const Readable = abi::__cxa_demangle(Info.dli_sname, nullptr, nullptr, nullptr);
	const FString Function = FromUtf8(Readable ? Readable : Info.dli_sname);
	free(Readable);
	return FString::Printf(TEXT("0x%016llx %s!%s [+0x%llx]"), Place, *Library, *Function, Offset);
}

/** The callers of this function, from the inside out. */
FORCENOINLINE TArray<FString> CaptureCallStack()
{
	void* Addresses[GMaxFrames];
	const int32 Count = backtrace(Addresses, GMaxFrames);

	TArray<FString> Frames;
	for (int32 Index = 1; Index < Count; ++Index)
	{
		Frames.Add(TEXT("[Callstack] ") + DescribeFrame(Addresses[Index]));
	}
	return Frames;
}

FString FormatFailure(const TCHAR* Kind, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const FString& Message)
{
	return FString::Printf(TEXT("%s: %s [File:%s] [Line: %i] \n%s"), Kind, *FromUtf8(Expr), *FromUtf8(File), Line, *Message);
}
}

void EndProcessByError(const FString& Message)
{
	// A failure while another one is being handled, here or on another thread, must not begin anew.
	static std::atomic<bool> bEnding = false;
	// What the signal would tell is told here.
	signal(SIGABRT, SIG_DFL);
	if (bEnding.exchange(true))
	{
		abort();
	}

	FString Report = Message + LINE_TERMINATOR;
	UE_LOG(LogOutputDevice, Error, TEXT("=== Critical error: ==="));
	UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Message);
	for (const FString& Frame : CaptureCallStack())
	{
		UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Frame);
		Report += Frame + LINE_TERMINATOR;
	}
	GLog->PanicFlush();

	const std::string Bytes = ToUtf8(*Report);
	WriteAll(STDERR_FILENO, Bytes.data(), Bytes.size());

	if (IsInGameThread())
	{
		FCoreDelegates::OnHandleSystemError.Broadcast();
		GLog->PanicFlush();
	}
	abort();
}

void FDebug::CheckFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = FormatVarArgs(Format, Args);
	va_end(Args);

	EndProcessByError(FormatFailure(TEXT("Assertion failed"), Expr, File, Line, Message));
}

bool FDebug::EnsureFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = FormatVarArgs(Format, Args);
	va_end(Args);

	UE_LOG(LogOutputDevice, Error, TEXT("=== Handled ensure: ==="));
	UE_LOG(LogOutputDevice, Error, TEXT("%s"), *FormatFailure(TEXT("Ensure condition failed"), Expr, File, Line, Message));
	for (const FString& Frame : CaptureCallStack())
	{
		UE_LOG(LogOutputDevice, Error, TEXT("%s"), *Frame);
	}
	return false;
}
