#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"

struct FCompositeFont;

/** The looks that every widget of Slate can count on. */
class SLATECORE_API FCoreStyle
{
public:
	static const ISlateStyle& Get();

	/** Of text and of small text, in points at 96 dpi. */
	static constexpr int32 RegularTextSize = 10;
	static constexpr int32 SmallTextSize = 8;

	/** The family of the user interface, with the faces Regular, Italic, Bold, BoldItalic, Black, BlackItalic, Light, Medium. */
	static TSharedRef<const FCompositeFont> GetDefaultFont();

	/** @param InTypefaceFontName A face; an unknown one gives the first. @param InSize Points at 96 dpi; -1 for RegularTextSize. */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());
};
