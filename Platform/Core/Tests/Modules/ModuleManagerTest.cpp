#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "LogCapture.h"
#include "TempProject.h"

namespace
{
/** Adds its start and its end to a list. */
class FListingModule final : public IModuleInterface
{
public:
	FListingModule(TArray<FString>& InEvents, const TCHAR* InName)
		: Events(InEvents)
		, Name(InName)
	{
	}

	virtual void StartupModule() override { Events.Add(TEXT("+") + Name); }

	virtual void ShutdownModule() override { Events.Add(TEXT("-") + Name); }

private:
	TArray<FString>& Events;
	const FString Name;
};

class ModuleManager : public testing::Test
{
protected:
	void Link(const TCHAR* Name)
	{
		Modules.RegisterStaticallyLinkedModule(Name, [this, Name] { return new FListingModule(Events, Name); });
	}

	virtual void TearDown() override { Modules.UnloadModulesAtShutdown(); }

	FModuleManager& Modules = FModuleManager::Get();
	TArray<FString> Events;
};

using ModuleManagerDeathTest = ModuleManager;
}

TEST_F(ModuleManager, LibraryInTheExecutablesFolderIsLoadedAndStartedOnce)
{
	const FLogCapture Log(TEXT("LogTemp"));
	IModuleInterface* const Module = Modules.LoadModule(TEXT("CoreTestModule"));
	ASSERT_NE(Module, nullptr);
	EXPECT_EQ(Modules.LoadModule(TEXT("coretestmodule")), Module);
	EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>(TEXT("CoreTestModule")), Module);
	EXPECT_TRUE(Modules.UnloadModule(TEXT("CoreTestModule")));
	EXPECT_FALSE(Modules.IsModuleLoaded(TEXT("CoreTestModule")));

	EXPECT_EQ(Log.Lines(),
		TArray<FString>({TEXT("LogTemp: Display: CoreTestModule starts"), TEXT("LogTemp: Display: CoreTestModule ends")}));
}

TEST_F(ModuleManager, GetModulePtrNeverLoads)
{
	EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>(TEXT("CoreTestModule")), nullptr);
	EXPECT_TRUE(Modules.ModuleExists(TEXT("CoreTestModule")));
}

TEST_F(ModuleManager, MissingModuleGivesNullAndAWarning)
{
	const FLogCapture Log(TEXT("LogModuleManager"));
	EXPECT_EQ(Modules.LoadModule(TEXT("NoSuchModule")), nullptr);
	EXPECT_EQ(Log.Warnings(), TArray<FString>({TEXT("Unable to load module 'NoSuchModule': there is no library of that name.")}));
	EXPECT_FALSE(Modules.ModuleExists(TEXT("NoSuchModule")));
}

TEST_F(ModuleManager, EntryOfADependencyIsNotTakenForTheLibrarysOwn)
{
	const FLogCapture Log(TEXT("LogModuleManager"));
	EXPECT_EQ(Modules.LoadModule(TEXT("CoreTestLibrary")), nullptr);
	EXPECT_EQ(
		Log.Warnings(), TArray<FString>({TEXT("Unable to load module 'CoreTestLibrary': its library has no IMPLEMENT_MODULE.")}));
}

TEST_F(ModuleManager, BrokenLibraryIsReportedWithItsFile)
{
	const FTempProject Project;
	const FString File = Project.Write(TEXT("libKestrixEditor-BrokenModule" KESTRIX_BUILD_SUFFIX ".so"), TEXT("no library"));
	Modules.AddBinariesDirectory(*Project.GetDir(), false);

	const FLogCapture Log(TEXT("LogModuleManager"));
	EXPECT_EQ(Modules.LoadModule(TEXT("BrokenModule")), nullptr);
	ASSERT_EQ(Log.Errors().Num(), 1);
	EXPECT_TRUE(Log.Errors()[0].StartsWith(File + TEXT(": ")));
	EXPECT_EQ(
		Log.Warnings(), TArray<FString>({TEXT("Unable to load module 'BrokenModule': the system could not load its library.")}));
}

TEST_F(ModuleManager, LibraryOfAPluginIsFoundInABinariesDirectory)
{
	const FTempProject Project;
	const FString Library = FString(FPlatformProcess::BaseDir()) + TEXT("libCoreTestModule.so");
	IFileManager::Get().Copy(
		*Project.Path(TEXT("Binaries/Linux/libKestrixEditor-PluginModule" KESTRIX_BUILD_SUFFIX ".so")), *Library);
	EXPECT_FALSE(Modules.ModuleExists(TEXT("PluginModule")));

	Modules.AddBinariesDirectory(*Project.Path(TEXT("Binaries/Linux")), false);
	EXPECT_NE(Modules.LoadModule(TEXT("PluginModule")), nullptr);
}

TEST_F(ModuleManager, ModulesShutDownInReverseOrderOfLoading)
{
	Link(TEXT("LinkedA"));
	Link(TEXT("LinkedB"));
	Modules.LoadModule(TEXT("LinkedB"));
	Modules.LoadModule(TEXT("LinkedA"));
	Modules.UnloadModulesAtShutdown();
	EXPECT_EQ(Events, TArray<FString>({TEXT("+LinkedB"), TEXT("+LinkedA"), TEXT("-LinkedA"), TEXT("-LinkedB")}));
}

TEST_F(ModuleManager, NewTypesAreProcessedBeforeTheStartAndTheChangeIsToldAfterIt)
{
	Link(TEXT("LinkedC"));
	const FDelegateHandle Processing = Modules.OnProcessLoadedObjectsCallback().AddLambda(
		[this](FName Name, bool) { Events.Add(TEXT("process ") + Name.ToString()); });
	const FDelegateHandle Changing = Modules.OnModulesChanged().AddLambda([this](FName Name, EModuleChangeReason Reason)
		{ Events.Add((Reason == EModuleChangeReason::ModuleLoaded ? TEXT("loaded ") : TEXT("unloaded ")) + Name.ToString()); });

	Modules.LoadModule(TEXT("LinkedC"));
	Modules.UnloadModule(TEXT("LinkedC"));

	Modules.OnProcessLoadedObjectsCallback().Remove(Processing);
	Modules.OnModulesChanged().Remove(Changing);
	EXPECT_EQ(Events,
		TArray<FString>(
			{TEXT("process LinkedC"), TEXT("+LinkedC"), TEXT("loaded LinkedC"), TEXT("-LinkedC"), TEXT("unloaded LinkedC")}));
}

TEST_F(ModuleManagerDeathTest, MissingModuleIsFatalWhenChecked)
{
	EXPECT_DEATH(
		FModuleManager::LoadModuleChecked<IModuleInterface>(TEXT("NoSuchModule")), "Unable to load module 'NoSuchModule'");
	EXPECT_DEATH(FModuleManager::GetModuleChecked<IModuleInterface>(TEXT("CoreTestModule")),
		"'CoreTestModule' was asked for before it was loaded");
}
