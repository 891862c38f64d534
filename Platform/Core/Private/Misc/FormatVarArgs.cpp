#include "Misc/FormatVarArgs.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Misc/CString.h"
#include "Misc/Char.h"

#include <charconv>
#include <clocale>
#include <cstdio>
#include <locale.h>

FScopedCLocale::FScopedCLocale()
{
	static const locale_t CLocale = newlocale(LC_ALL_MASK, "C", nullptr);
	Previous = uselocale(CLocale);
}

FScopedCLocale::~FScopedCLocale()
{
	uselocale(static_cast<locale_t>(Previous));
}

namespace
{
/** One conversion of a format: %[flags][width][.precision][length]conversion. */
struct FConversion
{
	bool bLeft = false;
	bool bPlus = false;
	bool bBlank = false;
	bool bAlternate = false;
	bool bZero = false;
	int32 Width = 0;
	/** Less than zero without one. */
	int32 Precision = -1;
	/** Bytes of the integer, or of a character of the text. */
	int32 Length = 4;
	bool bHasLength = false;
	TCHAR Kind = 0;

	bool IsPlain() const { return !bPlus && !bBlank && !bAlternate && !bZero && Width == 0 && Precision < 0; }
};

/** Widths from outside are kept to what a line can sensibly hold. */
constexpr int32 MaxWidth = 1 << 20;

int32 ParseNumber(const TCHAR*& At)
{
	int32 Number = 0;
	for (; FChar::IsDigit(*At); ++At)
	{
		Number = Number < MaxWidth ? Number * 10 + (*At - u'0') : MaxWidth;
	}
	return Number;
}

bool ParseFlag(TCHAR Char, FConversion& Conversion)
{
	switch (Char)
	{
		case u'-':
			return Conversion.bLeft = true;
		case u'+':
			return Conversion.bPlus = true;
		case u' ':
			return Conversion.bBlank = true;
		case u'#':
			return Conversion.bAlternate = true;
		case u'0':
			return Conversion.bZero = true;
		default:
			return false;
	}
}

struct FLengthModifier
{
	const TCHAR* Text;
	int32 Bytes;
};

/** Longer ones first. */
constexpr FLengthModifier GLengthModifiers[] = {
	{TEXT("I64"), 8},
	{TEXT("I32"), 4},
	{TEXT("hh"), 1},
	{TEXT("ll"), 8},
	{TEXT("h"), 2},
	{TEXT("l"), 8},
	{TEXT("q"), 8},
	{TEXT("j"), 8},
	{TEXT("z"), 8},
	{TEXT("t"), 8},
	{TEXT("L"), 8},
};

void ParseLength(const TCHAR*& At, FConversion& Conversion)
{
	for (const FLengthModifier& Modifier : GLengthModifiers)
	{
		const int32 Length = FCString::Strlen(Modifier.Text);
		if (FCString::Strncmp(At, Modifier.Text, Length) == 0)
		{
			Conversion.Length = Modifier.Bytes;
			Conversion.bHasLength = true;
			At += Length;
			return;
		}
	}
}

class FVarArgsPrinter
{
public:
	FVarArgsPrinter(TArray<TCHAR>& InOut, va_list InArguments)
		: Out(InOut)
	{
		va_copy(Arguments, InArguments);
	}
	~FVarArgsPrinter() { va_end(Arguments); }

	void Print(const TCHAR* Format)
	{
		for (const TCHAR* At = Format;;)
		{
			const TCHAR* Literal = At;
			while (*At && *At != u'%')
			{
				++At;
			}
			Out.Append(Literal, int32(At - Literal));
			if (!*At)
			{
				return;
			}
			const TCHAR* const Percent = At++;
			if (!PrintConversion(At))
			{
				Out.Append(Percent, int32(At - Percent));
			}
		}
	}

private:
	bool PrintConversion(const TCHAR*& At)
	{
		FConversion Conversion;
		while (ParseFlag(*At, Conversion))
		{
			++At;
		}
		Conversion.Width = ParseNumberOrArgument(At);
		if (Conversion.Width < 0)
		{
			Conversion.bLeft = true;
			Conversion.Width = Conversion.Width < -MaxWidth ? MaxWidth : -Conversion.Width;
		}
		if (*At == u'.')
		{
			Conversion.Precision = ParseNumberOrArgument(++At);
		}
		ParseLength(At, Conversion);
		Conversion.Kind = *At;
		if (Conversion.Kind)
		{
			++At;
		}
		return PrintArgument(Conversion);
	}

	int32 ParseNumberOrArgument(const TCHAR*& At)
	{
		if (*At != u'*')
		{
			return ParseNumber(At);
		}
		++At;
		const int32 Number = va_arg(Arguments, int32);
		return Number > MaxWidth ? MaxWidth : Number;
	}

	bool PrintArgument(const FConversion& Conversion)
	{
		switch (Conversion.Kind)
		{
			case u'%':
				Out.Add(u'%');
				return true;
			case u'd':
			case u'i':
				PrintSigned(Conversion);
				return true;
			case u'u':
			case u'x':
			case u'X':
			case u'o':
				PrintWithLibrary(Conversion, "ll", TakeUnsigned(Conversion.Length));
				return true;
			case u'p':
				PrintWithLibrary(Conversion, "", va_arg(Arguments, void*));
				return true;
			case u'f':
			case u'F':
			case u'e':
			case u'E':
			case u'g':
			case u'G':
			case u'a':
			case u'A':
				PrintFloat(Conversion);
				return true;
			case u'c':
			case u'C':
			{
				const TCHAR Char = TCHAR(va_arg(Arguments, int32));
				PrintText(Conversion, &Char, 1);
				return true;
			}
			case u's':
				Conversion.bHasLength&& Conversion.Length == 2 ? PrintNarrowText(Conversion) : PrintWideText(Conversion);
				return true;
			case u'S':
				PrintNarrowText(Conversion);
				return true;
			default:
				return false;
		}
	}

