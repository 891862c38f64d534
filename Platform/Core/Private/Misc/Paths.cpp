#include "Misc/Paths.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"

namespace
{
FString& ProjectFilePath()
{
	static FString FilePath;
	return FilePath;
}

bool IsSlash(TCHAR Char)
{
	return Char == TEXT('/') || Char == TEXT('\\');
}

/** Where the file name of a path begins. */
int32 FindCleanFilename(const FString& Path)
{
	return Path.FindLastCharByPredicate(IsSlash) + 1;
}

/** Where the last extension begins, with its dot; INDEX_NONE without one. */
int32 FindExtension(const FString& Path)
{
	int32 Dot = INDEX_NONE;
	return Path.FindLastChar(TEXT('.'), Dot) && Dot >= FindCleanFilename(Path) ? Dot : INDEX_NONE;
}

FString WithSlash(FString Path)
{
	if (!Path.EndsWith(TEXT("/")))
	{
		Path += TEXT("/");
	}
	return Path;
}
}

FString FPaths::EngineDir()
{
	return TEXT(KESTRIX_ENGINE_DIR) TEXT("/");
}

FString FPaths::EngineContentDir()
{
	return EngineDir() + TEXT("Content/");
}

FString FPaths::EnginePluginsDir()
{
	return EngineDir() + TEXT("Plugins/");
}

FString FPaths::ProjectDir()
{
	if (!IsProjectFilePathSet())
	{
		return FPlatformProcess::BaseDir();
	}
	const FString Folder = GetProjectFilePath().Left(FindCleanFilename(GetProjectFilePath()));
	return Folder.IsEmpty() ? FString(TEXT("./")) : Folder;
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectLogDir()
{
	return ProjectSavedDir() + TEXT("Logs/");
}

FString FPaths::ScreenShotDir()
{
	return ProjectSavedDir() + TEXT("Screenshots/LinuxEditor/");
}

FString FPaths::GeneratedConfigDir()
{
	return ProjectSavedDir() + TEXT("Config/LinuxEditor/");
}

bool FPaths::IsProjectFilePathSet()
{
	return !ProjectFilePath().IsEmpty();
}

const FString& FPaths::GetProjectFilePath()
{
	return ProjectFilePath();
}

void FPaths::SetProjectFilePath(const FString& NewGameProjectFilePath)
{
	ProjectFilePath() = NewGameProjectFilePath;
	NormalizeFilename(ProjectFilePath());
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = FindExtension(InPath);
	return Dot == INDEX_NONE ? FString() : InPath.Mid(Dot + (bIncludeDot ? 0 : 1));
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(FindCleanFilename(InPath));
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const int32 Start = bRemovePath ? FindCleanFilename(InPath) : 0;
	const int32 Dot = FindExtension(InPath);
	return InPath.Mid(Start, (Dot == INDEX_NONE ? InPath.Len() : Dot) - Start);
}

FString FPaths::GetPath(const FString& InPath)
{
	return InPath.Left(FindCleanFilename(InPath) - 1);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 Dot = FindExtension(InPath);
	if (Dot == INDEX_NONE)
	{
		return InPath;
	}
	const FString Separator = InNewExtension.IsEmpty() || InNewExtension.StartsWith(TEXT(".")) ? TEXT("") : TEXT(".");
	return InPath.Left(Dot) + Separator + InNewExtension;
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}

bool FPaths::IsRelative(const FString& InPath)
{
	const bool bDrive = InPath.Len() >= 2 && InPath[1] == TEXT(':') && FChar::IsAlpha(InPath[0]);
	return !bDrive && (InPath.IsEmpty() || !IsSlash(InPath[0]));
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline(TEXT('\\'), TEXT('/'));
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	if (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")))
	{
		InPath.LeftChopInline(1);
	}
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	FString Result;
	Result.Reserve(InPath.Len());
	for (const TCHAR Char : InPath)
	{
		if (Char != TEXT('/') || Result.IsEmpty() || Result[Result.Len() - 1] != TEXT('/'))
		{
			Result += Char;
		}
	}
	InPath = MoveTemp(Result);
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	// Most paths have no such part.
	if (!InPath.StartsWith(TEXT(".")) && !InPath.Contains(TEXT("/.")))
	{
		return true;
	}

	TArray<FString> Parts;
	InPath.ParseIntoArray(Parts, TEXT("/"), false);

	TArray<FString> Kept;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		const FString& Part = Parts[Index];
		if (Part == TEXT(".."))
		{
			// The empty text before a leading slash is the root.
			if (Kept.IsEmpty() || Kept.Last().IsEmpty())
			{
				return false;
			}
			Kept.Pop();
		}
		else if (Part != TEXT("."))
		{
			Kept.Add(Part);
		}
	}
	InPath = FString::Join(Kept, TEXT("/"));
	return true;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(FPlatformProcess::BaseDir(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Full = IsRelative(InPath) ? BasePath / InPath : InPath;
	NormalizeFilename(Full);
	CollapseRelativeDirectories(Full);
	return Full.IsEmpty() ? FString(TEXT("/")) : Full;
}

bool FPaths::MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo)
{
	TArray<FString> Target;
	TArray<FString> Source;
	ConvertRelativePathToFull(InPath).ParseIntoArray(Target, TEXT("/"));
	ConvertRelativePathToFull(FString(InRelativeTo).EndsWith(TEXT("/")) ? InRelativeTo : GetPath(InRelativeTo))
		.ParseIntoArray(Source, TEXT("/"));
	if (Target.IsEmpty() || Source.IsEmpty() || Target[0] != Source[0])
	{
		return false;
	}

	int32 Common = 1;
	while (Common < Target.Num() && Common < Source.Num() && Target[Common] == Source[Common])
	{
		++Common;
	}

	TArray<FString> Parts;
	for (int32 Index = Common; Index < Source.Num(); ++Index)
	{
		Parts.Add(TEXT(".."));
	}
	Parts.Append(Target.GetData() + Common, Target.Num() - Common);
	InPath = FString::Join(Parts, TEXT("/"));
	return true;
}

bool FPaths::IsUnderDirectory(const FString& InPath, const FString& InDirectory)
{
	FString Directory = WithSlash(ConvertRelativePathToFull(InDirectory));
	FString Path = WithSlash(ConvertRelativePathToFull(InPath));
	RemoveDuplicateSlashes(Directory);
	RemoveDuplicateSlashes(Path);
	// A path that climbs above the root keeps its "..", and lies wherever the system takes it.
	return Path.StartsWith(Directory, ESearchCase::CaseSensitive) && !Path.Contains(TEXT("/../"));
}
