#include "Textures/SlateTexture.h"

#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

DEFINE_LOG_CATEGORY_STATIC(LogSlateTextures, Log, All);

namespace
{

/** A picture of pixels. */
class FPixelTexture final : public ISlateTexture
{
public:
	explicit FPixelTexture(cairo_surface_t* InSurface)
		: Surface(InSurface)
	{
	}
	virtual ~FPixelTexture() override { cairo_surface_destroy(Surface); }

	virtual FVector2D GetNaturalSize() const override
	{
		return FVector2D(cairo_image_surface_get_width(Surface), cairo_image_surface_get_height(Surface));
	}

	virtual void Draw(cairo_t* Cairo, const FVector2D& Size) const override
	{
		const FVector2D Natural = GetNaturalSize();
		cairo_save(Cairo);
		cairo_rectangle(Cairo, 0.0, 0.0, Size.X, Size.Y);
		cairo_clip(Cairo);
		cairo_scale(Cairo, Size.X / Natural.X, Size.Y / Natural.Y);
		cairo_set_source_surface(Cairo, Surface, 0.0, 0.0);
		cairo_pattern_set_extend(cairo_get_source(Cairo), CAIRO_EXTEND_PAD);
		cairo_pattern_set_filter(cairo_get_source(Cairo), CAIRO_FILTER_GOOD);
		cairo_paint(Cairo);
		cairo_restore(Cairo);
	}

private:
	cairo_surface_t* Surface;
};

/** A drawing. */
class FVectorTexture final : public ISlateTexture
{
public:
	explicit FVectorTexture(RsvgHandle* InHandle)
		: Handle(InHandle)
	{
	}
	virtual ~FVectorTexture() override { g_object_unref(Handle); }

	virtual FVector2D GetNaturalSize() const override
	{
		double Width = 0.0;
		double Height = 0.0;
		RsvgRectangle ViewBox;
		gboolean bHasWidth = FALSE;
		gboolean bHasHeight = FALSE;
		gboolean bHasViewBox = FALSE;
		RsvgLength Unused;
		if (rsvg_handle_get_intrinsic_size_in_pixels(Handle, &Width, &Height) && Width > 0.0 && Height > 0.0)
		{
			return FVector2D(Width, Height);
		}
		rsvg_handle_get_intrinsic_dimensions(Handle, &bHasWidth, &Unused, &bHasHeight, &Unused, &bHasViewBox, &ViewBox);
		return bHasViewBox && ViewBox.width > 0.0 && ViewBox.height > 0.0 ? FVector2D(ViewBox.width, ViewBox.height)
																		  : FVector2D(32.0, 32.0);
	}

	virtual void Draw(cairo_t* Cairo, const FVector2D& Size) const override
	{
		// A drawing keeps its proportions within its viewport; a brush stretches it.
		const FVector2D Natural = GetNaturalSize();
		const RsvgRectangle Viewport{0.0, 0.0, Natural.X, Natural.Y};
		cairo_save(Cairo);
		cairo_scale(Cairo, Size.X / Natural.X, Size.Y / Natural.Y);
		rsvg_handle_render_document(Handle, Cairo, &Viewport, nullptr);
		cairo_restore(Cairo);
	}

private:
	RsvgHandle* Handle;
};

/** Stands in for a picture that is not there. */
class FMissingTexture final : public ISlateTexture
{
public:
	virtual FVector2D GetNaturalSize() const override { return FVector2D(32.0, 32.0); }

	virtual void Draw(cairo_t* Cairo, const FVector2D& Size) const override
	{
		constexpr double Square = 8.0;
		cairo_set_source_rgb(Cairo, 0.35, 0.35, 0.35);
		cairo_rectangle(Cairo, 0.0, 0.0, Size.X, Size.Y);
		cairo_fill(Cairo);
		cairo_set_source_rgb(Cairo, 0.55, 0.55, 0.55);
		for (int32 Row = 0; Row * Square < Size.Y; ++Row)
		{
			for (int32 Column = Row & 1; Column * Square < Size.X; Column += 2)
			{
				cairo_rectangle(Cairo, Column * Square, Row * Square, FMath::Min(Square, Size.X - Column * Square),
					FMath::Min(Square, Size.Y - Row * Square));
			}
		}
		cairo_fill(Cairo);
	}
};

TUniquePtr<ISlateTexture> LoadDrawing(const FString& Path, FString& OutReason)
{
	GError* Error = nullptr;
	RsvgHandle* Handle = rsvg_handle_new_from_file(TCHAR_TO_UTF8(*Path), &Error);
	if (!Handle)
	{
		OutReason = UTF8_TO_TCHAR(Error->message);
		g_error_free(Error);
		return nullptr;
	}
	rsvg_handle_set_dpi(Handle, 96.0);
	return MakeUnique<FVectorTexture>(Handle);
}

TUniquePtr<ISlateTexture> LoadPixels(const FString& Path, FString& OutReason)
{
	cairo_surface_t* Surface = cairo_image_surface_create_from_png(TCHAR_TO_UTF8(*Path));
	const cairo_status_t Status = cairo_surface_status(Surface);
	if (Status != CAIRO_STATUS_SUCCESS)
	{
		OutReason = UTF8_TO_TCHAR(cairo_status_to_string(Status));
		cairo_surface_destroy(Surface);
		return nullptr;
	}
	return MakeUnique<FPixelTexture>(Surface);
}

TUniquePtr<ISlateTexture> Load(const FString& Path)
{
	FString Reason;
	const bool bDrawing = FPaths::GetExtension(Path) == TEXT("svg");
	TUniquePtr<ISlateTexture> Texture = bDrawing ? LoadDrawing(Path, Reason) : LoadPixels(Path, Reason);
	if (!Texture)
	{
		UE_LOG(LogSlateTextures, Warning, TEXT("%s: picture not loaded (%s), a checkerboard is shown"), *Path, *Reason);
		Texture = MakeUnique<FMissingTexture>();
	}
	return Texture;
}

}

const ISlateTexture& FSlateTextures::Get(FName ResourceName)
{
	if (const TUniquePtr<ISlateTexture>* Known = Textures.Find(ResourceName))
	{
		return **Known;
	}
	return *Textures.Add(ResourceName, Load(ResourceName.ToString()));
}
