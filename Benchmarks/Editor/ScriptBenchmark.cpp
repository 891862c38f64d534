#include "BenchmarkedEditor.h"

#include "Framework/Application/SlateApplication.h"
#include "IPythonScriptPlugin.h"
#include "Layout/Geometry.h"
#include "Widgets/SWidget.h"

#include <benchmark/benchmark.h>

namespace
{
constexpr int64 NumLeaves = 1000;

/** A widget's command whose text has run before. */
void RepeatedCommand(benchmark::State& State)
{
	BenchmarkedEditor::Run(TEXT("def apply(row): pass"));
	IPythonScriptPlugin& Python = BenchmarkedEditor::GetPython();
	for (auto _ : State)
	{
		Python.ExecPythonCommand(TEXT("apply(0)"));
	}
}

/** The mouse over a button whose command is a Python function that counts. */
class FClicking
{
public:
	explicit FClicking(benchmark::State& InState)
		: State(InState)
	{
		BenchmarkedEditor::Run(TEXT("num_clicks = 0\ndef apply(row): global num_clicks; num_clicks += 1"));
		BenchmarkedEditor::OpenForm(Form);
		const FGeometry Button = BenchmarkedEditor::FindInForm(Form, TEXT("SButton"))->GetTickSpaceGeometry();
		Place = Button.GetAbsolutePositionAtCoordinates(FVector2D(0.5, 0.5));
		Application.GetPlatformApplication()->Cursor->SetPosition(FMath::RoundToInt32(Place.X), FMath::RoundToInt32(Place.Y));
		Application.OnMouseMove();
		BenchmarkedEditor::PassFrame();
	}

	~FClicking()
	{
		BenchmarkedEditor::Run(
			FString::Printf(TEXT("assert num_clicks == %lld, num_clicks"), static_cast<int64>(State.iterations())));
		BenchmarkedEditor::CloseForm(Form);
	}

	void Press() { Application.OnMouseDown(nullptr, EMouseButtons::Left, Place); }
	void Release() { Application.OnMouseUp(EMouseButtons::Left, Place); }

private:
	benchmark::State& State;
	FSlateApplication& Application = FSlateApplication::Get();
	const FString Form = BenchmarkedEditor::GetForm(NumLeaves);
	FVector2D Place = FVector2D::ZeroVector;
};

/** From the window system's events to the end of the Python handler. */
void ClickButton(benchmark::State& State)
{
	FClicking Clicking(State);
	for (auto _ : State)
	{
		Clicking.Press();
		Clicking.Release();
	}
}

/** The same with the frames that show the button pressed and released. */
void ClickButtonAndPaint(benchmark::State& State)
{
	FClicking Clicking(State);
	for (auto _ : State)
	{
		Clicking.Press();
		BenchmarkedEditor::PassFrame();
		Clicking.Release();
		BenchmarkedEditor::PassFrame();
	}
}

/** A script gives a label another text, again and again. */
void SetText(benchmark::State& State)
{
	const FString Form = BenchmarkedEditor::GetForm(NumLeaves);
	BenchmarkedEditor::OpenForm(Form);
	BenchmarkedEditor::Run(FString::Printf(TEXT("data = unreal.PythonBPLib.get_velmora_data('%s')"), *Form));
	BenchmarkedEditor::Run(TEXT("def set_texts(data):\n"
								"\tfor _ in range(500):\n"
								"\t\tdata.set_text('Label0', 'Ready')\n"
								"\t\tdata.set_text('Label0', 'Working')\n"));
	while (State.KeepRunningBatch(1000))
	{
		BenchmarkedEditor::Run(TEXT("set_texts(data)"));
	}
	BenchmarkedEditor::Run(TEXT("assert data.get_text('Label0') == 'Working'"));
	BenchmarkedEditor::CloseForm(Form);
}

BENCHMARK(RepeatedCommand)->MeasureProcessCPUTime();
BENCHMARK(ClickButton)->MeasureProcessCPUTime();
BENCHMARK(ClickButtonAndPaint)->MeasureProcessCPUTime();
BENCHMARK(SetText)->MeasureProcessCPUTime();
}
