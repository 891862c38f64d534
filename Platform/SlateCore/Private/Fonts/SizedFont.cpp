#include "Fonts/SizedFont.h"

#include "Fonts/CompositeFont.h"
#include "Fonts/FontFace.h"
#include "Fonts/FontSystem.h"
#include "Styling/CoreStyle.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateFonts, Log, All);

namespace
{

/** Letters larger than this are drawn at this size: a glyph's picture has to stay within bounds. */
constexpr double MaxPixelSize = 1024.0;

FString GetFaceName(const FSlateFontInfo& FontInfo)
{
	if (!FontInfo.CompositeFont || FontInfo.CompositeFont->DefaultTypeface.Fonts.Num() == 0)
	{
		return TEXT("Roboto");
	}
	const TArray<FTypefaceEntry>& Faces = FontInfo.CompositeFont->DefaultTypeface.Fonts;
	for (const FTypefaceEntry& Candidate : Faces)
	{
		if (Candidate.Name == FontInfo.TypefaceFontName)
		{
			return Candidate.Font.GetFontFilename();
		}
	}
	return Faces[0].Font.GetFontFilename();
}

/** The size of a font that has none. */
constexpr int32 NoSize = -1;

double GetPixelSize(const FSlateFontInfo& FontInfo, float Scale)
{
	FSlateFontInfo Sized = FontInfo;
	Sized.Size = FontInfo.Size >= 1 ? FontInfo.Size : FCoreStyle::RegularTextSize;
	const double Size = double(Sized.GetPixelSize()) * double(Scale);
	const double Bounded = Size >= 1.0 ? FMath::Min(Size, MaxPixelSize) : 1.0;
	if ((FontInfo.Size <= 0 && FontInfo.Size != NoSize) || Size > MaxPixelSize)
	{
		UE_LOG(LogSlateFonts, Warning, TEXT("A font of size %d cannot be drawn; letters of %.0f pixels are used."), FontInfo.Size,
			Bounded);
	}
	return Bounded;
}

}

FSlateSizedFont::FSlateSizedFont(FSlateFontSystem& FontSystem, const FSlateFontInfo& InFontInfo, float InScale, uint32 InId)
	: FontInfo(InFontInfo)
	, Scale(InScale)
	, Id(InId)
	, Description(FontSystem.Describe(GetFaceName(InFontInfo), GetPixelSize(InFontInfo, InScale)))
	, OutlineWidth(
		  FMath::Clamp(FMath::RoundToInt(float(FMath::Clamp(InFontInfo.OutlineSettings.OutlineSize, 0, 256)) * InScale), 0, 256))
{
	PangoFont* Font = pango_font_map_load_font(FontSystem.GetFontMap(), FontSystem.GetContext(), Description);
	Face = MakeShared<FSlateFontFace>(Font);
	Analysis.font = Font;
	Analysis.script = PANGO_SCRIPT_LATIN;
	Analysis.gravity = PANGO_GRAVITY_SOUTH;
	Analysis.language = pango_context_get_language(FontSystem.GetContext());

	PangoFontMetrics* Metrics = pango_font_get_metrics(Font, Analysis.language);
	Ascent = FMath::RoundToInt32(double(pango_font_metrics_get_ascent(Metrics)) / PANGO_SCALE);
	Descent = FMath::RoundToInt32(double(pango_font_metrics_get_descent(Metrics)) / PANGO_SCALE);
	pango_font_metrics_unref(Metrics);
}

FSlateSizedFont::~FSlateSizedFont()
{
	g_object_unref(Analysis.font);
	pango_font_description_free(Description);
}
