#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlateLayoutTransform.h"
#include "Rendering/SlateRenderTransform.h"

/** Where a draw element lies in its window: its size in its own units and what leads from there to the window's pixels. */
struct FPaintGeometry
{
	FVector2D DrawPosition = FVector2D(0.0, 0.0);
	float DrawScale = 1.0f;

	FPaintGeometry() = default;
	FPaintGeometry(FVector2D InDrawPosition, FVector2D InLocalSize, float InDrawScale)
		: DrawPosition(InDrawPosition)
		, DrawScale(InDrawScale)
		, LocalSize(InLocalSize)
	{
	}

	/** @param bInHasRenderTransform  False promises that the render transform is the layout transform. */
	FPaintGeometry(const FSlateLayoutTransform& InAccumulatedLayoutTransform,
		const FSlateRenderTransform& InAccumulatedRenderTransform, const FVector2D& InLocalSize, bool bInHasRenderTransform)
		: DrawPosition(InAccumulatedLayoutTransform.GetTranslation())
		, DrawScale(InAccumulatedLayoutTransform.GetScale())
		, LocalSize(InLocalSize)
		, RenderTransform(InAccumulatedRenderTransform)
		, bHasRenderTransform(bInHasRenderTransform)
	{
	}

	const FVector2D& GetLocalSize() const { return LocalSize; }
	bool HasRenderTransform() const { return bHasRenderTransform; }
	const FSlateRenderTransform& GetAccumulatedRenderTransform() const { return RenderTransform; }

private:
	FVector2D LocalSize = FVector2D(0.0, 0.0);
	FSlateRenderTransform RenderTransform;
	bool bHasRenderTransform = false;
};
