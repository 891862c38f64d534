#include "Widgets/Text/SEditableTextBase.h"

#include "Layout/ForeignWindow.h"
#include "Application/ActiveTimerHandle.h"
#include "Framework/Text/FontTextMeasure.h"
#include "Framework/Text/TextEditor.h"

namespace
{
/** Seconds that the caret is lit, and that it is dark. */
constexpr float GBlinkPeriod = 0.5f;
}

//
// Caret
//

void SEditableTextBase::OnCaretMoved()
{
	bCaretIsLit = true;
	bCaretStaysLit = true;
	ScrollIntoView(Editor->GetCaret());
}

void SEditableTextBase::ScrollIntoView(const FTextCaret& Caret)
{
	CaretToShow = MakeUnique<FTextCaret>(Caret);
	Invalidate(EInvalidateWidgetReason::Layout);
}

FTextCaret SEditableTextBase::GetCaret(ETextLocation Location) const
{
	const FTextDocument& Document = Editor->GetDocument();
	const int32 LineIndex = Editor->GetCaret().Location.GetLineIndex();
	switch (Location)
	{
		case ETextLocation::BeginningOfDocument:
			return FTextLocation();
		case ETextLocation::EndOfDocument:
			return Document.GetEnd();
		case ETextLocation::BeginningOfLine:
			return FTextLocation(LineIndex, 0);
		case ETextLocation::EndOfLine:
			return FTextLocation(LineIndex, Document.GetLine(LineIndex).Len());
		default:
			break;
	}

	const FGeometry& Geometry = GetPaintSpaceGeometry();
	const FTextRows& Rows = UpdateRows(Geometry.Scale, Geometry.GetLocalSize().X);
	const ETextCaretMove Move = Location == ETextLocation::PreviousPage ? ETextCaretMove::PageAbove : ETextCaretMove::PageBelow;
	const float Column = Rows.GetCaretPosition(Editor->GetCaret()).X;
	return GetMovedCaret(Document, Rows, Editor->GetCaret(), Move, Column, GetRowsPerPage());
}

int32 SEditableTextBase::GetRowsPerPage() const
{
	return FMath::Max(FMath::FloorToInt32(ViewSize.Y / GetRowHeight()), 1);
}

void SEditableTextBase::GoTo(const FTextLocation& NewLocation)
{
	Editor->PlaceCaret(NewLocation, false);
	OnCaretMoved();
}

void SEditableTextBase::GoTo(ETextLocation NewLocation)
{
	Editor->PlaceCaret(GetCaret(NewLocation), false);
	OnCaretMoved();
}

void SEditableTextBase::ScrollTo(const FTextLocation& NewLocation)
{
	ScrollIntoView(Editor->GetDocument().Clamp(NewLocation));
}

void SEditableTextBase::ScrollTo(ETextLocation NewLocation)
{
	ScrollIntoView(GetCaret(NewLocation));
}

void SEditableTextBase::StartBlinking()
{
	bCaretIsLit = true;
	bCaretStaysLit = true;
	if (!BlinkTimer.IsValid())
	{
		BlinkTimer = RegisterActiveTimer(GBlinkPeriod, FWidgetActiveTimerDelegate::CreateSP(this, &SEditableTextBase::Blink));
	}
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableTextBase::StopBlinking()
{
	if (BlinkTimer.IsValid())
	{
		UnRegisterActiveTimer(BlinkTimer.ToSharedRef());
		BlinkTimer.Reset();
	}
	bCaretIsLit = false;
	Invalidate(EInvalidateWidgetReason::Paint);
}

EActiveTimerReturnType SEditableTextBase::Blink(double CurrentTime, float DeltaTime)
{
	// A caret that moved since the last call stays lit for a whole period.
	const bool bWasLit = bCaretIsLit;
	bCaretIsLit = bCaretStaysLit || !bCaretIsLit;
	bCaretStaysLit = false;
	if (bWasLit != bCaretIsLit)
	{
		Invalidate(EInvalidateWidgetReason::Paint);
	}
	return EActiveTimerReturnType::Continue;
}

//
// Layout
//

const FTextRows& SEditableTextBase::UpdateRows(float Scale, float AllottedWidth) const
{
	const float Room = AllottedWidth - GetTextMargin().GetTotalSpaceAlong<Orient_Horizontal>() - CaretWidth;
	FTextRowFormat Format;
	Format.WrapWidth = GetWrapWidth(Room);
	Format.WrappingPolicy = GetWrappingPolicy();
	Format.Justification = Justification.Get();
	Format.LineHeightPercentage = GetLineHeightPercentage();
	Format.bPassword = IsTextPassword();

	FTextRows& Rows = Editor->GetRows();
	FontOfRows->Apply(Rows, GetFont(), Scale);
	Rows.SetFormat(Format);
	Rows.SetViewWidth(Room);
	return Rows;
}

float SEditableTextBase::GetRowHeight() const
{
	const FGeometry& Geometry = GetPaintSpaceGeometry();
	return UpdateRows(Geometry.Scale, Geometry.GetLocalSize().X).GetRowHeight();
}

FVector2D SEditableTextBase::GetTextSize() const
{
	const FGeometry& Geometry = GetPaintSpaceGeometry();
	return UpdateRows(Geometry.Scale, Geometry.GetLocalSize().X).GetSize() + FVector2D(CaretWidth, 0.0);
}

FVector2D SEditableTextBase::GetSizeAt(float Scale, float AllottedWidth) const
{
	FVector2D Size = UpdateRows(Scale, AllottedWidth).GetSize();
	if (!HintText.Get().IsEmpty())
	{
		const FVector2D HintSize = MeasureSingleLine(HintText.Get().ToString(), GetFont(), Scale);
		Size = FVector2D(FMath::Max(Size.X, HintSize.X), FMath::Max(Size.Y, HintSize.Y));
	}
	Size += FVector2D(CaretWidth, 0.0) + GetTextMargin().GetDesiredSize();
	return FVector2D(FMath::Max<double>(Size.X, GetMinDesiredWidth()), Size.Y);
}

FVector2D SEditableTextBase::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return GetSizeAt(LayoutScaleMultiplier, GetPaintSpaceGeometry().GetLocalSize().X);
}

