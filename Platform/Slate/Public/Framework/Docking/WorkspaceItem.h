#pragma once

#include "CoreMinimal.h"
#include "Textures/SlateIcon.h"

struct FTabSpawnerEntry;

/** An entry of the menus that list kinds of tabs: a spawner, or a group of entries. */
class SLATE_API FWorkspaceItem : public TSharedFromThis<FWorkspaceItem>
{
public:
	FWorkspaceItem(const FText& InDisplayName, const FSlateIcon& InIcon, const bool bInSortChildren)
		: DisplayName(InDisplayName)
		, Icon(InIcon)
		, bSortChildren(bInSortChildren)
	{
	}
	virtual ~FWorkspaceItem() = default;

	/** @param bSortChildren Keeps the entries of the group in the order of their names. */
	static TSharedRef<FWorkspaceItem> NewGroup(
		const FText& DisplayName, const FSlateIcon& Icon = FSlateIcon(), const bool bSortChildren = false);

	virtual const FText& GetDisplayName() const { return DisplayName; }
	const FSlateIcon& GetIcon() const { return Icon; }

	/** Makes the item the last of this group, or puts it in its place by name. It leaves the group where it was before. */
	void AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd);
	void RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove);
	const TArray<TSharedRef<FWorkspaceItem>>& GetChildItems() const { return ChildItems; }
	TSharedPtr<FWorkspaceItem> GetParent() const { return ParentItem.Pin(); }

	/** The spawner that the entry stands for; null for a group. */
	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() { return nullptr; }

protected:
	FText DisplayName;
	FSlateIcon Icon;

private:
	TArray<TSharedRef<FWorkspaceItem>> ChildItems;
	TWeakPtr<FWorkspaceItem> ParentItem;
	bool bSortChildren;
};
