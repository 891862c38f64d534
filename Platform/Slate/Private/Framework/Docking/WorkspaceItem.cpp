#include "Framework/Docking/WorkspaceItem.h"

TSharedRef<FWorkspaceItem> FWorkspaceItem::NewGroup(const FText& DisplayName, const FSlateIcon& Icon, const bool bSortChildren)
{
	return MakeShared<FWorkspaceItem>(DisplayName, Icon, bSortChildren);
}

void FWorkspaceItem::AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd)
{
	if (const TSharedPtr<FWorkspaceItem> Former = ItemToAdd->GetParent())
	{
		Former->RemoveItem(ItemToAdd);
	}
	ItemToAdd->ParentItem = AsShared();
	ChildItems.Add(ItemToAdd);
	if (bSortChildren)
	{
		ChildItems.StableSort([](const TSharedRef<FWorkspaceItem>& A, const TSharedRef<FWorkspaceItem>& B)
			{ return A->GetDisplayName().ToString() < B->GetDisplayName().ToString(); });
	}
}

void FWorkspaceItem::RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove)
{
	if (ChildItems.Remove(ItemToRemove) > 0)
	{
		ItemToRemove->ParentItem.Reset();
	}
}
