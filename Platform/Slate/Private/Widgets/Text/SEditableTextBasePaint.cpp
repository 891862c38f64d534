#include "Widgets/Text/SEditableTextBase.h"

#include "Framework/Text/FontTextMeasure.h"
#include "Framework/Text/TextEditor.h"
#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Styling/WidgetStyle.h"

namespace
{
/** Whole pixels, so that text stays sharp while it moves. */
FVector2D SnapToPixels(const FVector2D& Offset, double Scale)
{
	return FVector2D(FMath::RoundToDouble(Offset.X * Scale), FMath::RoundToDouble(Offset.Y * Scale)) / Scale;
}

/** How far a selected line end sticks out, as a share of the row's height. */
constexpr float GSelectedLineEnd = 0.25f;
}

/** What painting the rows of one field needs at every step. */
struct SEditableTextBase::FPainter
{
	const SEditableTextBase& Field;
	const FTextRows& Rows;
	const FGeometry& Geometry;
	FSlateWindowElementList& Elements;
	const FWidgetStyle& Style;
	ESlateDrawEffect Effect;
	FVector2D Origin;

	FLinearColor GetTint() const { return Style.GetColorAndOpacityTint(); }

	void PaintBox(int32 Layer, const FSlateBrush& Brush, const FVector2D& Position, const FVector2D& Size) const
	{
		FSlateDrawElement::MakeBox(
			Elements, Layer, Geometry.ToPaintGeometry(Origin + Position, Size), &Brush, Effect, Brush.GetTint(Style) * GetTint());
	}

	void PaintText(int32 Layer, const FString& Text, const FVector2D& Position, const FLinearColor& Color) const
	{
		FSlateDrawElement::MakeText(Elements, Layer, Geometry.ToPaintGeometry(Origin + Position, Geometry.GetLocalSize()), Text,
			Field.GetFont(), Effect, Color * GetTint());
	}

	void PaintSelection(int32 Layer, const FTextRow& Row, const FTextSelection& Selection) const
	{
		const FTextLocation RowBegin(Row.LineIndex, Row.Range.BeginIndex);
		const FTextLocation RowEnd(Row.LineIndex, Row.Range.EndIndex);
		const FTextLocation& Begin = Selection.GetBeginning();
		const FTextLocation& End = Selection.GetEnd();
		if (RowEnd < Begin || End < RowBegin)
		{
			return;
		}

		TArray<FVector2D> Spans = Rows.GetSpansInRow(Row, Begin < RowBegin ? Row.Range.BeginIndex : Begin.GetOffset(),
			RowEnd < End ? Row.Range.EndIndex : End.GetOffset());
		if (RowEnd < End && !Row.bWrapped)
		{
			const double LineEnd = Rows.GetRowHeight() * GSelectedLineEnd;
			const double RowWidth = Row.Width;
			if (Spans.Num() == 0 || Spans.Last().Y < RowWidth)
			{
				Spans.Add(FVector2D(RowWidth, RowWidth));
			}
			Spans.Last().Y += LineEnd;
		}
		for (const FVector2D& Span : Spans)
		{
			if (Span.X < Span.Y)
			{
				PaintBox(Layer, *Field.Look.SelectionImage, FVector2D(Row.Left + Span.X, Row.Top),
					FVector2D(Span.Y - Span.X, Rows.GetRowHeight()));
			}
		}
	}
};

const FSlateBrush* SEditableTextBase::GetFocusBrush() const
{
	return IsTextReadOnly() && !bFramed ? SWidget::GetFocusBrush() : nullptr;
}

int32 SEditableTextBase::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 TextLayer = LayerId + 1;
	const int32 CaretLayer = LayerId + 2;

	const FMargin Margin = GetTextMargin();
	const FTextRows& Rows = UpdateRows(AllottedGeometry.Scale, AllottedGeometry.GetLocalSize().X);
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FPainter Painter{*this, Rows, AllottedGeometry, OutDrawElements, InWidgetStyle, Effect,
		FVector2D(Margin.Left, Margin.Top) - SnapToPixels(ViewOffset, AllottedGeometry.Scale)};
	const FLinearColor Color = GetTextColor(InWidgetStyle);

	if (Editor->GetDocument().IsEmpty() && !HintText.Get().IsEmpty())
	{
		const FLinearColor HintColor = FCoreStyle::Get().GetSlateColor("DimForeground").GetColor(InWidgetStyle);
		const FString& Hint = HintText.Get().ToString();
		const float HintWidth = MeasureSingleLine(Hint, GetFont(), AllottedGeometry.Scale).X;
		Painter.PaintText(TextLayer, Hint, FVector2D(Rows.GetRowLeft(HintWidth, Hint), 0.0), HintColor);
	}

	const FTextSelection Selection = Editor->GetSelection();
	const FVector2D CullingTop(MyCullingRect.Left, MyCullingRect.Top);
	const FVector2D CullingBottom(MyCullingRect.Right, MyCullingRect.Bottom);
	const double Top = FMath::Max(AllottedGeometry.AbsoluteToLocal(CullingTop).Y, 0.0) - Painter.Origin.Y;
	const double Bottom =
		FMath::Min(AllottedGeometry.AbsoluteToLocal(CullingBottom).Y, AllottedGeometry.GetLocalSize().Y) - Painter.Origin.Y;
	for (int32 RowIndex = Rows.GetRowIndexAtHeight(Top); RowIndex < Rows.NumRows(); ++RowIndex)
	{
		const FTextRow Row = Rows.GetRow(RowIndex);
		if (Row.Top >= Bottom)
		{
			break;
		}
		if (AnyTextSelected())
		{
			Painter.PaintSelection(LayerId, Row, Selection);
		}
		Painter.PaintText(TextLayer, Row.Text, FVector2D(Row.Left, Row.Top), Color);
	}

	if (bCaretIsLit && !IsTextReadOnly() && HasKeyboardFocus())
	{
		Painter.PaintBox(
			CaretLayer, *Look.CaretImage, Rows.GetCaretPosition(Editor->GetCaret()), FVector2D(CaretWidth, Rows.GetRowHeight()));
	}
	return CaretLayer;
}
