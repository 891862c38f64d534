#include "Framework/Text/TextRows.h"

#include "Framework/Text/TextDirection.h"

#include "Framework/Text/TextWrap.h"
#include "Math/UnrealMathUtility.h"

#include <algorithm>

DEFINE_LOG_CATEGORY_STATIC(LogSlateText, Log, All);

namespace
{
/** Up to this many characters a document is measured whole, so that its size is exact from the start. */
constexpr int32 GShortDocument = 16384;

constexpr TCHAR GBullet = 0x2022;

/** Widths of characters, as shares of the line height, for lines that were not looked at yet. */
constexpr float GUsualAdvance = 0.45f;

/** Rows never coincide, whatever percentage is asked for. */
constexpr float GLeastLineHeightPercentage = 0.01f;

bool IsShownAsBlank(TCHAR Character)
{
	return (Character < 0x20 && Character != TEXT('\t')) || Character == 0x7f;
}

/** How many entries of an ascending array are not above Value. */
int32 CountUpTo(const TArray<int32>& Ascending, int32 Value)
{
	const int32* const Begin = Ascending.GetData();
	return static_cast<int32>(std::upper_bound(Begin, Begin + Ascending.Num(), Value) - Begin);
}

/** The length of a row without the blanks at its end. */
int32 GetLenWithoutBlanks(const FString& Row)
{
	return TrimBlanksFromEnd(Row, 0, Row.Len());
}

/** An offset in a line as an index into the row's text, or the nearest one that the row has. */
int32 GetIndexInRow(const FTextRow& Row, int32 Offset)
{
	return FMath::Clamp(Offset - Row.Range.BeginIndex, 0, Row.Text.Len());
}
}

bool FTextRowFormat::operator==(const FTextRowFormat& Other) const
{
	return WrapWidth == Other.WrapWidth && WrappingPolicy == Other.WrappingPolicy && Justification == Other.Justification &&
		LineHeightPercentage == Other.LineHeightPercentage && bPassword == Other.bPassword;
}

const TArray<int32>& FTextRows::FLine::GetRowBegins() const
{
	static const TArray<int32> None;
	return Wrapped ? Wrapped->Wrap.RowBegins : None;
}

FTextRows::FTextRows(const FTextDocument& InDocument)
	: Document(InDocument)
{
	OnReset();
}

FTextRows::~FTextRows() = default;

void FTextRows::SetMeasure(TUniquePtr<ITextMeasure> InMeasure)
{
	Measure = MoveTemp(InMeasure);
	OnReset();
}

void FTextRows::SetFormat(const FTextRowFormat& InFormat)
{
	FTextRowFormat NewFormat = InFormat;
	NewFormat.WrapWidth = FMath::Max(InFormat.WrapWidth, 0.0f);
	NewFormat.LineHeightPercentage = FMath::Max(InFormat.LineHeightPercentage, GLeastLineHeightPercentage);
	if (Format != NewFormat)
	{
		Format = NewFormat;
		OnReset();
	}
}

void FTextRows::OnReset()
{
	Lines.Reset();
	Lines.SetNum(Document.NumLines());
	FirstRows.Reset();
}

void FTextRows::OnReplaced(const FTextChange& Change)
{
	FirstRows.Reset();
	if (Change.NumRemovedLines == 1 && Change.NumInsertedLines == 1)
	{
		FLine& Line = Lines[Change.FirstLine];
		Line.bMeasured = false;
		if (Line.Wrapped)
		{
			FTextWrapBefore& Wrap = Line.Wrapped->Wrap;
			Wrap.SameAtFront = FMath::Min(Wrap.SameAtFront, Change.Begin.GetOffset());
			Wrap.SameAtEnd = FMath::Min(Wrap.SameAtEnd, Document.GetLine(Change.FirstLine).Len() - Change.End.GetOffset());
		}
		return;
	}
	Lines.RemoveAt(Change.FirstLine, Change.NumRemovedLines);
	Lines.InsertDefaulted(Change.FirstLine, Change.NumInsertedLines);
}

int32 FTextRows::GetShownLength(int32 LineIndex) const
{
	const FString& Line = Document.GetLine(LineIndex);
	if (Line.Len() <= MaxLineLength)
	{
		return Line.Len();
	}
	const bool bWithinPair = (Line[MaxLineLength] & 0xFC00) == 0xDC00;
	return MaxLineLength - (bWithinPair ? 1 : 0);
}

void FTextRows::TellIfTooLong(int32 LineIndex) const
{
	FLine& Line = Lines[LineIndex];
	const int32 Length = Document.GetLine(LineIndex).Len();
	if (Length > MaxLineLength && !Line.bToldTooLong)
	{
		UE_LOG(LogSlateText, Warning, TEXT("A line of %d characters is too long to be shown whole; the first %d are shown."),
			Length, MaxLineLength);
	}
	Line.bToldTooLong = Length > MaxLineLength;
}

