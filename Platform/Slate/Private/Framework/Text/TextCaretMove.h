#pragma once

#include "CoreTypes.h"
#include "Framework/Text/TextRows.h"
#include "Misc/Optional.h"

/** The steps a caret can take. */
enum class ETextCaretMove : uint8
{
	PreviousCharacter,
	NextCharacter,
	PreviousWord,
	NextWord,
	RowBegin,
	RowEnd,
	RowAbove,
	RowBelow,
	PageAbove,
	PageBelow,
	DocumentBegin,
	DocumentEnd,
};

/** Whether a step goes up or down and so keeps its column. */
bool IsVerticalMove(ETextCaretMove Move);

/**
 * Where a step leads.
 *
 * @param Column       Distance from the left that a vertical step aims at. Other steps do not look at it.
 * @param RowsPerPage  Rows that a page step passes.
 */
FTextCaret GetMovedCaret(const FTextDocument& Document, const FTextRows& Rows, const FTextCaret& Caret, ETextCaretMove Move,
	float Column, int32 RowsPerPage);
