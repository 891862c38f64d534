#include "Framework/Text/TextBoundaries.h"

#include "Math/UnrealMathUtility.h"

#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace TextBoundaries
{
namespace
{
/** The shared iterator of one kind, set to a line from Begin on. Opening one costs far more than setting it. */
UBreakIterator* SetIterator(UBreakIteratorType Type, const FString& Line, int32 Begin = 0)
{
	static UBreakIterator* Iterators[UBRK_LINE + 1] = {};

	UErrorCode Status = U_ZERO_ERROR;
	UBreakIterator*& Iterator = Iterators[Type];
	if (!Iterator)
	{
		Iterator = ubrk_open(Type, "", nullptr, 0, &Status);
	}
	ubrk_setText(Iterator, *Line + Begin, Line.Len() - Begin, &Status);
	return Iterator;
}

/** Characters that never combine with their neighbours; they spare the iterator the common case. */
bool StandsAlone(TCHAR Character)
{
	return Character >= 0x20 && Character < 0x7f;
}

uint64 GNumUnitsPassed = 0;

bool IsBlank(const FString& Line, int32 Offset)
{
	UChar32 CodePoint;
	U16_GET(*Line, 0, Offset, Line.Len(), CodePoint);
	return u_isUWhiteSpace(CodePoint);
}
}

int32 GetPreviousCharacter(const FString& Line, int32 Offset)
{
	if (Offset <= 1)
	{
		return 0;
	}
	if (StandsAlone(Line[Offset - 1]))
	{
		return Offset - 1;
	}
	return FMath::Max(ubrk_preceding(SetIterator(UBRK_CHARACTER, Line), Offset), 0);
}

int32 GetNextCharacter(const FString& Line, int32 Offset)
{
	if (Offset + 1 >= Line.Len())
	{
		return Line.Len();
	}
	if (StandsAlone(Line[Offset]) && StandsAlone(Line[Offset + 1]))
	{
		return Offset + 1;
	}
	const int32 Next = ubrk_following(SetIterator(UBRK_CHARACTER, Line), Offset);
	return Next == UBRK_DONE ? Line.Len() : Next;
}

int32 GetPreviousWord(const FString& Line, int32 Offset)
{
	UBreakIterator* const Iterator = SetIterator(UBRK_WORD, Line);
	int32 Begin = ubrk_preceding(Iterator, Offset);
	while (Begin > 0 && IsBlank(Line, Begin))
	{
		Begin = ubrk_previous(Iterator);
	}
	return FMath::Max(Begin, 0);
}

int32 GetNextWord(const FString& Line, int32 Offset)
{
	UBreakIterator* const Iterator = SetIterator(UBRK_WORD, Line);
	int32 Begin = ubrk_following(Iterator, Offset);
	while (Begin != UBRK_DONE && Begin < Line.Len() && IsBlank(Line, Begin))
	{
		Begin = ubrk_next(Iterator);
	}
	return Begin == UBRK_DONE ? Line.Len() : Begin;
}

FTextRange GetWordAt(const FString& Line, int32 Offset)
{
	if (Line.IsEmpty())
	{
		return FTextRange(0, 0);
	}
	UBreakIterator* const Iterator = SetIterator(UBRK_WORD, Line);
	const int32 Inside = FMath::Clamp(Offset, 0, Line.Len() - 1);
	const int32 End = ubrk_following(Iterator, Inside);
	return FTextRange(ubrk_previous(Iterator), End);
}

FForwardBreaks::FForwardBreaks(EBreak Kind, const FString& Line, int32 InBegin)
	: Iterator(SetIterator(Kind == EBreak::Row ? UBRK_LINE : UBRK_CHARACTER, Line, InBegin))
	, Begin(InBegin)
	, Length(Line.Len())
	, Last(InBegin)
	, Next(InBegin)
{
	Step();
}

void FForwardBreaks::Step()
{
	const int32 Found = ubrk_next(Iterator);
	Last = Next;
	Next = Found == UBRK_DONE ? Length : Begin + Found;
	GNumUnitsPassed += Next - Last;
}

void FForwardBreaks::MoveTo(int32 Offset)
{
	while (Next <= Offset && Next < Length)
	{
		Step();
	}
}

uint64 FForwardBreaks::GetNumUnitsPassed()
{
	return GNumUnitsPassed;
}
}
