#pragma once

#include "CoreMinimal.h"

#include <pango/pangocairo.h>

/**
 * The system's fonts as all text sees them. Only where fonts lie is taken from the system: which font stands in for
 * which, and how glyphs are hinted and smoothed, is fixed here, so that a text looks the same on every desktop.
 */
class FSlateFontSystem
{
public:
	FSlateFontSystem();
	FSlateFontSystem(const FSlateFontSystem&) = delete;
	FSlateFontSystem& operator=(const FSlateFontSystem&) = delete;
	~FSlateFontSystem();

	/**
	 * The font that comes nearest to a name.
	 *
	 * @param Name       A font file, or a Fontconfig name such as "Roboto:bold".
	 * @param PixelSize  Pixels of an em, above zero.
	 * @return           To be released with pango_font_description_free.
	 */
	PangoFontDescription* Describe(const FString& Name, double PixelSize);

	PangoContext* GetContext() const { return Context; }
	PangoFontMap* GetFontMap() const { return FontMap; }

private:
	PangoFontMap* FontMap;
	PangoContext* Context;
	TSet<FString> AddedFiles;
};
