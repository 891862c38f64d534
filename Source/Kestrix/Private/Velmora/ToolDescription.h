#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** A line of a file as an author sees it in an editor. */
struct FDescriptionPlace
{
	/** Index into FDescriptionText::Files. */
	int32 File = 0;

	/** Counted from 1. */
	int32 Line = 0;
};

/** The text of a tool description after its line pass: without comments, inclusions spliced in. */
struct FDescriptionText
{
	/** Whole lines, each with its end. */
	FString Text;

	/** The files that gave lines, the description itself first. A file that is included twice stands here twice. */
	TArray<FString> Files;

	/** Where each line of the text was written. */
	TArray<FDescriptionPlace> Places;

	/**
	 * Names the place of a line of the text as "File:Line".
	 *
	 * @param LineOfText  Counted from 1; a line outside the text stands for the nearest one inside.
	 */
	FString DescribePlace(int32 LineOfText) const;
};

/**
 * Reads a tool description up to the text that the JSON reader gets.
 *
 * Works line by line: the first "//" of a line begins a comment, and a line with "ExternalJson": is replaced by the text of
 * the file that it names. A relative name is taken against the folder of the file in which it stands. A file that would
 * include itself, directly or through others, is refused there with one warning.
 *
 * @param OutError  Why the file could not be read; also logged as a warning.
 * @return False if the file is missing or has no line.
 */
bool ReadDescriptionText(const FString& FilePath, FDescriptionText& OutText, FString& OutError);

/**
 * Reads a tool description. The file is read anew at each call.
 *
 * @param OutError  Why there is no object; also logged as a warning. A syntax error is logged with its file and line, too.
 * @return Null if the file is missing, has no line, or is no JSON object.
 */
TSharedPtr<FJsonObject> LoadJsonFile(const FString& FilePath, FString& OutError);

/**
 * Reads the text of an included file.
 *
 * @param Path       As it stands in the inclusion.
 * @param Ancestors  The files around the inclusion, outermost first.
 * @return Empty on any failure, which is logged.
 */
FString LoadExternalJson(const FString& Path, TArray<FString> Ancestors);

/** Fetches a string of the description's top level. True if it has at least one character. */
bool GetStringFieldOfFile(const FString& JsonPath, const FString& FieldName, FString& OutValue);

/**
 * Fetches "VelmoraData", the path of the blueprint to use as the tool's data object, and "TabLabel".
 *
 * A data path that names no package is reported and returned all the same. Without "TabLabel" OutTabLabel stays as it was.
 *
 * @return True if the file could be parsed.
 */
bool GetDataAndTabLabel(const FString& JsonPath, FString& OutDataPath, FString& OutTabLabel);

/** Fetches "InitPyCmd". True if the command is not empty; a missing key is reported. */
bool GetInitPyCmd(const FString& JsonPath, FString& OutCommand);

/** Fetches "OnClosePyCmd". True if the command is not empty. */
bool GetOnClosePyCmd(const FString& JsonPath, FString& OutCommand);

/** Fetches "OnTabContextMenu", the menu description of the tool's tab. True if it is there. */
bool GetOnTabContextMenu(const FString& JsonPath, TSharedPtr<FJsonObject>& OutMenu);

/**
 * Fetches "InitTabSize" and "InitTabPosition", two numbers each; (-1, -1) for one that is missing or is something else.
 *
 * @return True if the file could be parsed.
 */
bool GetInitTabGeometry(const FString& JsonPath, FVector2D& OutSize, FVector2D& OutPosition);
