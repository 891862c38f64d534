#include "Framework/Docking/TabManager.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/SDockingTabStack.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

DEFINE_LOG_CATEGORY_STATIC(LogTabManager, Log, All);

namespace
{
/** The window of a tab that no layout places, in slate units. */
const FVector2D DefaultWindowSize(800.0, 600.0);
}

const FText& FTabSpawnerEntry::GetDisplayName() const
{
	ShownName = DisplayNameAttribute.IsSet() ? DisplayNameAttribute.Get() : FText::FromName(TabType);
	return ShownName;
}

FTabSpawnerEntry& FTabManager::RegisterSpawner(FName TabId, const FOnSpawnTab& OnSpawnTab)
{
	checkf(!Spawners.Contains(TabId), TEXT("A tab spawner for '%s' is registered already"), *TabId.ToString());
	return Spawners.Add(TabId, MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab)).Get();
}

bool FTabManager::UnregisterSpawner(FName TabId)
{
	if (const TSharedRef<FTabSpawnerEntry>* Entry = Spawners.Find(TabId))
	{
		if (const TSharedPtr<FWorkspaceItem> Group = (*Entry)->GetParent())
		{
			Group->RemoveItem(*Entry);
		}
	}
	return Spawners.Remove(TabId) > 0;
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		if (Tab->GetLayoutIdentifier() == TabId)
		{
			return Tab;
		}
	}
	return nullptr;
}

TSharedPtr<SDockTab> FTabManager::TryInvokeTab(const FTabId& TabId)
{
	if (const TSharedPtr<SDockTab> Existing = FindExistingLiveTab(TabId))
	{
		Existing->ActivateInParent(ETabActivationCause::SetDirectly);
		if (const TSharedPtr<SWindow> Window = Existing->GetParentWindow())
		{
			Window->BringToFront();
		}
		return Existing;
	}
	if (!Spawners.Contains(TabId.TabType))
	{
		UE_LOG(LogTabManager, Warning, TEXT("There is no tab spawner for '%s'."), *TabId.ToString());
		return nullptr;
	}
	const TSharedPtr<SDockingTabStack> Primary = PrimaryStack.Pin();
	const TSharedRef<SDockingTabStack> Stack =
		Primary.IsValid() ? Primary.ToSharedRef() : MakeStackInNewWindow(DefaultWindowSize, TOptional<FVector2D>(), false);
	return SpawnTab(TabId, Stack);
}

TSharedPtr<SDockTab> FTabManager::SpawnTab(const FTabId& TabId, const TSharedRef<SDockingTabStack>& Stack)
{
	const TSharedRef<FTabSpawnerEntry>* Registered = Spawners.Find(TabId.TabType);
	if (!Registered)
	{
		UE_LOG(LogTabManager, Warning, TEXT("There is no tab spawner for '%s'."), *TabId.ToString());
		return nullptr;
	}
	// The spawner runs code of others, which may unregister it.
	const TSharedRef<FTabSpawnerEntry> Entry = *Registered;
	const FText DisplayName = Entry->GetDisplayName();
	const FCpuProfilerScopeStack::FScope Scope(
		[&] { return FString::Printf(TEXT("opening of tab \"%s\""), *DisplayName.ToString()); });

	const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(Stack);
	const TSharedRef<SDockTab> Tab = Entry->OnSpawnTab.Execute(FSpawnTabArgs(Window, TabId));
	Tab->SetLayoutIdentifier(TabId);
	if (!Tab->bHasLabel)
	{
		Tab->SetLabel(DisplayName);
	}
	Tab->SetTabIcon(Entry->GetIcon().GetOptionalIcon());
	Stack->AddTab(Tab);
	FGlobalTabmanager::Get()->LiveTabs.Add(Tab);
	Tab->ActivateInParent(ETabActivationCause::SetDirectly);
	return Tab;
}

void FTabManager::DrawAttention(const TSharedRef<SDockTab>& TabToHighlight)
{
	TabToHighlight->ActivateInParent(ETabActivationCause::SetDirectly);
	if (const TSharedPtr<SWindow> Window = TabToHighlight->GetParentWindow())
	{
		Window->BringToFront();
	}
	TabToHighlight->FlashTab();
}

TSharedPtr<SWidget> FTabManager::RestoreFrom(const TSharedRef<FLayout>& Layout, const TSharedPtr<SWindow>& ParentWindow,
	const bool bEmbedTitleAreaContent, const EOutputCanBeNullptr OutputCanBeNullptr)
{
	TSharedPtr<SWidget> Primary;
	for (const TSharedRef<FArea>& Area : Layout->Areas)
	{
		if (Area->bPrimary)
		{
			Primary = BuildNode(*Area);
		}
		else
		{
			OpenWindows(*Area, *Area);
		}
	}
	return Primary;
}

