#pragma once

#include "Misc/ConfigCacheIni.h"
#include "SettingsProject.h"

/** A project whose setting "SButtonHorizontalPadding" has a value. */
class FScopedButtonPadding : public FSettingsProject
{
public:
	explicit FScopedButtonPadding(int32 Padding)
	{
		GConfig->SetInt(TEXT("Advanced"), TEXT("SButtonHorizontalPadding"), Padding, SettingsPaths.ConfigFile);
	}
};
