#include "Misc/OutputDeviceFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "HAL/CrashHandler.h"
#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "Misc/DateTime.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/Paths.h"

namespace
{
const TCHAR* const GTimeFormat = TEXT("%Y.%m.%d-%H.%M.%S");

/** So many older files of a log are kept. */
constexpr int32 GMaxBackups = 10;

/** So many processes may write logs of one name; what more would there be to read? */
constexpr int32 GMaxWriters = 100;

FString MakeBackupName(const FString& Filename)
{
	const FString Stem = FPaths::GetBaseFilename(Filename, false) + TEXT("-backup-") +
		IFileManager::Get().GetTimeStamp(*Filename).ToString(GTimeFormat);
	const FString Extension = FPaths::GetExtension(Filename, true);
	FString Name = Stem + Extension;
	for (int32 Number = 2; FPaths::FileExists(Name); ++Number)
	{
		Name = Stem + FString::Printf(TEXT("_%02d"), Number) + Extension;
	}
	return Name;
}

void DeleteOldestBackups(const FString& Filename)
{
	TArray<FString> Backups;
	const FString Pattern = FPaths::GetBaseFilename(Filename, false) + TEXT("-backup-*") + FPaths::GetExtension(Filename, true);
	IFileManager::Get().FindFiles(Backups, *Pattern, true, false);
	// The order of names is that of time.
	Backups.Sort();
	for (int32 Index = 0; Index < Backups.Num() - GMaxBackups; ++Index)
	{
		IFileManager::Get().Delete(*(FPaths::GetPath(Filename) / Backups[Index]));
	}
}

/** What is no file, such as a terminal, is neither locked nor moved. */
bool IsFile(int Handle)
{
	struct stat Status;
	return fstat(Handle, &Status) == 0 && S_ISREG(Status.st_mode);
}

bool IsEmpty(int Handle)
{
	struct stat Status;
	return fstat(Handle, &Status) == 0 && Status.st_size == 0;
}

/** Whether an open file still has this name: another process may have moved it away since. */
bool HasName(int Handle, const std::string& NativePath)
{
	struct stat Open;
	struct stat Named;
	return fstat(Handle, &Open) == 0 && stat(NativePath.c_str(), &Named) == 0 && Open.st_dev == Named.st_dev &&
		Open.st_ino == Named.st_ino;
}

/** Opens an empty file for this process alone. An older file of that name becomes a backup. -1, with errno set, on failure. */
int OpenAlone(const FString& Filename)
{
	const std::string NativePath = ToNativePath(*Filename);
	for (;;)
	{
		const int Handle = open(NativePath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
		if (Handle == -1 || !IsFile(Handle))
		{
			return Handle;
		}
		// Where files cannot be locked, each writer believes itself alone.
		if (flock(Handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
		{
			close(Handle);
			errno = EWOULDBLOCK;
			return -1;
		}
		if (HasName(Handle, NativePath))
		{
			// An older log that cannot be moved is rather continued than lost.
			if (IsEmpty(Handle) || !IFileManager::Get().Move(*MakeBackupName(Filename), *Filename))
			{
				return Handle;
			}
		}
		close(Handle);
	}
}
}

FOutputDeviceFile::FOutputDeviceFile(const TCHAR* InFilename)
	: Filename(InFilename)
{
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	const FString Stem = FPaths::GetBaseFilename(Filename, false);
	const FString Extension = FPaths::GetExtension(Filename, true);
	Handle = OpenAlone(Filename);
	for (int32 Number = 2; Handle == -1 && errno == EWOULDBLOCK && Number <= GMaxWriters; ++Number)
	{
		Filename = Stem + FString::Printf(TEXT("_%d"), Number) + Extension;
		Handle = OpenAlone(Filename);
	}
	if (Handle != -1)
	{
		CrashLogs::Add(Handle);
	}
	DeleteOldestBackups(Filename);
	WriteLine(TEXT("Log file open, ") + FDateTime::Now().ToString(GTimeFormat));
}

FOutputDeviceFile::~FOutputDeviceFile()
{
	TearDown();
}

void FOutputDeviceFile::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, -1.0);
}

void FOutputDeviceFile::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time)
{
	if (Verbosity != ELogVerbosity::SetColor)
	{
		WriteLine(FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V, ELogTimes::UTC, Time));
	}
}

void FOutputDeviceFile::TearDown()
{
	WriteLine(TEXT("Log file closed, ") + FDateTime::Now().ToString(GTimeFormat));
	if (Handle != -1)
	{
		CrashLogs::Remove(Handle);
		close(Handle);
		Handle = -1;
	}
}

void FOutputDeviceFile::WriteLine(const FString& Line)
{
	// One write appends the line as a whole, whichever threads are writing.
	const std::string Bytes = ToUtf8(*(Line + LINE_TERMINATOR));
	if (Handle != -1)
	{
		WriteAll(Handle, Bytes.data(), Bytes.size());
	}
}
