#pragma once

#include "CoreTypes.h"

/** What a library shows to FModuleManager: its start and its end. */
class CORE_API IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;

	/** Called once, after the library was loaded and its types are known. */
	virtual void StartupModule() {}

	/** Called once, before the process ends and before the modules that were loaded earlier shut down. */
	virtual void ShutdownModule() {}
};

/** A module that only carries code. */
class FDefaultModuleImpl : public IModuleInterface
{
};
