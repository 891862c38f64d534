#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

/** Makes the types of each library known as it is loaded. */
class FCoreUObjectModule final : public IModuleInterface
{
public:
	void StartupModule() override
	{
		FModuleManager::Get().OnProcessLoadedObjectsCallback().AddStatic(&ProcessNewlyLoadedUObjects);
		FModuleManager::Get().StartProcessingNewlyLoadedObjects();
		ProcessNewlyLoadedUObjects();
	}
};

IMPLEMENT_MODULE(FCoreUObjectModule, CoreUObject)
