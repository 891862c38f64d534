#pragma once

#include "CoreMinimal.h"

// The plugin's settings live in the user's project, in "KX/Kestrix/Config/Config.ini" of its folder, and are read from there at
// each call. A string whose key is missing is empty, a number 0.

/** Where a project keeps what belongs to the plugin. Worked out once, when the plugin is loaded. */
struct FSettingsPaths
{
	FSettingsPaths();

	/** Config.ini: all settings but one. */
	FString ConfigFile;

	/** Plugin_Config.ini: what must be known before the project has a Config.ini. */
	FString PluginConfigFile;

	/** Folder whose presence says that the project has been set up. */
	FString ProjectContentRoot;
};
extern FSettingsPaths SettingsPaths;

/** Whether the defaults of missing keys have been written. */
extern bool SettingsInitialised;

/** Whether there was a menu file when InitSettings last looked. */
extern bool MenuConfigExists;

/** Whether commands that run every frame draw a warning. The module reads it once, at start. */
extern bool bLogOnTickWarnings;

/**
 * Makes a project ready: copies the default folder into one that has none, then writes the keys that are missing.
 *
 * A second call only looks for the menu file again, and for the folder.
 */
void InitSettings();

/** Reads the switches that are kept until the next start: LogCreateWidget and LogOnTickWarnings. */
void ReadLogFlags();

/** Folder of the Python sources. */
FString GetPythonContentFolder();

/** The full path of a relative one, with each slash once: paths that differ in nothing else are to be the same text. */
FString MakeFullPath(const FString& Path);

/** Absolute path of a tool description, an absolute one as it is; a relative one is taken against the folder of the Python sources. */
FString GetToolAbsolutePath(const FString& Path);

/** What stands behind the first "/Kestrix/Python/" of a path, in any case; a path without it as it is. */
FString GetToolShortPath(const FString& Path);

/** Absolute path of the menu description. */
FString GetMenuConfigFilePath();

/** Content folder of the data blueprints of tools. */
FString GetVelmoraDataFolder();

FName GetMainbarExtensionHookName();
FName GetMainMenuExtensionHookName();
FName GetMaterialEditorMenuExtensionHookName();

/** Lines that the log buffer holds; 0 turns it off. */
int32 GetLogNumberLimit();

/** Slate units added to the left and to the right of a button's content padding. */
int32 GetSButtonHorizontalPadding();

// Switches that the console variable Kestrix.OverrideEnabled forces on or off.
bool IsMenusOnToolbarEnabled();
bool IsSketchToolsEnabled();
bool IsToolsTabOnToolbarEnabled();

/** Whether first use copies the default folder. True, with a warning, if the plugin's own ini file does not say. */
bool IsCopyInitialResourceEnabled();

bool IsOverrideForcedOff();
bool IsOverrideForcedOn();
