#include "Velmora/DescriptionText.h"

#include "HAL/FileManager.h"
#include "KestrixLog.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

FString FDescriptionText::DescribePlace(int32 LineOfText) const
{
	if (Places.Num() == 0)
	{
		return Files.Num() > 0 ? Files[0] : FString();
	}
	const FDescriptionPlace& Place = Places[FMath::Clamp(LineOfText - 1, 0, Places.Num() - 1)];
	return FString::Printf(TEXT("%s:%d"), *Files[Place.File], Place.Line);
}

namespace
{
const FString CommentMark = TEXT("//");
const FString InclusionMark = TEXT("\"ExternalJson\":");

/**
 * The text between the first two double quotes behind the inclusion mark, or what there is of it. A null character ends it: the file
 * system reads no further, and two names of one file must not look different.
 */
FString ReadIncludedName(const FString& Line, int32 MarkPosition)
{
	const FString Rest = Line.Mid(MarkPosition + InclusionMark.Len());
	int32 First = INDEX_NONE;
	if (!Rest.FindChar(TEXT('"'), First))
	{
		return FString();
	}
	const FString Name = Rest.Mid(First + 1);
	int32 Second = INDEX_NONE;
	return FString(*(Name.FindChar(TEXT('"'), Second) ? Name.Left(Second) : Name));
}

constexpr int32 MaxIncludedFiles = 100000;
constexpr int32 MaxInclusionDepth = 200;
constexpr int64 MaxDescriptionBytes = 1LL << 30;

/**
 * The one spelling of a path: two files are the same if these are equal without regard to case. Above the root there is nothing, as
 * for the system.
 */
FString FoldPath(FString Path)
{
	FPaths::NormalizeFilename(Path);
	const bool bRelative = FPaths::IsRelative(Path);
	TArray<FString> Parts;
	Path.ParseIntoArray(Parts, TEXT("/"));
	TArray<FString> Kept;
	for (const FString& Part : Parts)
	{
		const bool bUp = Part == TEXT("..");
		if (bUp && Kept.Num() > 0 && Kept.Last() != TEXT(".."))
		{
			Kept.Pop();
		}
		else if ((!bUp || bRelative) && Part != TEXT("."))
		{
			Kept.Add(Part);
		}
	}
	return (bRelative ? TEXT("") : TEXT("/")) + FString::Join(Kept, TEXT("/"));
}

/** Appends files to a text, with the files around the current one at hand. */
class FLineSplicer
{
public:
	FLineSplicer(FDescriptionText& InText, TArray<FString> InAncestors)
		: Text(InText)
		, Ancestors(MoveTemp(InAncestors))
	{
		for (const FString& Ancestor : Ancestors)
		{
			Identities.Add(FoldPath(Ancestor));
		}
	}

	/** The limit that the description goes beyond, and where; empty as long as it is within all. */
	const FString& GetExcess() const { return Excess; }

	/** Reads a file of the description. False if it cannot be read or the description would become too large by it. */
	bool LoadLines(const FString& File, TArray<FString>& OutLines)
	{
		NumBytes += FMath::Max<int64>(IFileManager::Get().FileSize(*File), 0);
		if (NumBytes > MaxDescriptionBytes)
		{
			Excess = FString::Printf(
				TEXT("%s: a description ends at %lld bytes, with this file it has %lld"), *File, MaxDescriptionBytes, NumBytes);
			return false;
		}
		return FFileHelper::LoadFileToStringArray(OutLines, *File);
	}

	void AppendLines(const FString& File, const TArray<FString>& Lines)
	{
		// A tool is read several times when it opens: the text grows in one step.
		int32 Length = Text.Text.Len();
		for (const FString& Line : Lines)
		{
			Length += Line.Len() + 1;
		}
		Text.Text.Reserve(Length);
		Text.Places.Reserve(Text.Places.Num() + Lines.Num());

		const int32 FileIndex = Text.Files.Add(File);
		for (int32 Index = 0; Index < Lines.Num() && Excess.IsEmpty(); ++Index)
		{
			AppendLine(Lines[Index], {FileIndex, Index + 1});
		}
	}

