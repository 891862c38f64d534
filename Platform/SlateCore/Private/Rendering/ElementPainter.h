#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontCache.h"
#include "Math/IntRect.h"
#include "Rendering/BrushPictures.h"
#include "Rendering/PixelColor.h"
#include "Rendering/RoundedBoxes.h"

class FPixelBuffer;
class FSlateDrawElement;
class FSlateWindowElementList;
struct FSlateRenderStatistics;

/** Paints element lists into pixels. */
class FSlateElementPainter
{
public:
	explicit FSlateElementPainter(const TSharedRef<FSlateFontCache>& InFontCache);

	/** Paints the damaged parts, at least one, anew, over opaque black, and adds to the statistics. */
	void Paint(const FSlateWindowElementList& List, FPixelBuffer& Target, const TArray<FIntRect>& Damage,
		FSlateRenderStatistics& Statistics);

	void ReloadTextureResources() { BrushPictures.Empty(); }

private:
	/** An element that may be seen in a damaged part. */
	struct FPlacedElement
	{
		const FSlateDrawElement* Element;
		FPixelColor Color;
		/** Where it lies before it is cut. */
		FIntRect Box;
		/** What of it can show: cut at its clip and at what is concerned. */
		FIntRect Seen;
		FShapedGlyphSequencePtr Text;
		bool bIsOpaqueFill;
		bool bPainted;
	};

	/** Collects the elements that meet the part of the window that is concerned. */
	void Place(const FSlateWindowElementList& List, const FIntRect& Concerned);
	bool PlaceElement(const FSlateWindowElementList& List, const FSlateDrawElement& Element, FPlacedElement& Out);
	FShapedGlyphSequencePtr GetText(const FSlateWindowElementList& List, const FSlateDrawElement& Element);

	void PaintPart(const FSlateWindowElementList& List, FPixelBuffer& Target, const FIntRect& Part);

	/** Paints an element whose box has been moved to Box. */
	void PaintElement(const FSlateWindowElementList& List, const FPlacedElement& Placed, FPixelBuffer& Target,
		const FIntRect& Box, const FIntRect& Clip);
	void PaintTransformed(
		const FSlateWindowElementList& List, const FPlacedElement& Placed, FPixelBuffer& Target, const FIntRect& Clip);
	void PaintBox(
		const FSlateBrush& Brush, const FPlacedElement& Placed, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip);
	void PaintRoundedBox(
		const FSlateBrush& Brush, const FPlacedElement& Placed, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip);
	void PaintText(const FPlacedElement& Placed, FPixelBuffer& Target, const FIntRect& Box, const FIntRect& Clip);
	void PaintLines(
		const FSlateWindowElementList& List, const FPlacedElement& Placed, FPixelBuffer& Target, const FIntRect& Clip);

	TSharedRef<FSlateFontCache> FontCache;
	FSlateBrushPictures BrushPictures;
	FSlateRoundedBoxes RoundedBoxes;
	/** Of the list that is painted now, lowest first; kept for its memory. */
	TArray<FPlacedElement> Placed;
	TArray<uint64> Order;
};
