#include "Widgets/Layout/SScrollBox.h"

#include "Layout/WidgetPath.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/Layout/SScrollPanel.h"
#include "Widgets/SBoxPanel.h"

namespace
{
/** Slate units that one notch of the wheel moves. */
constexpr float WheelStep = 64.0f;
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	SetClipping(EWidgetClipping::ClipToBounds);
	Orientation = InArgs._Orientation;
	bScrollBarAlwaysVisible = InArgs._ScrollBarAlwaysVisible;
	Panel = SNew(SScrollPanel, Orientation);
	for (const FSlot::FSlotArguments& Each : InArgs._Slots)
	{
		Panel->Children.AddSlot(const_cast<FSlot::FSlotArguments&>(Each).StealSlot());
	}
	BuildLayout();
}

void SScrollBox::BuildLayout()
{
	// clang-format off
	SAssignNew(ScrollBar, SScrollBar)
	.Orientation(Orientation)
	.AlwaysShowScrollbar(bScrollBarAlwaysVisible)
	.OnUserScrolled(this, &SScrollBox::OnScrollBarMoved);
	// clang-format on
	Panel->SetScrollBar(ScrollBar);

	// The bar stands beside a vertical content and below a horizontal one.
	if (Orientation == Orient_Vertical)
	{
		const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox);
		Box->AddSlot()[Panel.ToSharedRef()];
		Box->AddSlot().AutoWidth()[ScrollBar.ToSharedRef()];
		ChildSlot[Box];
	}
	else
	{
		const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
		Box->AddSlot()[Panel.ToSharedRef()];
		Box->AddSlot().AutoHeight()[ScrollBar.ToSharedRef()];
		ChildSlot[Box];
	}
}

void SScrollBox::SetOrientation(EOrientation InOrientation)
{
	if (Orientation != InOrientation)
	{
		Orientation = InOrientation;
		Panel->SetOrientation(InOrientation);
		ChildSlot.DetachWidget();
		BuildLayout();
	}
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::AddSlot()
{
	return FScopedWidgetSlotArguments(Panel->Children, INDEX_NONE);
}

void SScrollBox::RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove)
{
	Panel->Children.Remove(WidgetToRemove);
}

void SScrollBox::ClearChildren()
{
	Panel->Children.Empty();
}

void SScrollBox::SetScrollOffset(float NewScrollOffset)
{
	Panel->SetOffset(NewScrollOffset);
}

float SScrollBox::GetScrollOffset() const
{
	return Panel->GetOffset();
}

float SScrollBox::GetScrollOffsetOfEnd() const
{
	return Panel->GetOffsetOfEnd();
}

float SScrollBox::GetViewFraction() const
{
	const float ContentLength = Panel->GetContentLength();
	return ContentLength > Panel->GetViewLength() ? Panel->GetViewLength() / ContentLength : 1.0f;
}

float SScrollBox::GetViewOffsetFraction() const
{
	const float ContentLength = Panel->GetContentLength();
	return ContentLength > 0.0f ? Panel->GetOffset() / ContentLength : 0.0f;
}

void SScrollBox::ScrollToEnd()
{
	Panel->ScrollToEndAtNextLayout();
}

void SScrollBox::OnScrollBarMoved(float OffsetFraction)
{
	Panel->SetOffset(FMath::Min(OffsetFraction * Panel->GetContentLength(), Panel->GetOffsetOfEnd()));
}

FReply SScrollBox::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const float Before = Panel->GetOffset();
	Panel->SetOffset(FMath::Min(Before - MouseEvent.GetWheelDelta() * WheelStep, Panel->GetOffsetOfEnd()));
	// At an end the wheel goes on to a scroll box further out.
	return Panel->GetOffset() != Before ? FReply::Handled() : FReply::Unhandled();
}

void SScrollBox::OnFocusChanging(
	const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
{
	if (InFocusEvent.GetCause() == EFocusCause::Navigation && NewWidgetPath.IsValid() && NewWidgetPath.ContainsWidget(this))
	{
		ScrollDescendantIntoView(NewWidgetPath.GetLastWidget());
	}
}

void SScrollBox::ScrollDescendantIntoView(const TSharedPtr<SWidget>& WidgetToScrollIntoView)
{
	// A widget out of view has no place; its slot is found by its parents, and the slots before it tell where it lies.
	const SWidget* Step = WidgetToScrollIntoView.Get();
	while (Step && Step->GetParentPointer() != Panel.Get())
	{
		Step = Step->GetParentPointer();
	}
	if (!Step)
	{
		return;
	}

	const auto Along = [this](const FVector2D& Vector)
	{
		return Orientation == Orient_Vertical ? Vector.Y : Vector.X;
	};
	float Start = 0.0f;
	for (int32 Index = 0; Index < Panel->Children.Num(); ++Index)
	{
		const FSlot& Slot = Panel->Children[Index];
		const bool bCollapsed = Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
		const float Length = bCollapsed ? 0.0f : Along(Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize());
		if (&Slot.GetWidget().Get() == Step)
		{
			const float LastOffset = Start;
			const float FirstOffset = Start + Length - Panel->GetViewLength();
			Panel->SetOffset(FMath::Clamp(Panel->GetOffset(), FMath::Min(FirstOffset, LastOffset), LastOffset));
			return;
		}
		Start += Length;
	}
}
