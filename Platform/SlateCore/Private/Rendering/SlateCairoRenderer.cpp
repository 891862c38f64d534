#include "Rendering/SlateCairoRenderer.h"

#include "GenericPlatform/GenericWindow.h"
#include "Rendering/DrawElements.h"
#include "Rendering/PixelBlend.h"

namespace
{

TUniquePtr<FPixelBuffer> MakeBlackPixels(FIntPoint Size)
{
	TUniquePtr<FPixelBuffer> Pixels = MakeUnique<FPixelBuffer>(Size);
	PixelBlend::FillRect(*Pixels, Pixels->GetRect(), Pixels->GetRect(), 0xFF000000);
	return Pixels;
}

/** Damage lies on whole pixels already; what is left is to cut it at the window. */
TArray<FIntRect> CutAtWindow(const TArray<FSlateRect>& Damage, const FIntRect& Window)
{
	TArray<FIntRect> Parts;
	for (const FSlateRect& Rect : Damage)
	{
		const FSlateRect Common = Rect.IntersectionWith(FSlateRect(0.0f, 0.0f, float(Window.Max.X), float(Window.Max.Y)));
		const FIntRect Part(FMath::FloorToInt(Common.Left), FMath::FloorToInt(Common.Top), FMath::CeilToInt(Common.Right),
			FMath::CeilToInt(Common.Bottom));
		if (!Part.IsEmpty())
		{
			Parts.Add(Part);
		}
	}
	return Parts;
}

}

FSlateCairoRenderer::FSlateCairoRenderer()
	: Painter(FontCache)
{
}

void FSlateCairoRenderer::CreateViewport(SWindow* Window, const TSharedPtr<FGenericWindow>& NativeWindow, FIntPoint Size)
{
	FViewport& Viewport = Viewports.FindOrAdd(Window);
	Viewport.Pixels = MakeBlackPixels(Size);
	Viewport.NativeWindow = NativeWindow;
}

void FSlateCairoRenderer::RequestResize(SWindow* Window, FIntPoint NewSize)
{
	FViewport* Viewport = Viewports.Find(Window);
	if (Viewport && Viewport->Pixels->GetSize() != NewSize)
	{
		Viewport->Pixels = MakeBlackPixels(NewSize);
	}
}

void FSlateCairoRenderer::OnWindowDestroyed(SWindow* Window)
{
	Viewports.Remove(Window);
}

void FSlateCairoRenderer::DrawWindows(FSlateDrawBuffer& InWindowDrawBuffer)
{
	Statistics = FSlateRenderStatistics();
	for (int32 Index = 0; Index < InWindowDrawBuffer.GetNumWindows(); ++Index)
	{
		const FSlateWindowElementList& List = InWindowDrawBuffer.GetWindowElementList(Index);
		FViewport* Viewport = Viewports.Find(List.GetPaintWindow());
		if (!Viewport)
		{
			continue;
		}
		FPixelBuffer& Pixels = *Viewport->Pixels;
		const TArray<FIntRect> Damage = CutAtWindow(List.GetDamage(), Pixels.GetRect());
		if (Damage.Num() == 0)
		{
			continue;
		}
		Painter.Paint(List, Pixels, Damage, Statistics);
		if (Viewport->NativeWindow)
		{
			Viewport->NativeWindow->PresentPixels(reinterpret_cast<const uint8*>(Pixels.GetRow(0)), Pixels.GetSize().X,
				Pixels.GetSize().Y, Pixels.GetStride(), Damage);
		}
	}
}

bool FSlateCairoRenderer::ReadPixels(const SWindow* Window, TArray<FColor>& OutPixels, FIntPoint& OutSize) const
{
	OutPixels.Reset();
	OutSize = FIntPoint(0, 0);
	const FViewport* Viewport = Viewports.Find(Window);
	if (!Viewport)
	{
		return false;
	}
	OutSize = Viewport->Pixels->GetSize();
	OutPixels.Reserve(OutSize.X * OutSize.Y);
	for (int32 Y = 0; Y < OutSize.Y; ++Y)
	{
		const uint32* Row = Viewport->Pixels->GetRow(Y);
		for (int32 X = 0; X < OutSize.X; ++X)
		{
			OutPixels.Add(FColor(Row[X] | 0xFF000000));
		}
	}
	return true;
}

void FSlateCairoRenderer::ReloadTextureResources()
{
	Painter.ReloadTextureResources();
}
