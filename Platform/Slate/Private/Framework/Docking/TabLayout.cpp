#include "Framework/Docking/TabManager.h"

TSharedRef<FTabManager::FStack> FTabManager::FStack::AddTab(const FTabId& TabId, ETabState::Type InTabState)
{
	Tabs.Add({TabId, InTabState});
	return AsShared();
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::SetWindow(FVector2D InPosition, bool bInIsMaximized)
{
	WindowPosition = InPosition;
	bMaximized = bInIsMaximized;
	return AsShared();
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::Split(const TSharedRef<FStack>& InStack)
{
	Stacks.Add(InStack);
	return AsShared();
}

TSharedRef<FTabManager::FLayout> FTabManager::FLayout::AddArea(const TSharedRef<FArea>& InArea)
{
	Areas.Add(InArea);
	return AsShared();
}

TSharedRef<FTabManager::FLayout> FTabManager::NewLayout(const FName LayoutName)
{
	const TSharedRef<FLayout> Layout = MakeShared<FLayout>();
	Layout->LayoutName = LayoutName;
	return Layout;
}

TSharedRef<FTabManager::FArea> FTabManager::NewArea(const FVector2D& InSize)
{
	const TSharedRef<FArea> Area = MakeShared<FArea>();
	Area->Size = InSize;
	return Area;
}

TSharedRef<FTabManager::FArea> FTabManager::NewPrimaryArea()
{
	const TSharedRef<FArea> Area = MakeShared<FArea>();
	Area->bPrimary = true;
	return Area;
}

TSharedRef<FTabManager::FStack> FTabManager::NewStack()
{
	return MakeShared<FStack>();
}
