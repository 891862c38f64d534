#include "Widgets/Layout/SScrollBar.h"

#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"

namespace
{
/** The thumb stays large enough to be taken, however long the content is. In slate units. */
constexpr float MinThumbLength = 24.0f;

/** Between the thumb and the sides of the bar, in slate units. */
constexpr float ThumbInset = 1.0f;
}

void SScrollBar::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FAppStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar");
	Orientation = InArgs._Orientation;
	OnUserScrolled = InArgs._OnUserScrolled;
	bAlwaysShow = InArgs._AlwaysShowScrollbar;
	UpdateVisibility();
}

void SScrollBar::SetState(float InOffsetFraction, float InThumbSizeFraction)
{
	if (OffsetFraction != InOffsetFraction || ThumbSizeFraction != InThumbSizeFraction)
	{
		OffsetFraction = InOffsetFraction;
		ThumbSizeFraction = InThumbSizeFraction;
		UpdateVisibility();
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SScrollBar::SetAlwaysShow(bool bInAlwaysShow)
{
	bAlwaysShow = bInAlwaysShow;
	UpdateVisibility();
}

void SScrollBar::UpdateVisibility()
{
	SetVisibility(bAlwaysShow || IsNeeded() ? EVisibility::Visible : EVisibility::Collapsed);
}

FVector2D SScrollBar::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return FVector2D(Style->Thickness, Style->Thickness);
}

SScrollBar::FThumb SScrollBar::GetThumb(const FGeometry& Geometry) const
{
	const float TrackLength = Along(Geometry.GetLocalSize());
	const float Length = FMath::Clamp(TrackLength * ThumbSizeFraction, FMath::Min(MinThumbLength, TrackLength), TrackLength);
	const float HiddenFraction = 1.0f - ThumbSizeFraction;
	const float Travelled = HiddenFraction > 0.0f ? FMath::Clamp(OffsetFraction / HiddenFraction, 0.0f, 1.0f) : 0.0f;
	return {(TrackLength - Length) * Travelled, Length};
}

void SScrollBar::ScrollThumbTo(const FGeometry& Geometry, float ThumbStart)
{
	const float Travel = Along(Geometry.GetLocalSize()) - GetThumb(Geometry).Length;
	if (Travel > 0.0f)
	{
		const float Travelled = FMath::Clamp(ThumbStart / Travel, 0.0f, 1.0f);
		OnUserScrolled.ExecuteIfBound(Travelled * (1.0f - ThumbSizeFraction));
	}
}

const FSlateBrush* SScrollBar::GetBorder() const
{
	return Orientation == Orient_Vertical ? &Style->VerticalBackgroundImage : &Style->HorizontalBackgroundImage;
}

int32 SScrollBar::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	LayerId = SBorder::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	if (!IsNeeded())
	{
		return LayerId;
	}

	const FThumb Thumb = GetThumb(AllottedGeometry);
	const float Breadth = Style->Thickness - 2.0f * ThumbInset;
	const FVector2D Position =
		Orientation == Orient_Vertical ? FVector2D(ThumbInset, Thumb.Start) : FVector2D(Thumb.Start, ThumbInset);
	const FVector2D Size = Orientation == Orient_Vertical ? FVector2D(Breadth, Thumb.Length) : FVector2D(Thumb.Length, Breadth);
	const FSlateBrush& Brush = bIsDragging ? Style->DraggedThumbImage
		: IsHovered()					   ? Style->HoveredThumbImage
										   : Style->NormalThumbImage;
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(Position, Size), &Brush,
		ESlateDrawEffect::None, Brush.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	return LayerId + 1;
}

FReply SScrollBar::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !IsNeeded())
	{
		return FReply::Unhandled();
	}
	const FThumb Thumb = GetThumb(MyGeometry);
	const float Place = Along(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()));
	if (Place >= Thumb.Start && Place < Thumb.Start + Thumb.Length)
	{
		bIsDragging = true;
		DragOffset = Place - Thumb.Start;
		Invalidate(EInvalidateWidgetReason::Paint);
		return FReply::Handled().CaptureMouse(SharedThis(this));
	}
	const float PageFraction = Place < Thumb.Start ? -ThumbSizeFraction : ThumbSizeFraction;
	OnUserScrolled.ExecuteIfBound(FMath::Clamp(OffsetFraction + PageFraction, 0.0f, 1.0f - ThumbSizeFraction));
	return FReply::Handled();
}

FReply SScrollBar::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bIsDragging)
	{
		return FReply::Unhandled();
	}
	ScrollThumbTo(MyGeometry, Along(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())) - DragOffset);
	return FReply::Handled();
}

FReply SScrollBar::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bIsDragging)
	{
		return FReply::Unhandled();
	}
	OnMouseCaptureLost();
	return FReply::Handled().ReleaseMouseCapture();
}

void SScrollBar::OnMouseCaptureLost()
{
	bIsDragging = false;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SScrollBar::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SScrollBar::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}
