#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "Types/SlateEnums.h"

class FTabManager;
class SDockingTabStack;
class SDockTab;
class SWidget;
class SWindow;

/** Names a tab: the type that its spawner is registered under, and an instance where there are several of a type. */
struct FTabId
{
	FTabId() = default;
	FTabId(const FName InTabType)
		: TabType(InTabType)
	{
	}
	FTabId(const FName InTabType, const int32 InInstanceId)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
	{
	}

	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && InstanceId == Other.InstanceId; }

	/** The type; with an instance, a colon and its number follow. */
	FString ToString() const
	{
		return InstanceId == INDEX_NONE ? TabType.ToString() : FString::Printf(TEXT("%s:%d"), *TabType.ToString(), InstanceId);
	}

	FName TabType;
	int32 InstanceId = INDEX_NONE;
};

namespace ETabState
{
enum Type
{
	OpenedTab = 0x1 << 0,
	ClosedTab = 0x1 << 1,
};
}

namespace ETabSpawnerMenuType
{
enum Type
{
	/** Offered in the menus that list tabs. */
	Enabled,
	/** Listed, but not to be opened from there. */
	Disabled,
	/** Opened by code only. */
	Hidden,
};
}

/** What to return where the result of restoring a layout may be nothing. */
enum class EOutputCanBeNullptr
{
	Never,
	IfNoTabValid,
};

/** What a spawner learns about the tab that it is to make. */
class FSpawnTabArgs
{
public:
	FSpawnTabArgs(const TSharedPtr<SWindow>& InOwnerWindow, const FTabId& InTabBeingSpawnedId)
		: TabIdBeingSpawned(InTabBeingSpawnedId)
		, OwnerWindow(InOwnerWindow)
	{
	}

	const FTabId& GetTabId() const { return TabIdBeingSpawned; }
	const TSharedPtr<SWindow>& GetOwnerWindow() const { return OwnerWindow; }

private:
	FTabId TabIdBeingSpawned;
	TSharedPtr<SWindow> OwnerWindow;
};

DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&);

/** A registered kind of tab: how it is made and what it is called. */
struct SLATE_API FTabSpawnerEntry : public FWorkspaceItem
{
	FTabSpawnerEntry(const FName InTabType, const FOnSpawnTab& InSpawnTabMethod)
		: FWorkspaceItem(FText::GetEmpty(), FSlateIcon(), false)
		, TabType(InTabType)
		, OnSpawnTab(InSpawnTabMethod)
	{
	}

	FTabSpawnerEntry& SetDisplayName(const TAttribute<FText>& InDisplayName)
	{
		DisplayNameAttribute = InDisplayName;
		return *this;
	}
	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon)
	{
		Icon = InIcon;
		return *this;
	}
	FTabSpawnerEntry& SetMenuType(const ETabSpawnerMenuType::Type InMenuType)
	{
		MenuType = InMenuType;
		return *this;
	}

	/** Lists the spawner in a group of a menu, instead of where it was listed before. */
	FTabSpawnerEntry& SetGroup(const TSharedRef<FWorkspaceItem>& InGroup)
	{
		InGroup->AddItem(SharedThis(this));
		return *this;
	}

	/** The display name; without one, the type. */
	virtual const FText& GetDisplayName() const override;
	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() override { return SharedThis(this); }
	ETabSpawnerMenuType::Type GetMenuType() const { return MenuType; }

private:
	friend class FTabManager;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	TAttribute<FText> DisplayNameAttribute;
	/** What the attribute gave last. */
	mutable FText ShownName;
	ETabSpawnerMenuType::Type MenuType = ETabSpawnerMenuType::Enabled;
};

DECLARE_MULTICAST_DELEGATE_TwoParams(FOnActiveTabChanged, TSharedPtr<SDockTab>, TSharedPtr<SDockTab>);

/** Knows the kinds of tabs, spawns them, and builds the windows and tab wells that a layout describes. */
class SLATE_API FTabManager : public TSharedFromThis<FTabManager>
{
public:
	class FSplitter;
	class FStack;

	/** A part of an area: tabs that share a well, or a division into further parts. */
	class SLATE_API FLayoutNode : public TSharedFromThis<FLayoutNode>
	{
	public:
		virtual ~FLayoutNode() = default;

		virtual TSharedPtr<FStack> AsStack() { return nullptr; }
		virtual TSharedPtr<FSplitter> AsSplitter() { return nullptr; }

		/** The share of the room, in relation to the nodes beside it. */
		float GetSizeCoefficient() const { return SizeCoefficient; }

	protected:
		float SizeCoefficient = 1.0f;
	};

	/** Tabs that share one well. */
	class SLATE_API FStack : public FLayoutNode
	{
	public:
		TSharedRef<FStack> AddTab(const FTabId& TabId, ETabState::Type InTabState);
		TSharedRef<FStack> SetSizeCoefficient(const float InSizeCoefficient);

		virtual TSharedPtr<FStack> AsStack() override { return SharedThis(this); }

	private:
		friend class FTabManager;

		struct FTab
		{
			FTabId TabId;
			ETabState::Type State;
		};
		TArray<FTab> Tabs;
	};

	/** Parts beside or below each other. */
	class SLATE_API FSplitter : public FLayoutNode
	{
	public:
		TSharedRef<FSplitter> Split(const TSharedRef<FLayoutNode>& InNode);
		TSharedRef<FSplitter> SetOrientation(const EOrientation InOrientation);
		TSharedRef<FSplitter> SetSizeCoefficient(const float InSizeCoefficient);

		virtual TSharedPtr<FSplitter> AsSplitter() override { return SharedThis(this); }

	protected:
		friend class FTabManager;

