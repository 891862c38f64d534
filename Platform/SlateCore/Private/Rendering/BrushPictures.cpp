#include "Rendering/BrushPictures.h"

#include "Rendering/PixelBuffer.h"

#include <cairo.h>

namespace
{

constexpr int64 MaxBytesOfGeneration = 16 << 20;

/** Where the parts of a picture begin and end along one axis: in the picture, and where they are drawn. */
struct FThreeParts
{
	double Source[4];
	double Target[4];
};

/** @param Near, Far  The corners as fractions of the picture. */
FThreeParts Split(double SourceSize, double TargetSize, double Near, double Far)
{
	double TargetNear = FMath::RoundToDouble(FMath::Clamp(Near, 0.0, 1.0) * SourceSize);
	double TargetFar = FMath::RoundToDouble(FMath::Clamp(Far, 0.0, 1.0) * SourceSize);
	if (TargetNear + TargetFar > TargetSize)
	{
		// Too small for its corners: they share what there is.
		TargetNear = FMath::RoundToDouble(TargetSize * TargetNear / (TargetNear + TargetFar));
		TargetFar = TargetSize - TargetNear;
	}
	const double SourceNear = FMath::Clamp(Near, 0.0, 1.0) * SourceSize;
	const double SourceFar = FMath::Max(SourceSize - FMath::Clamp(Far, 0.0, 1.0) * SourceSize, SourceNear);
	return FThreeParts{{0.0, SourceNear, SourceFar, SourceSize}, {0.0, TargetNear, TargetSize - TargetFar, TargetSize}};
}

void DrawPart(cairo_t* Cairo, cairo_surface_t* Source, const FThreeParts& X, const FThreeParts& Y, int32 Column, int32 Row)
{
	const FVector2D From(X.Source[Column], Y.Source[Row]);
	const FVector2D FromSize(X.Source[Column + 1] - From.X, Y.Source[Row + 1] - From.Y);
	const FVector2D To(X.Target[Column], Y.Target[Row]);
	const FVector2D ToSize(X.Target[Column + 1] - To.X, Y.Target[Row + 1] - To.Y);
	if (FromSize.X <= 0.0 || FromSize.Y <= 0.0 || ToSize.X <= 0.0 || ToSize.Y <= 0.0)
	{
		return;
	}

	// The part by itself, so that its neighbours do not bleed into it where it is stretched.
	cairo_surface_t* Part = cairo_image_surface_create(
		CAIRO_FORMAT_ARGB32, FMath::Max(FMath::RoundToInt32(FromSize.X), 1), FMath::Max(FMath::RoundToInt32(FromSize.Y), 1));
	cairo_t* PartCairo = cairo_create(Part);
	cairo_set_source_surface(PartCairo, Source, -From.X, -From.Y);
	cairo_paint(PartCairo);
	cairo_destroy(PartCairo);

	cairo_save(Cairo);
	cairo_rectangle(Cairo, To.X, To.Y, ToSize.X, ToSize.Y);
	cairo_clip(Cairo);
	cairo_translate(Cairo, To.X, To.Y);
	cairo_scale(Cairo, ToSize.X / cairo_image_surface_get_width(Part), ToSize.Y / cairo_image_surface_get_height(Part));
	cairo_set_source_surface(Cairo, Part, 0.0, 0.0);
	cairo_pattern_set_extend(cairo_get_source(Cairo), CAIRO_EXTEND_PAD);
	cairo_paint(Cairo);
	cairo_restore(Cairo);
	cairo_surface_destroy(Part);
}

void DrawNineParts(cairo_t* Cairo, const ISlateTexture& Texture, const FSlateBrush& Brush, FIntPoint Size, float Scale)
{
	// The picture at the size of its corners on the screen; a drawing is sharp there.
	const FVector2D Natural = Texture.GetNaturalSize() * double(Scale);
	const FIntPoint SourceSize(FMath::Max(FMath::RoundToInt32(Natural.X), 1), FMath::Max(FMath::RoundToInt32(Natural.Y), 1));
	cairo_surface_t* Source = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, SourceSize.X, SourceSize.Y);
	cairo_t* SourceCairo = cairo_create(Source);
	Texture.Draw(SourceCairo, FVector2D(SourceSize));
	cairo_destroy(SourceCairo);

	const FThreeParts X = Split(SourceSize.X, Size.X, Brush.Margin.Left, Brush.Margin.Right);
	const FThreeParts Y = Split(SourceSize.Y, Size.Y, Brush.Margin.Top, Brush.Margin.Bottom);
	for (int32 Row = 0; Row < 3; ++Row)
	{
		for (int32 Column = 0; Column < 3; ++Column)
		{
			const bool bCentre = Row == 1 && Column == 1;
			if (!bCentre || Brush.GetDrawType() == ESlateBrushDrawType::Box)
			{
				DrawPart(Cairo, Source, X, Y, Column, Row);
			}
		}
	}
	cairo_surface_destroy(Source);
}

