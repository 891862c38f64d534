#include "Fonts/FontSystem.h"

#include <fontconfig/fontconfig.h>

#include <fontconfig/fcfreetype.h>
#include <pango/pangofc-fontmap.h>

namespace
{

/**
 * Roboto comes in a hinted and an unhinted build under one name; only the latter is used. Bitmap and Type 1 fonts would
 * stand in for missing characters with shapes that do not scale or are not smoothed alike.
 */
const char GFontConfiguration[] = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
	<dir>/usr/share/fonts</dir>
	<dir>/usr/local/share/fonts</dir>
	<dir prefix="xdg">fonts</dir>
	<cachedir>/var/cache/fontconfig</cachedir>
	<cachedir prefix="xdg">fontconfig</cachedir>
	<selectfont>
		<rejectfont><glob>*/roboto/hinted/*</glob></rejectfont>
		<rejectfont><pattern><patelt name="scalable"><bool>false</bool></patelt><patelt name="color"><bool>false</bool></patelt></pattern></rejectfont>
		<rejectfont><pattern><patelt name="fontformat"><string>Type 1</string></patelt></pattern></rejectfont>
	</selectfont>
	<match target="pattern">
		<edit name="family" mode="append_last" binding="weak">
			<string>Roboto</string>
			<string>DejaVu Sans</string>
			<string>Noto Sans</string>
			<string>Noto Sans CJK SC</string>
			<string>Noto Color Emoji</string>
		</edit>
	</match>
	<match target="pattern">
		<test name="family"><string>emoji</string></test>
		<edit name="family" mode="prepend" binding="strong"><string>Noto Color Emoji</string></edit>
	</match>
</fontconfig>
)";

FcConfig* CreateConfiguration()
{
	FcConfig* Configuration = FcConfigCreate();
	FcConfigParseAndLoadFromMemory(Configuration, reinterpret_cast<const FcChar8*>(GFontConfiguration), FcTrue);
	FcConfigBuildFonts(Configuration);
	return Configuration;
}

}

FSlateFontSystem::FSlateFontSystem()
	: FontMap(pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT))
{
	FcConfig* Configuration = CreateConfiguration();
	pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(FontMap), Configuration);
	FcConfigDestroy(Configuration);

	// Rows of a glyph fall on rows of pixels, its columns lie where they lie: letters are sharp and evenly spaced.
	cairo_font_options_t* Options = cairo_font_options_create();
	cairo_font_options_set_antialias(Options, CAIRO_ANTIALIAS_GRAY);
	cairo_font_options_set_hint_style(Options, CAIRO_HINT_STYLE_SLIGHT);
	cairo_font_options_set_hint_metrics(Options, CAIRO_HINT_METRICS_OFF);

	Context = pango_font_map_create_context(FontMap);
	pango_cairo_context_set_font_options(Context, Options);
	pango_cairo_context_set_resolution(Context, 96.0);
	pango_context_set_language(Context, pango_language_from_string("en"));
	pango_context_set_round_glyph_positions(Context, FALSE);
	cairo_font_options_destroy(Options);
}

FSlateFontSystem::~FSlateFontSystem()
{
	g_object_unref(Context);
	g_object_unref(FontMap);
}

PangoFontDescription* FSlateFontSystem::Describe(const FString& Name, double PixelSize)
{
	const FTCHARToUTF8 Utf8(*Name);
	FcPattern* Pattern = nullptr;
	if (Name.Contains(TEXT("/")))
	{
		FcConfig* Configuration = pango_fc_font_map_get_config(PANGO_FC_FONT_MAP(FontMap));
		const FcChar8* File = reinterpret_cast<const FcChar8*>(Utf8.Get());
		if (!AddedFiles.Contains(Name) && FcConfigAppFontAddFile(Configuration, File))
		{
			AddedFiles.Add(Name);
			pango_fc_font_map_config_changed(PANGO_FC_FONT_MAP(FontMap));
		}
		int NumFaces = 0;
		Pattern = FcFreeTypeQuery(File, 0, nullptr, &NumFaces);
	}
	else
	{
		Pattern = FcNameParse(reinterpret_cast<const FcChar8*>(Utf8.Get()));
	}

	PangoFontDescription* Description =
		Pattern ? pango_fc_font_description_from_pattern(Pattern, FALSE) : pango_font_description_from_string("Roboto");
	if (Pattern)
	{
		FcPatternDestroy(Pattern);
	}
	pango_font_description_set_absolute_size(Description, PixelSize * PANGO_SCALE);
	return Description;
}
