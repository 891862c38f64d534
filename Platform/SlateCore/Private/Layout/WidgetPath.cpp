#include "Layout/WidgetPath.h"

#include "Widgets/SWindow.h"

namespace
{
FArrangedWidget PlaceOnDesktop(const TSharedRef<SWidget>& Widget, const FVector2D& WindowPosition)
{
	return FArrangedWidget(Widget, Widget->GetPaintSpaceGeometry().MovedBy(WindowPosition));
}
}

FWidgetPath FWidgetPath::To(const TSharedRef<const SWidget>& Widget)
{
	TArray<TSharedRef<SWidget>> LeafToRoot;
	for (SWidget* Step = const_cast<SWidget*>(&Widget.Get()); Step; Step = Step->GetParentPointer())
	{
		LeafToRoot.Add(Step->AsShared());
	}
	SWindow* const Window = LeafToRoot.Last()->AsWindow();
	if (!Window)
	{
		return FWidgetPath();
	}

	TArray<FArrangedWidget> RootToLeaf;
	RootToLeaf.Reserve(LeafToRoot.Num());
	for (int32 Index = LeafToRoot.Num() - 1; Index >= 0; --Index)
	{
		RootToLeaf.Add(PlaceOnDesktop(LeafToRoot[Index], Window->GetPositionInScreen()));
	}
	return FWidgetPath(StaticCastSharedRef<SWindow>(LeafToRoot.Last()), MoveTemp(RootToLeaf));
}

bool FWidgetPath::ContainsWidget(const SWidget* Widget) const
{
	return Widgets.ContainsByPredicate([Widget](const FArrangedWidget& Entry) { return &Entry.Widget.Get() == Widget; });
}

FWeakWidgetPath::FWeakWidgetPath(const FWidgetPath& Path)
{
	Widgets.Reserve(Path.Widgets.Num());
	for (const FArrangedWidget& Entry : Path.Widgets)
	{
		Widgets.Add(Entry.Widget);
	}
}

bool FWeakWidgetPath::ContainsWidget(const SWidget* Widget) const
{
	return Widgets.ContainsByPredicate([Widget](const TWeakPtr<SWidget>& Entry) { return Entry.Pin().Get() == Widget; });
}

FWidgetPath FWeakWidgetPath::ToWidgetPath() const
{
	TSharedPtr<SWidget> Deepest;
	for (const TWeakPtr<SWidget>& Entry : Widgets)
	{
		const TSharedPtr<SWidget> Widget = Entry.Pin();
		if (!Widget.IsValid() || (Deepest.IsValid() && Widget->GetParentPointer() != Deepest.Get()))
		{
			break;
		}
		Deepest = Widget;
	}
	return Deepest.IsValid() ? FWidgetPath::To(Deepest.ToSharedRef()) : FWidgetPath();
}
