#include "Misc/CString.h"

#include "Containers/Array.h"
#include "Misc/Char.h"
#include "Misc/FormatVarArgs.h"

#include <algorithm>
#include <cstdlib>
#include <string>

int32 FCString::Strlen(const TCHAR* Text)
{
	return int32(std::char_traits<TCHAR>::length(Text));
}

int32 FCString::Strcmp(const TCHAR* Left, const TCHAR* Right)
{
	while (*Left && *Left == *Right)
	{
		++Left;
		++Right;
	}
	return int32(*Left) - int32(*Right);
}

int32 FCString::Strncmp(const TCHAR* Left, const TCHAR* Right, SIZE_T Count)
{
	for (; Count > 0; --Count, ++Left, ++Right)
	{
		if (*Left != *Right || !*Left)
		{
			return int32(*Left) - int32(*Right);
		}
	}
	return 0;
}

int32 FCString::Stricmp(const TCHAR* Left, const TCHAR* Right)
{
	return Strnicmp(Left, Right, ~SIZE_T(0));
}

int32 FCString::Strnicmp(const TCHAR* Left, const TCHAR* Right, SIZE_T Count)
{
	for (; Count > 0; --Count, ++Left, ++Right)
	{
		if (*Left != *Right)
		{
			const int32 Difference = int32(FChar::ToLower(*Left)) - int32(FChar::ToLower(*Right));
			if (Difference)
			{
				return Difference;
			}
		}
		if (!*Left)
		{
			break;
		}
	}
	return 0;
}

const TCHAR* FCString::Strstr(const TCHAR* Text, const TCHAR* Find)
{
	const SIZE_T Length = SIZE_T(Strlen(Find));
	for (;; ++Text)
	{
		if (Strncmp(Text, Find, Length) == 0)
		{
			return Text;
		}
		if (!*Text)
		{
			return nullptr;
		}
	}
}

const TCHAR* FCString::Stristr(const TCHAR* Text, const TCHAR* Find)
{
	const SIZE_T Length = SIZE_T(Strlen(Find));
	for (;; ++Text)
	{
		if (Strnicmp(Text, Find, Length) == 0)
		{
			return Text;
		}
		if (!*Text)
		{
			return nullptr;
		}
	}
}

const TCHAR* FCString::Strchr(const TCHAR* Text, TCHAR Find)
{
	for (; *Text != Find; ++Text)
	{
		if (!*Text)
		{
			return nullptr;
		}
	}
	return Text;
}

const TCHAR* FCString::Strrchr(const TCHAR* Text, TCHAR Find)
{
	const TCHAR* Found = nullptr;
	for (;; ++Text)
	{
		if (*Text == Find)
		{
			Found = Text;
		}
		if (!*Text)
		{
			return Found;
		}
	}
}

TCHAR* FCString::Strncpy(TCHAR* Dest, const TCHAR* Source, SIZE_T DestCount)
{
	TCHAR* At = Dest;
	for (; DestCount > 1 && *Source; --DestCount)
	{
		*At++ = *Source++;
	}
	*At = 0;
	return Dest;
}

TCHAR* FCString::Strcpy(TCHAR* Dest, const TCHAR* Source)
{
	std::char_traits<TCHAR>::copy(Dest, Source, SIZE_T(Strlen(Source)) + 1);
	return Dest;
}

TCHAR* FCString::Strcat(TCHAR* Dest, const TCHAR* Source)
{
	Strcpy(Dest + Strlen(Dest), Source);
	return Dest;
}

namespace
{
/** A number's text in bytes for the C library, which knows no UTF-16. Offsets are the same in both. */
class FNumberText
{
public:
	explicit FNumberText(const TCHAR* Text)
	{
		int32 Length = 0;
		while (Text[Length] && Text[Length] < 128)
		{
			++Length;
		}
		Bytes.SetNumUninitialized(Length + 1);
		std::copy(Text, Text + Length, Bytes.GetData());
		Bytes[Length] = 0;
	}

