#include "Containers/StringConv.h"

#include "Misc/CString.h"

#include <algorithm>

namespace
{
bool IsHighSurrogate(uint32 Unit)
{
	return (Unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(uint32 Unit)
{
	return (Unit & 0xFC00) == 0xDC00;
}

bool IsContinuation(uint8 Byte)
{
	return (Byte & 0xC0) == 0x80;
}

/** How many characters from the start on are ASCII, as most of them are; counted in steps of whole words. */
template <typename UnitType>
int32 CountAscii(const UnitType* Source, int32 Length)
{
	constexpr int32 UnitsPerWord = sizeof(uint64) / sizeof(UnitType);
	constexpr uint64 BeyondAscii = sizeof(UnitType) == 1 ? 0x8080808080808080ULL : 0xFF80FF80FF80FF80ULL;
	int32 Count = 0;
	for (uint64 Word; Count + UnitsPerWord <= Length; Count += UnitsPerWord)
	{
		FMemory::Memcpy(&Word, Source + Count, sizeof(Word));
		if (Word & BeyondAscii)
		{
			break;
		}
	}
	return Count;
}

/** Takes one code point; half a surrogate pair gives "?". */
uint32 NextCodePoint(const TCHAR*& Source, const TCHAR* End)
{
	const uint32 Unit = *Source++;
	if ((Unit & 0xF800) != 0xD800)
	{
		return Unit;
	}
	if (IsHighSurrogate(Unit) && Source < End && IsLowSurrogate(*Source))
	{
		return 0x10000 + ((Unit & 0x3FF) << 10) + (*Source++ & 0x3FF);
	}
	return u'?';
}

/** Takes one code point; a byte that begins no valid sequence (RFC 3629, table in section 4) is taken alone and gives "?". */
uint32 NextCodePoint(const uint8*& Source, const uint8* End)
{
	const uint8 Lead = *Source++;
	if (Lead < 0x80)
	{
		return Lead;
	}
	const SSIZE_T Left = End - Source;
	if (Lead >= 0xC2 && Lead <= 0xDF && Left >= 1 && IsContinuation(Source[0]))
	{
		return uint32(Lead & 0x1F) << 6 | (*Source++ & 0x3F);
	}
	if ((Lead & 0xF0) == 0xE0 && Left >= 2 && IsContinuation(Source[0]) && IsContinuation(Source[1]))
	{
		const uint32 CodePoint = uint32(Lead & 0x0F) << 12 | uint32(Source[0] & 0x3F) << 6 | (Source[1] & 0x3F);
		if (CodePoint >= 0x800 && (CodePoint & 0xF800) != 0xD800)
		{
			Source += 2;
			return CodePoint;
		}
	}
	if ((Lead & 0xF8) == 0xF0 && Left >= 3 && IsContinuation(Source[0]) && IsContinuation(Source[1]) && IsContinuation(Source[2]))
	{
		const uint32 CodePoint =
			uint32(Lead & 0x07) << 18 | uint32(Source[0] & 0x3F) << 12 | uint32(Source[1] & 0x3F) << 6 | (Source[2] & 0x3F);
		if (CodePoint >= 0x10000 && CodePoint <= 0x10FFFF)
		{
			Source += 3;
			return CodePoint;
		}
	}
	return u'?';
}
}

int32 FPlatformString::Utf8LengthOf(const TCHAR* Source, int32 SourceLength)
{
	const TCHAR* const End = Source + SourceLength;
	int64 Length = CountAscii(Source, SourceLength);
	Source += Length;
	while (Source < End)
	{
		const uint32 CodePoint = NextCodePoint(Source, End);
		Length += CodePoint < 0x80 ? 1 : CodePoint < 0x800 ? 2 : CodePoint < 0x10000 ? 3 : 4;
	}
	return Length <= MAX_int32 ? int32(Length) : MAX_int32;
}

void FPlatformString::ToUtf8(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLength)
{
	const TCHAR* const End = Source + SourceLength;
	const int32 NumAscii = CountAscii(Source, SourceLength);
	Dest = std::copy(Source, Source + NumAscii, Dest);
	Source += NumAscii;
	while (Source < End)
	{
		const uint32 CodePoint = NextCodePoint(Source, End);
		if (CodePoint < 0x80)
		{
			*Dest++ = ANSICHAR(CodePoint);
			continue;
		}
		if (CodePoint < 0x800)
		{
			*Dest++ = ANSICHAR(0xC0 | CodePoint >> 6);
		}
		else
		{
			if (CodePoint < 0x10000)
			{
				*Dest++ = ANSICHAR(0xE0 | CodePoint >> 12);
			}
			else
			{
				*Dest++ = ANSICHAR(0xF0 | CodePoint >> 18);
				*Dest++ = ANSICHAR(0x80 | (CodePoint >> 12 & 0x3F));
			}
			*Dest++ = ANSICHAR(0x80 | (CodePoint >> 6 & 0x3F));
		}
		*Dest++ = ANSICHAR(0x80 | (CodePoint & 0x3F));
	}
}

int32 FPlatformString::Utf16LengthOf(const ANSICHAR* Source, int32 SourceLength)
{
	const uint8* Bytes = reinterpret_cast<const uint8*>(Source);
	const uint8* const End = Bytes + SourceLength;
	int32 Length = CountAscii(Source, SourceLength);
	Bytes += Length;
	while (Bytes < End)
	{
		Length += NextCodePoint(Bytes, End) < 0x10000 ? 1 : 2;
	}
	return Length;
}

void FPlatformString::ToUtf16(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLength)
{
	const uint8* Bytes = reinterpret_cast<const uint8*>(Source);
	const uint8* const End = Bytes + SourceLength;
	const int32 NumAscii = CountAscii(Source, SourceLength);
	Dest = std::copy(Bytes, Bytes + NumAscii, Dest);
	Bytes += NumAscii;
	while (Bytes < End)
	{
		const uint32 CodePoint = NextCodePoint(Bytes, End);
		if (CodePoint < 0x10000)
		{
			*Dest++ = TCHAR(CodePoint);
		}
		else
		{
			*Dest++ = TCHAR(0xD800 + ((CodePoint - 0x10000) >> 10));
			*Dest++ = TCHAR(0xDC00 + (CodePoint & 0x3FF));
		}
	}
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source)
	: FTCHARToUTF8(Source, Source ? FCString::Strlen(Source) : 0)
{
}

FTCHARToUTF8::FTCHARToUTF8(const TCHAR* Source, int32 SourceLength)
{
	if (Source)
	{
		FPlatformString::ToUtf8(Allocate(FPlatformString::Utf8LengthOf(Source, SourceLength)), Source, SourceLength);
	}
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source)
	: FUTF8ToTCHAR(Source, Source ? FCStringAnsi::Strlen(Source) : 0)
{
}

FUTF8ToTCHAR::FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLength)
{
	if (Source)
	{
		FPlatformString::ToUtf16(Allocate(FPlatformString::Utf16LengthOf(Source, SourceLength)), Source, SourceLength);
	}
}
