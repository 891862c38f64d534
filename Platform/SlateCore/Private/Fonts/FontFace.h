#pragma once

#include "CoreMinimal.h"

#include <pango/pangocairo.h>

/** The picture of one glyph. Four bytes a pixel: colour, premultiplied, or the coverage four times. */
struct FGlyphImage
{
	/** From the origin of the glyph, which lies on the baseline, to the picture's top left. */
	int32 Left = 0;
	int32 Top = 0;
	int32 Width = 0;
	int32 Height = 0;
	bool bIsColor = false;
	TArray<uint32> Pixels;
};

/** One font at one size, and the pictures of its glyphs as far as they were needed. */
class FSlateFontFace
{
public:
	/** Glyphs are drawn at quarters of a pixel horizontally. */
	static constexpr int32 NumSubPositions = 4;

	explicit FSlateFontFace(PangoFont* InFont);
	FSlateFontFace(const FSlateFontFace&) = delete;
	FSlateFontFace& operator=(const FSlateFontFace&) = delete;
	~FSlateFontFace();

	/**
	 * The picture of a glyph, valid until the next call.
	 *
	 * @param SubPosition   Quarters of a pixel by which it is moved to the right, 0 to 3.
	 * @param OutlineWidth  Pixels of a line around the glyph, which alone is then in the picture; 0 for the glyph itself.
	 */
	const FGlyphImage& GetGlyph(uint32 GlyphIndex, int32 SubPosition, int32 OutlineWidth);

	PangoFont* GetFont() const { return Font; }
	cairo_scaled_font_t* GetScaledFont() const { return ScaledFont; }

private:
	FGlyphImage DrawGlyph(uint32 GlyphIndex, int32 SubPosition, int32 OutlineWidth) const;

	PangoFont* Font;
	cairo_scaled_font_t* ScaledFont;
	TMap<uint64, FGlyphImage> Images;
};