	const char* operator*() const { return Bytes.GetData(); }

private:
	TArray<char, TInlineAllocator<64>> Bytes;
};

double ParseDouble(const TCHAR* Text)
{
	const FScopedCLocale CLocale;
	return std::strtod(*FNumberText(Text), nullptr);
}

template <typename ValueType>
ValueType ParseInteger(const TCHAR* Text, TCHAR** End, int32 Base, ValueType (*Parse)(const char*, char**, int))
{
	const FNumberText Number(Text);
	char* NumberEnd = nullptr;
	const ValueType Value = Parse(*Number, &NumberEnd, Base);
	if (End)
	{
		*End = const_cast<TCHAR*>(Text) + (NumberEnd - *Number);
	}
	return Value;
}
}

int32 FCString::Strtoi(const TCHAR* Text, TCHAR** End, int32 Base)
{
	return int32(std::clamp<int64>(Strtoi64(Text, End, Base), MIN_int32, MAX_int32));
}

int64 FCString::Strtoi64(const TCHAR* Text, TCHAR** End, int32 Base)
{
	return ParseInteger<long long>(Text, End, Base, &std::strtoll);
}

uint64 FCString::Strtoui64(const TCHAR* Text, TCHAR** End, int32 Base)
{
	return ParseInteger<unsigned long long>(Text, End, Base, &std::strtoull);
}

int32 FCString::Atoi(const TCHAR* Text)
{
	return Strtoi(Text, nullptr, 10);
}

int64 FCString::Atoi64(const TCHAR* Text)
{
	return Strtoi64(Text, nullptr, 10);
}

float FCString::Atof(const TCHAR* Text)
{
	return float(ParseDouble(Text));
}

double FCString::Atod(const TCHAR* Text)
{
	return ParseDouble(Text);
}

bool FCString::ToBool(const TCHAR* Text)
{
	return Stricmp(Text, TEXT("True")) == 0 || Stricmp(Text, TEXT("Yes")) == 0 || Stricmp(Text, TEXT("On")) == 0 ||
		Atoi(Text) != 0;
}

bool FCString::IsNumeric(const TCHAR* Text)
{
	if (*Text == u'-' || *Text == u'+')
	{
		++Text;
	}
	bool bHasDot = false;
	for (; *Text; ++Text)
	{
		if (*Text == u'.' && !bHasDot)
		{
			bHasDot = true;
		}
		else if (!FChar::IsDigit(*Text))
		{
			return false;
		}
	}
	return true;
}

bool FCString::IsPureAnsi(const TCHAR* Text)
{
	while (*Text && *Text < 128)
	{
		++Text;
	}
	return !*Text;
}

int32 FCString::GetVarArgs(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, va_list Arguments)
{
	TArray<TCHAR> Printed;
	AppendFormatVarArgs(Printed, Format, Arguments);
	if (SIZE_T(Printed.Num()) >= DestSize)
	{
		return -1;
	}
	FMemory::Memcpy(Dest, Printed.GetData(), SIZE_T(Printed.Num()) * sizeof(TCHAR));
	Dest[Printed.Num()] = 0;
	return Printed.Num();
}

int32 FCString::Snprintf(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, ...)
{
	va_list Arguments;
	va_start(Arguments, Format);
	const int32 Result = GetVarArgs(Dest, DestSize, Format, Arguments);
	va_end(Arguments);
	return Result;
}

int32 FCStringAnsi::Stricmp(const ANSICHAR* Left, const ANSICHAR* Right)
{
	while (*Left && FChar::ToLower(uint8(*Left)) == FChar::ToLower(uint8(*Right)))
	{
		++Left;
		++Right;
	}
	return int32(FChar::ToLower(uint8(*Left))) - int32(FChar::ToLower(uint8(*Right)));
}
