#include "Fonts/FontFace.h"

namespace
{

/** More pictures than any alphabet needs; ideographs may need more, then all are drawn anew. */
constexpr int32 MaxImages = 4096;

/** A picture's side is kept below what Cairo's coordinates hold. */
constexpr int32 MaxSide = 4096;

bool IsBlank(const uint32* Pixels, int32 Num, int32 Step)
{
	for (int32 Index = 0; Index < Num; ++Index)
	{
		if (Pixels[SIZE_T(Index) * Step] != 0)
		{
			return false;
		}
	}
	return true;
}

/** Cuts blank rows and columns off; the width stays a multiple of four, which is how many pixels are blended at once. */
FGlyphImage Crop(const FGlyphImage& Image)
{
	const uint32* Pixels = Image.Pixels.GetData();
	int32 Top = 0;
	int32 Bottom = Image.Height;
	int32 Left = 0;
	int32 Right = Image.Width;
	const auto IsBlankRow = [&](int32 Y)
	{
		return IsBlank(Pixels + SIZE_T(Y) * Image.Width, Image.Width, 1);
	};
	const auto IsBlankColumn = [&](int32 X)
	{
		return IsBlank(Pixels + X, Image.Height, Image.Width);
	};
	while (Top < Bottom && IsBlankRow(Top))
	{
		++Top;
	}
	while (Bottom > Top && IsBlankRow(Bottom - 1))
	{
		--Bottom;
	}
	while (Left < Right && IsBlankColumn(Left))
	{
		++Left;
	}
	while (Right > Left && IsBlankColumn(Right - 1))
	{
		--Right;
	}

	FGlyphImage Cropped;
	Cropped.Left = Image.Left + Left;
	Cropped.Top = Image.Top + Top;
	Cropped.Width = (Right - Left + 3) / 4 * 4;
	Cropped.Height = Bottom - Top;
	Cropped.bIsColor = Image.bIsColor;
	Cropped.Pixels.AddZeroed(Cropped.Width * Cropped.Height);
	for (int32 Y = 0; Y < Cropped.Height; ++Y)
	{
		FMemory::Memcpy(Cropped.Pixels.GetData() + SIZE_T(Y) * Cropped.Width, Pixels + SIZE_T(Top + Y) * Image.Width + Left,
			SIZE_T(Right - Left) * sizeof(uint32));
	}
	return Cropped;
}

}

FSlateFontFace::FSlateFontFace(PangoFont* InFont)
	: Font(PANGO_FONT(g_object_ref(InFont)))
	, ScaledFont(cairo_scaled_font_reference(pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(InFont))))
{
}

FSlateFontFace::~FSlateFontFace()
{
	cairo_scaled_font_destroy(ScaledFont);
	g_object_unref(Font);
}

const FGlyphImage& FSlateFontFace::GetGlyph(uint32 GlyphIndex, int32 SubPosition, int32 OutlineWidth)
{
	const uint64 Key = uint64(GlyphIndex) << 24 | uint64(OutlineWidth) << 2 | uint64(SubPosition);
	if (const FGlyphImage* Image = Images.Find(Key))
	{
		return *Image;
	}
	if (Images.Num() >= MaxImages)
	{
		Images.Empty();
	}
	return Images.Add(Key, DrawGlyph(GlyphIndex, SubPosition, OutlineWidth));
}

FGlyphImage FSlateFontFace::DrawGlyph(uint32 GlyphIndex, int32 SubPosition, int32 OutlineWidth) const
{
	const double Offset = double(SubPosition) / NumSubPositions;
	cairo_glyph_t Glyph{GlyphIndex, 0.0, 0.0};
	cairo_text_extents_t Extents;
	cairo_scaled_font_glyph_extents(ScaledFont, &Glyph, 1, &Extents);

	FGlyphImage Image;
	if (Extents.width <= 0.0 || Extents.height <= 0.0)
	{
		return Image;
	}

	// One pixel more on each side for what hinting and smoothing add.
	const int32 Border = OutlineWidth + 1;
	Image.Left = FMath::FloorToInt32(Extents.x_bearing) - Border;
	Image.Top = FMath::FloorToInt32(Extents.y_bearing) - Border;
	Image.Width = FMath::Min(FMath::CeilToInt32(Extents.x_bearing + Extents.width + Offset) + Border - Image.Left, MaxSide);
	Image.Height = FMath::Min(FMath::CeilToInt32(Extents.y_bearing + Extents.height) + Border - Image.Top, MaxSide);

	Image.Pixels.AddZeroed(Image.Width * Image.Height);
	cairo_surface_t* Surface = cairo_image_surface_create_for_data(reinterpret_cast<uint8*>(Image.Pixels.GetData()),
		CAIRO_FORMAT_ARGB32, Image.Width, Image.Height, Image.Width * int32(sizeof(uint32)));
	cairo_t* Cairo = cairo_create(Surface);
	cairo_set_scaled_font(Cairo, ScaledFont);
	cairo_set_antialias(Cairo, CAIRO_ANTIALIAS_BEST);
	cairo_set_source_rgb(Cairo, 1.0, 1.0, 1.0);
	Glyph.x = Offset - Image.Left;
	Glyph.y = -Image.Top;

	cairo_glyph_path(Cairo, &Glyph, 1);
	double X0 = 0.0;
	double X1 = 0.0;
	double Unused = 0.0;
	cairo_path_extents(Cairo, &X0, &Unused, &X1, &Unused);
	if (X1 <= X0)
	{
		// A glyph without an outline is a picture.
		Image.bIsColor = true;
		cairo_show_glyphs(Cairo, &Glyph, 1);
	}
	else if (OutlineWidth > 0)
	{
		cairo_set_line_width(Cairo, 2.0 * OutlineWidth);
		cairo_set_line_join(Cairo, CAIRO_LINE_JOIN_ROUND);
		cairo_stroke(Cairo);
	}
	else
	{
		cairo_fill(Cairo);
	}
	cairo_destroy(Cairo);
	cairo_surface_destroy(Surface);
	return Crop(Image);
}