		EOrientation Orientation = Orient_Horizontal;
		TArray<TSharedRef<FLayoutNode>> ChildNodes;
	};

	/** A window of its own, or the part of the main window that holds tabs. */
	class SLATE_API FArea : public FSplitter
	{
	public:
		/** @param InPosition Desktop pixels. One outside the work area is moved to its edge: (-1, -1) is the corner of the screen. */
		TSharedRef<FArea> SetWindow(FVector2D InPosition, bool bInIsMaximized);

		/** Adds a stack, or a splitter with parts of its own. */
		template <typename SplitterElement>
		TSharedRef<FArea> Split(const TSharedRef<SplitterElement>& InElement)
		{
			FSplitter::Split(InElement);
			return SharedThis(this);
		}
		TSharedRef<FArea> SetOrientation(const EOrientation InOrientation);

	private:
		friend class FTabManager;

		FVector2D Size = FVector2D::ZeroVector;
		/** Unset, the window is centred. */
		TOptional<FVector2D> WindowPosition;
		bool bPrimary = false;
		bool bMaximized = false;
	};

	/** A named arrangement of areas. */
	class SLATE_API FLayout : public TSharedFromThis<FLayout>
	{
	public:
		TSharedRef<FLayout> AddArea(const TSharedRef<FArea>& InArea);
		FName GetLayoutName() const { return LayoutName; }

	private:
		friend class FTabManager;

		FName LayoutName;
		TArray<TSharedRef<FArea>> Areas;
	};

	static TSharedRef<FLayout> NewLayout(const FName LayoutName);
	/** An area with a window of its own. @param InSize Slate units. */
	static TSharedRef<FArea> NewArea(const FVector2D& InSize);
	static TSharedRef<FArea> NewPrimaryArea();
	static TSharedRef<FStack> NewStack();
	static TSharedRef<FSplitter> NewSplitter();

	virtual ~FTabManager() = default;

	/**
	 * Brings a tab to the front. A tab that is not open is spawned: in the main window's tab well where there is one, in a
	 * window of its own otherwise.
	 *
	 * @return Null, with a line in the log, when nobody registered the identifier.
	 */
	TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId);

	/** The open tab of that identifier, or null. A tab is found from the moment its spawner has returned. */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	/** Brings a tab and its window to the front and lets the tab light up. */
	void DrawAttention(const TSharedRef<SDockTab>& TabToHighlight);

	/**
	 * Makes the windows of a layout and spawns the tabs that it has open. A tab that is already open stays where it is.
	 *
	 * @param bEmbedTitleAreaContent Not looked at: title bars are the desktop's.
	 * @return The content of the primary area, if the layout has one.
	 */
	TSharedPtr<SWidget> RestoreFrom(const TSharedRef<FLayout>& Layout, const TSharedPtr<SWindow>& ParentWindow,
		const bool bEmbedTitleAreaContent = false, const EOutputCanBeNullptr OutputCanBeNullptr = EOutputCanBeNullptr::Never);

	bool HasTabSpawner(FName TabId) const { return Spawners.Contains(TabId); }

protected:
	FTabSpawnerEntry& RegisterSpawner(FName TabId, const FOnSpawnTab& OnSpawnTab);
	bool UnregisterSpawner(FName TabId);

private:
	friend class SDockTab;
	friend class SDockingTabStack;

	/** Makes the tab and puts it into a well. */
	TSharedPtr<SDockTab> SpawnTab(const FTabId& TabId, const TSharedRef<SDockingTabStack>& Stack);
	TSharedRef<SWidget> BuildNode(FLayoutNode& Node);
	TSharedRef<SWidget> BuildStack(const FStack& StackLayout);
	/** Each stack below the node gets a window of its own, at the area's place. */
	void OpenWindows(const FArea& Area, FLayoutNode& Node);
	TSharedRef<SDockingTabStack> MakeStackInNewWindow(
		const FVector2D& Size, const TOptional<FVector2D>& Position, bool bMaximized);

	TMap<FName, TSharedRef<FTabSpawnerEntry>> Spawners;
	TWeakPtr<SDockingTabStack> PrimaryStack;
};

/** The tab manager of the whole editor, which also knows which tab is the active one. */
class SLATE_API FGlobalTabmanager final : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	/** An identifier that is registered already is a programming error. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab);
	void UnregisterNomadTabSpawner(const FName TabId) { UnregisterSpawner(TabId); }

	void SetRootWindow(const TSharedRef<SWindow>& InRootWindow) { RootWindow = InRootWindow; }
	TSharedPtr<SWindow> GetRootWindow() const { return RootWindow.Pin(); }

	TSharedPtr<SDockTab> GetActiveTab() const { return ActiveTab.Pin(); }
	void SetActiveTab(const TSharedPtr<SDockTab>& NewActiveTab);

	/** Told the previous and the new active tab, on each change. */
	FDelegateHandle OnActiveTabChanged_Subscribe(const FOnActiveTabChanged::FDelegate& InDelegate);
	void OnActiveTabChanged_Unsubscribe(FDelegateHandle Handle);

	/** The tabs that are open now, in the order of their opening. */
	TArray<TSharedRef<SDockTab>> GetLiveTabs() const;

	/** The open tab in whose content a widget stands, or null. */
	TSharedPtr<SDockTab> FindTabOfContent(const TSharedRef<SWidget>& Widget) const;

private:
	friend class FTabManager;
	friend class SDockTab;

	TArray<TWeakPtr<SDockTab>> LiveTabs;
	TWeakPtr<SDockTab> ActiveTab;
	TWeakPtr<SWindow> RootWindow;
	FOnActiveTabChanged ActiveTabChanged;
};
