#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"
#include "Templates/Function.h"

/** The file system. A relative name is taken against FPlatformProcess::BaseDir(). */
class CORE_API IPlatformFile
{
public:
	/** The file system of the machine. */
	static IPlatformFile& GetPlatformPhysical();

	bool FileExists(const TCHAR* Filename);
	bool DirectoryExists(const TCHAR* Directory);

	/** Size in bytes; -1 for a missing file. */
	int64 FileSize(const TCHAR* Filename);

	/** Time of the last change in UTC, in whole seconds; FDateTime::MinValue() for a missing file. */
	FDateTime GetTimeStamp(const TCHAR* Filename);

	bool IsReadOnly(const TCHAR* Filename);
	bool SetReadOnly(const TCHAR* Filename, bool bNewReadOnlyValue);

	bool DeleteFile(const TCHAR* Filename);

	/** Renames a file or folder, also across file systems for a file. An existing destination file is replaced. */
	bool MoveFile(const TCHAR* To, const TCHAR* From);

	/** Copies the bytes of a file. An existing destination file is replaced, at once and only if all went well. */
	bool CopyFile(const TCHAR* To, const TCHAR* From);

	bool CreateDirectory(const TCHAR* Directory);

	/** Makes a folder with its missing parents; true if it is there afterwards. */
	bool CreateDirectoryTree(const TCHAR* Directory);

	/** Deletes an empty folder. */
	bool DeleteDirectory(const TCHAR* Directory);

	/** Deletes a folder with all that is in it. Links are removed, never followed. */
	bool DeleteDirectoryRecursively(const TCHAR* Directory);

	/**
	 * Calls the visitor for each entry of a folder with the entry's name, which begins with Directory. Stops when it answers false.
	 *
	 * @return False if the folder cannot be read or the visitor stopped.
	 */
	bool IterateDirectory(
		const TCHAR* Directory, TFunctionRef<bool(const TCHAR* FilenameOrDirectory, bool bIsDirectory)> Visitor);

	/** As above, and then for each entry of the folders below. Links are followed, but not into a folder that encloses them. */
	bool IterateDirectoryRecursively(
		const TCHAR* Directory, TFunctionRef<bool(const TCHAR* FilenameOrDirectory, bool bIsDirectory)> Visitor);

	/**
	 * Copies all that is in a folder; the destination comes first and is made when missing.
	 *
	 * @param bOverwriteAllExisting  Whether files that are there already are replaced; otherwise they stay.
	 * @return False, after a log line that names it, at the first file that could not be copied.
	 */
	bool CopyDirectoryTree(const TCHAR* DestinationDirectory, const TCHAR* Source, bool bOverwriteAllExisting);

	/** Reads a whole file. False, with Result left as it was, if it cannot be read. */
	bool ReadFile(TArray<uint8>& Result, const TCHAR* Filename);

	/**
	 * Writes a whole file and makes missing folders: a temporary neighbour is written, synchronised and renamed, so that either all of it
	 * is there or nothing changed. A link keeps being one. A write-protected file stays as it is.
	 */
	bool WriteFile(const uint8* Data, int64 Size, const TCHAR* Filename);
};
