#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"

/** What IFileManager::Copy answers. */
enum ECopyResult : uint32
{
	COPY_OK,
	COPY_Fail,
};

/** Files and folders by name. A relative name is taken against FPlatformProcess::BaseDir(). */
class CORE_API IFileManager
{
public:
	static IFileManager& Get();

	/** Whether there is such a file (not a folder). */
	bool FileExists(const TCHAR* Filename) const;
	bool DirectoryExists(const TCHAR* Path) const;

	/** Size in bytes; -1 for a missing file. */
	int64 FileSize(const TCHAR* Filename) const;

	/** Time of the last change in UTC, in whole seconds; FDateTime::MinValue() for a missing file. */
	FDateTime GetTimeStamp(const TCHAR* Path) const;

	/** @param Tree  Whether missing parents are made too. @return True also if the folder was there already. */
	bool MakeDirectory(const TCHAR* Path, bool Tree = false);

	/**
	 * @param RequireExists  Whether a missing folder counts as a failure.
	 * @param Tree           Whether what is in it goes with it; otherwise the folder must be empty. A link is removed, never followed.
	 */
	bool DeleteDirectory(const TCHAR* Path, bool RequireExists = false, bool Tree = false);

	/** @param EvenReadOnly  Whether a write-protected file is deleted too. */
	bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false);

	/** Moves a file or a folder; the destination comes first. Missing folders of the destination are made. */
	bool Move(const TCHAR* Dest, const TCHAR* Src, bool Replace = true);

	/** Copies a file; the destination comes first. Missing folders of the destination are made. */
	uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace = true);

	/** The clean names of what a pattern matches; "*" and "?" may stand in the part behind the last "/", in any case of letters. */
	void FindFiles(TArray<FString>& FileNames, const TCHAR* Wildcard, bool Files, bool Directories) const;

	/** The clean names of the files of one folder, those with an extension only if one is given. */
	void FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension = nullptr) const;

	/**
	 * Everything below a folder whose clean name matches a pattern with "*" and "?", in any case of letters.
	 *
	 * @param FileNames        Receives names that begin with StartDirectory, in no particular order.
	 * @param bClearFileNames  Whether what is in FileNames goes first.
	 */
	void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files,
		bool Directories, bool bClearFileNames = true) const;
};
