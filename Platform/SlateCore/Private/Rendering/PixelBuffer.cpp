#include "Rendering/PixelBuffer.h"

#include <cairo.h>

FPixelBuffer::FPixelBuffer(FIntPoint InSize)
	: Size(InSize.ComponentMax(FIntPoint(1, 1)))
{
	Pixels.AddZeroed(Size.X * Size.Y);
	Surface = cairo_image_surface_create_for_data(
		reinterpret_cast<uint8*>(Pixels.GetData()), CAIRO_FORMAT_ARGB32, Size.X, Size.Y, GetStride());
}

FPixelBuffer::~FPixelBuffer()
{
	cairo_surface_destroy(Surface);
}

cairo_surface_t* FPixelBuffer::GetSurface()
{
	cairo_surface_mark_dirty(Surface);
	return Surface;
}
