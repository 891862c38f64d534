#pragma once

#include "Kestrix.h"
#include "SettingsProject.h"
#include "SlateTestWindow.h"
#include "Velmora/PythonRecorder.h"

class SDockTab;

/**
 * The plugin, started in a project of its own, with a window in which its tabs open and an interpreter that only notes its
 * commands. All tools close with it.
 */
class FRunningPlugin
{
public:
	/** @param Config  Text of Config.ini; the keys that it lacks get their defaults. */
	explicit FRunningPlugin(const FString& Config = FString());
	~FRunningPlugin();

	FRunningPlugin(const FRunningPlugin&) = delete;
	FRunningPlugin& operator=(const FRunningPlugin&) = delete;

	/** Writes a description into the folder of the Python sources. @return Its absolute path. */
	FString WriteTool(const TCHAR* RelativeName, const FString& Description) const;

	/** Writes a description, launches the tool, and lets a frame pass. @return Its data object. */
	class UVelmoraData& Launch(const TCHAR* RelativeName, const FString& Description);

	/** Starts and ends the module, for tests that look at just that. */
	void StartModule();
	void EndModule();

	FSettingsProject Project;
	FPythonRecorder Python;
	FSlateTestWindow Window;
};

/** The tool's tab, which must be open. */
TSharedRef<SDockTab> FindTab(const FString& AbsolutePath);

/** A description with an empty command at its start, so that opening it says nothing about that, and a root. */
FString ToolWithRoot(const char* Root);
