#include "HAL/PlatformProcess.h"

#include <dlfcn.h>
#include <link.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>
#include <chrono>
#include <thread>

#include "CoreGlobals.h"
#include "HAL/NativePath.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Paths.h"

namespace
{
const FString& GetExecutable()
{
	static const FString Executable = []
	{
		char Buffer[PATH_MAX];
		const ssize_t Length = readlink("/proc/self/exe", Buffer, sizeof(Buffer));
		return Length > 0 ? FromUtf8(std::string(Buffer, static_cast<size_t>(Length))) : FString();
	}();
	return Executable;
}

/** Starts the desktop's opener without waiting for it. False if there is none. */
bool OpenWithDesktop(const FString& Address)
{
	const std::string Argument = ToUtf8(*Address);
	const char* const Script = "command -v xdg-open >/dev/null || exit 1; xdg-open \"$1\" >/dev/null 2>&1 &";
	const char* const Arguments[] = {"sh", "-c", Script, "sh", Argument.c_str(), nullptr};

	pid_t Shell = 0;
	if (posix_spawn(&Shell, "/bin/sh", nullptr, nullptr, const_cast<char* const*>(Arguments), environ) != 0)
	{
		return false;
	}
	int Status = 0;
	return waitpid(Shell, &Status, 0) == Shell && WIFEXITED(Status) && WEXITSTATUS(Status) == 0;
}
}

const TCHAR* FPlatformProcess::BaseDir()
{
	static const FString Folder = FPaths::GetPath(GetExecutable()) + TEXT("/");
	return *Folder;
}

const TCHAR* FPlatformProcess::ExecutablePath()
{
	return *GetExecutable();
}

const TCHAR* FPlatformProcess::ExecutableName()
{
	static const FString Name = FPaths::GetCleanFilename(GetExecutable());
	return *Name;
}

const TCHAR* FPlatformProcess::GetModulePrefix()
{
	return TEXT("lib");
}

const TCHAR* FPlatformProcess::GetModuleExtension()
{
	return TEXT("so");
}

void FPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error)
{
	FString Address(URL);
	if (FCoreDelegates::ShouldLaunchUrl.IsBound() && !FCoreDelegates::ShouldLaunchUrl.Execute(Address))
	{
		if (Error)
		{
			*Error = TEXT("LaunchURL cancelled by delegate");
		}
		return;
	}

	if (!Address.Contains(TEXT("://")) && !Address.StartsWith(TEXT("mailto:")))
	{
		Address = TEXT("http://") + Address;
	}
	if (Parms)
	{
		Address += Parms;
	}
	if (!OpenWithDesktop(Address))
	{
		const FString Message = FString::Printf(TEXT("Cannot open '%s': xdg-open is not installed."), *Address);
		UE_LOG(LogCore, Warning, TEXT("%s"), *Message);
		if (Error)
		{
			*Error = Message;
		}
	}
}

void* FPlatformProcess::GetDllHandle(const TCHAR* Filename)
{
	return dlopen(ToNativePath(Filename).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
}

void* FPlatformProcess::GetDllExport(void* DllHandle, const TCHAR* ProcName)
{
	void* const Function = dlsym(DllHandle, ToUtf8(ProcName).c_str());

	// dlsym goes on to the libraries that this one depends on, and those may export the same name.
	link_map* Library = nullptr;
	Dl_info Info;
	const bool bOwn = Function && dlinfo(DllHandle, RTLD_DI_LINKMAP, &Library) == 0 && dladdr(Function, &Info) != 0 &&
		reinterpret_cast<uintptr_t>(Info.dli_fbase) == Library->l_addr;
	return bOwn ? Function : nullptr;
}

FString FPlatformProcess::GetDllError()
{
	const char* const Message = dlerror();
	return Message ? FromUtf8(Message) : FString();
}

void FPlatformProcess::Sleep(float Seconds)
{
	std::this_thread::sleep_for(std::chrono::duration<float>(Seconds));
}
