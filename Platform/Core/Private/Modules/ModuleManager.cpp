#include "Modules/ModuleManager.h"

#include "CoreGlobals.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace
{
const TCHAR* WhyNotLoaded(EModuleLoadResult Result)
{
	switch (Result)
	{
		case EModuleLoadResult::FileNotFound:
			return TEXT("there is no library of that name");
		case EModuleLoadResult::CouldNotBeLoadedByOS:
			return TEXT("the system could not load its library");
		default:
			return TEXT("its library has no IMPLEMENT_MODULE");
	}
}
}

FModuleManager& FModuleManager::Get()
{
	// Modules of globals that end with the process may still ask for others, so it is never destroyed.
	static FModuleManager& Manager = *new FModuleManager;
	return Manager;
}

bool FModuleManager::IsModuleLoaded(FName InModuleName) const
{
	return GetModule(InModuleName) != nullptr;
}

IModuleInterface* FModuleManager::GetModule(FName InModuleName) const
{
	for (const TSharedRef<FLoadedModule>& Loaded : Modules)
	{
		if (Loaded->Name == InModuleName)
		{
			return Loaded->Module.Get();
		}
	}
	return nullptr;
}

IModuleInterface* FModuleManager::LoadModule(FName InModuleName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	IModuleInterface* const Module = LoadModuleWithFailureReason(InModuleName, Result);
	if (Result != EModuleLoadResult::Success)
	{
		UE_LOG(
			LogModuleManager, Warning, TEXT("Unable to load module '%s': %s."), *InModuleName.ToString(), WhyNotLoaded(Result));
	}
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(FName InModuleName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	IModuleInterface* const Module = LoadModuleWithFailureReason(InModuleName, Result);
	checkf(Module, TEXT("Unable to load module '%s': %s."), *InModuleName.ToString(), WhyNotLoaded(Result));
	return *Module;
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	OutFailureReason = EModuleLoadResult::Success;

	// A module that asks for itself while it starts gets itself.
	for (const TSharedRef<FLoadedModule>& Loaded : Modules)
	{
		if (Loaded->Name == InModuleName)
		{
			return Loaded->Module.Get();
		}
	}

	TUniquePtr<IModuleInterface> Module(MakeModule(InModuleName, OutFailureReason));
	if (!Module)
	{
		return nullptr;
	}

	const TSharedRef<FLoadedModule> Loaded = MakeShared<FLoadedModule>();
	Loaded->Name = InModuleName;
	Loaded->Module = MoveTemp(Module);
	Modules.Add(Loaded);

	ProcessLoadedObjectsCallback.Broadcast(InModuleName, bCanProcessNewlyLoadedObjects);
	Loaded->Module->StartupModule();
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleLoaded);
	return Loaded->Module.Get();
}

IModuleInterface* FModuleManager::MakeModule(FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	if (const TFunction<IModuleInterface*()>* const Initializer = StaticallyLinkedModules.Find(InModuleName))
	{
		return (*Initializer)();
	}

	const FString Library = FindLibrary(InModuleName.ToString());
	if (Library.IsEmpty())
	{
		OutFailureReason = EModuleLoadResult::FileNotFound;
		return nullptr;
	}

	void* const Handle = FPlatformProcess::GetDllHandle(*Library);
	if (!Handle)
	{
		UE_LOG(LogModuleManager, Error, TEXT("%s: %s"), *Library, *FPlatformProcess::GetDllError());
		OutFailureReason = EModuleLoadResult::CouldNotBeLoadedByOS;
		return nullptr;
	}

	using FInitializeModule = IModuleInterface* (*)();
	const FInitializeModule Initialize =
		reinterpret_cast<FInitializeModule>(FPlatformProcess::GetDllExport(Handle, TEXT("InitializeModule")));
	if (!Initialize)
	{
		OutFailureReason = EModuleLoadResult::FailedToInitialize;
		return nullptr;
	}
	return Initialize();
}

FString FModuleManager::FindLibrary(const FString& ModuleName) const
{
	for (const FString& Directory : BinariesDirectories)
	{
		const FString Library = Directory / (TEXT("libKestrixEditor-") + ModuleName + TEXT(KESTRIX_BUILD_SUFFIX) TEXT(".so"));
		if (FPaths::FileExists(Library))
		{
			return Library;
		}
	}
	const FString Library = FPlatformProcess::BaseDir() + (TEXT("lib") + ModuleName + TEXT(".so"));
	return FPaths::FileExists(Library) ? Library : FString();
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return StaticallyLinkedModules.Contains(ModuleName) || !FindLibrary(ModuleName).IsEmpty();
}

bool FModuleManager::UnloadModule(FName InModuleName)
{
	const int32 Index = Modules.IndexOfByPredicate(
		[InModuleName](const TSharedRef<FLoadedModule>& Loaded) { return Loaded->Name == InModuleName; });
	if (Index == INDEX_NONE)
	{
		return false;
	}

	// It counts as unloaded only after its end, in which it may still be asked for.
	const TSharedRef<FLoadedModule> Loaded = Modules[Index];
	Loaded->Module->ShutdownModule();
	Modules.Remove(Loaded);
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	while (!Modules.IsEmpty())
	{
		UnloadModule(Modules.Last()->Name);
	}
}

void FModuleManager::AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory)
{
	BinariesDirectories.AddUnique(InDirectory);
}

void FModuleManager::RegisterStaticallyLinkedModule(FName InModuleName, TFunction<IModuleInterface*()> InInitializer)
{
	StaticallyLinkedModules.Add(InModuleName, MoveTemp(InInitializer));
}

void FModuleManager::StartProcessingNewlyLoadedObjects()
{
	bCanProcessNewlyLoadedObjects = true;
}