FString FTextRows::GetShownText(int32 LineIndex, const FTextRange& Range) const
{
	const int32 End = FMath::Min(Range.EndIndex, GetShownLength(LineIndex));
	FString Shown = Document.GetLine(LineIndex).Mid(Range.BeginIndex, End - Range.BeginIndex);
	for (int32 Index = 0; Index < Shown.Len(); ++Index)
	{
		if (Format.bPassword)
		{
			Shown[Index] = GBullet;
		}
		else if (IsShownAsBlank(Shown[Index]))
		{
			Shown[Index] = TEXT(' ');
		}
	}
	return Shown;
}

const FTextRows::FLine& FTextRows::MeasureLine(int32 LineIndex) const
{
	FLine& Line = Lines[LineIndex];
	if (Line.bMeasured)
	{
		return Line;
	}

	TellIfTooLong(LineIndex);
	const int32 RowsBefore = FirstRows.Num() == 0 ? 0 : FirstRows[LineIndex + 1] - FirstRows[LineIndex];
	const FString Shown = GetShownText(LineIndex, FTextRange(0, GetShownLength(LineIndex)));
	FWrappedRows Before;
	if (Line.Wrapped)
	{
		Before = MoveTemp(*Line.Wrapped);
		Line.Wrapped.Reset();
	}
	// A line that is too long is cut at another place each time.
	Before.Wrap.SameAtEnd = Line.bToldTooLong ? 0 : Before.Wrap.SameAtEnd;
	int32 SameAtFront = 0;
	int32 SameAtEnd = 0;
	TArray<int32> RowBegins =
		WrapChangedLine(Shown, Format.WrapWidth, Format.WrappingPolicy, *Measure, Before.Wrap, SameAtFront, SameAtEnd);

	const int32 NumRows = RowBegins.Num() + 1;
	TArray<float> RowWidths;
	RowWidths.Reserve(NumRows);
	for (int32 RowIndex = 0; RowIndex < NumRows; ++RowIndex)
	{
		const int32 FromEnd = NumRows - RowIndex;
		if (RowIndex < SameAtFront || FromEnd <= SameAtEnd)
		{
			RowWidths.Add(Before.Widths[RowIndex < SameAtFront ? RowIndex : Before.Widths.Num() - FromEnd]);
			continue;
		}
		const int32 Begin = RowIndex == 0 ? 0 : RowBegins[RowIndex - 1];
		const bool bWrapped = FromEnd > 1;
		const FString Row = Shown.Mid(Begin, (bWrapped ? RowBegins[RowIndex] : Shown.Len()) - Begin);
		RowWidths.Add(Measure->GetWidth(Row, bWrapped ? GetLenWithoutBlanks(Row) : Row.Len()));
	}
	Line.Width = *std::max_element(RowWidths.begin(), RowWidths.end());
	if (NumRows > 1)
	{
		Line.Wrapped = MakeUnique<FWrappedRows>();
		Line.Wrapped->Widths = MoveTemp(RowWidths);
		Line.Wrapped->Wrap = {MoveTemp(RowBegins), Shown.Len(), Shown.Len(), Line.bToldTooLong ? 0 : Shown.Len()};
	}
	Line.bMeasured = true;
	if (RowsBefore != NumRows)
	{
		FirstRows.Reset();
	}
	return Line;
}

int32 FTextRows::EstimateRows(int32 LineIndex) const
{
	if (Format.WrapWidth <= 0.0f)
	{
		return 1;
	}
	const float Width = GetShownLength(LineIndex) * GUsualAdvance * Measure->GetLineHeight();
	return FMath::Max(FMath::CeilToInt(Width / Format.WrapWidth), 1);
}

void FTextRows::MeasureLongestLine() const
{
	int32 Longest = 0;
	for (int32 LineIndex = 1; LineIndex < Lines.Num(); ++LineIndex)
	{
		if (Document.GetLine(LineIndex).Len() > Document.GetLine(Longest).Len())
		{
			Longest = LineIndex;
		}
	}
	MeasureLine(Longest);
}

void FTextRows::CountRows() const
{
	if (FirstRows.Num() != 0)
	{
		return;
	}

	if (Document.NumCharacters() <= GShortDocument)
	{
		for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
		{
			MeasureLine(LineIndex);
		}
	}

	int32 Count = 0;
	FirstRows.Reserve(Lines.Num() + 1);
	for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
	{
		FirstRows.Add(Count);
		Count += Lines[LineIndex].bMeasured ? Lines[LineIndex].GetRowBegins().Num() + 1 : EstimateRows(LineIndex);
	}
	FirstRows.Add(Count);
}

float FTextRows::GetRowHeight() const
{
	return Measure->GetLineHeight() * Format.LineHeightPercentage;
}

int32 FTextRows::NumRows() const
{
	CountRows();
	return FirstRows.Last();
}

