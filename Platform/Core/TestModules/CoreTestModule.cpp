#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

/** Tells its start and its end to the log. */
class FCoreTestModule final : public IModuleInterface
{
public:
	virtual void StartupModule() override { UE_LOG(LogTemp, Display, TEXT("CoreTestModule starts")); }

	virtual void ShutdownModule() override { UE_LOG(LogTemp, Display, TEXT("CoreTestModule ends")); }
};

IMPLEMENT_MODULE(FCoreTestModule, CoreTestModule)
