#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/**
 * Reads a tool description. The file is read anew at each call.
 *
 * @param OutError  Why there is no object; also logged as a warning. A syntax error is logged with its file and line, too.
 * @return Null if the file is missing, has no line, or is no JSON object.
 */
TSharedPtr<FJsonObject> LoadJsonFile(const FString& FilePath, FString& OutError);

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
