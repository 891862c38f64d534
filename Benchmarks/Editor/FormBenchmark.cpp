#include "BenchmarkedEditor.h"

#include <benchmark/benchmark.h>

namespace
{
/**
 * From the description's file on disk to the end of the first frame that shows it. The editor has run before, and has measured the texts of
 * a form that is not too big to remember them; a first opening is part of what the starts of whole processes take.
 */
void OpenForm(benchmark::State& State)
{
	const FString Form = BenchmarkedEditor::GetForm(State.range(0));
	BenchmarkedEditor::OpenForm(Form);
	BenchmarkedEditor::CloseForm(Form);
	for (auto _ : State)
	{
		BenchmarkedEditor::OpenForm(Form);
		State.PauseTiming();
		BenchmarkedEditor::CloseForm(Form);
		State.ResumeTiming();
	}
}

void RepaintWindow(benchmark::State& State)
{
	const FString Form = BenchmarkedEditor::GetForm(State.range(0));
	BenchmarkedEditor::OpenForm(Form);
	for (auto _ : State)
	{
		BenchmarkedEditor::DamageMainWindow();
		BenchmarkedEditor::PassFrame();
	}
	BenchmarkedEditor::CloseForm(Form);
}

BENCHMARK(OpenForm)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(RepaintWindow)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}
