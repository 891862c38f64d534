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

	/** Lets go of the fonts that stood in for missing characters. */
	void ForgetFallbackFonts() { FallbackFaces.Empty(); }

private:
	/** Fills Utf8 and CharacterOfByte. False when the text is not of one simple script. */
	bool Encode(const TCHAR* Text, int32 Length);

	/** False when the font lacks a character. */
	bool ShapeSimpleText(const FSlateSizedFont& Font);
	void ShapeAnyText(const FSlateSizedFont& Font);

	void AddRun(const PangoGlyphString& Run, int32 FirstByte, const TSharedRef<FSlateFontFace>& Face);
	TSharedRef<FSlateFontFace> GetFace(PangoFont* Font, const FSlateSizedFont& SizedFont);
	int32 AddFace(const TSharedRef<FSlateFontFace>& Face);

	/** Gives control characters their width: four blanks for a tab, else none. */
	float GetAdvance(const PangoGlyphInfo& Glyph, TCHAR Character) const;
	TArray<float> MakeOffsets(int32 Length) const;

	FSlateFontSystem& FontSystem;
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
