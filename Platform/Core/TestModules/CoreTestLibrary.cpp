#include "CoreMinimal.h"

/** A library without IMPLEMENT_MODULE that depends on one with it. */
extern "C" class IModuleInterface* InitializeModule();

extern "C" DLLEXPORT void* ReferToTheModule()
{
	return reinterpret_cast<void*>(&InitializeModule);
}