FVector2D FTextRows::GetSize() const
{
	MeasureLongestLine();
	const int32 Count = NumRows();

	float Width = 0.0f;
	for (const FLine& Line : Lines)
	{
		Width = FMath::Max(Width, Line.bMeasured ? Line.Width : 0.0f);
	}
	return FVector2D(Width, Count * GetRowHeight());
}

int32 FTextRows::GetLineOfRow(int32 RowIndex) const
{
	CountRows();
	return FMath::Clamp(CountUpTo(FirstRows, RowIndex) - 1, 0, Lines.Num() - 1);
}

float FTextRows::GetRowLeft(float RowWidth, const FString& Paragraph) const
{
	const float Free = FMath::Max(ViewWidth - RowWidth, 0.0f);
	switch (TextDirection::OnScreen(Format.Justification, Paragraph))
	{
		case ETextJustify::Center:
			return Free * 0.5f;
		case ETextJustify::Right:
			return Free;
		default:
			return 0.0f;
	}
}

FTextRow FTextRows::GetRow(int32 RowIndex) const
{
	// Measuring a line may show that its rows were estimated wrongly; then the row asked for belongs to another line.
	int32 LineIndex = GetLineOfRow(RowIndex);
	while (!Lines[LineIndex].bMeasured)
	{
		MeasureLine(LineIndex);
		LineIndex = GetLineOfRow(RowIndex);
	}

	const TArray<int32>& RowBegins = Lines[LineIndex].GetRowBegins();
	const int32 RowInLine = FMath::Clamp(RowIndex - FirstRows[LineIndex], 0, RowBegins.Num());

	FTextRow Row;
	Row.LineIndex = LineIndex;
	Row.bWrapped = RowInLine < RowBegins.Num();
	Row.Range.BeginIndex = RowInLine == 0 ? 0 : RowBegins[RowInLine - 1];
	Row.Range.EndIndex = Row.bWrapped ? RowBegins[RowInLine] : Document.GetLine(LineIndex).Len();
	Row.Text = GetShownText(LineIndex, Row.Range);
	Row.Width = Measure->GetWidth(Row.Text, Row.bWrapped ? GetLenWithoutBlanks(Row.Text) : Row.Text.Len());
	Row.Left = GetRowLeft(Row.Width, Document.GetLine(LineIndex));
	if (Row.bWrapped && TextDirection::IsRightToLeft(Document.GetLine(LineIndex)))
	{
		// The blanks at the end, for which there need be no room, lie left of the letters.
		Row.Left -= Measure->GetWidth(Row.Text, Row.Text.Len()) - Row.Width;
	}
	Row.Top = (FirstRows[LineIndex] + RowInLine) * GetRowHeight();
	return Row;
}

int32 FTextRows::GetRowIndex(const FTextCaret& Caret) const
{
	const int32 LineIndex = Caret.Location.GetLineIndex();
	const TArray<int32>& RowBegins = MeasureLine(LineIndex).GetRowBegins();
	const int32 Offset = Caret.Location.GetOffset();
	const int32 RowInLine = CountUpTo(RowBegins, Caret.bAtRowEnd ? Offset - 1 : Offset);
	CountRows();
	return FirstRows[LineIndex] + RowInLine;
}

int32 FTextRows::GetRowIndexAtHeight(float Height) const
{
	return FMath::FloorToInt(FMath::Clamp<float>(Height / GetRowHeight(), 0.0f, NumRows() - 1));
}

TArray<FVector2D> FTextRows::GetSpansInRow(const FTextRow& Row, int32 BeginOffset, int32 EndOffset) const
{
	return Measure->GetSpans(Row.Text, GetIndexInRow(Row, BeginOffset), GetIndexInRow(Row, EndOffset));
}

FVector2D FTextRows::GetCaretPosition(const FTextCaret& Caret) const
{
	const FTextRow Row = GetRow(GetRowIndex(Caret));
	const float Distance = Measure->GetCaretDistance(Row.Text, GetIndexInRow(Row, Caret.Location.GetOffset()));
	if (Format.WrapWidth > 0.0f)
	{
		// Blanks at a soft break stick out; the caret among them stays in sight.
		return FVector2D(FMath::Min(Row.Left + Distance, FMath::Max(Row.Left + Row.Width, Format.WrapWidth)), Row.Top);
	}
	return FVector2D(Row.Left + Distance, Row.Top);
}

FTextCaret FTextRows::GetCaretInRow(int32 RowIndex, float Distance) const
{
	const FTextRow Row = GetRow(RowIndex);
	const int32 Offset = Row.Range.BeginIndex + Measure->GetNearestIndex(Row.Text, Distance - Row.Left);
	return FTextCaret(FTextLocation(Row.LineIndex, Offset), Row.bWrapped && Offset == Row.Range.EndIndex);
}

FTextCaret FTextRows::GetCaretAt(const FVector2D& Position) const
{
	return GetCaretInRow(GetRowIndexAtHeight(Position.Y), Position.X);
}
