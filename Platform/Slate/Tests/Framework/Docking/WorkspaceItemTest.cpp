#include "Framework/Docking/WorkspaceItem.h"

#include <gtest/gtest.h>

#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
FText Text(const TCHAR* In)
{
	return FText::FromString(In);
}

TArray<FString> NamesIn(const FWorkspaceItem& Group)
{
	TArray<FString> Names;
	for (const TSharedRef<FWorkspaceItem>& Item : Group.GetChildItems())
	{
		Names.Add(Item->GetDisplayName().ToString());
	}
	return Names;
}
}

TEST(WorkspaceItem, AGroupKeepsTheOrderOfAddingOrOfNames)
{
	const TSharedRef<FWorkspaceItem> AsAdded = FWorkspaceItem::NewGroup(Text(TEXT("As added")));
	const TSharedRef<FWorkspaceItem> Sorted = FWorkspaceItem::NewGroup(Text(TEXT("Sorted")), FSlateIcon(), true);
	for (const TCHAR* Name : {TEXT("b"), TEXT("C"), TEXT("a")})
	{
		AsAdded->AddItem(FWorkspaceItem::NewGroup(Text(Name)));
		Sorted->AddItem(FWorkspaceItem::NewGroup(Text(Name)));
	}
	EXPECT_EQ(NamesIn(*AsAdded), TArray<FString>({TEXT("b"), TEXT("C"), TEXT("a")}));
	EXPECT_EQ(NamesIn(*Sorted), TArray<FString>({TEXT("a"), TEXT("b"), TEXT("C")}));
}

TEST(WorkspaceItem, AnItemIsInOneGroupAtATime)
{
	const TSharedRef<FWorkspaceItem> First = FWorkspaceItem::NewGroup(Text(TEXT("First")));
	const TSharedRef<FWorkspaceItem> Second = FWorkspaceItem::NewGroup(Text(TEXT("Second")));
	const TSharedRef<FWorkspaceItem> Item = FWorkspaceItem::NewGroup(Text(TEXT("Item")));

	First->AddItem(Item);
	Second->AddItem(Item);
	EXPECT_EQ(First->GetChildItems().Num(), 0);
	EXPECT_EQ(Item->GetParent(), Second);

	Second->RemoveItem(Item);
	EXPECT_FALSE(Item->GetParent().IsValid());
}

// FTabSpawnerEntry is a workspace item.
TEST(WorkspaceItem, ASpawnerIsListedUnderItsNameInItsGroup)
{
	static_assert(std::is_base_of_v<FWorkspaceItem, FTabSpawnerEntry>);
	const TSharedRef<FWorkspaceItem> Group = FWorkspaceItem::NewGroup(Text(TEXT("Tools")));
	FTabSpawnerEntry& Entry = FGlobalTabmanager::Get()
								  ->RegisterNomadTabSpawner("WorkspaceTest",
									  FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab); }))
								  .SetMenuType(ETabSpawnerMenuType::Disabled)
								  .SetGroup(Group);

	EXPECT_EQ(NamesIn(*Group), TArray<FString>({TEXT("WorkspaceTest")}));
	Entry.SetDisplayName(Text(TEXT("The tool")));
	EXPECT_EQ(NamesIn(*Group), TArray<FString>({TEXT("The tool")}));
	EXPECT_EQ(Group->GetChildItems()[0]->AsSpawnerEntry().Get(), &Entry);
	EXPECT_EQ(Entry.GetMenuType(), ETabSpawnerMenuType::Disabled);
	EXPECT_FALSE(Group->AsSpawnerEntry().IsValid());

	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner("WorkspaceTest");
	EXPECT_EQ(Group->GetChildItems().Num(), 0);
}
