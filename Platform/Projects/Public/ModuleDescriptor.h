#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** When the modules of plugins are loaded, in this order. */
namespace ELoadingPhase
{
enum Type
{
	EarliestPossible,
	PostConfigInit,
	PostSplashScreen,
	PreEarlyLoadingScreen,
	PreLoadingScreen,
	PreDefault,
	Default,
	PostDefault,
	PostEngineInit,

	/** Only when somebody asks for the module. */
	None,
	Max,
};

PROJECTS_API const TCHAR* ToString(Type Phase);
}

/** One module that a plugin or project consists of. */
struct PROJECTS_API FModuleDescriptor
{
	FName Name;
	ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;

	/** Whether it belongs to an editor; modules of servers' tools and packaged games do not. */
	bool bForEditor = true;

	/**
	 * Reads the array "Modules" of a descriptor; without it there are none.
	 *
	 * @return False, with the place and what was expected in OutFailReason, if something is not as it should be.
	 */
	static bool ReadArray(const FJsonObject& In, TArray<FModuleDescriptor>& OutModules, FText& OutFailReason);
};
