#include "Rendering/SlateRenderer.h"

#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateCairoRenderer.h"

TSharedRef<FSlateRenderer> FSlateRenderer::Create()
{
	return MakeShared<FSlateCairoRenderer>();
}

FSlateRenderer::FSlateRenderer()
	: FontCache(MakeShared<FSlateFontCache>())
	, FontMeasure(FSlateFontMeasure::Create(FontCache))
	, DrawBuffer(MakeUnique<FSlateDrawBuffer>())
{
}

FSlateRenderer::~FSlateRenderer() = default;

FSlateDrawBuffer& FSlateRenderer::GetDrawBuffer()
{
	return *DrawBuffer;
}
