#include "Misc/ConfigCacheIni.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogConfig, Log, All);

void FConfigCacheIni::InitializeConfigSystem()
{
	delete GConfig;
	GConfig = new FConfigCacheIni;
	GEngineIni = GConfig->AddProjectFile(TEXT("Engine"));
	GEditorIni = GConfig->AddProjectFile(TEXT("Editor"));
	GEditorPerProjectIni = GConfig->AddProjectFile(TEXT("EditorPerProjectUserSettings"));
}

FString FConfigCacheIni::AddProjectFile(const TCHAR* BaseName)
{
	const FString FullName =
		NormalizeConfigIniPath(FPaths::ConvertRelativePathToFull(FPaths::GeneratedConfigDir() + BaseName + TEXT(".ini")));
	DefaultsOfFile.Add(FullName, FPaths::ProjectConfigDir() + TEXT("Default") + BaseName + TEXT(".ini"));
	return FullName;
}

FConfigFile FConfigCacheIni::LoadDefaults(const FString& FullName) const
{
	FConfigFile Defaults;
	FString Text;
	const FString* const Filename = DefaultsOfFile.Find(FullName);
	if (Filename && FFileHelper::LoadFileToString(Text, **Filename))
	{
		Defaults.CombineFromBuffer(Text);
	}
	return Defaults;
}

FString FConfigCacheIni::NormalizeConfigIniPath(const FString& NonNormalizedPath)
{
	FString Path = NonNormalizedPath;
	FPaths::NormalizeFilename(Path);
	FPaths::RemoveDuplicateSlashes(Path);
	return Path;
}

FConfigFile* FConfigCacheIni::Find(const FString& InFilename)
{
	const bool bKnown = Files.Contains(InFilename) || DefaultsOfFile.Contains(InFilename) || FPaths::FileExists(InFilename);
	return bKnown ? &FindOrAdd(InFilename) : nullptr;
}

FConfigFile& FConfigCacheIni::FindOrAdd(const FString& FullName)
{
	if (FConfigFile* const Kept = Files.Find(FullName))
	{
		return *Kept;
	}

	FConfigFile File = LoadDefaults(FullName);
	FString Text;
	if (FFileHelper::LoadFileToString(Text, *FullName))
	{
		FConfigFile Saved;
		Saved.ProcessInputFileContents(Text);
		File.Overlay(Saved);
	}
	return Files.Add(FullName, MoveTemp(File));
}

bool FConfigCacheIni::Write(const FString& FullName, FConfigFile& File) const
{
	if (!File.Dirty)
	{
		return true;
	}

	const FString Text = File.Render(LoadDefaults(FullName));
	if (!FFileHelper::SaveStringToFile(Text, *FullName, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM))
	{
		UE_LOG(LogConfig, Warning, TEXT("Cannot write the settings file '%s'; the changes are kept in memory."), *FullName);
		return false;
	}
	File.Dirty = false;
	return true;
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	const FString FullName = NormalizeConfigIniPath(Filename);
	for (auto It = Files.CreateIterator(); It; ++It)
	{
		const bool bAsked = FullName.IsEmpty() || It.Key() == FullName;
		if (bAsked && Write(It.Key(), It.Value()) && bRemoveFromCache)
		{
			It.RemoveCurrent();
		}
	}
}

void FConfigCacheIni::UnloadFile(const FString& Filename)
{
	Files.Remove(NormalizeConfigIniPath(Filename));
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename);
	return File && File->GetString(Section, Key, Value);
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	if (bFound)
	{
		Value = FCString::Atoi(*Text);
	}
	return bFound;
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	if (bFound)
	{
		Value = FCString::Atof(*Text);
	}
	return bFound;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	FString Text;
	const bool bFound = GetString(Section, Key, Text, Filename);
	if (bFound)
	{
		Value = FCString::ToBool(*Text);
	}
	return bFound;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename)
{
	OutValues.Empty();
	const FConfigFile* const File = Find(Filename);
	const FConfigSection* const Found = File ? File->FindSection(Section) : nullptr;
	if (const TArray<FString>* const Values = Found ? Found->Find(Key) : nullptr)
	{
		OutValues = *Values;
	}
	return OutValues.Num();
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename);
	const FConfigSection* const Found = File ? File->FindSection(Section) : nullptr;
	if (!Found)
	{
		return false;
	}

	Result.Empty();
	for (const TPair<FString, TArray<FString>>& Key : *Found)
	{
		for (const FString& Value : Key.Value)
		{
			Result.Add(Key.Key + TEXT("=") + Value);
		}
	}
	return true;
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename);
	return File && File->FindSection(Section);
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	FindOrAdd(Filename).SetArray(Section, Key, {Value});
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::FromInt(Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), static_cast<double>(Value)), Filename);
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	if (Value.IsEmpty())
	{
		RemoveKey(Section, Key, Filename);
		return;
	}
	FindOrAdd(Filename).SetArray(Section, Key, Value);
}

bool FConfigCacheIni::RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	return File && File->RemoveKey(Section, Key);
}

bool FConfigCacheIni::EmptySection(const TCHAR* Section, const FString& Filename)
{
	FConfigFile* const File = Find(Filename);
	return File && File->RemoveSection(Section);
}
