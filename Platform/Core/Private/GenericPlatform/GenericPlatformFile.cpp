#include "GenericPlatform/GenericPlatformFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "CoreGlobals.h"
#include "HAL/NativePath.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogPlatformFile, Log, All);

namespace fs = std::filesystem;

namespace
{
struct FFileStatus
{
	struct stat Data = {};
	bool bExists;

	explicit FFileStatus(const TCHAR* Path)
		: bExists(stat(ToNativePath(Path).c_str(), &Data) == 0)
	{
	}

	bool IsDirectory() const { return bExists && S_ISDIR(Data.st_mode); }

	bool IsFile() const { return bExists && !S_ISDIR(Data.st_mode); }
};

/** Whether nobody may write the file, whoever runs the process, or this process may not. */
bool IsWriteProtected(const std::string& Path, mode_t Mode)
{
	return (Mode & 0222) == 0 || access(Path.c_str(), W_OK) != 0;
}

/** The name that a write must reach: behind a link its target, so that the link stays one. */
std::string ResolveLink(const std::string& Path)
{
	std::error_code Error;
	const fs::path Target = fs::is_symlink(Path, Error) ? fs::weakly_canonical(Path, Error) : fs::path(Path);
	return Error ? Path : Target.string();
}

/** A new file beside its destination that takes the destination's place at the end, or vanishes. */
class FReplacement
{
public:
	explicit FReplacement(const std::string& InDestination)
		: Destination(ResolveLink(InDestination))
		, Temporary(MakeTemporaryName(Destination))
	{
		struct stat Former;
		const bool bReplaces = stat(Destination.c_str(), &Former) == 0;
		if (bReplaces && (!S_ISREG(Former.st_mode) || IsWriteProtected(Destination, Former.st_mode)))
		{
			return;
		}
		Handle = open(Temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
		if (Handle != -1 && bReplaces)
		{
			fchmod(Handle, Former.st_mode & 07777);
		}
	}

	~FReplacement()
	{
		if (Handle != -1)
		{
			close(Handle);
			unlink(Temporary.c_str());
		}
	}

	int GetHandle() const { return Handle; }

	bool Commit()
	{
		if (fsync(Handle) != 0 || rename(Temporary.c_str(), Destination.c_str()) != 0)
		{
			return false;
		}
		close(Handle);
		Handle = -1;
		return true;
	}

private:
	static std::string MakeTemporaryName(const std::string& Destination)
	{
		static std::atomic<uint32> Counter = 0;
		const std::string Unique = ".kestrix-" + std::to_string(getpid()) + "-" + std::to_string(++Counter) + ".tmp";
		return fs::path(Destination).replace_filename(Unique).string();
	}

	const std::string Destination;
	const std::string Temporary;
	int Handle = -1;
};

/** Calls the sink with the bytes of an open file, piece by piece; false if reading or the sink fails. */
template <typename SinkType>
bool ReadAll(int Handle, SinkType Sink)
{
	TArray<uint8> Piece;
	Piece.SetNumUninitialized(1 << 16);
	for (;;)
	{
		const ssize_t Count = read(Handle, Piece.GetData(), static_cast<size_t>(Piece.Num()));
		if (Count == 0)
		{
			return true;
		}
		if (Count < 0 ? errno != EINTR : !Sink(Piece.GetData(), static_cast<int32>(Count)))
		{
			return false;
		}
	}
}

/** A file open for reading. Opening never waits, not for the writer of a pipe either. */
class FReadHandle
{
public:
	explicit FReadHandle(const TCHAR* Filename)
		: Handle(open(ToNativePath(Filename).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
	{
	}

	~FReadHandle()
	{
		if (Handle != -1)
		{
			close(Handle);
		}
	}

	operator int() const { return Handle; }

private:
	const int Handle;
};

using FVisitor = TFunctionRef<bool(const TCHAR* FilenameOrDirectory, bool bIsDirectory)>;

/** What tells one folder from another, whatever path leads to it. */
struct FFolderIdentity
{
	dev_t Device;
	ino_t Number;

	bool operator==(const FFolderIdentity& Other) const { return Device == Other.Device && Number == Other.Number; }
};

bool IterateFolders(IPlatformFile& Files, const FString& Directory, FVisitor Visitor, TArray<FFolderIdentity>& Enclosing)
{
	const FFileStatus Status(*Directory);
	const FFolderIdentity Identity = {Status.Data.st_dev, Status.Data.st_ino};
	if (Enclosing.Contains(Identity))
	{
		return true;
	}

	Enclosing.Push(Identity);
	const bool bDone = Files.IterateDirectory(*Directory,
		[&](const TCHAR* Name, bool bIsDirectory)
		{
			if (!Visitor(Name, bIsDirectory))
			{
				return false;
			}
			return !bIsDirectory || IterateFolders(Files, Name, Visitor, Enclosing) ||
				access(ToNativePath(Name).c_str(), R_OK | X_OK) != 0;
		});
	Enclosing.Pop();
	return bDone;
}
}

IPlatformFile& IPlatformFile::GetPlatformPhysical()
{
	static IPlatformFile Physical;
	return Physical;
}

bool IPlatformFile::FileExists(const TCHAR* Filename)
{
	return FFileStatus(Filename).IsFile();
}

bool IPlatformFile::DirectoryExists(const TCHAR* Directory)
{
	return FFileStatus(Directory).IsDirectory();
}

int64 IPlatformFile::FileSize(const TCHAR* Filename)
{
	const FFileStatus Status(Filename);
	return Status.IsFile() ? static_cast<int64>(Status.Data.st_size) : -1;
}

FDateTime IPlatformFile::GetTimeStamp(const TCHAR* Filename)
{
	const FFileStatus Status(Filename);
	return Status.bExists ? FDateTime::FromUnixTimestamp(Status.Data.st_mtime) : FDateTime::MinValue();
}

bool IPlatformFile::IsReadOnly(const TCHAR* Filename)
{
	const FFileStatus Status(Filename);
	return Status.IsFile() && IsWriteProtected(ToNativePath(Filename), Status.Data.st_mode);
}

bool IPlatformFile::SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue)
{
	const FFileStatus Status(Filename);
	const mode_t Mode = bNewReadOnlyValue ? Status.Data.st_mode & ~0222u : Status.Data.st_mode | 0200;
	return Status.IsFile() && chmod(ToNativePath(Filename).c_str(), Mode & 07777) == 0;
}

bool IPlatformFile::DeleteFile(const TCHAR* Filename)
{
	return FileExists(Filename) ? unlink(ToNativePath(Filename).c_str()) == 0 : false;
}

bool IPlatformFile::MoveFile(const TCHAR* To, const TCHAR* From)
{
	if (rename(ToNativePath(From).c_str(), ToNativePath(To).c_str()) == 0)
	{
		return true;
	}
	return errno == EXDEV && CopyFile(To, From) && DeleteFile(From);
}

bool IPlatformFile::CopyFile(const TCHAR* To, const TCHAR* From)
{
	const FReadHandle Source(From);
	struct stat Status;
	if (Source == -1 || fstat(Source, &Status) != 0 || !S_ISREG(Status.st_mode))
	{
		return false;
	}

	FReplacement Destination(ToNativePath(To));
	const int Handle = Destination.GetHandle();
	return Handle != -1 &&
		ReadAll(Source, [Handle](const uint8* Data, int32 Size) { return WriteAll(Handle, Data, static_cast<size_t>(Size)); }) &&
		Destination.Commit();
}

bool IPlatformFile::CreateDirectory(const TCHAR* Directory)
{
	return mkdir(ToNativePath(Directory).c_str(), 0777) == 0 || DirectoryExists(Directory);
}

bool IPlatformFile::CreateDirectoryTree(const TCHAR* Directory)
{
	std::error_code Error;
	fs::create_directories(ToNativePath(Directory), Error);
	return DirectoryExists(Directory);
}

bool IPlatformFile::DeleteDirectory(const TCHAR* Directory)
{
	return rmdir(ToNativePath(Directory).c_str()) == 0;
}

bool IPlatformFile::DeleteDirectoryRecursively(const TCHAR* Directory)
{
	FString Name(Directory);
	FPaths::NormalizeDirectoryName(Name);
	std::error_code Error;
	fs::remove_all(ToNativePath(*Name), Error);
	return !Error;
}

bool IPlatformFile::IterateDirectory(const TCHAR* Directory, FVisitor Visitor)
{
	const FString Start(Directory);
	DIR* const Handle = opendir(ToNativePath(Start.IsEmpty() ? TEXT(".") : Directory).c_str());
	if (!Handle)
	{
		return false;
	}

	bool bGoOn = true;
	while (const dirent* const Entry = bGoOn ? readdir(Handle) : nullptr)
	{
		if (strcmp(Entry->d_name, ".") == 0 || strcmp(Entry->d_name, "..") == 0)
		{
			continue;
		}
		const FString Name = Start / FromUtf8(Entry->d_name);
		const bool bTyped = Entry->d_type == DT_DIR || Entry->d_type == DT_REG;
		bGoOn = Visitor(*Name, bTyped ? Entry->d_type == DT_DIR : DirectoryExists(*Name));
	}
	closedir(Handle);
	return bGoOn;
}

bool IPlatformFile::IterateDirectoryRecursively(const TCHAR* Directory, FVisitor Visitor)
{
	TArray<FFolderIdentity> Enclosing;
	return IterateFolders(*this, Directory, Visitor, Enclosing);
}

bool IPlatformFile::CopyDirectoryTree(const TCHAR* DestinationDirectory, const TCHAR* Source, bool bOverwriteAllExisting)
{
	FString From(Source);
	FString To(DestinationDirectory);
	FPaths::NormalizeDirectoryName(From);
	FPaths::NormalizeDirectoryName(To);

	// Everything is listed before anything is written, so a destination within the source does not grow for ever.
	TArray<TPair<FString, bool>> Entries;
	const auto Collect = [&Entries](const TCHAR* Name, bool bIsDirectory)
	{
		Entries.Emplace(Name, bIsDirectory);
		return !bIsDirectory || access(ToNativePath(Name).c_str(), R_OK | X_OK) == 0;
	};
	if (!DirectoryExists(*From) || !IterateDirectoryRecursively(*From, Collect) || !CreateDirectoryTree(*To))
	{
		UE_LOG(LogPlatformFile, Warning, TEXT("Cannot copy the folder '%s' to '%s': %s"), *From, *To, *FString(strerror(errno)));
		return false;
	}

	for (const TPair<FString, bool>& Entry : Entries)
	{
		const FString Destination = To + Entry.Key.Mid(From.Len());
		const bool bKeep = !Entry.Value && !bOverwriteAllExisting && FileExists(*Destination);
		if (!bKeep && !(Entry.Value ? CreateDirectoryTree(*Destination) : CopyFile(*Destination, *Entry.Key)))
		{
			UE_LOG(LogPlatformFile, Warning, TEXT("Cannot copy '%s' to '%s': %s"), *Entry.Key, *Destination,
				*FString(strerror(errno)));
			return false;
		}
	}
	return true;
}

bool IPlatformFile::ReadFile(TArray<uint8>& Result, const TCHAR* Filename)
{
	// Only a regular file is known to end; a device may give bytes for ever.
	const FReadHandle Source(Filename);
	struct stat Status;
	if (Source == -1 || fstat(Source, &Status) != 0 || !S_ISREG(Status.st_mode) || Status.st_size > MAX_int32)
	{
		return false;
	}

	TArray<uint8> Bytes;
	Bytes.Reserve(static_cast<int32>(Status.st_size));
	const bool bRead = ReadAll(Source,
		[&Bytes](const uint8* Data, int32 Size)
		{
			if (Size > MAX_int32 - Bytes.Num())
			{
				return false;
			}
			Bytes.Append(Data, Size);
			return true;
		});
	if (bRead)
	{
		Result = MoveTemp(Bytes);
	}
	return bRead;
}

bool IPlatformFile::WriteFile(const uint8* Data, int64 Size, const TCHAR* Filename)
{
	if (!CreateDirectoryTree(*FPaths::GetPath(FPaths::ConvertRelativePathToFull(Filename))))
	{
		return false;
	}
	FReplacement Destination(ToNativePath(Filename));
	return Destination.GetHandle() != -1 && WriteAll(Destination.GetHandle(), Data, static_cast<size_t>(Size)) &&
		Destination.Commit();
}
