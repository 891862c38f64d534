#pragma once

#include "Containers/UnrealString.h"
#include "Framework/Text/TextRange.h"

struct UBreakIterator;

/**
 * Where a caret may stop and a row may end inside one line, by the rules of Unicode Annexes 14 and 29. Offsets count UTF-16
 * units from 0 to the line's length. Game thread only: the iterators underneath are shared.
 */
namespace TextBoundaries
{
/** The ends of the user-perceived character before and behind Offset; the line's own ends bound them. */
SLATE_API int32 GetPreviousCharacter(const FString& Line, int32 Offset);
SLATE_API int32 GetNextCharacter(const FString& Line, int32 Offset);

/** The begin of the word or mark before Offset, and of the next one behind it. Blanks are passed over. */
SLATE_API int32 GetPreviousWord(const FString& Line, int32 Offset);
SLATE_API int32 GetNextWord(const FString& Line, int32 Offset);

/** The word, mark or run of blanks at Offset; at the end of the line, the last one. */
SLATE_API FTextRange GetWordAt(const FString& Line, int32 Offset);

enum class EBreak
{
	/** Where a user-perceived character ends. */
	Character,
	/** Where a row may end. */
	Row,
};

/**
 * Walks forward over the breaks of a line, so that all of them cost time in proportion to the line: finding one by itself may
 * mean to begin at the front of the line each time. The line must outlive the walk, during which no other one of its kind may
 * be begun.
 */
class SLATE_API FForwardBreaks
{
public:
	/** @param Begin  A break, or 0. */
	FForwardBreaks(EBreak Kind, const FString& Line, int32 Begin);

	/** Goes on until GetNext() lies behind Offset or is the line's length. Never goes back. */
	void MoveTo(int32 Offset);

	/** The last break at or before the offset that was moved to, or where the walk began; and the first one behind it. */
	int32 GetLast() const { return Last; }
	int32 GetNext() const { return Next; }

	/** UTF-16 units that all walks since the start went over. */
	static uint64 GetNumUnitsPassed();

private:
	void Step();

	UBreakIterator* Iterator;
	int32 Begin;
	int32 Length;
	int32 Last;
	int32 Next;
};
}
