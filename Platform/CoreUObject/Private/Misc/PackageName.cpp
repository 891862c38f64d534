#include "Misc/PackageName.h"

#include "Containers/Array.h"
#include "HAL/FileManager.h"
#include "Internationalization/Text.h"
#include "Misc/Paths.h"

namespace
{
struct FMountPoint
{
	FString Root;
	FString Folder;
};

TArray<FMountPoint>& MountPoints()
{
	static TArray<FMountPoint>& Points = *new TArray<FMountPoint>;
	return Points;
}

/** Both with one "/" at their ends, so that "/Game" is not taken for the root of "/GameOver/X". */
FString WithSlash(const FString& Text)
{
	return Text.EndsWith(TEXT("/")) ? Text : Text + TEXT("/");
}

/** In one spelling, so that names are found by their texts. */
FString FullName(const FString& Path)
{
	FString Full = FPaths::ConvertRelativePathToFull(Path);
	FPaths::RemoveDuplicateSlashes(Full);
	return Full;
}

FString FullFolder(const FString& Path)
{
	return WithSlash(FullName(Path));
}

bool Refuse(FText* OutReason, const FString& Reason)
{
	if (OutReason)
	{
		*OutReason = FText::FromString(Reason);
	}
	return false;
}
}

void FPackageName::RegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	TArray<FMountPoint>& Points = MountPoints();
	const FMountPoint Point{WithSlash(RootPath), FullFolder(ContentPath)};
	int32 Index = 0;
	while (Index < Points.Num() && Points[Index].Root.Len() > Point.Root.Len())
	{
		++Index;
	}
	Points.Insert(Point, Index);
}

void FPackageName::UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath)
{
	const FString Root = WithSlash(RootPath);
	const FString Folder = FullFolder(ContentPath);
	MountPoints().RemoveAll([&](const FMountPoint& Point) { return Point.Root == Root && Point.Folder == Folder; });
}

bool FPackageName::MountPointExists(const FString& RootPath)
{
	const FString Root = WithSlash(RootPath);
	return MountPoints().ContainsByPredicate([&Root](const FMountPoint& Point) { return Point.Root == Root; });
}

bool FPackageName::TryConvertLongPackageNameToFilename(
	const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	for (const FMountPoint& Point : MountPoints())
	{
		if (InLongPackageName.StartsWith(Point.Root))
		{
			OutFilename = Point.Folder + InLongPackageName.RightChop(Point.Root.Len()) + InExtension;
			return true;
		}
	}
	return false;
}

bool FPackageName::TryConvertFilenameToLongPackageName(
	const FString& InFilename, FString& OutPackageName, FString* OutFailureReason)
{
	const FString Filename = FullName(InFilename);
	for (const FMountPoint& Point : MountPoints())
	{
		if (Filename.StartsWith(Point.Folder))
		{
			const FString Relative = Filename.RightChop(Point.Folder.Len());
			const FString Directory = FPaths::GetPath(Relative);
			OutPackageName =
				Point.Root + (Directory.IsEmpty() ? FString() : Directory + TEXT("/")) + FPaths::GetBaseFilename(Relative);
			return true;
		}
	}
	if (OutFailureReason)
	{
		*OutFailureReason = FString::Printf(TEXT("'%s' lies in no mounted folder"), *InFilename);
	}
	return false;
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, FString* OutFilename)
{
	if (!IsValidLongPackageName(LongPackageName, true))
	{
		return false;
	}
	for (const FString& Extension : {GetAssetPackageExtension(), GetMapPackageExtension()})
	{
		FString Filename;
		if (TryConvertLongPackageNameToFilename(LongPackageName, Filename, Extension) &&
			IFileManager::Get().FileExists(*Filename))
		{
			if (OutFilename)
			{
				*OutFilename = Filename;
			}
			return true;
		}
	}
	return false;
}

bool FPackageName::IsValidLongPackageName(const FString& InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	if (!InLongPackageName.StartsWith(TEXT("/")))
	{
		return Refuse(OutReason, TEXT("The name does not begin with '/'"));
	}
	if (InLongPackageName.EndsWith(TEXT("/")) || InLongPackageName.Contains(TEXT("//")))
	{
		return Refuse(OutReason, TEXT("The name has an empty part"));
	}
	int32 Index = INDEX_NONE;
	for (const TCHAR* Invalid = TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#"); *Invalid; ++Invalid)
	{
		if (InLongPackageName.FindChar(*Invalid, Index))
		{
			return Refuse(OutReason, FString::Printf(TEXT("The name has the invalid character '%c'"), *Invalid));
		}
	}
	FString Filename;
	if (!TryConvertLongPackageNameToFilename(InLongPackageName, Filename))
	{
		return Refuse(OutReason, TEXT("The name begins with no mounted root"));
	}
	return true;
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 Slash = INDEX_NONE;
	return LongName.FindLastChar(u'/', Slash) ? LongName.RightChop(Slash + 1) : LongName;
}

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 Slash = INDEX_NONE;
	return InLongPackageName.FindLastChar(u'/', Slash) ? InLongPackageName.Left(Slash) : InLongPackageName;
}

FString FPackageName::ObjectPathToPackageName(const FString& InObjectPath)
{
	int32 Dot = INDEX_NONE;
	return InObjectPath.FindChar(u'.', Dot) ? InObjectPath.Left(Dot) : InObjectPath;
}

FString FPackageName::ObjectPathToObjectName(const FString& InObjectPath)
{
	const int32 End = InObjectPath.FindLastCharByPredicate([](TCHAR Char) { return Char == u'.' || Char == u':'; });
	return InObjectPath.RightChop(End + 1);
}

const FString& FPackageName::GetAssetPackageExtension()
{
	static const FString Extension(TEXT(".uasset"));
	return Extension;
}

const FString& FPackageName::GetMapPackageExtension()
{
	static const FString Extension(TEXT(".umap"));
	return Extension;
}
