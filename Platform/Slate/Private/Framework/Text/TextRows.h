#pragma once

#include "Containers/Array.h"
#include "Framework/Text/TextDocument.h"
#include "Framework/Text/TextLayout.h"
#include "Framework/Text/TextMeasure.h"
#include "Framework/Text/TextRange.h"
#include "Framework/Text/TextWrap.h"
#include "Math/Vector2D.h"
#include "Templates/UniquePtr.h"

/** A caret: its place in the text, and on which row it shows where a row was broken softly. */
struct FTextCaret
{
	FTextCaret(const FTextLocation& InLocation = FTextLocation(), bool bInAtRowEnd = false)
		: Location(InLocation)
		, bAtRowEnd(bInAtRowEnd)
	{
	}

	FTextLocation Location;

	/** At a soft break: behind the last character of the upper row rather than before the first of the lower one. */
	bool bAtRowEnd;
};

/** One row on the screen: a line, or a part of one that was wrapped. */
struct FTextRow
{
	int32 LineIndex = 0;
	FTextRange Range;

	/** As it is shown, unit for unit: control characters as blanks, a password as bullets. Shorter than the range where the line is too
	 * long. */
	FString Text;

	/** Left edge and top within the text, in Slate units. */
	float Left = 0.0f;
	float Top = 0.0f;
	float Width = 0.0f;

	/** Whether the line goes on in the next row. */
	bool bWrapped = false;
};

/** How rows are formed. */
struct FTextRowFormat
{
	/** Rows are broken at this width; 0 or less: never. */
	float WrapWidth = 0.0f;
	ETextWrappingPolicy WrappingPolicy = ETextWrappingPolicy::DefaultWrapping;
	ETextJustify::Type Justification = ETextJustify::Left;
	float LineHeightPercentage = 1.0f;

	/** Shows a bullet for each character. */
	bool bPassword = false;

	bool operator==(const FTextRowFormat& Other) const;
	bool operator!=(const FTextRowFormat& Other) const { return !(*this == Other); }
};

/**
 * The rows of a document: which there are, where they lie, and which place of the text lies at a point.
 *
 * Short documents are measured whole. In long ones a line is measured when it is looked at; until then the number of its rows
 * and its width are estimated, so sizes may change slightly while a view moves over the text.
 *
 * Of a line longer than MaxLineLength only so much is shown, with one Warning in LogSlateText.
 */
class SLATE_API FTextRows
{
public:
	/** In UTF-16 units. Layout takes about a second up to here, and places in a row are whole pixels as floats. */
	static constexpr int32 MaxLineLength = 1 << 20;

	explicit FTextRows(const FTextDocument& InDocument);
	~FTextRows();

	/** Lays out anew if the measure or the format differs from the last one. */
	void SetMeasure(TUniquePtr<ITextMeasure> InMeasure);
	void SetFormat(const FTextRowFormat& InFormat);

	/** The width in which rows that are centred or right-aligned stand. */
	void SetViewWidth(float InViewWidth) { ViewWidth = InViewWidth; }

	/** To be told after every change of the document. */
	void OnReplaced(const FTextChange& Change);
	void OnReset();

	float GetRowHeight() const;
	int32 NumRows() const;

	/** Width and height of all rows. */
	FVector2D GetSize() const;

	/** The row with this index, clamped to what there is. */
	FTextRow GetRow(int32 RowIndex) const;
	int32 GetRowIndex(const FTextCaret& Caret) const;
	int32 GetRowIndexAtHeight(float Height) const;

	/** Where a row of this width, of that paragraph, begins by the justification. */
	float GetRowLeft(float RowWidth, const FString& Paragraph) const;

	/** The upper end of the caret. */
	FVector2D GetCaretPosition(const FTextCaret& Caret) const;

	/** The parts of the row that the characters between two offsets take up, from left to right: X is where one begins, Y its end. */
	TArray<FVector2D> GetSpansInRow(const FTextRow& Row, int32 BeginOffset, int32 EndOffset) const;

	/** The caret place that is nearest to a point. */
	FTextCaret GetCaretAt(const FVector2D& Position) const;
	FTextCaret GetCaretInRow(int32 RowIndex, float Distance) const;

private:
	/** Of a line of several rows, as it was measured last. */
	struct FWrappedRows
	{
		FTextWrapBefore Wrap;
		TArray<float> Widths;
	};

	struct FLine
	{
		/** Where the rows after the first begin. */
		const TArray<int32>& GetRowBegins() const;

		TUniquePtr<FWrappedRows> Wrapped;
		float Width = 0.0f;
		bool bMeasured = false;
		bool bToldTooLong = false;
	};

	int32 GetShownLength(int32 LineIndex) const;
	FString GetShownText(int32 LineIndex, const FTextRange& Range) const;
	void TellIfTooLong(int32 LineIndex) const;
	const FLine& MeasureLine(int32 LineIndex) const;
	void MeasureLongestLine() const;
	void CountRows() const;
	int32 EstimateRows(int32 LineIndex) const;
	int32 GetLineOfRow(int32 RowIndex) const;

	const FTextDocument& Document;
	TUniquePtr<ITextMeasure> Measure;
	FTextRowFormat Format;
	float ViewWidth = 0.0f;

	mutable TArray<FLine> Lines;

	/** The index of each line's first row and, last, the number of rows. Empty when it has to be counted again. */
	mutable TArray<int32> FirstRows;
};
