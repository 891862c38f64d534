#include "Kestrix.h"

#include "AfterFrame.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/IConsoleManager.h"
#include "Modules/ModuleManager.h"
#include "SToolsCompoundWidget.h"
#include "ToolTabs.h"
#include "ToolsSettings.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FKestrixModule"

IMPLEMENT_MODULE(FKestrixModule, Kestrix)

namespace
{
// The settings look the first up by name; the others tell the sketch tab, in seconds, how often to look at its file and how
// long to wait before it opens again.
TAutoConsoleVariable<int32> OverrideEnabled(TEXT("Kestrix.OverrideEnabled"), -1, TEXT("Kestrix.OverrideEnabled"));
TAutoConsoleVariable<float> SketchTabCheckInterval(
	TEXT("Kestrix.SketchTabCheckInterval"), 1.0f, TEXT("Kestrix.SketchTabCheckInterval"));
TAutoConsoleVariable<float> SketchTabRelaunchDelay(
	TEXT("Kestrix.SketchTabRelaunchDelay"), 0.05f, TEXT("Kestrix.SketchTabRelaunchDelay"));

const FName ToolsTabId("PythonToolsTab");

TSharedRef<SDockTab> SpawnToolsTab(const FSpawnTabArgs& Args)
{
	return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(SToolsCompoundWidget)];
}
}

FKestrixModule& FKestrixModule::Get()
{
	return FModuleManager::GetModuleChecked<FKestrixModule>("Kestrix");
}

void FKestrixModule::StartupModule()
{
	InitSettings();
	RegisterEditorHooks();
}

void FKestrixModule::ShutdownModule()
{
	UnregisterEditorHooks();
}

void FKestrixModule::RegisterEditorHooks()
{
	ReadLogFlags();

	// A commandlet has no windows, so there is no place for tabs.
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	const TSharedRef<FGlobalTabmanager> TabManager = FGlobalTabmanager::Get();
	TabManager->RegisterNomadTabSpawner(ToolsTabId, FOnSpawnTab::CreateStatic(&SpawnToolsTab))
		.SetDisplayName(LOCTEXT("PythonTools", "Python Tools"))
		.SetMenuType(ETabSpawnerMenuType::Hidden);
	ActiveTabChangedHandle = TabManager->OnActiveTabChanged_Subscribe(
		FOnActiveTabChanged::FDelegate::CreateRaw(this, &FKestrixModule::OnActiveTabChanged));
}

void FKestrixModule::UnregisterEditorHooks()
{
	DropWorkAfterFrame();
	if (!ActiveTabChangedHandle.IsValid())
	{
		return;
	}
	const TSharedRef<FGlobalTabmanager> TabManager = FGlobalTabmanager::Get();
	TabManager->UnregisterNomadTabSpawner(ToolsTabId);
	for (const FName TabId : RegisteredToolTabIds)
	{
		TabManager->UnregisterNomadTabSpawner(TabId);
	}
	RegisteredToolTabIds.Empty();

	// Tools that are still open are not the module's to close; it only lets go of them.
	OpenToolTabs.Empty();
	TabManager->OnActiveTabChanged_Unsubscribe(ActiveTabChangedHandle);
	ActiveTabChangedHandle.Reset();
}

void FKestrixModule::OnActiveTabChanged(TSharedPtr<SDockTab> Previous, TSharedPtr<SDockTab> New)
{
	if (New.IsValid())
	{
		RecentTabs.Remove(New);
		RecentTabs.Add(New);
	}
	for (int32 Index = RecentTabs.Num() - 1; Index >= 0; --Index)
	{
		if (!RecentTabs[Index].IsValid())
		{
			RecentTabs.RemoveAt(Index);
		}
	}
}

FString FKestrixModule::GetToolAbsolutePath(const FString& Path)
{
	return ::GetToolAbsolutePath(Path);
}

FString FKestrixModule::GetToolShortPath(const FString& Path)
{
	return ::GetToolShortPath(Path);
}

#undef LOCTEXT_NAMESPACE
