#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

enum class EModuleLoadResult
{
	Success,

	/** There is no library of that name. */
	FileNotFound,

	/** The system could not load the library. */
	CouldNotBeLoadedByOS,

	/** The library has no IMPLEMENT_MODULE. */
	FailedToInitialize,
};

enum class EModuleChangeReason
{
	ModuleLoaded,
	ModuleUnloaded,
};

/**
 * Loads modules by name. The library of a module stands in the executable's folder as "lib<Name>.so" or in a folder that
 * AddBinariesDirectory named as "libKestrixEditor-<Name>.so". Libraries stay mapped until the process ends.
 */
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();

	/** Whether the module was loaded; true also while it starts. */
	bool IsModuleLoaded(FName InModuleName) const;

	/** Loads and starts a module, once. Null, after a Warning that tells why, if it cannot be loaded. */
	IModuleInterface* LoadModule(FName InModuleName);

	/** As above, with the reason handed out in place of the Warning. */
	IModuleInterface* LoadModuleWithFailureReason(FName InModuleName, EModuleLoadResult& OutFailureReason);

	/** Loads and starts a module; ends the process if it cannot. */
	IModuleInterface& LoadModuleChecked(FName InModuleName);

	/** A loaded module; null otherwise. */
	IModuleInterface* GetModule(FName InModuleName) const;

	/** Whether LoadModule would find a library or a function of that name. */
	bool ModuleExists(const TCHAR* ModuleName) const;

	/** Shuts a module down and forgets it; its library stays mapped. False if it was not loaded. */
	bool UnloadModule(FName InModuleName);

	/** Shuts all modules down in reverse order of loading. */
	void UnloadModulesAtShutdown();

	/** Adds a folder in which the libraries of plugins are looked for. */
	void AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory);

	/** Names the function that makes a module whose code is linked into the executable. */
	void RegisterStaticallyLinkedModule(FName InModuleName, TFunction<IModuleInterface*()> InInitializer);

	/** From now on OnProcessLoadedObjectsCallback may create objects; called once, by the module that can. */
	void StartProcessingNewlyLoadedObjects();

	DECLARE_MULTICAST_DELEGATE_TwoParams(
		ProcessLoadedObjectsEvent, FName /* ModuleName */, bool /* bCanProcessNewlyLoadedObjects */);

	/** Sent when a library was mapped and before its StartupModule: types that it registered can be made known. */
	ProcessLoadedObjectsEvent& OnProcessLoadedObjectsCallback() { return ProcessLoadedObjectsCallback; }

	DECLARE_MULTICAST_DELEGATE_TwoParams(FModulesChangedEvent, FName /* ModuleName */, EModuleChangeReason);

	/** Sent after a module has started and after it has shut down. */
	FModulesChangedEvent& OnModulesChanged() { return ModulesChangedEvent; }

	/** As the functions above, for the type that the module's header gives. */
	template <typename ModuleType>
	static ModuleType& LoadModuleChecked(FName InModuleName)
	{
		return static_cast<ModuleType&>(Get().LoadModuleChecked(InModuleName));
	}

	template <typename ModuleType>
	static ModuleType* LoadModulePtr(FName InModuleName)
	{
		return static_cast<ModuleType*>(Get().LoadModule(InModuleName));
	}

	template <typename ModuleType>
	static ModuleType* GetModulePtr(FName InModuleName)
	{
		return static_cast<ModuleType*>(Get().GetModule(InModuleName));
	}

	/** A loaded module; ends the process if it is not loaded. */
	template <typename ModuleType>
	static ModuleType& GetModuleChecked(FName InModuleName)
	{
		IModuleInterface* const Module = Get().GetModule(InModuleName);
		checkf(Module, TEXT("Module '%s' was asked for before it was loaded."), *InModuleName.ToString());
		return static_cast<ModuleType&>(*Module);
	}

private:
	FModuleManager() = default;

	struct FLoadedModule
	{
		FName Name;
		TUniquePtr<IModuleInterface> Module;
	};

	FString FindLibrary(const FString& ModuleName) const;
	IModuleInterface* MakeModule(FName InModuleName, EModuleLoadResult& OutFailureReason);

	/** In the order of loading. */
	TArray<TSharedRef<FLoadedModule>> Modules;
	TMap<FName, TFunction<IModuleInterface*()>> StaticallyLinkedModules;
	TArray<FString> BinariesDirectories;
	ProcessLoadedObjectsEvent ProcessLoadedObjectsCallback;
	FModulesChangedEvent ModulesChangedEvent;
	bool bCanProcessNewlyLoadedObjects = false;
};

/** The entry of a library: makes its module. Stands in one source file of the module. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	extern "C" __attribute__((visibility("default"))) IModuleInterface* InitializeModule() \
	{ \
		return new ModuleImplClass(); \
	}

#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
