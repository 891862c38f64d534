#include "Widgets/Input/SCheckBox.h"

#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/Input/AcceptKeys.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SLeafWidget.h"

namespace
{
const FCheckBoxStyle& GetDefaultCheckBoxStyle()
{
	return FAppStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox");
}

/** Between the tick, or the content, and the ring of the keyboard focus. */
const FMargin RoomForFocus(3.0f, 2.0f, 4.0f, 2.0f);

/** The picture of the state. It asks its check box each time it is painted. */
class SCheckBoxMark final : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBoxMark) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	SCheckBoxMark() { SetCanTick(false); }
	void Construct(const FArguments& InArgs, const SCheckBox* InOwner) { Owner = InOwner; }

private:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override
	{
		return Owner->GetStateImage()->GetImageSize();
	}

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override
	{
		const FSlateBrush* Brush = Owner->GetStateImage();
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Brush,
			ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect,
			Brush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
		return LayerId;
	}

	const SCheckBox* Owner = nullptr;
};
}

SCheckBox::SCheckBox()
	: Style(&GetDefaultCheckBoxStyle())
{
	SetCanTick(false);
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	if (InArgs._Style)
	{
		Style = InArgs._Style;
	}
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	bHasOwnPadding = InArgs._Padding.IsSet();
	SetAttribute(State, InArgs._IsChecked);
	SetAttribute(ForegroundOverride, InArgs._ForegroundColor);

	SHorizontalBox::FSlot* Slot = nullptr;
	// clang-format off
	ChildSlot
	.Padding(RoomForFocus)
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)
		[
			SNew(SCheckBoxMark, this)
		]
		+ SHorizontalBox::Slot()
		.HAlign(InArgs._HAlign)
		.VAlign(VAlign_Center)
		.Padding(InArgs._Padding.Get(Style->Padding))
		.Expose(Slot)
		[
			InArgs._Content
		]
	];
	// clang-format on
	ContentSlot = Slot;
}

void SCheckBox::SetIsChecked(const TAttribute<ECheckBoxState>& InIsChecked)
{
	SetAttribute(State, InIsChecked);
}

void SCheckBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ContentSlot->AttachWidget(InContent);
}

void SCheckBox::SetStyle(const FCheckBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &GetDefaultCheckBoxStyle();
	if (!bHasOwnPadding)
	{
		ContentSlot->SetPadding(Style->Padding);
	}
	Invalidate(EInvalidateWidgetReason::Layout);
}

FSlateColor SCheckBox::GetForegroundColor() const
{
	return ForegroundOverride.Get().GetColorRule() == ESlateColorStylingMode::UseColor_UseStyle ? Style->ForegroundColor
																								: ForegroundOverride.Get();
}

const FSlateBrush* SCheckBox::GetStateImage() const
{
	switch (State.Get())
	{
		case ECheckBoxState::Checked:
			return bIsPressed ? &Style->CheckedPressedImage : IsHovered() ? &Style->CheckedHoveredImage : &Style->CheckedImage;
		case ECheckBoxState::Undetermined:
			return bIsPressed ? &Style->UndeterminedPressedImage
				: IsHovered() ? &Style->UndeterminedHoveredImage
							  : &Style->UndeterminedImage;
		default:
			return bIsPressed ? &Style->UncheckedPressedImage
				: IsHovered() ? &Style->UncheckedHoveredImage
							  : &Style->UncheckedImage;
	}
}

void SCheckBox::ToggleCheckedState()
{
	// Checked and Undetermined both go to Unchecked.
	const ECheckBoxState NewState =
		GetCheckedState() == ECheckBoxState::Unchecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	if (!State.IsBound())
	{
		State.Set(*this, NewState);
	}
	const FOnCheckStateChanged Changed = OnCheckStateChanged;
	Changed.ExecuteIfBound(NewState);
}

void SCheckBox::SetPressed(bool bInPressed)
{
	if (bIsPressed != bInPressed)
	{
		bIsPressed = bInPressed;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

FReply SCheckBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	SetPressed(true);
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SCheckBox::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return OnMouseButtonDown(MyGeometry, MouseEvent);
}

FReply SCheckBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bIsPressed)
	{
		return FReply::Unhandled();
	}
	SetPressed(false);
	if (MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		ToggleCheckedState();
	}
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SCheckBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent.GetKey()))
	{
		return FReply::Unhandled();
	}
	SetPressed(true);
	return FReply::Handled();
}

FReply SCheckBox::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsAcceptKey(InKeyEvent.GetKey()) || !bIsPressed)
	{
		return FReply::Unhandled();
	}
	SetPressed(false);
	ToggleCheckedState();
	return FReply::Handled();
}

void SCheckBox::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SCheckBox::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SCheckBox::OnMouseCaptureLost()
{
	SetPressed(false);
}
