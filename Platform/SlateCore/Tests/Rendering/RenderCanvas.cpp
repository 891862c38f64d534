#include "RenderCanvas.h"

FRenderCanvas::FRenderCanvas(FIntPoint InSize)
	: Size(InSize)
	, Renderer(FSlateRenderer::Create())
{
	Renderer->CreateViewport(GetWindow(), nullptr, Size);
}

FSlateWindowElementList& FRenderCanvas::Begin()
{
	return Begin(FSlateRect(0.0f, 0.0f, float(Size.X), float(Size.Y)));
}

FSlateWindowElementList& FRenderCanvas::Begin(const FSlateRect& Damage)
{
	Renderer->GetDrawBuffer().ClearBuffer();
	FSlateWindowElementList& List = Renderer->GetDrawBuffer().AddWindowElementList(GetWindow());
	List.AddDamage(Damage);
	return List;
}

void FRenderCanvas::Paint()
{
	Renderer->DrawWindows(Renderer->GetDrawBuffer());
	FIntPoint ReadSize;
	verify(Renderer->ReadPixels(GetWindow(), Pixels, ReadSize));
	check(ReadSize == Size);
}

int32 FRenderCanvas::CountOthers(FColor Color, const FIntRect& Part) const
{
	int32 Count = 0;
	for (int32 Y = Part.Min.Y; Y < Part.Max.Y; ++Y)
	{
		for (int32 X = Part.Min.X; X < Part.Max.X; ++X)
		{
			Count += At(X, Y) == Color ? 0 : 1;
		}
	}
	return Count;
}
