#include "RunningPlugin.h"

#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "ToolTabs.h"
#include "UObject/UObjectGlobals.h"
#include "Velmora/VelmoraData.h"
#include "Widgets/Docking/SDockTab.h"

#include <gtest/gtest.h>

namespace
{
const FName ModuleName("Kestrix");

class FObjectEnvironment final : public testing::Environment
{
	void SetUp() override { ProcessNewlyLoadedUObjects(); }
};
testing::Environment* const ObjectEnvironment = testing::AddGlobalTestEnvironment(new FObjectEnvironment);

TSharedRef<SWidget> MakeMainArea()
{
	const TSharedRef<FTabManager::FLayout> Layout =
		FTabManager::NewLayout("Test")->AddArea(FTabManager::NewPrimaryArea()->Split(FTabManager::NewStack()));
	return FGlobalTabmanager::Get()->RestoreFrom(Layout, nullptr).ToSharedRef();
}
}

FRunningPlugin::FRunningPlugin(const FString& Config)
	: Window(MakeMainArea())
{
	FGlobalTabmanager::Get()->SetRootWindow(StaticCastSharedRef<SWindow>(Window.GetWindow().AsShared()));
	Project.Write(TEXT("KX/Kestrix/Config/Config.ini"), Config);
	Project.Write(TEXT("KX/Kestrix/UI/MenuConfig.json"), TEXT("{}"));
	MapChangeCommands.Empty();
	StartModule();
}

FRunningPlugin::~FRunningPlugin()
{
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		Tab->RequestCloseTab();
	}
	EndModule();
}

void FRunningPlugin::StartModule()
{
	FModuleManager& Modules = FModuleManager::Get();
	Modules.RegisterStaticallyLinkedModule(ModuleName, [] { return new FKestrixModule; });
	Modules.LoadModule(ModuleName);
}

void FRunningPlugin::EndModule()
{
	if (!FModuleManager::Get().IsModuleLoaded(ModuleName))
	{
		return;
	}

	// The plugin keeps the data objects of its tools for as long as the editor runs; here the next test wants their names.
	FKestrixModule& Module = FKestrixModule::Get();
	TArray<UVelmoraData*> DataObjects;
	for (const FString& Path : Module.GetAllToolDataPaths())
	{
		DataObjects.Add(Module.GetToolsDataInstanceByName(Path));
	}
	FModuleManager::Get().UnloadModule(ModuleName);
	for (UVelmoraData* const Data : DataObjects)
	{
		Data->RemoveFromRoot();
		Data->ClearFlags(RF_MarkAsRootSet);
		Data->MarkAsGarbage();
	}
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

FString FRunningPlugin::WriteTool(const TCHAR* RelativeName, const FString& Description) const
{
	return Project.Write(*(FString(TEXT("KX/Kestrix/Python/")) + RelativeName), Description);
}

UVelmoraData& FRunningPlugin::Launch(const TCHAR* RelativeName, const FString& Description)
{
	const FString Path = WriteTool(RelativeName, Description);
	UVelmoraData::LaunchVelmoraTool(RelativeName);
	Window.Frame();
	return *FKestrixModule::Get().GetToolsDataInstanceByName(Path);
}

TSharedRef<SDockTab> FindTab(const FString& AbsolutePath)
{
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FName(*AbsolutePath)));
	EXPECT_TRUE(Tab.IsValid()) << TCHAR_TO_UTF8(*AbsolutePath);
	return Tab.ToSharedRef();
}

FString ToolWithRoot(const char* Root)
{
	return FString::Printf(TEXT("{ \"InitPyCmd\": \"\", \"Root\": %s }"), *FString(Root));
}
