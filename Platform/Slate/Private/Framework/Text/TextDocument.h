#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Framework/Text/TextLayout.h"

/** Which lines a replacement touched, and where it ended. */
struct FTextChange
{
	int32 FirstLine = 0;
	int32 NumRemovedLines = 0;
	int32 NumInsertedLines = 0;

	FTextLocation Begin;
	/** Behind the inserted text. */
	FTextLocation End;
};

/**
 * A text under edit, as lines; there is always at least one. Locations handed in must lie inside (see Clamp).
 *
 * A single-line document keeps line ends as characters of its one line, so a text that was given to it comes back unchanged.
 */
class SLATE_API FTextDocument
{
public:
	explicit FTextDocument(bool bInMultiLine);

	bool IsMultiLine() const { return bMultiLine; }
	bool IsEmpty() const { return Lines.Num() == 1 && Lines[0].IsEmpty(); }
	int32 NumLines() const { return Lines.Num(); }
	const FString& GetLine(int32 LineIndex) const { return Lines[LineIndex]; }

	/** UTF-16 units of all lines, line ends not counted. */
	int32 NumCharacters() const { return Characters; }

	void SetText(const FString& Text);

	/** The whole text, its lines joined by LF. */
	FString GetText() const;
	FString GetText(const FTextSelection& Range) const;

	/** Whether SetText with this text would change nothing. Case matters; nothing is built for the answer. */
	bool Equals(const FString& Text) const;

	FTextLocation GetEnd() const;
	FTextSelection GetAll() const { return FTextSelection(FTextLocation(), GetEnd()); }

	/** The nearest location that exists. */
	FTextLocation Clamp(const FTextLocation& Location) const;

	/** Where Text would end if it were inserted at Begin. */
	FTextLocation GetEndOfInserted(const FTextLocation& Begin, const FString& Text) const;

	/** Puts Text in place of Range. The cost depends on the lines concerned, not on the length of the document. */
	FTextChange Replace(const FTextSelection& Range, const FString& Text);

private:
	TArray<FString> SplitLines(const FString& Text) const;

	TArray<FString> Lines;
	int32 Characters = 0;
	bool bMultiLine;
};