TSharedRef<SWidget> FTabManager::BuildNode(FLayoutNode& Node)
{
	if (const TSharedPtr<FStack> StackLayout = Node.AsStack())
	{
		return BuildStack(*StackLayout);
	}
	const TSharedPtr<FSplitter> Splitter = Node.AsSplitter();
	const TSharedRef<SHorizontalBox> Beside = SNew(SHorizontalBox);
	const TSharedRef<SVerticalBox> Below = SNew(SVerticalBox);
	const bool bHorizontal = Splitter->Orientation == Orient_Horizontal;
	for (const TSharedRef<FLayoutNode>& Child : Splitter->ChildNodes)
	{
		const TSharedRef<SWidget> Part = BuildNode(*Child);
		if (bHorizontal)
		{
			Beside->AddSlot().FillWidth(Child->GetSizeCoefficient())[Part];
		}
		else
		{
			Below->AddSlot().FillHeight(Child->GetSizeCoefficient())[Part];
		}
	}
	return bHorizontal ? TSharedRef<SWidget>(Beside) : TSharedRef<SWidget>(Below);
}

TSharedRef<SWidget> FTabManager::BuildStack(const FStack& StackLayout)
{
	const TSharedRef<SDockingTabStack> Stack = SNew(SDockingTabStack);
	if (!PrimaryStack.IsValid())
	{
		PrimaryStack = Stack;
	}
	for (const FStack::FTab& Tab : StackLayout.Tabs)
	{
		if (Tab.State == ETabState::OpenedTab && !FindExistingLiveTab(Tab.TabId).IsValid())
		{
			SpawnTab(Tab.TabId, Stack);
		}
	}
	return Stack;
}

void FTabManager::OpenWindows(const FArea& Area, FLayoutNode& Node)
{
	if (const TSharedPtr<FSplitter> Splitter = Node.AsSplitter())
	{
		for (const TSharedRef<FLayoutNode>& Child : Splitter->ChildNodes)
		{
			OpenWindows(Area, *Child);
		}
		return;
	}
	TSharedPtr<SDockingTabStack> Stack;
	for (const FStack::FTab& Tab : Node.AsStack()->Tabs)
	{
		if (Tab.State != ETabState::OpenedTab || FindExistingLiveTab(Tab.TabId).IsValid() || !HasTabSpawner(Tab.TabId.TabType))
		{
			continue;
		}
		if (!Stack.IsValid())
		{
			Stack = MakeStackInNewWindow(Area.Size, Area.WindowPosition, Area.bMaximized);
		}
		SpawnTab(Tab.TabId, Stack.ToSharedRef());
	}
}

TSharedRef<SDockingTabStack> FTabManager::MakeStackInNewWindow(
	const FVector2D& Size, const TOptional<FVector2D>& Position, bool bMaximized)
{
	const TSharedRef<SDockingTabStack> Stack = SNew(SDockingTabStack);
	const TSharedRef<SWindow> Window = SNew(SWindow)
										   .ClientSize(FVector2D(FMath::Max(Size.X, 1.0), FMath::Max(Size.Y, 1.0)))
										   .AutoCenter(Position.IsSet() ? EAutoCenter::None : EAutoCenter::PrimaryWorkArea)
										   .ScreenPosition(Position.Get(FVector2D::ZeroVector))[Stack];
	Stack->SetOwnWindow(Window);
	FSlateApplication::Get().AddWindow(Window);
	if (bMaximized && Window->GetNativeWindow().IsValid())
	{
		Window->GetNativeWindow()->Maximize();
	}
	return Stack;
}

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = MakeShared<FGlobalTabmanager>();
	return Instance;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab)
{
	return RegisterSpawner(TabId, OnSpawnTab);
}

void FGlobalTabmanager::SetActiveTab(const TSharedPtr<SDockTab>& NewActiveTab)
{
	const TSharedPtr<SDockTab> Previous = ActiveTab.Pin();
	if (Previous != NewActiveTab)
	{
		ActiveTab = NewActiveTab;
		for (const TSharedPtr<SDockTab>& Tab : {Previous, NewActiveTab})
		{
			if (Tab.IsValid())
			{
				Tab->Invalidate(EInvalidateWidgetReason::Paint);
			}
		}
		ActiveTabChanged.Broadcast(Previous, NewActiveTab);
	}
}

FDelegateHandle FGlobalTabmanager::OnActiveTabChanged_Subscribe(const FOnActiveTabChanged::FDelegate& InDelegate)
{
	return ActiveTabChanged.Add(InDelegate);
}

void FGlobalTabmanager::OnActiveTabChanged_Unsubscribe(FDelegateHandle Handle)
{
	ActiveTabChanged.Remove(Handle);
}

TArray<TSharedRef<SDockTab>> FGlobalTabmanager::GetLiveTabs() const
{
	TArray<TSharedRef<SDockTab>> Result;
	for (const TWeakPtr<SDockTab>& Entry : LiveTabs)
	{
		if (const TSharedPtr<SDockTab> Tab = Entry.Pin())
		{
			Result.Add(Tab.ToSharedRef());
		}
	}
	return Result;
}

TSharedPtr<SDockTab> FGlobalTabmanager::FindTabOfContent(const TSharedRef<SWidget>& Widget) const
{
	for (const TSharedRef<SDockTab>& Tab : GetLiveTabs())
	{
		for (const SWidget* Step = &Widget.Get(); Step; Step = Step->GetParentPointer())
		{
			if (Step == &Tab->GetContent().Get() && Step != &SNullWidget::NullWidget.Get())
			{
				return Tab;
			}
		}
	}
	return nullptr;
}
