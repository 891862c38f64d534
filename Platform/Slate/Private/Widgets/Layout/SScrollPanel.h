#pragma once

#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SPanel.h"

/** The part of a scroll box that holds the children and shows as many as it has room for. */
class SScrollPanel final : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SScrollPanel) {}
	SLATE_END_ARGS()

	SScrollPanel()
		: Children(this)
	{
		SetCanTick(false);
	}
	void Construct(const FArguments& InArgs, EOrientation InOrientation);

	virtual FChildren* GetChildren() override { return &Children; }

	/** Without a bar nothing is told of changes. */
	void SetScrollBar(const TSharedPtr<SScrollBar>& InScrollBar) { ScrollBar = InScrollBar; }
	void SetOrientation(EOrientation InOrientation);

	/** Any offset is taken; the next layout limits it to what there is to scroll then. */
	void SetOffset(float NewOffset);
	void ScrollToEndAtNextLayout();

	/** What was asked for since the last layout, or else what that has allowed. */
	float GetOffset() const { return bOffsetIsNew ? WantedOffset : Offset; }
	float GetViewLength() const { return ViewLength; }
	float GetContentLength() const { return ContentLength; }
	float GetOffsetOfEnd() const { return FMath::Max(ContentLength - ViewLength, 0.0f); }

	TPanelChildren<SScrollBox::FSlot> Children;

private:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	double Along(const FVector2D& Vector) const { return Orientation == Orient_Vertical ? Vector.Y : Vector.X; }
	double Across(const FVector2D& Vector) const { return Orientation == Orient_Vertical ? Vector.X : Vector.Y; }
	FVector2D MakeVector(double AlongAxis, double AcrossAxis) const
	{
		return Orientation == Orient_Vertical ? FVector2D(AcrossAxis, AlongAxis) : FVector2D(AlongAxis, AcrossAxis);
	}
	FVector2D RoomOf(const SScrollBox::FSlot& Slot) const;

	EOrientation Orientation = Orient_Vertical;
	TWeakPtr<SScrollBar> ScrollBar;

	// Settled by the arrangement, which alone knows how much room there is. What was asked for is kept apart from what was allowed. In a
	// foreign window all stay as they were.
	mutable float WantedOffset = 0.0f;
	mutable float Offset = 0.0f;
	mutable bool bOffsetIsNew = false;
	mutable float ViewLength = 0.0f;
	mutable float ContentLength = 0.0f;
};
