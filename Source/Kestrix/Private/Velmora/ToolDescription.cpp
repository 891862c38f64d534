#include "Velmora/ToolDescription.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

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

/** Appends files to a text, with the files around the current one at hand. */
class FLineSplicer
{
public:
	FLineSplicer(FDescriptionText& InText, TArray<FString> InAncestors)
		: Text(InText)
		, Ancestors(MoveTemp(InAncestors))
	{
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
		for (int32 Index = 0; Index < Lines.Num(); ++Index)
		{
			AppendLine(Lines[Index], {FileIndex, Index + 1});
		}
	}

	void Include(const FString& Path)
	{
		const FString Resolved = Resolve(Path);
		if (Ancestors.Contains(Resolved))
		{
			UE_LOG(PythonKX, Warning, TEXT("JsonFile %s has already import in parents, recursively import"), *Path);
			return;
		}
		if (!FPaths::FileExists(Resolved))
		{
			UE_LOG(PythonKX, Warning, TEXT("Can't "));
		}
		TArray<FString> Lines;
		if (!FFileHelper::LoadFileToStringArray(Lines, *Resolved))
		{
			UE_LOG(PythonKX, Warning, TEXT("File: %s not exists."), *Resolved);
			return;
		}

		Ancestors.Push(Resolved);
		AppendLines(Resolved, Lines);
		Ancestors.Pop();
	}

private:
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
		FString Resolved = FPaths::GetPath(Ancestors.Last()) / Path;
		FPaths::CollapseRelativeDirectories(Resolved);
		return Resolved;
	}

	FDescriptionText& Text;
	TArray<FString> Ancestors;
};

TSharedPtr<FJsonObject> ParseDescription(const FString& FilePath, const FDescriptionText& Description, FString& OutError)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Description.Text);
	TSharedPtr<FJsonObject> Object;
	if (FJsonSerializer::Deserialize(Reader, Object) && Object.IsValid())
	{
		return Object;
	}
	OutError = FString::Printf(TEXT("Deserialize File %s failed, check: '\\' "), *FilePath);
	UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
	UE_LOG(PythonKX, Display, TEXT("%s: %s"), *Description.DescribePlace(static_cast<int32>(Reader->GetLineNumber())),
		*Reader->GetErrorMessage());
	return nullptr;
}

/** For the getters that report a description which cannot be parsed in their own words, too. */
TSharedPtr<FJsonObject> LoadJsonFileOrReport(const FString& JsonPath)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		UE_LOG(PythonKX, Error, TEXT("Json object is not Valid %s"), *JsonPath);
	}
	return Object;
}

/** A string of the top level. One that is there and is no text reads as empty, and the JSON value says so in its own category. */
bool ReadStringField(const FJsonObject& Object, const FString& Key, FString& Out)
{
	if (!Object.HasField(Key))
	{
		return false;
	}
	Out = Object.GetStringField(Key);
	return true;
}

FVector2D ReadTwoNumbers(const FJsonObject& Object, const FString& Key)
{
	const FVector2D Unset(-1.0, -1.0);
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (!Object.TryGetArrayField(Key, Values) || Values->Num() < 2)
	{
		return Unset;
	}
	const FJsonValue& X = *(*Values)[0];
	const FJsonValue& Y = *(*Values)[1];
	if (X.Type != EJson::Number || Y.Type != EJson::Number)
	{
		return Unset;
	}
	return FVector2D(X.AsNumber(), Y.AsNumber());
}
}

bool ReadDescriptionText(const FString& FilePath, FDescriptionText& OutText, FString& OutError)
{
	OutText = FDescriptionText();

	TArray<FString> Lines;
	if (!FFileHelper::LoadFileToStringArray(Lines, *FilePath))
	{
		OutError = FString::Printf(TEXT("Json File: %s is Not exists"), *FilePath);
		UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
		return false;
	}
	if (Lines.Num() == 0)
	{
		OutError = FString::Printf(TEXT("Json File: %s is Empty"), *FilePath);
		UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
		return false;
	}

	FLineSplicer(OutText, {FilePath}).AppendLines(FilePath, Lines);
	return true;
}

TSharedPtr<FJsonObject> LoadJsonFile(const FString& FilePath, FString& OutError)
{
	FDescriptionText Description;
	if (!ReadDescriptionText(FilePath, Description, OutError))
	{
		return nullptr;
	}
	return ParseDescription(FilePath, Description, OutError);
}

FString LoadExternalJson(const FString& Path, TArray<FString> Ancestors)
{
	FDescriptionText Description;
	FLineSplicer(Description, MoveTemp(Ancestors)).Include(Path);
	return MoveTemp(Description.Text);
}

bool GetStringFieldOfFile(const FString& JsonPath, const FString& FieldName, FString& OutValue)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	OutValue.Empty();
	ReadStringField(*Object, FieldName, OutValue);
	return !OutValue.IsEmpty();
}

bool GetDataAndTabLabel(const FString& JsonPath, FString& OutDataPath, FString& OutTabLabel)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		return false;
	}
	OutDataPath.Empty();
	if (ReadStringField(*Object, TEXT("VelmoraData"), OutDataPath))
	{
		if (OutDataPath.IsEmpty())
		{
			UE_LOG(PythonKX, Log, TEXT("Default data used."));
		}
		else if (!FPackageName::DoesPackageExist(OutDataPath))
		{
			UE_LOG(PythonKX, Error, TEXT("Json File can't find: VelmoraData, Default data used. @ %s"), *OutDataPath);
		}
	}
	ReadStringField(*Object, TEXT("TabLabel"), OutTabLabel);
	return true;
}

bool GetInitPyCmd(const FString& JsonPath, FString& OutCommand)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	OutCommand.Empty();
	if (!ReadStringField(*Object, TEXT("InitPyCmd"), OutCommand))
	{
		UE_LOG(PythonKX, Error, TEXT("Json File can't find: InitPyCmd  %s"), *JsonPath);
	}
	return !OutCommand.IsEmpty();
}

bool GetOnClosePyCmd(const FString& JsonPath, FString& OutCommand)
{
	return GetStringFieldOfFile(JsonPath, TEXT("OnClosePyCmd"), OutCommand);
}

bool GetOnTabContextMenu(const FString& JsonPath, TSharedPtr<FJsonObject>& OutMenu)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	const TSharedPtr<FJsonObject>* Menu = nullptr;
	if (!Object->TryGetObjectField(TEXT("OnTabContextMenu"), Menu))
	{
		return false;
	}
	OutMenu = *Menu;
	return true;
}

bool GetInitTabGeometry(const FString& JsonPath, FVector2D& OutSize, FVector2D& OutPosition)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		return false;
	}
	OutSize = ReadTwoNumbers(*Object, TEXT("InitTabSize"));
	OutPosition = ReadTwoNumbers(*Object, TEXT("InitTabPosition"));
	return true;
}
