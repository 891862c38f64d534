#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

/**
 * A bar whose thumb shows which part of a content is in view, and moves it: the thumb can be dragged, a press beside it
 * moves by a page. It takes no room while everything is in view, unless told to show always.
 */
class SLATE_API SScrollBar : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SScrollBar)
		: _AlwaysShowScrollbar(false)
		, _Orientation(Orient_Vertical)
	{
	}
	SLATE_STYLE_ARGUMENT(FScrollBarStyle, Style)
	SLATE_ARGUMENT(bool, AlwaysShowScrollbar)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/**
	 * @param InOffsetFraction Where the view begins, as a fraction of the content.
	 * @param InThumbSizeFraction How much of the content is in view; 1 or more when all is.
	 */
	void SetState(float InOffsetFraction, float InThumbSizeFraction);

	bool IsNeeded() const { return ThumbSizeFraction < 1.0f; }
	bool IsScrolling() const { return bIsDragging; }
	void SetAlwaysShow(bool bInAlwaysShow);
	void SetOnUserScrolled(const FOnUserScrolled& InHandler) { OnUserScrolled = InHandler; }

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual const FSlateBrush* GetBorder() const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

private:
	struct FThumb
	{
		float Start;
		float Length;
	};

	float Along(const FVector2D& Vector) const { return Orientation == Orient_Vertical ? Vector.Y : Vector.X; }
	FThumb GetThumb(const FGeometry& Geometry) const;
	void ScrollThumbTo(const FGeometry& Geometry, float ThumbStart);
	void UpdateVisibility();

	const FScrollBarStyle* Style = nullptr;
	EOrientation Orientation = Orient_Vertical;
	FOnUserScrolled OnUserScrolled;
	float OffsetFraction = 0.0f;
	float ThumbSizeFraction = 1.0f;
	/** Between the thumb's start and the place where it was taken. */
	float DragOffset = 0.0f;
	bool bIsDragging = false;
	bool bAlwaysShow = false;
};
