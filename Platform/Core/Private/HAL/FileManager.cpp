#include "HAL/FileManager.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/Paths.h"

namespace
{
IPlatformFile& Files()
{
	return IPlatformFile::GetPlatformPhysical();
}

bool MakeFolderOf(const TCHAR* Filename)
{
	return Files().CreateDirectoryTree(*FPaths::GetPath(FPaths::ConvertRelativePathToFull(Filename)));
}
}

IFileManager& IFileManager::Get()
{
	static IFileManager Manager;
	return Manager;
}

bool IFileManager::FileExists(const TCHAR* Filename) const
{
	return Files().FileExists(Filename);
}

bool IFileManager::DirectoryExists(const TCHAR* Path) const
{
	return Files().DirectoryExists(Path);
}

int64 IFileManager::FileSize(const TCHAR* Filename) const
{
	return Files().FileSize(Filename);
}

FDateTime IFileManager::GetTimeStamp(const TCHAR* Path) const
{
	return Files().GetTimeStamp(Path);
}

bool IFileManager::MakeDirectory(const TCHAR* Path, bool Tree)
{
	return Tree ? Files().CreateDirectoryTree(Path) : Files().CreateDirectory(Path);
}

bool IFileManager::DeleteDirectory(const TCHAR* Path, bool RequireExists, bool Tree)
{
	if (!DirectoryExists(Path))
	{
		return !RequireExists;
	}
	return Tree ? Files().DeleteDirectoryRecursively(Path) : Files().DeleteDirectory(Path);
}

bool IFileManager::Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet)
{
	if (!FileExists(Filename))
	{
		return !RequireExists;
	}
	return (EvenReadOnly || !Files().IsReadOnly(Filename)) && Files().DeleteFile(Filename);
}

bool IFileManager::Move(const TCHAR* Dest, const TCHAR* Src, bool Replace)
{
	return (Replace || !FileExists(Dest)) && MakeFolderOf(Dest) && Files().MoveFile(Dest, Src);
}

uint32 IFileManager::Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace)
{
	return (Replace || !FileExists(Dest)) && MakeFolderOf(Dest) && Files().CopyFile(Dest, Src) ? COPY_OK : COPY_Fail;
}

void IFileManager::FindFiles(TArray<FString>& FileNames, const TCHAR* Wildcard, bool bFiles, bool bDirectories) const
{
	const FString Pattern = FPaths::GetCleanFilename(Wildcard);
	Files().IterateDirectory(*FString(Wildcard).LeftChop(Pattern.Len()),
		[&](const TCHAR* Name, bool bIsDirectory)
		{
			const FString CleanName = FPaths::GetCleanFilename(Name);
			if ((bIsDirectory ? bDirectories : bFiles) && CleanName.MatchesWildcard(Pattern))
			{
				FileNames.Add(CleanName);
			}
			return true;
		});
}

void IFileManager::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension) const
{
	FString Extension(FileExtension ? FileExtension : TEXT(""));
	Extension.RemoveFromStart(TEXT("."));
	FindFiles(
		FoundFiles, *(FString(Directory) / (Extension.IsEmpty() ? FString(TEXT("*")) : TEXT("*.") + Extension)), true, false);
}

void IFileManager::FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles,
	bool bDirectories, bool bClearFileNames) const
{
	if (bClearFileNames)
	{
		FileNames.Empty();
	}
	Files().IterateDirectoryRecursively(StartDirectory,
		[&](const TCHAR* Name, bool bIsDirectory)
		{
			if ((bIsDirectory ? bDirectories : bFiles) && FPaths::GetCleanFilename(Name).MatchesWildcard(Filename))
			{
				FileNames.Add(Name);
			}
			return true;
		});
}