void DrawTiles(cairo_t* Cairo, const ISlateTexture& Texture, const FSlateBrush& Brush, FIntPoint Size, float Scale)
{
	const ESlateBrushTileType::Type Tiling = Brush.GetTiling();
	const double Width = Tiling == ESlateBrushTileType::Vertical ? Size.X : Brush.GetImageSize().X * double(Scale);
	const double Height = Tiling == ESlateBrushTileType::Horizontal ? Size.Y : Brush.GetImageSize().Y * double(Scale);
	const FIntPoint TileSize(
		FMath::Clamp(FMath::RoundToInt32(Width), 1, Size.X), FMath::Clamp(FMath::RoundToInt32(Height), 1, Size.Y));
	cairo_surface_t* Tile = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, TileSize.X, TileSize.Y);
	cairo_t* TileCairo = cairo_create(Tile);
	Texture.Draw(TileCairo, FVector2D(FMath::Max(Width, 1.0), FMath::Max(Height, 1.0)));
	cairo_destroy(TileCairo);

	cairo_set_source_surface(Cairo, Tile, 0.0, 0.0);
	cairo_pattern_set_extend(cairo_get_source(Cairo), CAIRO_EXTEND_REPEAT);
	cairo_pattern_set_filter(cairo_get_source(Cairo), CAIRO_FILTER_NEAREST);
	cairo_paint(Cairo);
	cairo_surface_destroy(Tile);
}

void ApplyTint(FPixelBuffer& Picture, FPixelColor Tint)
{
	if (Tint.Bits == 0xFFFFFFFF)
	{
		return;
	}
	const uint32 Factors = Tint.Premultiplied();
	for (int32 Y = 0; Y < Picture.GetSize().Y; ++Y)
	{
		uint32* Row = Picture.GetRow(Y);
		for (int32 X = 0; X < Picture.GetSize().X; ++X)
		{
			uint32 Tinted = 0;
			for (int32 Shift = 0; Shift < 32; Shift += 8)
			{
				Tinted |= MultiplyBytes((Row[X] >> Shift) & 255, (Factors >> Shift) & 255) << Shift;
			}
			Row[X] = Tinted;
		}
	}
}

}

bool FSlateBrushPictures::FKey::operator==(const FKey& Other) const
{
	return Resource == Other.Resource && Size == Other.Size && Tint == Other.Tint && Scale == Other.Scale &&
		Margin == Other.Margin && ImageSize == Other.ImageSize && DrawAs == Other.DrawAs && Tiling == Other.Tiling;
}

FSlateBrushPictures::FSlateBrushPictures()
	: Pictures(MaxBytesOfGeneration)
{
}

FSlateBrushPictures::~FSlateBrushPictures() = default;

FPixelBuffer& FSlateBrushPictures::Get(
	const FSlateBrush& Brush, FIntPoint Size, FPixelColor Tint, float Scale, const FIntRect& Seen, FIntPoint& OutPosition)
{
	const int64 Bytes = int64(Size.X) * Size.Y * int64(sizeof(uint32));
	if (Bytes > MaxBytesOfGeneration)
	{
		OutPosition = Seen.Min;
		LastLargePicture = Draw(Brush, Size, Tint, Scale, Seen);
		return *LastLargePicture;
	}

	OutPosition = FIntPoint(0, 0);
	const FKey Key{Brush.GetResourceName(), Size, Tint.Bits, Scale, Brush.GetMargin(), Brush.GetImageSize(), Brush.GetDrawType(),
		Brush.GetTiling()};
	if (const TUniquePtr<FPixelBuffer>* Known = Pictures.Find(Key))
	{
		return **Known;
	}
	return *Pictures.Add(Key, Draw(Brush, Size, Tint, Scale, FIntRect(FIntPoint(0, 0), Size)), Bytes);
}

TUniquePtr<FPixelBuffer> FSlateBrushPictures::Draw(
	const FSlateBrush& Brush, FIntPoint Size, FPixelColor Tint, float Scale, const FIntRect& Part)
{
	TUniquePtr<FPixelBuffer> Picture = MakeUnique<FPixelBuffer>(Part.Size());
	const ISlateTexture& Texture = Textures.Get(Brush.GetResourceName());
	cairo_t* Cairo = cairo_create(Picture->GetSurface());
	cairo_translate(Cairo, -Part.Min.X, -Part.Min.Y);
	if (Brush.GetDrawType() != ESlateBrushDrawType::Image)
	{
		DrawNineParts(Cairo, Texture, Brush, Size, Scale);
	}
	else if (Brush.GetTiling() != ESlateBrushTileType::NoTile)
	{
		DrawTiles(Cairo, Texture, Brush, Size, Scale);
	}
	else
	{
		Texture.Draw(Cairo, FVector2D(Size));
	}
	cairo_destroy(Cairo);
	ApplyTint(*Picture, Tint);
	return Picture;
}

void FSlateBrushPictures::Empty()
{
	Textures.Empty();
	Pictures.Empty();
}