	void PrintSigned(const FConversion& Conversion)
	{
		const int64 Value = TakeSigned(Conversion.Length);
		if (!Conversion.IsPlain())
		{
			PrintWithLibrary(Conversion, "ll", Value);
			return;
		}
		char Digits[24];
		const std::to_chars_result Result = std::to_chars(Digits, Digits + sizeof(Digits), Value);
		AppendNarrow(Digits, int32(Result.ptr - Digits));
	}

	int64 TakeSigned(int32 Length)
	{
		if (Length == 8)
		{
			return va_arg(Arguments, int64);
		}
		const int32 Value = va_arg(Arguments, int32);
		return Length == 1 ? int8(Value) : Length == 2 ? int16(Value) : Value;
	}

	uint64 TakeUnsigned(int32 Length)
	{
		if (Length == 8)
		{
			return va_arg(Arguments, uint64);
		}
		const uint32 Value = va_arg(Arguments, uint32);
		return Length == 1 ? uint8(Value) : Length == 2 ? uint16(Value) : Value;
	}

	void PrintFloat(const FConversion& Conversion)
	{
		const FScopedCLocale CLocale;
		PrintWithLibrary(Conversion, "", va_arg(Arguments, double));
	}

	template <typename ValueType>
	void PrintWithLibrary(const FConversion& Conversion, const char* Length, ValueType Value)
	{
		char Format[16];
		char* End = Format;
		*End++ = '%';
		const struct
		{
			bool bSet;
			char Flag;
		} Flags[] = {{Conversion.bLeft, '-'}, {Conversion.bPlus, '+'}, {Conversion.bBlank, ' '}, {Conversion.bAlternate, '#'},
			{Conversion.bZero, '0'}};
		for (const auto& Flag : Flags)
		{
			if (Flag.bSet)
			{
				*End++ = Flag.Flag;
			}
		}
		for (const char* Rest = "*.*"; *Rest;)
		{
			*End++ = *Rest++;
		}
		while (*Length)
		{
			*End++ = *Length++;
		}
		*End++ = char(Conversion.Kind);
		*End = 0;

		char Buffer[128];
		const int32 Printed = std::snprintf(Buffer, sizeof(Buffer), Format, Conversion.Width, Conversion.Precision, Value);
		if (Printed < int32(sizeof(Buffer)))
		{
			AppendNarrow(Buffer, Printed);
			return;
		}
		TArray<char> Large;
		Large.SetNumUninitialized(Printed + 1);
		std::snprintf(Large.GetData(), SIZE_T(Large.Num()), Format, Conversion.Width, Conversion.Precision, Value);
		AppendNarrow(Large.GetData(), Printed);
	}

	void PrintWideText(const FConversion& Conversion)
	{
		const TCHAR* Text = va_arg(Arguments, const TCHAR*);
		Text = Text ? Text : TEXT("(null)");
		// With a precision the text may lack its closing zero.
		int32 Length = 0;
		while ((Conversion.Precision < 0 || Length < Conversion.Precision) && Text[Length])
		{
			++Length;
		}
		PrintText(Conversion, Text, Length);
	}

	void PrintNarrowText(const FConversion& Conversion)
	{
		const ANSICHAR* Text = va_arg(Arguments, const ANSICHAR*);
		Text = Text ? Text : "(null)";
		const SIZE_T Length = Conversion.Precision < 0 ? std::strlen(Text) : strnlen(Text, SIZE_T(Conversion.Precision));
		const FUTF8ToTCHAR Wide(Text, int32(Length));
		PrintText(Conversion, Wide.Get(), Wide.Length());
	}

	void PrintText(const FConversion& Conversion, const TCHAR* Text, int32 Length)
	{
		const int32 Padding = Conversion.Width > Length ? Conversion.Width - Length : 0;
		if (!Conversion.bLeft)
		{
			AppendBlanks(Padding);
		}
		Out.Append(Text, Length);
		if (Conversion.bLeft)
		{
			AppendBlanks(Padding);
		}
	}

	void AppendBlanks(int32 Count)
	{
		for (; Count > 0; --Count)
		{
			Out.Add(u' ');
		}
	}

	void AppendNarrow(const char* Text, int32 Length)
	{
		const int32 Index = Out.AddUninitialized(Length);
		for (int32 Offset = 0; Offset < Length; ++Offset)
		{
			Out.GetData()[Index + Offset] = uint8(Text[Offset]);
		}
	}

	TArray<TCHAR>& Out;
	va_list Arguments;
};
}

void AppendFormatVarArgs(TArray<TCHAR>& Out, const TCHAR* Format, va_list Arguments)
{
	FVarArgsPrinter(Out, Arguments).Print(Format);
}

FString FormatVarArgs(const TCHAR* Format, va_list Arguments)
{
	TArray<TCHAR> Printed;
	AppendFormatVarArgs(Printed, Format, Arguments);
	return FString(Printed.Num(), Printed.GetData());
}