	void Include(const FString& Path)
	{
		const FString Resolved = Resolve(Path);
		const FString Identity = FoldPath(Resolved);
		if (Identities.Contains(Identity))
		{
			UE_LOG(PythonKX, Warning, TEXT("JsonFile %s has already import in parents, recursively import"), *Path);
			return;
		}
		if (!CountInclusion(Path))
		{
			return;
		}
		if (!FPaths::FileExists(Resolved))
		{
			UE_LOG(PythonKX, Warning, TEXT("Can't "));
		}
		TArray<FString> Lines;
		if (!LoadLines(Resolved, Lines))
		{
			UE_CLOG(Excess.IsEmpty(), PythonKX, Warning, TEXT("File: %s not exists."), *Resolved);
			return;
		}

		Ancestors.Push(Resolved);
		Identities.Push(Identity);
		AppendLines(Resolved, Lines);
		Identities.Pop();
		Ancestors.Pop();
	}

private:
	/** The file in which the line that is being read stands. */
	FString CurrentFile() const { return Ancestors.Num() > 0 ? Ancestors.Last() : FString(); }

	bool CountInclusion(const FString& Path)
	{
		if (Ancestors.Num() > MaxInclusionDepth)
		{
			Excess = FString::Printf(
				TEXT("%s: inclusions end %d files deep, \"%s\" is one deeper"), *CurrentFile(), MaxInclusionDepth, *Path);
		}
		else if (++NumIncluded > MaxIncludedFiles)
		{
			Excess = FString::Printf(
				TEXT("%s: a description ends at %d included files, \"%s\" is one more"), *CurrentFile(), MaxIncludedFiles, *Path);
		}
		return Excess.IsEmpty();
	}

	/** A commented-out inclusion includes its file all the same, so the mark is looked for in front of the comment test. */
	void AppendLine(const FString& Line, const FDescriptionPlace& Place)
	{
		const int32 MarkPosition = Line.Find(InclusionMark);
		if (MarkPosition != INDEX_NONE)
		{
			const FString Name = ReadIncludedName(Line, MarkPosition);
			UE_LOG(PythonKX, Log, TEXT("Import External Json Path: %s"), *Name);
			Include(Name);
			return;
		}
		const int32 CommentPosition = Line.Find(CommentMark, ESearchCase::CaseSensitive);
		if (CommentPosition == INDEX_NONE)
		{
			Text.Text += Line;
		}
		else
		{
			const FString Kept = Line.Left(CommentPosition);
			if (Kept.TrimStart().IsEmpty())
			{
				return;
			}
			Text.Text += Kept;
		}
		Text.Text += TEXT('\n');
		Text.Places.Add(Place);
	}

	FString Resolve(const FString& Path) const
	{
		if (!FPaths::IsRelative(Path) || Ancestors.Num() == 0)
		{
			return Path;
		}
		FString Resolved = FPaths::GetPath(CurrentFile()) / Path;
		FPaths::RemoveDuplicateSlashes(Resolved);
		FPaths::CollapseRelativeDirectories(Resolved);
		return Resolved;
	}

	FDescriptionText& Text;

	/** As they were resolved, and in their one spelling. */
	TArray<FString> Ancestors;
	TArray<FString> Identities;

	int32 NumIncluded = 0;
	int64 NumBytes = 0;
	FString Excess;
};

bool ReportExcess(const FLineSplicer& Splicer, FString& OutError)
{
	OutError = Splicer.GetExcess();
	UE_CLOG(!OutError.IsEmpty(), PythonKX, Error, TEXT("%s"), *OutError);
	return !OutError.IsEmpty();
}
}

bool ReadDescriptionText(const FString& FilePath, FDescriptionText& OutText, FString& OutError)
{
	OutText = FDescriptionText();

	FLineSplicer Splicer(OutText, {FilePath});
	TArray<FString> Lines;
	if (!Splicer.LoadLines(FilePath, Lines))
	{
		if (!ReportExcess(Splicer, OutError))
		{
			OutError = FString::Printf(TEXT("Json File: %s is Not exists"), *FilePath);
			UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
		}
		return false;
	}
	if (Lines.Num() == 0)
	{
		OutError = FString::Printf(TEXT("Json File: %s is Empty"), *FilePath);
		UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
		return false;
	}

	Splicer.AppendLines(FilePath, Lines);
	return !ReportExcess(Splicer, OutError);
}

FString LoadExternalJson(const FString& Path, TArray<FString> Ancestors)
{
	FDescriptionText Description;
	FLineSplicer Splicer(Description, MoveTemp(Ancestors));
	Splicer.Include(Path);
	FString Error;
	return ReportExcess(Splicer, Error) ? FString() : MoveTemp(Description.Text);
}
