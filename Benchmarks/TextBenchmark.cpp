#include "BenchmarkWindow.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace
{
FText MakeLines(int32 NumLines)
{
	FString Lines;
	for (int32 Line = 0; Line < NumLines; ++Line)
	{
		Lines += FString::Printf(TEXT("Line number %d\n"), Line);
	}
	return FText::FromString(Lines);
}

/** From construction to the end of the first frame; of a scrolled column, so most labels are measured and not painted. */
template <typename WidgetType>
void ShowColumn(benchmark::State& State)
{
	GetApplication();
	TArray<FText> Texts;
	for (int32 Index = 0; Index < State.range(0); ++Index)
	{
		Texts.Add(FText::FromString(FString::Printf(TEXT("Label %d"), Index)));
	}

	double BytesEach = 0.0;
	for (auto _ : State)
	{
		const size_t Before = mallinfo2().uordblks;
		const TSharedRef<SScrollBox> Column = SNew(SScrollBox);
		for (const FText& Text : Texts)
		{
			Column->AddSlot()[SNew(WidgetType).Text(Text)];
		}
		const TSharedRef<SWindow> Window = ShowWindow(Column);
		PassFrame();
		BytesEach = double(mallinfo2().uordblks - Before) / State.range(0);

		State.PauseTiming();
		CloseWindow(Window);
		State.ResumeTiming();
	}
	State.counters["bytes each, with slot"] = BytesEach;
}
BENCHMARK_TEMPLATE(ShowColumn, STextBlock)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(ShowColumn, SEditableTextBox)->Arg(1000)->Unit(benchmark::kMillisecond);

/** A character typed in the middle of a long text, and the frame that shows it. */
void TypeIntoLongText(benchmark::State& State)
{
	GetApplication();
	const int32 NumLines = State.range(0);
	const TSharedRef<SMultiLineEditableTextBox> Box =
		SNew(SMultiLineEditableTextBox).Text(MakeLines(NumLines)).AutoWrapText(State.range(1) != 0);
	const TSharedRef<SWindow> Window = ShowWindow(Box);
	PassFrame();
	FSlateApplication& Application = FSlateApplication::Get();
	Application.OnMouseDown(
		Window->GetNativeWindow(), EMouseButtons::Left, Window->GetPositionInScreen() + FVector2D(200.0, 200.0));
	Application.OnMouseUp(EMouseButtons::Left, Window->GetPositionInScreen() + FVector2D(200.0, 200.0));
	Box->GoTo(FTextLocation(NumLines / 2, 3));
	PassFrame();
	for (auto _ : State)
	{
		Application.OnKeyChar(TEXT('x'), false);
		PassFrame();
	}
	CloseWindow(Window);
}
BENCHMARK(TypeIntoLongText)->Args({100, 0})->Args({50000, 0})->Args({50000, 1})->Unit(benchmark::kMicrosecond)->Iterations(200);

/** Setting a long text and the frame that shows its end. */
void SetLongText(benchmark::State& State)
{
	GetApplication();
	const FText Texts[] = {MakeLines(State.range(0)), MakeLines(State.range(0) + 1)};
	const TSharedRef<SMultiLineEditableTextBox> Box = SNew(SMultiLineEditableTextBox).AutoWrapText(true);
	const TSharedRef<SWindow> Window = ShowWindow(Box);
	PassFrame();
	int32 Turn = 0;
	for (auto _ : State)
	{
		Box->SetText(Texts[++Turn % 2]);
		Box->ScrollTo(ETextLocation::EndOfDocument);
		PassFrame();
	}
	CloseWindow(Window);
}
BENCHMARK(SetLongText)->Arg(50000)->Unit(benchmark::kMillisecond);
}
