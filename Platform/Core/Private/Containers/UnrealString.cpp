#include "Containers/UnrealString.h"

#include "Containers/CaseFolding.h"
#include "Misc/FormatVarArgs.h"

#include <charconv>

FString::FString(const TCHAR* Text)
	: FString(Text ? FCString::Strlen(Text) : 0, Text)
{
}

FString::FString(const ANSICHAR* Text)
	: FString(Text ? FCStringAnsi::Strlen(Text) : 0, Text)
{
}

FString::FString(int32 Length, const TCHAR* Text)
{
	if (Length > 0)
	{
		// Most strings stay as they were made, so they get no room to grow.
		Reserve(Length);
		AppendChars(Text, Length);
	}
}

FString::FString(int32 Length, const ANSICHAR* Text)
{
	if (Length > 0)
	{
		const int32 WideLength = FPlatformString::Utf16LengthOf(Text, Length);
		Data.SetNumUninitialized(WideLength + 1);
		FPlatformString::ToUtf16(Data.GetData(), Text, Length);
		Data[WideLength] = 0;
	}
}

FString::FString(const FString& Other, int32 ExtraSlack)
{
	Reserve(Other.Len() + ExtraSlack);
	AppendChars(*Other, Other.Len());
}

FString& FString::operator=(const TCHAR* Text)
{
	// The text may be a part of this one.
	if (!Text || *Text == 0)
	{
		Empty();
	}
	else if (Text != Data.GetData())
	{
		*this = FString(Text);
	}
	return *this;
}

void FString::AppendChars(const TCHAR* Text, int32 Count)
{
	if (Count <= 0)
	{
		return;
	}
	const SSIZE_T OffsetInThis = Text - Data.GetData();
	const bool bIsPartOfThis = OffsetInThis >= 0 && OffsetInThis < Data.Num();
	const int32 OldLength = Len();
	Data.AddUninitialized(Data.Num() ? Count : Count + 1);
	TCHAR* const Chars = Data.GetData();
	FMemory::Memcpy(Chars + OldLength, bIsPartOfThis ? Chars + OffsetInThis : Text, SIZE_T(Count) * sizeof(TCHAR));
	Chars[OldLength + Count] = 0;
}

FString& FString::AppendChar(TCHAR Char)
{
	if (Char)
	{
		AppendChars(&Char, 1);
	}
	return *this;
}

void FString::AppendInt(int32 Number)
{
	char Digits[16];
	const std::to_chars_result Result = std::to_chars(Digits, Digits + sizeof(Digits), Number);
	TCHAR Wide[16];
	std::copy(Digits, Result.ptr, Wide);
	AppendChars(Wide, int32(Result.ptr - Digits));
}

FString& FString::operator+=(const FString& Text)
{
	AppendChars(*Text, Text.Len());
	return *this;
}

FString& FString::operator+=(const TCHAR* Text)
{
	if (Text)
	{
		AppendChars(Text, FCString::Strlen(Text));
	}
	return *this;
}

FString& FString::operator+=(const ANSICHAR* Text)
{
	return *this += FString(Text);
}

void FString::InsertAt(int32 Index, TCHAR Char)
{
	if (Char)
	{
		InsertAt(Index, Chr(Char));
	}
}

void FString::InsertAt(int32 Index, const FString& Text)
{
	if (Text.IsEmpty())
	{
		return;
	}
	if (IsEmpty())
	{
		*this = Text;
		return;
	}
	const FString Copy = Text;
	Data.Insert(*Copy, Copy.Len(), Index);
}

void FString::PathAppend(const TCHAR* Path, int32 Length)
{
	const FString Part(Length, Path);
	if (!EndsWith(TEXT("/"), ESearchCase::CaseSensitive) && !Part.StartsWith(TEXT("/"), ESearchCase::CaseSensitive) && !IsEmpty())
	{
		AppendChar(u'/');
	}
	*this += Part;
}

FString& FString::operator/=(const TCHAR* Path)
{
	PathAppend(Path, FCString::Strlen(Path));
	return *this;
}

FString& FString::operator/=(const FString& Path)
{
	PathAppend(*Path, Path.Len());
	return *this;
}

namespace
{
FString Concatenate(const TCHAR* Left, int32 LeftLength, const TCHAR* Right, int32 RightLength)
{
	FString Result;
	if (LeftLength + RightLength > 0)
	{
		Result.Reserve(LeftLength + RightLength);
		Result.AppendChars(Left, LeftLength);
		Result.AppendChars(Right, RightLength);
	}
	return Result;
}
}

FString operator+(const FString& Left, const FString& Right)
{
	return Concatenate(*Left, Left.Len(), *Right, Right.Len());
}

FString operator+(FString&& Left, const FString& Right)
{
	Left += Right;
	return MoveTemp(Left);
}

FString operator+(const FString& Left, const TCHAR* Right)
{
	return Concatenate(*Left, Left.Len(), Right, FCString::Strlen(Right));
}

FString operator+(FString&& Left, const TCHAR* Right)
{
	Left += Right;
	return MoveTemp(Left);
}

FString operator+(const TCHAR* Left, const FString& Right)
{
	return Concatenate(Left, FCString::Strlen(Left), *Right, Right.Len());
}

