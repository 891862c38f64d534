#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"

/** Converted text, on the stack while it is short. Lives as long as this object. */
template <typename CharType>
class TConvertedString
{
public:
	TConvertedString(const TConvertedString&) = delete;
	TConvertedString& operator=(const TConvertedString&) = delete;

	/** Ends with a zero; null if there was no text at all. */
	const CharType* Get() const { return Text; }
	/** Characters without the closing zero. */
	int32 Length() const { return TextLength; }

protected:
	TConvertedString() = default;
	~TConvertedString() { FMemory::Free(Heap); }

	CharType* Allocate(int32 Length)
	{
		TextLength = Length;
		if (Length < InlineSize)
		{
			Text = Inline;
		}
		else
		{
			Text = Heap = static_cast<CharType*>(FMemory::Malloc((SIZE_T(Length) + 1) * sizeof(CharType)));
		}
		Text[Length] = 0;
		return Text;
	}

private:
	static constexpr int32 InlineSize = 128;
	CharType* Text = nullptr;
	CharType* Heap = nullptr;
	int32 TextLength = 0;
	CharType Inline[InlineSize];
};

/** UTF-16 to UTF-8. Half of a surrogate pair alone becomes "?". */
class CORE_API FTCHARToUTF8 : public TConvertedString<ANSICHAR>
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source);
	FTCHARToUTF8(const TCHAR* Source, int32 SourceLength);
};

/** UTF-8 to UTF-16. Each byte that is no part of a valid sequence becomes "?". */
class CORE_API FUTF8ToTCHAR : public TConvertedString<TCHAR>
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Source);
	FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLength);
};

/** How many code units a conversion gives, and the conversion itself into a buffer of that size; no zero is added. */
struct CORE_API FPlatformString
{
	static int32 Utf8LengthOf(const TCHAR* Source, int32 SourceLength);
	static void ToUtf8(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLength);
	static int32 Utf16LengthOf(const ANSICHAR* Source, int32 SourceLength);
	static void ToUtf16(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLength);
};

#define TCHAR_TO_UTF8(Text) (const_cast<ANSICHAR*>(FTCHARToUTF8(Text).Get()))
#define UTF8_TO_TCHAR(Text) (const_cast<TCHAR*>(FUTF8ToTCHAR(Text).Get()))
#define TCHAR_TO_ANSI(Text) TCHAR_TO_UTF8(Text)
#define ANSI_TO_TCHAR(Text) UTF8_TO_TCHAR(Text)
