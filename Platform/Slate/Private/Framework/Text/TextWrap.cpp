#include "Framework/Text/TextWrap.h"

#include "Framework/Text/TextBoundaries.h"
#include "Framework/Text/TextMeasure.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/Char.h"

namespace
{
using TextBoundaries::EBreak;
using TextBoundaries::FForwardBreaks;

/** How many units at least are looked at to see where a row ends. */
constexpr int32 GLeastWindow = 64;

/** What lies farther away than so many units has no influence on whether there is a break. */
constexpr int32 GFarAway = 64;

/** Finds the rows of a line, one after the other. */
class FRowFinder
{
public:
	FRowFinder(const FString& InLine, float InWidth, ETextWrappingPolicy InPolicy, const ITextMeasure& InMeasure, int32 InBegin)
		: Line(InLine)
		, Width(InWidth)
		, Policy(InPolicy)
		, Measure(InMeasure)
		, RowBreaks(EBreak::Row, InLine, InBegin)
		, Begin(InBegin)
		, Window(GLeastWindow)
	{
	}

	/** Goes on to where the next row begins; false if this one is the last. */
	bool MoveToNextRow()
	{
		const int32 Fitting = FindFitting();
		if (Fitting == Line.Len())
		{
			return false;
		}
		const int32 End = FindRowEnd(Fitting);
		// Most rows are about as long as the one before.
		Window = FMath::Max(GLeastWindow, (Fitting - Begin) * 9 / 8 + 8);
		Begin = End;
		return Begin != Line.Len();
	}

	int32 GetBegin() const { return Begin; }

private:
	/** Where the row reaches the width. Looks only as far ahead as needed: a line may be a whole file. */
	int32 FindFitting() const
	{
		for (int32 NumAhead = Window;; NumAhead *= 2)
		{
			const FString Ahead = Line.Mid(Begin, NumAhead);
			const int32 NumFitting = Measure.GetNumFitting(Ahead, Width);
			if (NumFitting < Ahead.Len() || Begin + NumFitting == Line.Len())
			{
				return Begin + NumFitting;
			}
		}
	}

	/** Where the row ends if the text up to Fitting fits into the width. */
	int32 FindRowEnd(int32 Fitting)
	{
		RowBreaks.MoveTo(Fitting);
		const int32 Next = RowBreaks.GetNext();
		if (FChar::IsWhitespace(Line[Fitting]) && TrimBlanksFromEnd(Line, Fitting, Next) == Fitting)
		{
			return Next;
		}
		if (RowBreaks.GetLast() > Begin)
		{
			return RowBreaks.GetLast();
		}
		if (Policy == ETextWrappingPolicy::DefaultWrapping)
		{
			return Next;
		}
		FForwardBreaks Characters(EBreak::Character, Line, Begin);
		Characters.MoveTo(Fitting);
		return Characters.GetLast() > Begin ? Characters.GetLast() : Characters.GetNext();
	}

	const FString& Line;
	const float Width;
	const ETextWrappingPolicy Policy;
	const ITextMeasure& Measure;
	FForwardBreaks RowBreaks;
	int32 Begin;
	int32 Window;
};
}

int32 TrimBlanksFromEnd(const FString& Line, int32 Begin, int32 End)
{
	while (End > Begin && FChar::IsWhitespace(Line[End - 1]))
	{
		--End;
	}
	return End;
}

TArray<int32> WrapLine(const FString& Line, float Width, ETextWrappingPolicy Policy, const ITextMeasure& Measure)
{
	int32 SameRowsAtFront = 0;
	int32 SameRowsAtEnd = 0;
	return WrapChangedLine(Line, Width, Policy, Measure, FTextWrapBefore(), SameRowsAtFront, SameRowsAtEnd);
}

TArray<int32> WrapChangedLine(const FString& Line, float Width, ETextWrappingPolicy Policy, const ITextMeasure& Measure,
	const FTextWrapBefore& Before, int32& OutSameRowsAtFront, int32& OutSameRowsAtEnd)
{
	OutSameRowsAtFront = 0;
	OutSameRowsAtEnd = 0;
	TArray<int32> RowBegins;
	if (Width <= 0.0f)
	{
		return RowBegins;
	}

	// A row depends on the word behind it, too, which never reaches beyond the next row.
	const TArray<int32>& Old = Before.RowBegins;
	while (OutSameRowsAtFront + 1 < Old.Num() && Old[OutSameRowsAtFront + 1] + GFarAway <= Before.SameAtFront)
	{
		RowBegins.Add(Old[OutSameRowsAtFront++]);
	}

	const int32 Shift = Line.Len() - Before.Length;
	int32 OldRow = OutSameRowsAtFront;
	FRowFinder Rows(Line, Width, Policy, Measure, RowBegins.Num() > 0 ? RowBegins.Last() : 0);
	while (Rows.MoveToNextRow())
	{
		RowBegins.Add(Rows.GetBegin());
		while (OldRow < Old.Num() && Old[OldRow] + Shift < Rows.GetBegin())
		{
			++OldRow;
		}
		const bool bAsBefore = OldRow < Old.Num() && Old[OldRow] + Shift == Rows.GetBegin();
		if (bAsBefore && Rows.GetBegin() >= Line.Len() - Before.SameAtEnd + GFarAway)
		{
			OutSameRowsAtEnd = Old.Num() - OldRow;
			for (++OldRow; OldRow < Old.Num(); ++OldRow)
			{
				RowBegins.Add(Old[OldRow] + Shift);
			}
			return RowBegins;
		}
	}
	return RowBegins;
}

float CombineWrapWidths(float A, float B)
{
	return A > 0.0f && B > 0.0f ? FMath::Min(A, B) : FMath::Max3(A, B, 0.0f);
}