FString operator+(const FString& Left, TCHAR Right)
{
	return Concatenate(*Left, Left.Len(), &Right, Right ? 1 : 0);
}

FString operator+(FString&& Left, TCHAR Right)
{
	Left += Right;
	return MoveTemp(Left);
}

FString operator/(const FString& Left, const FString& Right)
{
	FString Result(Left, Right.Len() + 1);
	Result /= Right;
	return Result;
}

FString operator/(const FString& Left, const TCHAR* Right)
{
	FString Result = Left;
	Result /= Right;
	return Result;
}

FString operator/(const TCHAR* Left, const FString& Right)
{
	FString Result = Left;
	Result /= Right;
	return Result;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	if (Len() != Other.Len())
	{
		return false;
	}
	return SearchCase == ESearchCase::CaseSensitive ? FMemory::Memcmp(**this, *Other, SIZE_T(Len()) * sizeof(TCHAR)) == 0
													: EqualIgnoringCase(**this, *Other, Len());
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::CaseSensitive ? FCString::Strcmp(**this, *Other) : FCString::Stricmp(**this, *Other);
}

bool FString::EqualIgnoringCase(const TCHAR* Left, const TCHAR* Right, int32 Length)
{
	return FCaseFolding::Equal(Left, Right, Length);
}

uint32 FString::HashIgnoringCase(const TCHAR* Text, int32 Length)
{
	return FCaseFolding::Hash(Text, Length);
}

uint32 GetTypeHash(const TCHAR* Text)
{
	return FCaseFolding::Hash(Text, FCString::Strlen(Text));
}

FString FString::Left(int32 Count) const
{
	return Mid(0, Count);
}

FString FString::LeftChop(int32 Count) const
{
	return Mid(0, std::max(0, Len() - std::max(Count, 0)));
}

FString FString::Right(int32 Count) const
{
	return Count > 0 ? Mid(Count < Len() ? Len() - Count : 0) : FString();
}

FString FString::RightChop(int32 Count) const
{
	return Mid(Count > 0 ? Count : 0);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int64 From = std::clamp<int64>(Start, 0, Len());
	const int64 To = std::clamp<int64>(int64(Start) + Count, From, Len());
	return FString(int32(To - From), **this + From);
}

void FString::LeftInline(int32 Count, bool bAllowShrinking)
{
	const int32 Kept = std::clamp(Count, 0, Len());
	RemoveAt(Kept, Len() - Kept, bAllowShrinking);
}

void FString::LeftChopInline(int32 Count, bool bAllowShrinking)
{
	LeftInline(int32(std::max<int64>(int64(Len()) - std::max(Count, 0), 0)), bAllowShrinking);
}

void FString::RightInline(int32 Count, bool bAllowShrinking)
{
	RemoveAt(0, Len() - std::clamp(Count, 0, Len()), bAllowShrinking);
}

void FString::RightChopInline(int32 Count, bool bAllowShrinking)
{
	RemoveAt(0, std::clamp(Count, 0, Len()), bAllowShrinking);
}

void FString::MidInline(int32 Start, int32 Count, bool bAllowShrinking)
{
	*this = Mid(Start, Count);
}

void FString::RemoveAt(int32 Index, int32 Count, bool bAllowShrinking)
{
	if (Count > 0)
	{
		checkf(Index >= 0 && Count <= Len() - Index, TEXT("Characters %d to %d removed from a string of length %d"), Index,
			Index + Count - 1, Len());
		Data.RemoveAt(Index, Count, bAllowShrinking);
	}
}

bool FString::RemoveFromStart(const TCHAR* Prefix, ESearchCase::Type SearchCase)
{
	if (!StartsWith(Prefix, SearchCase))
	{
		return false;
	}
	RemoveAt(0, FCString::Strlen(Prefix));
	return true;
}

bool FString::RemoveFromStart(const FString& Prefix, ESearchCase::Type SearchCase)
{
	return RemoveFromStart(*Prefix, SearchCase);
}

bool FString::RemoveFromEnd(const TCHAR* Suffix, ESearchCase::Type SearchCase)
{
	if (!EndsWith(Suffix, SearchCase))
	{
		return false;
	}
	const int32 Length = FCString::Strlen(Suffix);
	RemoveAt(Len() - Length, Length);
	return true;
}

bool FString::RemoveFromEnd(const FString& Suffix, ESearchCase::Type SearchCase)
{
	return RemoveFromEnd(*Suffix, SearchCase);
}

FString FString::PrintfImpl(const TCHAR* Format, ...)
{
	FString Result;
	va_list Arguments;
	va_start(Arguments, Format);
	AppendFormatVarArgs(Result.Data, Format, Arguments);
	va_end(Arguments);
	if (Result.Data.Num())
	{
		Result.Data.Add(0);
	}
	return Result;
}

FString& FString::AppendfImpl(const TCHAR* Format, ...)
{
	// An argument may be a part of this text, so it is printed apart first.
	TArray<TCHAR> Printed;
	va_list Arguments;
	va_start(Arguments, Format);
	AppendFormatVarArgs(Printed, Format, Arguments);
	va_end(Arguments);
	AppendChars(Printed.GetData(), Printed.Num());
	return *this;
}
