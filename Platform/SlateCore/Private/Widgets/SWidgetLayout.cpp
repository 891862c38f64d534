#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
#include "Rendering/SlateDamage.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

namespace
{
/** Shadows and outlines may leave a widget's room by this many pixels. */
constexpr float PaintOverhang = 2.0f;
}

void SWidget::Invalidate(EInvalidateWidgetReason Reason)
{
	constexpr EInvalidateWidgetReason LayoutReasons =
		EInvalidateWidgetReason::Layout | EInvalidateWidgetReason::ChildOrder | EInvalidateWidgetReason::Visibility;

	if (bArranged)
	{
		AddDamage(PaintBounds);
	}
	if (EnumHasAnyFlags(Reason, LayoutReasons))
	{
		bNeedsPrepass = true;
		bNeedsArrange = true;
		if (ParentWidget && EnumHasAnyFlags(Reason, EInvalidateWidgetReason::Visibility))
		{
			// Whether a child takes part at all is settled by the parent's arrangement.
			ParentWidget->bNeedsArrange = true;
		}
		MarkPrepassUpwards();
	}
}

void SWidget::MarkPrepassUpwards()
{
	for (SWidget* Widget = ParentWidget; Widget && !Widget->bNeedsPrepass; Widget = Widget->ParentWidget)
	{
		Widget->bNeedsPrepass = true;
	}
}

void SWidget::AddDamage(const FSlateRect& Rect)
{
	if (SWindow* Window = GetRootWidget().AsWindow())
	{
		Window->AddDamage(Rect);
	}
}

void SWidget::SlatePrepass(float LayoutScaleMultiplier)
{
	if (!bNeedsPrepass && PrepassScale == LayoutScaleMultiplier)
	{
		return;
	}
	PrepassScale = LayoutScaleMultiplier;
	bNeedsPrepass = false;

	FChildren& Children = *GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		SWidget& Child = Children.GetChildRefAt(Index);
		if (Child.GetVisibility() != EVisibility::Collapsed)
		{
			Child.SlatePrepass(LayoutScaleMultiplier);
			bDescendantNeedsArrange |= Child.bNeedsArrange || Child.bDescendantNeedsArrange;
		}
	}

	const FVector2D NewDesiredSize = ComputeDesiredSize(LayoutScaleMultiplier);
	if (NewDesiredSize != DesiredSize)
	{
		DesiredSize = NewDesiredSize;
		bNeedsArrange = true;
		if (ParentWidget)
		{
			ParentWidget->bNeedsArrange = true;
		}
	}
}

FSlateRect SWidget::GetClipOfChildren() const
{
	return Clipping == EWidgetClipping::Inherit ? ClipRect
												: ClipRect.IntersectionWith(PaintSpaceGeometry.GetLayoutBoundingRect());
}

FSlateRect SWidget::RoomOf(const FGeometry& Geometry) const
{
	// A widget that got less room than it wanted may paint beyond it.
	return Geometry.GetLayoutBoundingRect().Expand(
		FSlateRect(Geometry.GetAbsolutePosition(), Geometry.LocalToAbsolute(DesiredSize)));
}

FSlateRect SWidget::ComputeOwnPaintBounds() const
{
	return RoomOf(PaintSpaceGeometry).ExtendBy(FMargin(PaintOverhang)).IntersectionWith(ClipRect);
}

void SWidget::UpdatePaintBounds(const FSlateRect& ChildClip)
{
	FSlateRect Bounds = ComputeOwnPaintBounds();
	for (const SWidget* Child : VisibleChildren)
	{
		if (!Child->PaintBounds.IsEmpty())
		{
			Bounds = Bounds.Expand(Child->PaintBounds);
		}
	}
	PaintBounds = Bounds;
}

void SWidget::UpdateArrangement(const FGeometry& Geometry, const FSlateRect& Clip, FSlateDamage& Damage)
{
	const bool bMoved = !bArranged || Geometry != PaintSpaceGeometry || !(Clip == ClipRect);
	if (!bMoved && !bNeedsArrange)
	{
		if (bDescendantNeedsArrange)
		{
			ArrangeInvalidDescendants(GetClipOfChildren(), Damage);
			UpdatePaintBounds(ClipRect);
		}
		return;
	}

	if (bMoved && bArranged)
	{
		Damage.Add(PaintBounds);
	}
	PaintSpaceGeometry = Geometry;
	ClipRect = Clip;
	bArranged = true;
	ArrangeAnew(GetClipOfChildren(), Damage);
	UpdatePaintBounds(ClipRect);
	if (bMoved || VisibleChildren.Num() == 0)
	{
		Damage.Add(PaintBounds);
	}
	bNeedsArrange = false;
	bDescendantNeedsArrange = false;
}

void SWidget::MoveToPaintedPlace(const FGeometry& AllottedGeometry)
{
	SWindow* const Window = GetRootWidget().AsWindow();
	if (!ParentWidget || !Window)
	{
		return;
	}
	const FSlateRect Clip = ParentWidget->GetClipOfChildren();
	if (!FSlateRect::DoRectanglesIntersect(RoomOf(AllottedGeometry), Clip))
	{
		return;
	}
	FSlateDamage Damage;
	UpdateArrangement(AllottedGeometry, Clip, Damage);
	ParentWidget->VisibleChildren.AddUnique(this);
	for (SWidget* Above = ParentWidget; Above; Above = Above->ParentWidget)
	{
		Above->PaintBounds = Above->PaintBounds.Expand(PaintBounds);
	}
	for (const FSlateRect& Rect : Damage.GetRects())
	{
		Window->AddDamage(Rect);
	}
	FSlateApplicationBase::Get().RequestFrame();
}

void SWidget::ArrangeInvalidDescendants(const FSlateRect& ChildClip, FSlateDamage& Damage)
{
	bDescendantNeedsArrange = false;
	for (SWidget* Child : VisibleChildren)
	{
		Child->UpdateArrangement(Child->PaintSpaceGeometry, ChildClip, Damage);
	}
}

void SWidget::ArrangeAnew(const FSlateRect& ChildClip, FSlateDamage& Damage)
{
	static uint32 LastStamp = 0;
	const uint32 Stamp = ++LastStamp;

	FArrangedChildren Arranged(EVisibility::Visible);
	OnArrangeChildren(PaintSpaceGeometry, Arranged);

	const TArray<SWidget*> FormerlyVisible = MoveTemp(VisibleChildren);
	VisibleChildren.Reset();
	for (int32 Index = 0; Index < Arranged.Num(); ++Index)
	{
		const FArrangedWidget& Place = Arranged[Index];
		SWidget& Child = Place.Widget.Get();
		if (&Child == &SNullWidget::NullWidget.Get() ||
			!FSlateRect::DoRectanglesIntersect(Child.RoomOf(Place.Geometry), ChildClip))
		{
			continue;
		}
		Child.ArrangeStamp = Stamp;
		VisibleChildren.Add(&Child);
		Child.UpdateArrangement(Place.Geometry, ChildClip, Damage);
	}

	for (SWidget* Child : FormerlyVisible)
	{
		if (Child->ArrangeStamp != Stamp)
		{
			Child->LeaveArrangement(Damage);
		}
	}
}

void SWidget::LeaveArrangement(FSlateDamage& Damage)
{
	Damage.Add(PaintBounds);
	bArranged = false;
}
