#include "ToolTabs.h"

#include "Dom/JsonObject.h"
#include "Framework/Docking/TabManager.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Misc/PackageName.h"
#include "NameOfText.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "PythonCommand.h"
#include "ToolsSettings.h"
#include "Velmora/SVelmoraWidget.h"
#include "Velmora/ToolDescription.h"
#include "Widgets/Docking/SDockTab.h"

TArray<FName> RegisteredToolTabIds;
TArray<TSharedPtr<SDockTab>> OpenToolTabs;
TMap<FString, FString> MapChangeCommands;

namespace
{
const TCHAR* const DefaultTabLabel = TEXT("Python Velmora Tools");

/** The tools whose spawners are running. The tab of such a tool is not live yet: asking for it would spawn another. */
TArray<FName> ToolsBeingSpawned;

/** Tells where a tool's data object comes from; what names no package is passed on all the same, and counts as nothing later. */
void ReportDataPath(const FString& DataPath)
{
	if (!DataPath.IsEmpty() && !FPackageName::DoesPackageExist(DataPath))
	{
		UE_LOG(PythonKX, Error, TEXT("Get VelmoraDataPath failed %s"), *DataPath);
		return;
	}
	UE_LOG(PythonKX, Log, TEXT("Load VelmoraData @Path: %s"), *DataPath);
}

void RecordMapChangeCommand(const FString& JsonPath)
{
	FString Error;
	const TSharedPtr<FJsonObject> Description = LoadJsonFile(JsonPath, Error);
	if (!Description.IsValid())
	{
		UE_LOG(PythonKX, Error, TEXT("Json object is not Valid %s"), *JsonPath);
		return;
	}
	FString Command;
	Description->TryGetStringField(TEXT("OnMapChangedCmd"), Command);
	if (Command.IsEmpty())
	{
		return;
	}
	const FString ShortName = GetToolShortPath(JsonPath);
	MapChangeCommands.Add(ShortName, Command);
	UE_LOG(PythonKX, Log, TEXT("InitPytool's OnMapChangeCommand, ShortName: %s, cmd: %s"), *ShortName, *Command);
}

void OnToolTabClosed(TSharedRef<SDockTab> Tab, FString JsonPath)
{
	FString Command;
	if (GetOnClosePyCmd(JsonPath, Command))
	{
		TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("OnClosePyCmd"));
		RunPythonCommand(Command);
	}
	FKestrixModule::RemoveOpenToolTab(NameOfText(JsonPath));
}
}

bool IsSameTool(FName A, FName B)
{
	return GetToolShortPath(A.ToString()) == GetToolShortPath(B.ToString());
}

void OpenToolInNewWindow(FName TabId, const FVector2D& Size, const FVector2D& Position, FName LayoutName)
{
	const TSharedRef<FGlobalTabmanager> TabManager = FGlobalTabmanager::Get();
	const TSharedRef<FTabManager::FLayout> Layout =
		FTabManager::NewLayout(LayoutName)
			->AddArea(FTabManager::NewArea(Size)
						  ->SetWindow(Position, false)
						  ->Split(FTabManager::NewStack()->AddTab(TabId, ETabState::OpenedTab)));
	TabManager->RestoreFrom(Layout, TabManager->GetRootWindow(), true, EOutputCanBeNullptr::Never);
	if (const TSharedPtr<SDockTab> Tab = TabManager->FindExistingLiveTab(FTabId(TabId)))
	{
		TabManager->DrawAttention(Tab.ToSharedRef());
	}
}

bool OpenTool(FName TabId, const FVector2D& Size, const FVector2D& Position, const FString& ToolsPath)
{
	const bool bInWindow = Size.X > 0.0;
	if (ToolsBeingSpawned.ContainsByPredicate([TabId](FName Spawned) { return IsSameTool(Spawned, TabId); }))
	{
		UE_LOG(PythonKX, Warning, TEXT("Tool %s is opening already; its own opening asked for it again."), *ToolsPath);
		return !bInWindow;
	}
	if (bInWindow)
	{
		OpenToolInNewWindow(TabId, Size, Position, NameOfText(ToolsPath));
		return false;
	}
	if (Position.X > 0.0)
	{
		UE_LOG(PythonKX, Warning, TEXT("TabPosition Not Implemented yet %s"), *ToolsPath);
	}
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(TabId));
	return true;
}

