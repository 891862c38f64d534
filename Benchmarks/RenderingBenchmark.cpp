#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"

#include <benchmark/benchmark.h>

namespace
{

const FSlateFontInfo Font(nullptr, 9);
const FIntPoint WindowSize(1280, 800);

TArray<FString> MakeLabels(int32 Num)
{
	TArray<FString> Labels;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Labels.Add(FString::Printf(TEXT("Label %d"), Index));
	}
	return Labels;
}

/** A tool window: a ground, 300 rounded buttons with an outline and a label on each. */
void MakeFrame(FSlateWindowElementList& List, const TArray<FString>& Labels)
{
	const FSlateColorBrush Ground(FLinearColor::White);
	const FSlateRoundedBoxBrush Button(FLinearColor::White, 4.0f, FLinearColor(0.1f, 0.1f, 0.1f), 1.0f);
	const FPaintGeometry Window(FVector2D(0.0, 0.0), FVector2D(WindowSize), 1.0f);
	FSlateDrawElement::MakeBox(List, 0, Window, &Ground, ESlateDrawEffect::None, FLinearColor(0.02f, 0.02f, 0.02f));
	for (int32 Index = 0; Index < Labels.Num(); ++Index)
	{
		const FVector2D Position(10.0 + (Index % 10) * 126.0, 10.0 + (Index / 10) * 26.0);
		const FPaintGeometry Box(Position, FVector2D(120.0, 22.0), 1.0f);
		FSlateDrawElement::MakeBox(List, 1, Box, &Button, ESlateDrawEffect::None, FLinearColor(0.05f, 0.05f, 0.05f));
		const FPaintGeometry Text(Position + FVector2D(10.0, 4.0), FVector2D(100.0, 14.0), 1.0f);
		FSlateDrawElement::MakeText(List, 2, Text, Labels[Index], Font, ESlateDrawEffect::None, FLinearColor(0.8f, 0.8f, 0.8f));
	}
}

void PaintFrame(benchmark::State& State, const FSlateRect& Damage)
{
	const TArray<FString> Labels = MakeLabels(300);
	const TSharedRef<FSlateRenderer> Renderer = FSlateRenderer::Create();
	SWindow* const Window = reinterpret_cast<SWindow*>(&State);
	Renderer->CreateViewport(Window, nullptr, WindowSize);
	for (auto _ : State)
	{
		Renderer->GetDrawBuffer().ClearBuffer();
		FSlateWindowElementList& List = Renderer->GetDrawBuffer().AddWindowElementList(Window);
		List.AddDamage(Damage);
		MakeFrame(List, Labels);
		Renderer->DrawWindows(Renderer->GetDrawBuffer());
	}
	State.counters["elements"] = Renderer->GetStatistics().ElementsPainted;
}

void PaintWholeWindow(benchmark::State& State)
{
	PaintFrame(State, FSlateRect(0.0f, 0.0f, float(WindowSize.X), float(WindowSize.Y)));
}
BENCHMARK(PaintWholeWindow)->Unit(benchmark::kMicrosecond);

void PaintOneButton(benchmark::State& State)
{
	PaintFrame(State, FSlateRect(10.0f, 10.0f, 130.0f, 32.0f));
}
BENCHMARK(PaintOneButton)->Unit(benchmark::kMicrosecond);

void MakeElementsOfWholeWindow(benchmark::State& State)
{
	const TArray<FString> Labels = MakeLabels(300);
	FSlateWindowElementList List(nullptr);
	for (auto _ : State)
	{
		List.ResetElementList(nullptr);
		MakeFrame(List, Labels);
	}
}
BENCHMARK(MakeElementsOfWholeWindow)->Unit(benchmark::kMicrosecond);

void MeasureNewLabel(benchmark::State& State)
{
	const TSharedRef<FSlateFontMeasure> Measure = FSlateFontMeasure::Create(MakeShared<FSlateFontCache>());
	// More than the cache keeps, so that each is new when its turn comes again.
	const TArray<FString> Labels = MakeLabels(20000);
	Measure->Measure(TEXT("The font is ready"), Font);
	int32 Next = 0;
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Measure->Measure(Labels[Next], Font));
		Next = Next + 1 == Labels.Num() ? 0 : Next + 1;
	}
}
BENCHMARK(MeasureNewLabel);

void MeasureKnownLabel(benchmark::State& State)
{
	const TSharedRef<FSlateFontMeasure> Measure = FSlateFontMeasure::Create(MakeShared<FSlateFontCache>());
	const TArray<FString> Labels = MakeLabels(300);
	int32 Next = 0;
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Measure->Measure(Labels[Next], Font));
		Next = Next + 1 == Labels.Num() ? 0 : Next + 1;
	}
}
BENCHMARK(MeasureKnownLabel);

}
