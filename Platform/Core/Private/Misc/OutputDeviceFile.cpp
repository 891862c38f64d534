#include "Misc/OutputDeviceFile.h"

#include <fcntl.h>
#include <unistd.h>

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "Misc/DateTime.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/Paths.h"

namespace
{
const TCHAR* const GTimeFormat = TEXT("%Y.%m.%d-%H.%M.%S");

void KeepOlderFile(const FString& Filename)
{
	if (IFileManager::Get().FileSize(*Filename) <= 0)
	{
		return;
	}
	const FString Suffix = TEXT("-backup-") + IFileManager::Get().GetTimeStamp(*Filename).ToString(GTimeFormat);
	IFileManager::Get().Move(
		*(FPaths::GetBaseFilename(Filename, false) + Suffix + FPaths::GetExtension(Filename, true)), *Filename);
}
}

FOutputDeviceFile::FOutputDeviceFile(const TCHAR* InFilename)
	: Filename(InFilename)
{
	KeepOlderFile(Filename);
	IFileManager::Get().MakeDirectory(*FPaths::GetPath(Filename), true);
	Handle = open(ToNativePath(InFilename).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
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
