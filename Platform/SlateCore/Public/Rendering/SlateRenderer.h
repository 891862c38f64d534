#pragma once

#include "CoreMinimal.h"

class FGenericWindow;
class FSlateDrawBuffer;
class FSlateFontCache;
class FSlateFontMeasure;
class SWindow;

/** What the last DrawWindows did. */
struct FSlateRenderStatistics
{
	/** Elements that met a damaged part, each counted once for a window. */
	int32 ElementsPainted = 0;
	/** Disjoint parts of windows that were painted anew. */
	int32 RectanglesDamaged = 0;
	int64 PixelsDamaged = 0;
};

/** Paints draw elements into the pixels of windows. To be used on the game thread. */
class SLATECORE_API FSlateRenderer
{
public:
	/** The one renderer there is. */
	static TSharedRef<FSlateRenderer> Create();

	virtual ~FSlateRenderer();

	TSharedRef<FSlateFontCache> GetFontCache() const { return FontCache; }
	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const { return FontMeasure; }

	/** The buffer in which the next frame is put together; empty it before. */
	FSlateDrawBuffer& GetDrawBuffer();

	/**
	 * Gives a window its pixels, opaque black at first.
	 *
	 * @param Window        Known by its address only, until OnWindowDestroyed.
	 * @param NativeWindow  Is shown the pixels; null for a window that is only looked at with ReadPixels.
	 * @param Size          Pixels; at least 1 on each side is kept.
	 */
	virtual void CreateViewport(SWindow* Window, const TSharedPtr<FGenericWindow>& NativeWindow, FIntPoint Size) = 0;

	/** New pixels in a new size, all black: the next frame has to paint all of the window. */
	virtual void RequestResize(SWindow* Window, FIntPoint NewSize) = 0;
	virtual void OnWindowDestroyed(SWindow* Window) = 0;

	/** Paints the damaged parts of each list's window and shows them. */
	virtual void DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer) = 0;

	/**
	 * The pixels of a window as they were last painted, top row first, all opaque.
	 *
	 * @return False, with empty output, for a window without a viewport.
	 */
	virtual bool ReadPixels(const SWindow* Window, TArray<FColor>& OutPixels, FIntPoint& OutSize) const = 0;

	/** Forgets every picture, so that its file is read again. */
	virtual void ReloadTextureResources() = 0;

	const FSlateRenderStatistics& GetStatistics() const { return Statistics; }

protected:
	FSlateRenderer();

	TSharedRef<FSlateFontCache> FontCache;
	TSharedRef<FSlateFontMeasure> FontMeasure;
	TUniquePtr<FSlateDrawBuffer> DrawBuffer;
	FSlateRenderStatistics Statistics;
};
