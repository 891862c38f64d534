#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

/**
 * The part of a window that no longer looks right: a few rectangles in window pixels. Rectangles that overlap are merged,
 * so that nothing is painted twice; beyond MaxRects the two whose union wastes least are merged.
 */
class SLATECORE_API FSlateDamage
{
public:
	static constexpr int32 MaxRects = 8;

	void Add(const FSlateRect& Rect);
	void Reset() { Rects.Reset(); }

	bool IsEmpty() const { return Rects.Num() == 0; }
	bool Intersects(const FSlateRect& Rect) const;
	const TArray<FSlateRect>& GetRects() const { return Rects; }

private:
	void MergeCheapestPair();

	TArray<FSlateRect> Rects;
};
