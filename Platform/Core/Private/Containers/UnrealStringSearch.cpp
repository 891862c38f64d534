// FString: finding, splitting and joining.

#include "Containers/UnrealString.h"

#include <string>

namespace
{
bool MatchesExactly(const TCHAR* Text, const TCHAR* SubString, int32 Length)
{
	return FMemory::Memcmp(Text, SubString, SIZE_T(Length) * sizeof(TCHAR)) == 0;
}

bool MatchesWith(ESearchCase::Type SearchCase, const TCHAR* Text, const TCHAR* SubString, int32 Length)
{
	return SearchCase == ESearchCase::CaseSensitive ? MatchesExactly(Text, SubString, Length)
													: FString::EqualIgnoringCase(Text, SubString, Length);
}

/** The first place from Start on, or INDEX_NONE. */
int32 FindForward(
	const TCHAR* Text, int32 Length, const TCHAR* SubString, int32 SubLength, ESearchCase::Type SearchCase, int32 Start)
{
	const TCHAR First = SubLength ? FChar::ToLower(*SubString) : 0;
	// What is no letter has no other case, so that most places are passed over by comparing one character.
	const bool bExactFirst =
		SubLength > 0 && (SearchCase == ESearchCase::CaseSensitive || (First < 128 && !FChar::IsLower(First)));
	for (int32 Index = Start; Index <= Length - SubLength; ++Index)
	{
		if (bExactFirst)
		{
			const SIZE_T NumPlaces = SIZE_T(Length - SubLength + 1 - Index);
			const TCHAR* const Found = std::char_traits<TCHAR>::find(Text + Index, NumPlaces, *SubString);
			if (!Found)
			{
				return INDEX_NONE;
			}
			Index = int32(Found - Text);
		}
		else if (SubLength > 0 && FChar::ToLower(Text[Index]) != First)
		{
			continue;
		}
		if (MatchesWith(SearchCase, Text + Index, SubString, SubLength))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** The length of the line end at the text, or 0. */
int32 LineEndAt(const TCHAR* Text)
{
	if (*Text == u'\r')
	{
		return Text[1] == u'\n' ? 2 : 1;
	}
	return *Text == u'\n' ? 1 : 0;
}

/** Cuts a text at each place where DelimiterAt gives more than 0, the length of the delimiter there. */
template <typename DelimiterType>
int32 Cut(const FString& Text, TArray<FString>& OutArray, bool bCullEmpty, const DelimiterType& DelimiterAt)
{
	TArray<FString> Pieces;
	const TCHAR* const End = *Text + Text.Len();
	const TCHAR* Start = *Text;
	for (const TCHAR* At = Start; At < End;)
	{
		const int32 DelimiterLength = DelimiterAt(At);
		if (DelimiterLength == 0)
		{
			++At;
			continue;
		}
		if (!bCullEmpty || At > Start)
		{
			Pieces.Emplace(int32(At - Start), Start);
		}
		At += DelimiterLength;
		Start = At;
	}
	if (!Text.IsEmpty() && (!bCullEmpty || Start < End))
	{
		Pieces.Emplace(int32(End - Start), Start);
	}
	OutArray = MoveTemp(Pieces);
	return OutArray.Num();
}
}

int32 FString::Find(const TCHAR* SubString, int32 SubStringLength, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir,
	int32 StartPosition) const
{
	const TCHAR* const Text = **this;
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 Start = std::clamp(StartPosition, 0, Len());
		return FindForward(Text, Len(), SubString, SubStringLength, SearchCase, Start);
	}
	const int32 End = StartPosition == INDEX_NONE || StartPosition > Len() ? Len() : StartPosition;
	for (int32 Index = End - SubStringLength; Index >= 0; --Index)
	{
		if (MatchesWith(SearchCase, Text + Index, SubString, SubStringLength))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FString::FindChar(TCHAR Char, int32& Index) const
{
	for (Index = 0; Index < Len(); ++Index)
	{
		if (Data[Index] == Char)
		{
			return true;
		}
	}
	Index = INDEX_NONE;
	return false;
}

bool FString::FindLastChar(TCHAR Char, int32& Index) const
{
	for (Index = Len() - 1; Index >= 0; --Index)
	{
		if (Data[Index] == Char)
		{
			return true;
		}
	}
	return false;
}

bool FString::StartsWith(const TCHAR* Prefix, ESearchCase::Type SearchCase) const
{
	const int32 Length = FCString::Strlen(Prefix);
	return Length > 0 && Length <= Len() && MatchesWith(SearchCase, **this, Prefix, Length);
}

bool FString::StartsWith(const FString& Prefix, ESearchCase::Type SearchCase) const
{
	return StartsWith(*Prefix, SearchCase);
}

bool FString::EndsWith(const TCHAR* Suffix, ESearchCase::Type SearchCase) const
{
	const int32 Length = FCString::Strlen(Suffix);
	return Length > 0 && Length <= Len() && MatchesWith(SearchCase, **this + Len() - Length, Suffix, Length);
}

bool FString::EndsWith(const FString& Suffix, ESearchCase::Type SearchCase) const
{
	return EndsWith(*Suffix, SearchCase);
}

bool FString::MatchesWildcard(const TCHAR* Wildcard, ESearchCase::Type SearchCase) const
{
	const TCHAR* Text = **this;
	const TCHAR* RetryText = nullptr;
	const TCHAR* RetryWildcard = nullptr;
	while (*Text)
	{
		if (*Wildcard == u'*')
		{
			RetryWildcard = ++Wildcard;
			RetryText = Text;
		}
		else if (*Wildcard && (*Wildcard == u'?' || MatchesWith(SearchCase, Text, Wildcard, 1)))
		{
			++Text;
			++Wildcard;
		}
		else if (RetryWildcard)
		{
			// Let the last "*" take one character more.
			Text = ++RetryText;
			Wildcard = RetryWildcard;
		}
		else
		{
			return false;
		}
	}
	while (*Wildcard == u'*')
	{
		++Wildcard;
	}
	return !*Wildcard;
}

bool FString::Split(const FString& Separator, FString* LeftPart, FString* RightPart, ESearchCase::Type SearchCase,
	ESearchDir::Type SearchDir) const
{
	if (IsEmpty())
	{
		return false;
	}
	const int32 Index = Find(Separator, SearchCase, SearchDir);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	// Either output may be this text.
	FString NewLeft = Left(Index);
	FString NewRight = Mid(Index + Separator.Len());
	if (LeftPart)
	{
		*LeftPart = MoveTemp(NewLeft);
	}
	if (RightPart)
	{
		*RightPart = MoveTemp(NewRight);
	}
	return true;
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bCullEmpty) const
{
	return ParseIntoArray(OutArray, &Delimiter, 1, bCullEmpty);
}

int32 FString::ParseIntoArray(
	TArray<FString>& OutArray, const TCHAR* const* Delimiters, int32 NumDelimiters, bool bCullEmpty) const
{
	return Cut(*this, OutArray, bCullEmpty,
		[=](const TCHAR* At)
		{
			for (int32 Index = 0; Index < NumDelimiters; ++Index)
			{
				const int32 Length = FCString::Strlen(Delimiters[Index]);
				if (FCString::Strncmp(At, Delimiters[Index], SIZE_T(Length)) == 0)
				{
					return Length;
				}
			}
			return 0;
		});
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty) const
{
	return Cut(*this, OutArray, bCullEmpty, [](const TCHAR* At) { return LineEndAt(At); });
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* ExtraDelimiter, bool bCullEmpty) const
{
	const TCHAR* const Delimiters[] = {TEXT(" "), TEXT("\t"), TEXT("\r"), TEXT("\n"), ExtraDelimiter};
	return ParseIntoArray(OutArray, Delimiters, ExtraDelimiter && *ExtraDelimiter ? 5 : 4, bCullEmpty);
}

int32 FString::ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase)
{
	const int32 FromLength = FCString::Strlen(From);
	int32 Found = FromLength ? FindForward(**this, Len(), From, FromLength, SearchCase, 0) : INDEX_NONE;
	if (Found == INDEX_NONE)
	{
		return 0;
	}
	const int32 ToLength = FCString::Strlen(To);
	int32 Count = 0;
	int32 Start = 0;
	FString Result;
	for (; Found != INDEX_NONE; Found = FindForward(**this, Len(), From, FromLength, SearchCase, Start))
	{
		Result.AppendChars(**this + Start, Found - Start);
		Result.AppendChars(To, ToLength);
		Start = Found + FromLength;
		++Count;
	}
	Result.AppendChars(**this + Start, Len() - Start);
	*this = MoveTemp(Result);
	return Count;
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result = *this;
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

FString FString::Join(const TArray<FString>& Parts, const TCHAR* Separator)
{
	FString Result;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		if (Index > 0)
		{
			Result += Separator;
		}
		Result += Parts[Index];
	}
	return Result;
}
