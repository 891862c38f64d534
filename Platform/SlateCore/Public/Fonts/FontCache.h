#pragma once

#include "CoreMinimal.h"

class FShapedPieces;
class FSlateFontFace;
class FSlateSizedFont;
struct FSlateFontInfo;

/** One glyph of a shaped text, in visual order. Lengths are pixels. */
struct FShapedGlyphEntry
{
	uint32 GlyphIndex = 0;
	/** Which of the sequence's faces the glyph is of. */
	uint16 FaceIndex = 0;
	/** No font has this character; a box is drawn for it. */
	bool bIsMissing = false;
	float XAdvance = 0.0f;
	float XOffset = 0.0f;
	float YOffset = 0.0f;
};

/** Characters of one direction that lie side by side. */
struct FShapedTextRun
{
	int32 FirstCharacter = 0;
	int32 NumCharacters = 0;
	bool bRightToLeft = false;
};

/**
 * A text as glyphs of certain fonts at a certain size. Indices are UTF-16 offsets from the beginning of the text.
 *
 * A long text has no glyphs of its own: it consists of parts, which have (ForEachPart).
 */
class SLATECORE_API FShapedGlyphSequence
{
public:
	FShapedGlyphSequence(FString&& InText, TArray<FShapedGlyphEntry>&& InGlyphs, TArray<TSharedRef<FSlateFontFace>>&& InFaces,
		TArray<float>&& InOffsets, TArray<FShapedTextRun>&& InRuns, const FSlateSizedFont& InFont);
	FShapedGlyphSequence(FString&& InText, TUniquePtr<FShapedPieces>&& InPieces, const FSlateSizedFont& InFont);
	~FShapedGlyphSequence();

	const FString& GetText() const { return Text; }
	const TArray<FShapedGlyphEntry>& GetGlyphs() const { return Glyphs; }
	const TArray<TSharedRef<FSlateFontFace>>& GetFaces() const { return Faces; }

	/** The parts of a long text; null for another one. */
	const FShapedPieces* GetPieces() const { return Pieces.Get(); }

	/**
	 * Calls Visit, from left to right, with each part that may show between Left and Right, pixels from the left end of the row,
	 * and the left end of the part. A text that is not long is its only part.
	 */
	void ForEachPart(double Left, double Right, TFunctionRef<void(const FShapedGlyphSequence&, double)> Visit) const;

	/** Width of all glyphs; a fraction of a pixel may remain. */
	double GetMeasuredWidth() const;

	/** Width of the characters [StartIndex, EndIndex). A ligature's width is divided among its characters. */
	double GetMeasuredWidth(int32 StartIndex, int32 EndIndex) const;

	/** The character that lies HorizontalOffset pixels behind StartIndex in reading order; the text's length when none does. */
	int32 GetCharacterAtOffset(int32 StartIndex, double HorizontalOffset) const;

	/** Whether a part of the text runs from right to left, so that places in the row are not those in reading order. */
	bool HasRightToLeft() const;

	/** Where the caret stands in front of a character, or behind the last one, in pixels from the left end of the row. */
	double GetCaretOffset(int32 Index) const;

	/** The index whose caret is nearest to a place in the row. */
	int32 GetCaretAtOffset(double HorizontalOffset) const;

	/** The parts of the row that the characters [StartIndex, EndIndex) take up, from left to right; X is where one begins, Y its end. */
	TArray<FVector2D> GetSpans(int32 StartIndex, int32 EndIndex) const;

	/** Height of a line in whole pixels, that of the text's font whatever fonts stand in for missing characters. */
	int32 GetMaxTextHeight() const { return Ascent + Descent; }

	/** From the bottom of the line to the baseline, in whole pixels: zero or negative. */
	int32 GetTextBaseline() const { return -Descent; }

	/** Pixels of the outline around each letter; 0 for none. */
	int32 GetOutlineWidth() const { return OutlineWidth; }
	const FLinearColor& GetOutlineColor() const { return OutlineColor; }

private:
	/** Where a character of a run begins in reading order, in pixels from the left end of the row; RunLeft is the run's left end. */
	float GetPlaceInRun(const FShapedTextRun& Run, float RunLeft, int32 Index) const;
	float GetWidthOfRun(const FShapedTextRun& Run) const;

	FString Text;
	TArray<FShapedGlyphEntry> Glyphs;
	TArray<TSharedRef<FSlateFontFace>> Faces;
	/** Width of everything before a character in reading order; one more than there are characters. */
	TArray<float> Offsets;
	/** From left to right. Empty where all of the text runs from left to right. */
	TArray<FShapedTextRun> Runs;
	/** Of a long text; nothing of the above is set then. */
	TUniquePtr<FShapedPieces> Pieces;
	FLinearColor OutlineColor;
	int32 OutlineWidth;
	int32 Ascent;
	int32 Descent;
};

typedef TSharedRef<const FShapedGlyphSequence> FShapedGlyphSequenceRef;
typedef TSharedPtr<const FShapedGlyphSequence> FShapedGlyphSequencePtr;

/**
 * Shapes text and keeps what was shaped lately. To be used on the game thread.
 *
 * A tab is four blanks wide; other control characters, line breaks among them, have no width.
 */
class SLATECORE_API FSlateFontCache
{
public:
	FSlateFontCache();
	~FSlateFontCache();

	/** Text in reading order of its first strong character, with all its scripts and fallback fonts. */
	FShapedGlyphSequenceRef ShapeBidirectionalText(const TCHAR* InText, const int32 InTextStart, const int32 InTextLen,
		const FSlateFontInfo& InFontInfo, const float InFontScale) const;
	FShapedGlyphSequenceRef ShapeBidirectionalText(
		const FString& InText, const FSlateFontInfo& InFontInfo, const float InFontScale) const
	{
		return ShapeBidirectionalText(*InText, 0, InText.Len(), InFontInfo, InFontScale);
	}

	/** Height of a line in whole pixels. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const;

	/** From the bottom of a line to the baseline, in whole pixels: zero or negative. */
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const;

	/** How many shaped texts are kept, long ones not counted, and how often a text had to be shaped since the start. */
	int32 GetNumCachedTexts() const;
	uint64 GetNumShapedTexts() const;

	/** UTF-16 units that were shaped since the start: what was found in the cache cost none. */
	uint64 GetNumShapedCharacters() const;

private:
	class FImplementation;
	TUniquePtr<FImplementation> Implementation;
};
