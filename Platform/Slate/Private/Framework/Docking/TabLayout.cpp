#include "Framework/Docking/TabManager.h"

TSharedRef<FTabManager::FStack> FTabManager::FStack::AddTab(const FTabId& TabId, ETabState::Type InTabState)
{
	Tabs.Add({TabId, InTabState});
	return SharedThis(this);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::SetSizeCoefficient(const float InSizeCoefficient)
{
	SizeCoefficient = InSizeCoefficient;
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::Split(const TSharedRef<FLayoutNode>& InNode)
{
	ChildNodes.Add(InNode);
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::SetOrientation(const EOrientation InOrientation)
{
	Orientation = InOrientation;
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::SetSizeCoefficient(const float InSizeCoefficient)
{
	SizeCoefficient = InSizeCoefficient;
	return SharedThis(this);
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::SetWindow(FVector2D InPosition, bool bInIsMaximized)
{
	WindowPosition = InPosition;
	bMaximized = bInIsMaximized;
	return SharedThis(this);
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::SetOrientation(const EOrientation InOrientation)
{
	Orientation = InOrientation;
	return SharedThis(this);
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

TSharedRef<FTabManager::FSplitter> FTabManager::NewSplitter()
{
	return MakeShared<FSplitter>();
}
