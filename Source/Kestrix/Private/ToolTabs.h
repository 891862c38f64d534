#pragma once

#include "CoreMinimal.h"

class SDockTab;

// The tabs of tools. A tool's tab identifier is the absolute path of its description.

/** The identifiers that have a spawner, each once. */
extern TArray<FName> RegisteredToolTabIds;

/** The tabs of all tools that are open now, each once. */
extern TArray<TSharedPtr<SDockTab>> OpenToolTabs;

/** Short path of a tool to the command that it wants to run when the map changes. Entries of closed tools stay. */
extern TMap<FString, FString> MapChangeCommands;

/** Whether two paths, absolute or relative to the folder of the Python sources, name the same tool. */
bool IsSameTool(FName A, FName B);

/** Opens a registered tool in a window of its own and draws attention to it; a tool that is open stays where it is. */
void OpenToolInNewWindow(FName TabId, const FVector2D& Size, const FVector2D& Position, FName LayoutName);

/**
 * Opens a registered tool: in a window of its own if it asks for a size, else as a tab. One that is open comes to the front; one that
 * is just being opened, by whose own commands this is called, is left alone with a warning.
 *
 * @param ToolsPath  As the caller named the tool.
 * @return False if the tool opens in a window.
 */
bool OpenTool(FName TabId, const FVector2D& Size, const FVector2D& Position, const FString& ToolsPath);

/** Warns of each registered tool, for an author who looks for one that is not there. */
void LogRegisteredTools(FName TabName);
