#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontCache.h"

#include <pango/pangocairo.h>

class FSlateFontFace;
class FSlateFontSystem;
class FSlateSizedFont;

/** Turns text into glyphs. */
class FSlateTextShaper
{
public:
	explicit FSlateTextShaper(FSlateFontSystem& InFontSystem);
	FSlateTextShaper(const FSlateTextShaper&) = delete;
	FSlateTextShaper& operator=(const FSlateTextShaper&) = delete;
	~FSlateTextShaper();

	FShapedGlyphSequenceRef Shape(const TCHAR* Text, int32 Length, const FSlateSizedFont& Font);

	/** Shapes the part [First, First + Length) of a text, all of which is of one level of embedding (Unicode Standard Annex 9). */
	FShapedGlyphSequenceRef ShapePiece(const TCHAR* Text, int32 First, int32 Length, uint8 Level, const FSlateSizedFont& Font);

	/** The level of embedding of each unit; empty if all of the text runs from left to right. */
	TArray<uint8> FindLevels(const TCHAR* Text, int32 Length);

	/** The last end of a user-perceived character at or before Offset, if one begins at 0; 0 if there is none in between. */
	static int32 FindLastClusterBreak(const TCHAR* Text, int32 Offset, int32 Length);

	/** Whether a character never combines with the one before. */
	static bool IsSimple(TCHAR Character);

	/** Since the start, as are the characters. */
	uint64 GetNumShapedTexts() const { return NumShapedTexts; }
	uint64 GetNumShapedCharacters() const { return NumShapedCharacters; }

	/** Lets go of the fonts that stood in for missing characters. */
	void ForgetFallbackFonts() { FallbackFaces.Empty(); }

private:
	void Begin(const TCHAR* Text, int32 Length);
	FShapedGlyphSequenceRef End(int32 Length, const FSlateSizedFont& Font) const;

	/** Fills Utf8 and CharacterOfByte, adding to them. False when the text is not of one simple script. */
	bool Encode(const TCHAR* Text, int32 Length);

	/** False when the font lacks a character. */
	bool ShapeSimpleText(const FSlateSizedFont& Font);
	void ShapeAnyText(const FSlateSizedFont& Font);
	void ShapeAtLevel(int32 FirstByte, uint8 Level, const FSlateSizedFont& Font);

	void AddRun(const PangoGlyphString& Run, int32 FirstByte, const TSharedRef<FSlateFontFace>& Face);
	TSharedRef<FSlateFontFace> GetFace(PangoFont* Font, const FSlateSizedFont& SizedFont);
	int32 AddFace(const TSharedRef<FSlateFontFace>& Face);

	/** Gives control characters their width: four blanks for a tab, else none. */
	float GetAdvance(const PangoGlyphInfo& Glyph, TCHAR Character) const;
	TArray<float> MakeOffsets(int32 Length) const;

	FSlateFontSystem& FontSystem;
	uint64 NumShapedTexts = 0;
	uint64 NumShapedCharacters = 0;
	PangoGlyphString* SimpleGlyphs;
	TMap<PangoFont*, TSharedRef<FSlateFontFace>> FallbackFaces;

	// What is being shaped; kept from text to text for its memory.
	const TCHAR* Source = nullptr;
	PangoScript Script = PANGO_SCRIPT_LATIN;
	TArray<ANSICHAR> Utf8;
	TArray<int32> CharacterOfByte;
	/** The width of the cluster that begins at a character, or -1 when none begins there. */
	TArray<float> ClusterWidths;
	TArray<FShapedGlyphEntry> Glyphs;
	TArray<TSharedRef<FSlateFontFace>> Faces;
	TArray<FShapedTextRun> Runs;
};
