// FString: case, blanks, quotes, escapes and numbers.

#include "Containers/UnrealString.h"

#include <cmath>

FString& FString::ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase)
{
	if (SearchCase == ESearchCase::IgnoreCase)
	{
		From = FChar::ToLower(From);
	}
	for (TCHAR& Char : *this)
	{
		if ((SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(Char) : Char) == From)
		{
			Char = To;
		}
	}
	return *this;
}

void FString::ToLowerInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToLower(Char);
	}
}

void FString::ToUpperInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToUpper(Char);
	}
}

FString FString::ToLower() const
{
	FString Result = *this;
	Result.ToLowerInline();
	return Result;
}

FString FString::ToUpper() const
{
	FString Result = *this;
	Result.ToUpperInline();
	return Result;
}

void FString::TrimStartInline()
{
	int32 Count = 0;
	while (Count < Len() && FChar::IsWhitespace(Data[Count]))
	{
		++Count;
	}
	RemoveAt(0, Count);
}

void FString::TrimEndInline()
{
	int32 Length = Len();
	while (Length > 0 && FChar::IsWhitespace(Data[Length - 1]))
	{
		--Length;
	}
	LeftInline(Length);
}

void FString::TrimStartAndEndInline()
{
	TrimEndInline();
	TrimStartInline();
}

FString FString::TrimStart() const
{
	FString Result = *this;
	Result.TrimStartInline();
	return Result;
}

FString FString::TrimEnd() const
{
	FString Result = *this;
	Result.TrimEndInline();
	return Result;
}

FString FString::TrimStartAndEnd() const
{
	FString Result = *this;
	Result.TrimStartAndEndInline();
	return Result;
}

FString FString::TrimQuotes(bool* bQuotesRemoved) const
{
	const int32 Start = Len() > 0 && Data[0] == u'"' ? 1 : 0;
	const int32 End = Len() > 1 && Data[Len() - 1] == u'"' ? Len() - 1 : Len();
	if (bQuotesRemoved)
	{
		*bQuotesRemoved = End - Start < Len();
	}
	return Mid(Start, End - Start);
}

FString FString::Reverse() const
{
	FString Result = *this;
	std::reverse(Result.begin(), Result.end());
	return Result;
}

FString FString::LeftPad(int32 CharacterCount) const
{
	return ChrN(CharacterCount - Len(), u' ') + *this;
}

FString FString::RightPad(int32 CharacterCount) const
{
	return *this + ChrN(CharacterCount - Len(), u' ');
}

FString FString::ConvertTabsToSpaces(int32 SpacesPerTab) const
{
	FString Result;
	int32 Column = 0;
	for (const TCHAR Char : *this)
	{
		if (Char == u'\t' && SpacesPerTab > 0)
		{
			const int32 Count = SpacesPerTab - Column % SpacesPerTab;
			Result += ChrN(Count, u' ');
			Column += Count;
			continue;
		}
		Result += Char;
		Column = Char == u'\n' || Char == u'\r' ? 0 : Column + 1;
	}
	return Result;
}

namespace
{
struct FEscape
{
	TCHAR Char;
	TCHAR Letter;
};

constexpr FEscape GEscapes[] = {
	{u'\n', u'n'},
	{u'\r', u'r'},
	{u'\t', u't'},
	{u'\'', u'\''},
	{u'\\', u'\\'},
	{u'"', u'"'},
};

template <typename PredicateType>
const FEscape* FindEscape(const TArray<TCHAR>* Chars, PredicateType Predicate)
{
	for (const FEscape& Escape : GEscapes)
	{
		if (Predicate(Escape) && (!Chars || Chars->Contains(Escape.Char)))
		{
			return &Escape;
		}
	}
	return nullptr;
}
}

FString FString::ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars) const
{
	FString Result;
	for (const TCHAR Char : *this)
	{
		const FEscape* const Escape = FindEscape(Chars, [=](const FEscape& Candidate) { return Candidate.Char == Char; });
		if (Escape)
		{
			Result += u'\\';
		}
		Result += Escape ? Escape->Letter : Char;
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars) const
{
	FString Result;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		const TCHAR Letter = (*this)[Index] == u'\\' && Index + 1 < Len() ? (*this)[Index + 1] : 0;
		const FEscape* const Escape =
			FindEscape(Letter ? Chars : nullptr, [=](const FEscape& Candidate) { return Letter && Candidate.Letter == Letter; });
		Result += Escape ? Escape->Char : (*this)[Index];
		Index += Escape ? 1 : 0;
	}
	return Result;
}

FString FString::ReplaceQuotesWithEscapedQuotes() const
{
	FString Result;
	bool bEscaped = false;
	for (const TCHAR Char : *this)
	{
		if (Char == u'"' && !bEscaped)
		{
			Result += u'\\';
		}
		Result += Char;
		bEscaped = Char == u'\\' && !bEscaped;
	}
	return Result;
}

FString FString::FromInt(int32 Number)
{
	FString Result;
	Result.AppendInt(Number);
	return Result;
}

FString FString::ChrN(int32 Count, TCHAR Char)
{
	FString Result;
	if (Count > 0)
	{
		Result.Data.Init(Char, Count);
		Result.Data.Add(0);
	}
	return Result;
}

FString FString::SanitizeFloat(double Value, int32 MinFractionalDigits)
{
	FString Result = Printf(TEXT("%f"), Value);
	int32 Dot = 0;
	if (!std::isfinite(Value) || !Result.FindChar(u'.', Dot))
	{
		return Result;
	}
	if (Result.FindLastCharByPredicate([](TCHAR Char) { return Char >= u'1' && Char <= u'9'; }) == INDEX_NONE)
	{
		Result.RemoveFromStart(TEXT("-"));
		Result.FindChar(u'.', Dot);
	}
	int32 Length = Result.Len();
	while (Result[Length - 1] == u'0' && Length - Dot - 1 > MinFractionalDigits)
	{
		--Length;
	}
	if (Result[Length - 1] == u'.')
	{
		--Length;
	}
	Result.LeftInline(Length);
	return Result + ChrN(MinFractionalDigits > 6 ? MinFractionalDigits - 6 : 0, u'0');
}

FString LexToString(int32 Value)
{
	return FString::FromInt(Value);
}

FString LexToString(uint32 Value)
{
	return FString::Printf(TEXT("%u"), Value);
}

FString LexToString(int64 Value)
{
	return FString::Printf(TEXT("%lld"), Value);
}

FString LexToString(uint64 Value)
{
	return FString::Printf(TEXT("%llu"), Value);
}

FString LexToString(long Value)
{
	return LexToString(int64(Value));
}

FString LexToString(unsigned long Value)
{
	return LexToString(uint64(Value));
}

FString LexToString(float Value)
{
	return FString::Printf(TEXT("%f"), Value);
}

FString LexToString(double Value)
{
	return FString::Printf(TEXT("%f"), Value);
}

FString LexToString(bool bValue)
{
	return bValue ? TEXT("true") : TEXT("false");
}

void LexFromString(int32& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atoi(Text);
}

void LexFromString(int64& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atoi64(Text);
}

void LexFromString(float& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atof(Text);
}

void LexFromString(double& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atod(Text);
}

void LexFromString(bool& OutValue, const TCHAR* Text)
{
	OutValue = FCString::ToBool(Text);
}

void LexFromString(FString& OutValue, const TCHAR* Text)
{
	OutValue = Text;
}
