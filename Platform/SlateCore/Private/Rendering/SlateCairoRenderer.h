#pragma once

#include "CoreMinimal.h"
#include "Rendering/ElementPainter.h"
#include "Rendering/PixelBuffer.h"
#include "Rendering/SlateRenderer.h"

/** Paints in memory and hands the pixels to the native windows. */
class FSlateCairoRenderer final : public FSlateRenderer
{
public:
	FSlateCairoRenderer();

	virtual void CreateViewport(SWindow* Window, const TSharedPtr<FGenericWindow>& NativeWindow, FIntPoint Size) override;
	virtual void RequestResize(SWindow* Window, FIntPoint NewSize) override;
	virtual void OnWindowDestroyed(SWindow* Window) override;
	virtual void DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer) override;
	virtual bool ReadPixels(const SWindow* Window, TArray<FColor>& OutPixels, FIntPoint& OutSize) const override;
	virtual void ReloadTextureResources() override;

private:
	struct FViewport
	{
		TUniquePtr<FPixelBuffer> Pixels;
		TSharedPtr<FGenericWindow> NativeWindow;
	};

	TMap<const SWindow*, FViewport> Viewports;
	FSlateElementPainter Painter;
};
