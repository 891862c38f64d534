#pragma once

#include "CoreMinimal.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"

/** A window of a renderer of its own, without a native counterpart, to paint elements in and look at the pixels. */
class FRenderCanvas
{
public:
	explicit FRenderCanvas(FIntPoint InSize);

	/** A new frame in which all of the window, or one part of it, is damaged. */
	FSlateWindowElementList& Begin();
	FSlateWindowElementList& Begin(const FSlateRect& Damage);

	/** Paints the frame and reads the pixels. */
	void Paint();

	FColor At(int32 X, int32 Y) const { return Pixels[Y * Size.X + X]; }

	/** How many pixels of a part are not of a colour. */
	int32 CountOthers(FColor Color, const FIntRect& Part) const;
	int32 CountOthers(FColor Color) const { return CountOthers(Color, FIntRect(FIntPoint(0, 0), Size)); }

	const FIntPoint Size;
	const TSharedRef<FSlateRenderer> Renderer;
	TArray<FColor> Pixels;

private:
	SWindow* GetWindow() { return reinterpret_cast<SWindow*>(this); }
};

/** Geometry in units of pixels. */
inline FPaintGeometry MakeGeometry(double X, double Y, double Width, double Height, float Scale = 1.0f)
{
	return FPaintGeometry(FVector2D(X, Y), FVector2D(Width, Height), Scale);
}
