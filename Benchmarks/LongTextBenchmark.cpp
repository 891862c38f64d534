#include "BenchmarkWindow.h"
#include "Fonts/FontCache.h"
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
 * text is a new one, so that nothing which was shaped before helps.
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

/** From First to Last characters, each time twice as many. */
template <int32 First, int32 Last>
void DoubleFrom(benchmark::internal::Benchmark* Work)
{
	for (int32 Length = First; Length <= Last; Length *= 2)
	{
		Work->Arg(Length);
	}
	Work->Unit(benchmark::kMillisecond)->Complexity();
}

/** From a thousand characters on, each time ten times as many. */
template <int32 Last>
void UpTo(benchmark::internal::Benchmark* Work)
{
	for (int32 Length = 1000; Length <= Last; Length *= 10)
	{
		Work->Arg(Length);
	}
	Work->Iterations(20)->Unit(benchmark::kMillisecond)->Complexity();
}

FString MakeText(ELetters Letters, int32 Length)
{
	static uint32 Seed = 0;
	++Seed;
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

uint64 GetNumShapedCharacters()
{
	return GetApplication().GetRenderer()->GetFontCache()->GetNumShapedCharacters();
}

/** A paragraph of n characters in a window, wrapped, from construction to the end of the first frame. "shaped": for each character. */
void WrapParagraph(benchmark::State& State, ELetters Letters, ETextWrappingPolicy Policy)
{
	const uint64 ShapedBefore = GetNumShapedCharacters();
	for (auto _ : State)
	{
		State.PauseTiming();
		const FText Text = FText::FromString(MakeText(Letters, State.range(0)));
		State.ResumeTiming();
		const TSharedRef<SWindow> Window = ShowWindow(SNew(STextBlock).AutoWrapText(true).WrappingPolicy(Policy).Text(Text));
		PassFrame();
		CloseWindow(Window);
	}
	State.counters["shaped"] = double(GetNumShapedCharacters() - ShapedBefore) / double(State.range(0)) / State.iterations();
	State.SetComplexityN(State.range(0));
}
BENCHMARK_CAPTURE(WrapParagraph, Words, Words, ETextWrappingPolicy::DefaultWrapping)->Apply(DoubleFrom<32 << 10, 512 << 10>);
BENCHMARK_CAPTURE(WrapParagraph, OneWord, OneWord, ETextWrappingPolicy::DefaultWrapping)->Apply(DoubleFrom<32 << 10, 512 << 10>);
BENCHMARK_CAPTURE(WrapParagraph, WordsPerCharacter, Words, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->Apply(DoubleFrom<32 << 10, 512 << 10>);
BENCHMARK_CAPTURE(WrapParagraph, OneWordPerCharacter, OneWord, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->Apply(DoubleFrom<32 << 10, 512 << 10>);
BENCHMARK_CAPTURE(WrapParagraph, Accents, Accents, ETextWrappingPolicy::AllowPerCharacterWrapping)
	->Apply(DoubleFrom<8 << 10, 64 << 10>);

/** A line of n characters that is not wrapped, from construction to the end of the first frame. */
void ShowLine(benchmark::State& State, ELetters Letters)
{
	GetApplication();
	for (auto _ : State)
	{
		State.PauseTiming();
		const FText Text = FText::FromString(MakeText(Letters, State.range(0)));
		State.ResumeTiming();
		const TSharedRef<SWindow> Window = ShowWindow(SNew(STextBlock).Text(Text));
		PassFrame();
		CloseWindow(Window);
	}
	State.SetComplexityN(State.range(0));
}
BENCHMARK_CAPTURE(ShowLine, Words, Words)->Apply(DoubleFrom<256 << 10, 1 << 20>);
BENCHMARK_CAPTURE(ShowLine, Hebrew, Hebrew)->Apply(DoubleFrom<32 << 10, 128 << 10>);
BENCHMARK_CAPTURE(ShowLine, Accents, Accents)->Apply(DoubleFrom<5 << 10, 20 << 10>);
BENCHMARK_CAPTURE(ShowLine, OneAccent, OneAccent)->Apply(DoubleFrom<5 << 10, 20 << 10>);

void TakeFocus(const TSharedRef<SWindow>& Window)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const FVector2D Place = Window->GetPositionInScreen() + FVector2D(200.0, 10.0);
	Application.OnMouseDown(Window->GetNativeWindow(), EMouseButtons::Left, Place);
	Application.OnMouseUp(EMouseButtons::Left, Place);
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
void TypeIntoLongLine(benchmark::State& State, const TSharedRef<SWidget>& Field)
{
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

FText MakeLine(const benchmark::State& State, ELetters Letters)
{
	GetApplication();
	return FText::FromString(MakeText(Letters, State.range(0)));
}

void TypeIntoField(benchmark::State& State, ELetters Letters)
{
	const FText Line = MakeLine(State, Letters);
	TypeIntoLongLine(State, SNew(SEditableTextBox).Text(Line));
}

void TypeIntoMultiLineField(benchmark::State& State, ELetters Letters)
{
	const FText Line = MakeLine(State, Letters);
	TypeIntoLongLine(State, SNew(SMultiLineEditableTextBox).Text(Line));
}

void TypeIntoWrappedField(benchmark::State& State, ELetters Letters)
{
	const FText Line = MakeLine(State, Letters);
	TypeIntoLongLine(State, SNew(SMultiLineEditableTextBox).Text(Line).AutoWrapText(true));
}
BENCHMARK_CAPTURE(TypeIntoField, Words, Words)->Apply(UpTo<1000000>);
BENCHMARK_CAPTURE(TypeIntoMultiLineField, Words, Words)->Apply(UpTo<1000000>);
BENCHMARK_CAPTURE(TypeIntoField, OneWord, OneWord)->Apply(UpTo<1000000>);
BENCHMARK_CAPTURE(TypeIntoField, Hebrew, Hebrew)->Apply(UpTo<1000000>);
BENCHMARK_CAPTURE(TypeIntoWrappedField, Words, Words)->Apply(UpTo<1000000>);

/** n keys into an empty field that has one line. */
void TypeKeysIntoOneLine(benchmark::State& State)
{
	GetApplication();
	double Bytes = 0.0;
	for (auto _ : State)
	{
		State.PauseTiming();
		const TSharedRef<SWindow> Window = ShowWindow(SNew(SMultiLineEditableTextBox));
		PassFrame();
		TakeFocus(Window);
		const FString Text = MakeText(Words, State.range(0));
		const double Before = double(mallinfo2().uordblks);
		State.ResumeTiming();
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			FSlateApplication::Get().OnKeyChar(Text[Index], false);
			PassFrame();
		}
		Bytes = double(mallinfo2().uordblks) - Before;
		State.PauseTiming();
		CloseWindow(Window);
		State.ResumeTiming();
	}
	State.counters["MB kept"] = Bytes / 1e6;
	State.counters["a key"] =
		benchmark::Counter(double(State.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
	State.SetComplexityN(State.range(0));
}
BENCHMARK(TypeKeysIntoOneLine)->Arg(2000)->Arg(4000)->Arg(8000)->Iterations(1)->Unit(benchmark::kMillisecond)->Complexity();
}
