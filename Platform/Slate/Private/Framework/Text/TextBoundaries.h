#pragma once

#include "Containers/UnrealString.h"
#include "Framework/Text/TextRange.h"

/**
 * Where a caret may stop and a row may end inside one line, by the rules of Unicode Annexes 14 and 29. Offsets count UTF-16
 * units from 0 to the line's length. Game thread only: the iterators underneath are shared.
 */
namespace TextBoundaries
{
/** The ends of the user-perceived character before and behind Offset; the line's own ends bound them. */
SLATE_API int32 GetPreviousCharacter(const FString& Line, int32 Offset);
SLATE_API int32 GetNextCharacter(const FString& Line, int32 Offset);

/** The last end of a character at or before Offset. */
SLATE_API int32 GetLastCharacterBreak(const FString& Line, int32 Offset);

/** The begin of the word or mark before Offset, and of the next one behind it. Blanks are passed over. */
SLATE_API int32 GetPreviousWord(const FString& Line, int32 Offset);
SLATE_API int32 GetNextWord(const FString& Line, int32 Offset);

/** The word, mark or run of blanks at Offset; at the end of the line, the last one. */
SLATE_API FTextRange GetWordAt(const FString& Line, int32 Offset);

/** The last place at or before Offset at which a row may end, or 0. */
SLATE_API int32 GetLastRowBreak(const FString& Line, int32 Offset);

/** The first place behind Offset at which a row may end: at most the line's length. */
SLATE_API int32 GetNextRowBreak(const FString& Line, int32 Offset);
}
