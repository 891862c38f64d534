#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/**
 * Where things are, and the text of file names. Folders that these functions name end in "/". Paths stay as they are
 * written: no link is resolved, and only functions that say so look at the disk.
 */
class CORE_API FPaths
{
public:
	/** The folder of the running editor's own content and plugins. */
	static FString EngineDir();
	static FString EngineContentDir();
	static FString EnginePluginsDir();

	/** The folder of the project file; of the process's start when no project was set. */
	static FString ProjectDir();
	static FString ProjectContentDir();
	static FString ProjectConfigDir();
	static FString ProjectPluginsDir();
	static FString ProjectSavedDir();
	static FString ProjectLogDir();

	/** "<Project>/Saved/Screenshots/LinuxEditor/". */
	static FString ScreenShotDir();

	/** "<Project>/Saved/Config/LinuxEditor/", where changed settings are kept. */
	static FString GeneratedConfigDir();

	static bool IsProjectFilePathSet();
	static const FString& GetProjectFilePath();

	/** Names the .uproject file; its folder is ProjectDir() from now on. */
	static void SetProjectFilePath(const FString& NewGameProjectFilePath);

	/** The part behind the last dot of the file name, e.g. "json"; empty without one. */
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);

	/** The file name without folders, e.g. "Paint.json". */
	static FString GetCleanFilename(const FString& InPath);

	/** The file name without its last extension, by default without folders, e.g. "Paint". */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);

	/** The folder of a file name, without a slash at its end; empty without one. */
	static FString GetPath(const FString& InPath);

	/** Another last extension, given with or without its dot; a name without extension stays as it is. */
	static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);

	/** Whether there is such a file (not a folder). */
	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);

	/** False for what begins with "/", "\" or a drive letter and a colon. */
	static bool IsRelative(const FString& InPath);

	/** Turns "\" into "/". */
	static void NormalizeFilename(FString& InPath);

	/** Turns "\" into "/" and drops a "/" at the end, but for the root. */
	static void NormalizeDirectoryName(FString& InPath);

	/** Turns "//" into "/". */
	static void RemoveDuplicateSlashes(FString& InPath);

	/**
	 * Resolves ".." and "." in the text of a path.
	 *
	 * @return False, with the path left as it was, if ".." climbs above the root or the beginning of a relative path.
	 */
	static bool CollapseRelativeDirectories(FString& InPath);

	/**
	 * The absolute form of a path, taken against BasePath or, without it, against FPlatformProcess::BaseDir(). Doubled slashes
	 * are folded and "." and ".." resolved, so that equal places have equal texts as far as text can tell.
	 */
	static FString ConvertRelativePathToFull(const FString& InPath);
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);

	/**
	 * Makes a path relative to the folder of InRelativeTo, which counts as a file unless it ends in "/".
	 *
	 * @return False, with the path left as it was, if the two have no root in common.
	 */
	static bool MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo);

	/** Whether InPath is InDirectory or lies below it, both made full. */
	static bool IsUnderDirectory(const FString& InPath, const FString& InDirectory);

	/** Joins with exactly one "/" where neither side has one. */
	template <typename... PathTypes>
	static FString Combine(const FString& First, const PathTypes&... Others)
	{
		FString Result = First;
		((Result /= FString(Others)), ...);
		return Result;
	}
};