void LogRegisteredTools(FName TabName)
{
	const FString Searched = GetToolShortPath(TabName.ToString());
	for (const FName TabId : RegisteredToolTabIds)
	{
		UE_LOG(PythonKX, Warning, TEXT("\t Exists: Tab: %s vs %s"), *Searched, *GetToolShortPath(TabId.ToString()));
	}
}

bool FKestrixModule::RegisterToolTab(const FString& JsonPath, FName& OutTabId, FVector2D& OutSize, FVector2D& OutPosition)
{
	const FString FullPath = GetToolAbsolutePath(JsonPath);
	FString DataPath;
	FString TabLabel;
	const bool bParsed = GetDataAndTabLabel(FullPath, DataPath, TabLabel);
	ReportDataPath(DataPath);

	const FName TabId = NameOfText(FullPath);
	const bool bRegistered = RegisteredToolTabIds.Contains(TabId);
	if (TabId.IsNone() || (!bParsed && !bRegistered))
	{
		return false;
	}
	if (!bRegistered)
	{
		UE_LOG(PythonKX, Log, TEXT("RegisterNomadTabSpawner %s"), *FullPath);
		FGlobalTabmanager::Get()
			->RegisterNomadTabSpawner(TabId, FOnSpawnTab::CreateRaw(this, &FKestrixModule::SpawnToolTab, FullPath, DataPath))
			.SetDisplayName(FText::FromString(TabLabel.IsEmpty() ? DefaultTabLabel : TabLabel))
			.SetIcon(FSlateIcon("VelmoraStyle", "PythonVelmoraTools.Small"))
			.SetMenuType(ETabSpawnerMenuType::Hidden);
		RegisteredToolTabIds.Add(TabId);
	}
	OutTabId = TabId;
	GetInitTabGeometry(FullPath, OutSize, OutPosition);
	return true;
}

TSharedRef<SDockTab> FKestrixModule::SpawnToolTab(const FSpawnTabArgs& Args, FString JsonPath, FString DataPath)
{
	const FName TabId = NameOfText(JsonPath);
	ToolsBeingSpawned.Add(TabId);
	const TSharedRef<SVelmoraWidget> Tool =
		SNew(SVelmoraWidget).JsonPath(JsonPath).DataObj(GetToolsDataInstance(JsonPath, DataPath));

	const TSharedRef<SDockTab> Tab =
		SNew(SDockTab).TabRole(ETabRole::NomadTab).OnTabClosed_Static(&OnToolTabClosed, JsonPath)[Tool];
	InitPyTool(JsonPath);
	ToolsBeingSpawned.Remove(TabId);
	OpenToolTabs.AddUnique(Tab);
	return Tab;
}

void FKestrixModule::InitPyTool(const FString& JsonPath)
{
	FString Command;
	if (!GetInitPyCmd(JsonPath, Command))
	{
		UE_LOG(PythonKX, Log, TEXT("InitPytools skipped, cmd: %s"), *Command);
		return;
	}
	const FString QuotedPath = TEXT("\"") + JsonPath + TEXT("\"");
	Command.ReplaceInline(TEXT("%JsonPath"), *QuotedPath, ESearchCase::IgnoreCase);
	UE_LOG(PythonKX, Log, TEXT("InitPyCmd: %s"), *Command);
	{
		TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("InitPyCmd"));
		RunPythonCommand(Command);
	}
	RecordMapChangeCommand(JsonPath);
}

bool FKestrixModule::RemoveOpenToolTab(FName TabId)
{
	const int32 Index = OpenToolTabs.IndexOfByPredicate([TabId](const TSharedPtr<SDockTab>& Tab)
		{ return Tab.IsValid() && FName(*Tab->GetLayoutIdentifier().ToString()) == TabId; });
	if (Index == INDEX_NONE)
	{
		return false;
	}
	OpenToolTabs.RemoveAt(Index);
	return true;
}
