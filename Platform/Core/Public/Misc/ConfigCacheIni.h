#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"

/** The values of a section by key, in the order of the text. A key that stands there several times has several values. */
using FConfigSection = TMap<FString, TArray<FString>>;

/** An ini file: its sections by name, in the order of the text. Names of sections and keys ignore case. */
class CORE_API FConfigFile
{
public:
	/** Whether it differs from what is on disk. */
	bool Dirty = false;

	/** Null if there is none. */
	const FConfigSection* FindSection(const TCHAR* Section) const;

	/** The last value of a key. False, with Value left as it was, if there is none. */
	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const;

	/** Replaces all values of a key, of which there must be at least one; the file is dirty if that changes anything. */
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values);

	/** Removes a key with all its values; false if there is none. */
	bool RemoveKey(const TCHAR* Section, const TCHAR* Key);

	/** Removes a section; false if there is none. */
	bool RemoveSection(const TCHAR* Section);

	/** Adds the lines of a text; each "Key=Value" adds one value. */
	void ProcessInputFileContents(const FString& Contents);

	/**
	 * Lays a text of defaults over what is there: "Key=" replaces, "+Key=" adds a value once, ".Key=" adds it in any case, "-Key="
	 * removes it and "!Key=" removes all values.
	 */
	void CombineFromBuffer(const FString& Contents);

	/** Replaces the values of each key that Other has. */
	void Overlay(const FConfigFile& Other);

	/** The text of the file, without the keys whose values are the same in Defaults. */
	FString Render(const FConfigFile& Defaults) const;

private:
	TMap<FString, FConfigSection> Sections;
};

/**
 * Ini files in memory. A file is read when it is first asked for by its full name, and kept: a change on disk is not seen until the
 * file was flushed out of the cache or unloaded. A getter that finds nothing returns false and leaves its output alone.
 *
 * Getters and setters take a name as it is written: another spelling is another entry. Flush and UnloadFile look for the normalised
 * name, and miss an entry under any other. So a name is to be normalised once, where it is made.
 */
class CORE_API FConfigCacheIni
{
public:
	/** Makes GConfig anew and names the engine's ini files of the project, which must be set. Unwritten changes are forgotten. */
	static void InitializeConfigSystem();

	/** The spelling by which files are known: "/" between folders, each once. */
	static FString NormalizeConfigIniPath(const FString& NonNormalizedPath);

	/** The file, read if it is not kept yet; null if it is neither kept nor on disk. */
	FConfigFile* Find(const FString& InFilename);

	/**
	 * Writes what was changed, of one file or of all. A file that cannot be written is kept, with a warning.
	 *
	 * @param bRemoveFromCache  Whether the files are dropped, so that the next read comes from disk.
	 */
	void Flush(bool bRemoveFromCache, const FString& Filename = FString());

	/** Drops a file without writing it. */
	void UnloadFile(const FString& Filename);

	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);

	/** All values of a key in their order. @return Their number; OutValues is emptied first. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename);

	/** The lines "Key=Value" of a section. */
	bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);
	bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	void SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename);
	void SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename);
	void SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename);

	/** Without values the key is removed. */
	void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);

	/** Removes a key with all its values; false if there is none. */
	bool RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	bool EmptySection(const TCHAR* Section, const FString& Filename);

private:
	/** Full name of an engine's ini file of the project; remembers the defaults below it. */
	FString AddProjectFile(const TCHAR* BaseName);

	/** What lies below a file: the project's defaults, or nothing. */
	FConfigFile LoadDefaults(const FString& FullName) const;

	FConfigFile& FindOrAdd(const FString& FullName);
	bool Write(const FString& FullName, FConfigFile& File) const;

	/** By full name. */
	TMap<FString, FConfigFile> Files;
	TMap<FString, FString> DefaultsOfFile;
};
