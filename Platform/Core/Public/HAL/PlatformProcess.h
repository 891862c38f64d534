#pragma once

#include "Containers/UnrealString.h"

/** The process and what it may start. */
struct CORE_API FPlatformProcess
{
	/** The folder of the executable, with a slash at its end. */
	static const TCHAR* BaseDir();

	/** Full name of the executable. */
	static const TCHAR* ExecutablePath();

	/** Name of the executable, without its folder. */
	static const TCHAR* ExecutableName();

	/** What stands before the name of a module and, behind a dot, after it in the name of its library: "lib" and "so". */
	static const TCHAR* GetModulePrefix();
	static const TCHAR* GetModuleExtension();

	/**
	 * Opens an address in the user's browser, unless FCoreDelegates::ShouldLaunchUrl forbids it.
	 *
	 * @param URL    Without a scheme it is taken as a web address.
	 * @param Parms  Text to append to the address; may be null.
	 * @param Error  Receives what went wrong, if it is not null.
	 */
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);

	/** Loads a library; null on failure, which GetDllError tells. It stays mapped until the process ends. */
	static void* GetDllHandle(const TCHAR* Filename);

	/** A function that this very library (not one that it depends on) exports; null if it does not. */
	static void* GetDllExport(void* DllHandle, const TCHAR* ProcName);

	/** Why the last GetDllHandle failed. */
	static FString GetDllError();

	/** Lets the calling thread rest. */
	static void Sleep(float Seconds);
};