void SEditableTextBase::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// There are no children; but this is where a widget learns its size before it is painted.
	SEditableTextBase& Me = const_cast<SEditableTextBase&>(*this);
	Me.UpdateView(AllottedGeometry);
	if (GetSizeAt(AllottedGeometry.Scale, AllottedGeometry.GetLocalSize().X) != GetDesiredSize())
	{
		Me.Invalidate(EInvalidateWidgetReason::Layout);
	}
}

FVector2D SEditableTextBase::GetLargestViewOffset() const
{
	const FVector2D Hidden = GetTextSize() - ViewSize;
	const bool bScrollsVertically = Editor->GetDocument().IsMultiLine();
	return FVector2D(FMath::Max(Hidden.X, 0.0), bScrollsVertically ? FMath::Max(Hidden.Y, 0.0) : 0.0);
}

void SEditableTextBase::UpdateView(const FGeometry& Geometry)
{
	const FVector2D Room = Geometry.GetLocalSize() - GetTextMargin().GetDesiredSize();
	ViewSize = FVector2D(FMath::Max(Room.X, 0.0), FMath::Max(Room.Y, 0.0));

	const FTextRows& Rows = UpdateRows(Geometry.Scale, Geometry.GetLocalSize().X);
	const bool bForeign = IsWithinForeignWindow(*this);
	if (bForeign && !OwnViewOffset.IsSet())
	{
		OwnViewOffset = ViewOffset;
	}
	FVector2D NewOffset = bForeign ? ViewOffset : OwnViewOffset.Get(ViewOffset);
	if (!bForeign)
	{
		OwnViewOffset.Reset();
	}
	if (!bForeign && CaretToShow.IsValid())
	{
		const FVector2D Begin =
			Rows.GetCaretPosition(FTextCaret(Editor->GetDocument().Clamp(CaretToShow->Location), CaretToShow->bAtRowEnd));
		const FVector2D End = Begin + FVector2D(CaretWidth, Rows.GetRowHeight());
		NewOffset.X = FMath::Min(FMath::Max(NewOffset.X, End.X - ViewSize.X), Begin.X);
		NewOffset.Y = FMath::Min(FMath::Max(NewOffset.Y, End.Y - ViewSize.Y), Begin.Y);
		CaretToShow.Reset();
	}

	const FVector2D Largest = GetLargestViewOffset();
	ViewOffset = FVector2D(FMath::Clamp(NewOffset.X, 0.0, Largest.X), FMath::Clamp(NewOffset.Y, 0.0, Largest.Y));
	OnViewChanged();
}

void SEditableTextBase::SetViewOffset(const FVector2D& NewOffset)
{
	const FVector2D Largest = GetLargestViewOffset();
	const FVector2D Clamped(FMath::Clamp(NewOffset.X, 0.0, Largest.X), FMath::Clamp(NewOffset.Y, 0.0, Largest.Y));
	if (ViewOffset != Clamped)
	{
		ViewOffset = Clamped;
		Invalidate(EInvalidateWidgetReason::Paint);
		OnViewChanged();
	}
}
