#include "BenchmarkWindow.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlateRenderer.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMultiLineEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

/**
 * How the cost of long text grows: each work runs at n, 2n, 4n ... and the last lines state the growth that fits best. Every
 * round has a text of its own, so that nothing which was shaped before helps.
 */
namespace
{
enum ELetters
{
	Words,
	OneWord,
	Hebrew,
	/** Each letter with seven marks. */
	Accents,
	/** One letter, all else its marks. */
	OneAccent,
};

FString MakeText(ELetters Letters, int32 Length, uint32 Seed)
{
	FString Text;
	Text.Reserve(Length);
	uint32 State = Seed * 2654435761u + 12345u;
	for (int32 Index = 0; Index < Length; ++Index)
	{
		State = State * 1664525u + 1013904223u;
		const uint32 Number = State >> 16;
		const bool bBlank = Letters != OneWord && Number % 6 == 0;
		switch (Letters)
		{
			case Words:
			case OneWord:
				Text.AppendChar(bBlank ? TEXT(' ') : TCHAR(TEXT('a') + Number % 26));
				break;
			case Hebrew:
				Text.AppendChar(bBlank ? TEXT(' ') : TCHAR(0x05D0 + Number % 27));
				break;
			case Accents:
				Text.AppendChar(Index % 8 == 0 ? TCHAR(TEXT('a') + Number % 26) : TCHAR(0x0300 + Number % 16));
				break;
			case OneAccent:
				Text.AppendChar(Index == 0 ? TEXT('a') : TCHAR(0x0300 + Number % 16));
				break;
		}
	}
	return Text;
}

/** A paragraph of n characters in a window, wrapped, from construction to the end of the first frame. */
void WrapParagraph(benchmark::State& State, ELetters Letters, ETextWrappingPolicy Policy)
{
	GetApplication();
	uint32 Seed = 0;
	for (auto _ : State)
	{
		State.PauseTiming();
		const FText Text = FText::FromString(MakeText(Letters, State.range(0), ++Seed));
		State.ResumeTiming();
		const TSharedRef<SWindow> Window = ShowWindow(SNew(STextBlock).AutoWrapText(true).WrappingPolicy(Policy).Text(Text));
		PassFrame();
		CloseWindow(Window);
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK_CAPTURE(WrapParagraph, Words, Words, ETextWrappingPolicy::DefaultWrapping)
	->RangeMultiplier(2)
	->Range(32 << 10, 512 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(WrapParagraph, OneWord, OneWord, ETextWrappingPolicy::DefaultWrapping)
	->RangeMultiplier(2)
	->Range(32 << 10, 512 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(WrapParagraph, WordsPerCharacter, Words, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->RangeMultiplier(2)
	->Range(32 << 10, 512 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(WrapParagraph, OneWordPerCharacter, OneWord, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->RangeMultiplier(2)
	->Range(32 << 10, 512 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(WrapParagraph, Accents, Accents, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->RangeMultiplier(2)
	->Range(8 << 10, 64 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();

/** A line of n characters that is not wrapped, from construction to the end of the first frame. */
void ShowLine(benchmark::State& State, ELetters Letters)
{
	GetApplication();
	uint32 Seed = 0;
	for (auto _ : State)
	{
		State.PauseTiming();
		const FText Text = FText::FromString(MakeText(Letters, State.range(0), ++Seed));
		State.ResumeTiming();
		const TSharedRef<SWindow> Window = ShowWindow(SNew(STextBlock).Text(Text));
		PassFrame();
		CloseWindow(Window);
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK_CAPTURE(ShowLine, Words, Words)
	->RangeMultiplier(2)
	->Range(256 << 10, 1 << 20)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(ShowLine, Hebrew, Hebrew)
	->RangeMultiplier(2)
	->Range(32 << 10, 128 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(ShowLine, Accents, Accents)
	->RangeMultiplier(2)
	->Range(5 << 10, 20 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(ShowLine, OneAccent, OneAccent)
	->RangeMultiplier(2)
	->Range(5 << 10, 20 << 10)
	->Unit(benchmark::kMillisecond)
	->Complexity();

void TakeFocus(const TSharedRef<SWindow>& Window)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const FVector2D Place = Window->GetPositionInScreen() + FVector2D(200.0, 10.0);
	Application.OnMouseDown(Window->GetNativeWindow(), EMouseButtons::Left, Place);
	Application.OnMouseUp(EMouseButtons::Left, Place);
}

TSharedRef<SEditableTextBox> MakeField(const FString& Text, const SEditableTextBox*)
{
	return SNew(SEditableTextBox).Text(FText::FromString(Text));
}

TSharedRef<SMultiLineEditableTextBox> MakeField(const FString& Text, const SMultiLineEditableTextBox*)
{
	return SNew(SMultiLineEditableTextBox).Text(FText::FromString(Text));
}

void PressKey(const FKey& Key)
{
	const uint32* KeyCode = nullptr;
	const uint32* CharacterCode = nullptr;
	FInputKeyManager::Get().GetCodesFromKey(Key, KeyCode, CharacterCode);
	FSlateApplication::Get().OnKeyDown(KeyCode ? *KeyCode : 0, CharacterCode ? *CharacterCode : 0, false);
	FSlateApplication::Get().OnKeyUp(KeyCode ? *KeyCode : 0, CharacterCode ? *CharacterCode : 0, false);
	PassFrame();
}

/** A key near the end of one line of n characters, and the frame that shows it. */
template <typename FieldType>
void TypeIntoLongLine(benchmark::State& State, ELetters Letters)
{
	GetApplication();
	const TSharedRef<FieldType> Field = MakeField(MakeText(Letters, State.range(0), 1), static_cast<const FieldType*>(nullptr));
	const TSharedRef<SWindow> Window = ShowWindow(Field);
	PassFrame();
	TakeFocus(Window);
	PressKey(EKeys::End);
	for (int32 Step = 0; Step < 20; ++Step)
	{
		PressKey(EKeys::Left);
	}
	int32 Key = 0;
	for (auto _ : State)
	{
		FSlateApplication::Get().OnKeyChar(TCHAR(TEXT('a') + ++Key % 26), false);
		PassFrame();
	}
	CloseWindow(Window);
	State.SetComplexityN(State.range(0));
}

void TypeIntoField(benchmark::State& State, ELetters Letters)
{
	TypeIntoLongLine<SEditableTextBox>(State, Letters);
}

void TypeIntoMultiLineField(benchmark::State& State, ELetters Letters)
{
	TypeIntoLongLine<SMultiLineEditableTextBox>(State, Letters);
}
BENCHMARK_CAPTURE(TypeIntoField, Words, Words)
	->RangeMultiplier(10)
	->Range(1000, 1000000)
	->Iterations(5)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(TypeIntoMultiLineField, Words, Words)
	->RangeMultiplier(10)
	->Range(1000, 1000000)
	->Iterations(5)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(TypeIntoField, OneWord, OneWord)
	->RangeMultiplier(10)
	->Range(1000, 1000000)
	->Iterations(5)
	->Unit(benchmark::kMillisecond)
	->Complexity();
BENCHMARK_CAPTURE(TypeIntoField, Hebrew, Hebrew)
	->RangeMultiplier(10)
	->Range(1000, 100000)
	->Iterations(5)
	->Unit(benchmark::kMillisecond)
	->Complexity();

/** n keys into an empty field that has one line. */
void TypeKeysIntoOneLine(benchmark::State& State)
{
	GetApplication();
	double Bytes = 0.0;
	for (auto _ : State)
	{
		State.PauseTiming();
		const TSharedRef<SMultiLineEditableTextBox> Field =
			MakeField(FString(), static_cast<const SMultiLineEditableTextBox*>(nullptr));
		const TSharedRef<SWindow> Window = ShowWindow(Field);
		PassFrame();
		TakeFocus(Window);
		const FString Text = MakeText(Words, State.range(0), 1);
		const size_t Before = mallinfo2().uordblks;
		State.ResumeTiming();
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			FSlateApplication::Get().OnKeyChar(Text[Index], false);
			PassFrame();
		}
		Bytes = double(mallinfo2().uordblks - Before);
		State.PauseTiming();
		CloseWindow(Window);
		State.ResumeTiming();
	}
	State.counters["MB kept"] = Bytes / 1e6;
	State.counters["ms a key"] = benchmark::Counter(
		double(State.range(0)) / 1e3, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
	State.SetComplexityN(State.range(0));
}
BENCHMARK(TypeKeysIntoOneLine)->RangeMultiplier(2)->Range(2000, 8000)->Iterations(1)->Unit(benchmark::kMillisecond)->Complexity();
}
