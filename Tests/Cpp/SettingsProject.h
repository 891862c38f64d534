#pragma once

#include "TempProject.h"
#include "ToolsSettings.h"

/** A project of its own as the plugin finds it when it is loaded: nothing is read or written yet. */
class FSettingsProject : public FTempProject
{
public:
	FSettingsProject()
		: FormerPaths(SettingsPaths)
		, bWasInitialised(SettingsInitialised)
		, bHadMenuConfig(MenuConfigExists)
	{
		SettingsPaths = FSettingsPaths();
		SettingsInitialised = false;
		MenuConfigExists = false;
	}

	~FSettingsProject()
	{
		SettingsPaths = FormerPaths;
		SettingsInitialised = bWasInitialised;
		MenuConfigExists = bHadMenuConfig;
	}

private:
	const FSettingsPaths FormerPaths;
	const bool bWasInitialised;
	const bool bHadMenuConfig;
};
