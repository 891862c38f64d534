#pragma once

#include "CoreTypes.h"

namespace ETextJustify
{
enum Type : int
{
	Left,
	Center,
	Right,
};
}

/** How text breaks where a line is too long. */
enum class ETextWrappingPolicy : uint8
{
	/** Only between words, as the language allows. */
	DefaultWrapping = 0,
	/** Also inside a word that is longer than the line. */
	AllowPerCharacterWrapping,
};

/** What shows of a line that is longer than its room. */
enum class ETextOverflowPolicy : uint8
{
	/** All of it, as far as nothing clips it. */
	Clip = 0,
	/** As much as fits, and an ellipsis. */
	Ellipsis,
};

/** Places in a text to which a caret can be sent or a view scrolled. */
enum class ETextLocation : uint8
{
	BeginningOfDocument,
	EndOfDocument,
	BeginningOfLine,
	EndOfLine,
	PreviousPage,
	NextPage,
};

/** A place between two characters of a text: the line, from 0, and the UTF-16 offset in it. */
struct FTextLocation
{
	FTextLocation(int32 InLineIndex = 0, int32 InOffset = 0)
		: LineIndex(InLineIndex)
		, Offset(InOffset)
	{
	}

	int32 GetLineIndex() const { return LineIndex; }
	int32 GetOffset() const { return Offset; }
	bool IsValid() const { return LineIndex != INDEX_NONE && Offset != INDEX_NONE; }

	friend bool operator==(const FTextLocation& A, const FTextLocation& B)
	{
		return A.LineIndex == B.LineIndex && A.Offset == B.Offset;
	}
	friend bool operator!=(const FTextLocation& A, const FTextLocation& B) { return !(A == B); }
	friend bool operator<(const FTextLocation& A, const FTextLocation& B)
	{
		return A.LineIndex < B.LineIndex || (A.LineIndex == B.LineIndex && A.Offset < B.Offset);
	}

private:
	int32 LineIndex;
	int32 Offset;
};

/** What lies between two places, given in either order. */
class FTextSelection
{
public:
	FTextSelection() = default;

	FTextSelection(const FTextLocation& InLocationA, const FTextLocation& InLocationB)
		: LocationA(InLocationA)
		, LocationB(InLocationB)
	{
	}

	const FTextLocation& GetBeginning() const { return LocationB < LocationA ? LocationB : LocationA; }
	const FTextLocation& GetEnd() const { return LocationB < LocationA ? LocationA : LocationB; }

	FTextLocation LocationA;
	FTextLocation LocationB;
};
