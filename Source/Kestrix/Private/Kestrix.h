#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FSpawnTabArgs;
class SDockTab;
class SWidget;
class UVelmoraData;

/** The plugin's module: brings its parts to life in their order, and owns what lives as long as they do. */
class FKestrixModule : public IModuleInterface
{
public:
	/** The loaded module. */
	static FKestrixModule& Get();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** The part of the start that touches other modules of the editor, and its inverse. */
	void RegisterEditorHooks();
	void UnregisterEditorHooks();

	void OnActiveTabChanged(TSharedPtr<SDockTab> Previous, TSharedPtr<SDockTab> New);

	/** The tabs that were active, the last one at the end. A closed tab stays until the next change. */
	const TArray<TWeakPtr<SDockTab>>& GetRecentTabs() const { return RecentTabs; }

	// Tools by path (ToolsSettings.h)
	static FString GetToolAbsolutePath(const FString& Path);
	static FString GetToolShortPath(const FString& Path);

	//
	// Tool data objects (ToolDataInstances.cpp)
	//

	/**
	 * The data object of a tool, made on first use. Its class is fixed from then on.
	 *
	 * @param JsonPath  Absolute path of the tool description.
	 * @param DataPath  Package of a blueprint based on UVelmoraData; without one the object is a plain UVelmoraData.
	 */
	UVelmoraData* GetToolsDataInstance(FString JsonPath, FString DataPath);

	/** Null, with a warning, for a tool that was never open. */
	UVelmoraData* GetToolsDataInstanceByName(FString JsonPath);

	/** The absolute paths of all tools that were ever open. */
	TArray<FString> GetAllToolDataPaths() const;

	/** The tool of a data object; empty if it belongs to none. */
	FString GetToolPathOfDataObject(UVelmoraData* Data) const;

	//
	// Tool tabs (ToolTabs.cpp)
	//

	/**
	 * Makes sure that a tool's tab can be spawned.
	 *
	 * @param JsonPath     Absolute, or relative to the folder of the Python sources.
	 * @param OutTabId     Set on success, as are the others.
	 * @param OutSize      Size that the description asks for; negative without one.
	 * @param OutPosition  Likewise.
	 * @return False if the description cannot be parsed. A tool whose file breaks after its registration stays registered, so
	 *         that its tab can show the reason.
	 */
	bool RegisterToolTab(const FString& JsonPath, FName& OutTabId, FVector2D& OutSize, FVector2D& OutPosition);

	/** The spawner of tool tabs: data object, tool widget, tab, then "InitPyCmd". */
	TSharedRef<SDockTab> SpawnToolTab(const FSpawnTabArgs& Args, FString JsonPath, FString DataPath);

	/** Runs "InitPyCmd" and records "OnMapChangedCmd". A tool without the first never gets the second recorded. */
	static void InitPyTool(const FString& JsonPath);

	/** Forgets an open tool by the identifier of its tab. False if it is not there. */
	static bool RemoveOpenToolTab(FName TabId);

	//
	// Tool windows (ToolWindows.cpp)
	//

	static TSharedPtr<SDockTab> FindOpenToolTab(FName TabName);

	/**
	 * Paints a widget into a window of its own and saves the picture as PNG.
	 *
	 * @param Widget    Is taken out of its parent; a window is as it was afterwards.
	 * @param Size      Size of the window in slate units.
	 * @return Whether the file was written.
	 */
	static bool SnapshotWidget(TSharedPtr<SWidget> Widget, FVector2D Size, FString FilePath);

private:
	/** Absolute description path to the tool's data object. An entry is never removed; the objects are in the root set. */
	TMap<FString, UVelmoraData*> ToolDataInstances;

	TArray<TWeakPtr<SDockTab>> RecentTabs;
	FDelegateHandle ActiveTabChangedHandle;
};
