#pragma once

#include "Containers/Array.h"
#include "Containers/StringConv.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Templates/IsValidVariadicFunctionArg.h"

/**
 * Text in UTF-16, with a closing zero. ==, != and < ignore case, and so do hashing and, unless told otherwise, Find, Contains,
 * Replace, Split, StartsWith and EndsWith; Equals, Compare, FindChar and FindLastChar are exact.
 */
class CORE_API FString
{
private:
	/** A type if Printf takes all of these. */
	template <typename... Types>
	using TPrintable = std::enable_if_t<(... && bool(TIsValidVariadicFunctionArg<Types>::Value))>;

public:
	using DataType = TArray<TCHAR>;
	using ElementType = TCHAR;

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) noexcept = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) noexcept = default;

	FString(const TCHAR* Text);
	/** Narrow text is UTF-8, of which ASCII is a part. */
	FString(const ANSICHAR* Text);
	FString(int32 Length, const TCHAR* Text);
	FString(int32 Length, const ANSICHAR* Text);
	/** A copy with room for more. */
	FString(const FString& Other, int32 ExtraSlack);
	FString& operator=(const TCHAR* Text);

	int32 Len() const { return Data.Num() ? Data.Num() - 1 : 0; }
	bool IsEmpty() const { return Data.Num() <= 1; }
	/** The text, ended by a zero; never null. */
	const TCHAR* operator*() const { return Data.Num() ? Data.GetData() : TEXT(""); }
	TCHAR& operator[](int32 Index) { return Data[Index]; }
	const TCHAR& operator[](int32 Index) const { return Data[Index]; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	/** The characters with their closing zero; whoever changes them keeps the zero. */
	DataType& GetCharArray() { return Data; }
	const DataType& GetCharArray() const { return Data; }
	SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize(); }

	TCHAR* begin() { return Data.GetData(); }
	TCHAR* end() { return Data.GetData() + Len(); }
	const TCHAR* begin() const { return Data.GetData(); }
	const TCHAR* end() const { return Data.GetData() + Len(); }

	void Empty(int32 Slack = 0) { Data.Empty(Slack ? Slack + 1 : 0); }
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0); }
	void Reserve(int32 CharacterCount) { Data.Reserve(CharacterCount + 1); }
	void Shrink() { Data.Shrink(); }

	// Adding

	void AppendChars(const TCHAR* Text, int32 Count);
	FString& Append(const TCHAR* Text, int32 Count)
	{
		AppendChars(Text, Count);
		return *this;
	}
	FString& Append(const TCHAR* Text) { return *this += Text; }
	FString& Append(const FString& Text) { return *this += Text; }
	FString& AppendChar(TCHAR Char);
	void AppendInt(int32 Number);
	FString& operator+=(const FString& Text);
	FString& operator+=(const TCHAR* Text);
	FString& operator+=(const ANSICHAR* Text);
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }
	void InsertAt(int32 Index, TCHAR Char);
	void InsertAt(int32 Index, const FString& Text);

	/** Adds a path with one "/" between when neither side has one. */
	void PathAppend(const TCHAR* Path, int32 Length);
	FString& operator/=(const TCHAR* Path);
	FString& operator/=(const FString& Path);

	friend CORE_API FString operator+(const FString& Left, const FString& Right);
	friend CORE_API FString operator+(FString&& Left, const FString& Right);
	friend CORE_API FString operator+(const FString& Left, const TCHAR* Right);
	friend CORE_API FString operator+(FString&& Left, const TCHAR* Right);
	friend CORE_API FString operator+(const TCHAR* Left, const FString& Right);
	friend CORE_API FString operator+(const FString& Left, TCHAR Right);
	friend CORE_API FString operator+(FString&& Left, TCHAR Right);
	friend CORE_API FString operator/(const FString& Left, const FString& Right);
	friend CORE_API FString operator/(const FString& Left, const TCHAR* Right);
	friend CORE_API FString operator/(const TCHAR* Left, const FString& Right);

	// Comparing

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	friend bool operator==(const FString& Left, const FString& Right)
	{
		return Left.Len() == Right.Len() && EqualIgnoringCase(*Left, *Right, Left.Len());
	}
	friend bool operator==(const FString& Left, const TCHAR* Right) { return FCString::Stricmp(*Left, Right) == 0; }
	friend bool operator==(const TCHAR* Left, const FString& Right) { return FCString::Stricmp(Left, *Right) == 0; }
	friend bool operator!=(const FString& Left, const FString& Right) { return !(Left == Right); }
	friend bool operator!=(const FString& Left, const TCHAR* Right) { return !(Left == Right); }
	friend bool operator!=(const TCHAR* Left, const FString& Right) { return !(Left == Right); }
	friend bool operator<(const FString& Left, const FString& Right) { return FCString::Stricmp(*Left, *Right) < 0; }
	friend bool operator<=(const FString& Left, const FString& Right) { return FCString::Stricmp(*Left, *Right) <= 0; }
	friend bool operator>(const FString& Left, const FString& Right) { return FCString::Stricmp(*Left, *Right) > 0; }
	friend bool operator>=(const FString& Left, const FString& Right) { return FCString::Stricmp(*Left, *Right) >= 0; }

	static bool EqualIgnoringCase(const TCHAR* Left, const TCHAR* Right, int32 Length);
	static uint32 HashIgnoringCase(const TCHAR* Text, int32 Length);

	// Searching

	/** @return The index of the first match, or from the end of the last that ends at or before StartPosition; or INDEX_NONE. */
	int32 Find(const TCHAR* SubString, int32 SubStringLength, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	int32 Find(const TCHAR* SubString, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(SubString, FCString::Strlen(SubString), SearchCase, SearchDir, StartPosition);
	}
	int32 Find(const FString& SubString, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(*SubString, SubString.Len(), SearchCase, SearchDir, StartPosition);
	}
	bool Contains(const TCHAR* SubString, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubString, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const FString& SubString, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubString, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool FindChar(TCHAR Char, int32& Index) const;
	bool FindLastChar(TCHAR Char, int32& Index) const;
	template <typename PredicateType>
	int32 FindLastCharByPredicate(PredicateType Predicate) const
	{
		for (int32 Index = Len() - 1; Index >= 0; --Index)
		{
			if (Predicate(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	/** An empty text begins and ends nothing. */
	bool StartsWith(const TCHAR* Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool StartsWith(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(const TCHAR* Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool EndsWith(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** "*" stands for any text, "?" for any one character. */
	bool MatchesWildcard(const TCHAR* Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool MatchesWildcard(const FString& Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return MatchesWildcard(*Wildcard, SearchCase);
	}

	// Pieces; what lies outside the text is left out

	FString Left(int32 Count) const;
	/** Without the last Count characters. */
	FString LeftChop(int32 Count) const;
	FString Right(int32 Count) const;
	/** Without the first Count characters. */
	FString RightChop(int32 Count) const;
	FString Mid(int32 Start, int32 Count = MAX_int32) const;
	void LeftInline(int32 Count, bool bAllowShrinking = true);
	void LeftChopInline(int32 Count, bool bAllowShrinking = true);
	void RightInline(int32 Count, bool bAllowShrinking = true);
	void RightChopInline(int32 Count, bool bAllowShrinking = true);
	void MidInline(int32 Start, int32 Count = MAX_int32, bool bAllowShrinking = true);
	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true);
	bool RemoveFromStart(const TCHAR* Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromStart(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(const TCHAR* Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	/** Cuts at the first (or last) match; false, with both outputs left alone, without one. Each output may be null. */
	bool Split(const FString& Separator, FString* LeftPart, FString* RightPart,
		ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	/** @return How many pieces there are; empty ones are dropped unless told otherwise. The delimiter is matched exactly. */
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bCullEmpty = true) const;
	int32 ParseIntoArray(
		TArray<FString>& OutArray, const TCHAR* const* Delimiters, int32 NumDelimiters, bool bCullEmpty = true) const;
	/** Lines end at LF, CRLF or CR. */
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool bCullEmpty = true) const;
	/** Pieces between blanks, tabs, line ends and, if given, one delimiter more. */
	int32 ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* ExtraDelimiter = nullptr, bool bCullEmpty = true) const;
	static FString Join(const TArray<FString>& Parts, const TCHAR* Separator);
	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Part : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += Part;
		}
		return Result;
	}

	// Changed copies, and changes in place

	/** What was put in is not searched again. */
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** @return How often From was found. */
	int32 ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	FString& ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	FString ToLower() const;
	FString ToUpper() const;
	void ToLowerInline();
	void ToUpperInline();
	FString TrimStart() const;
	FString TrimEnd() const;
	FString TrimStartAndEnd() const;
	void TrimStartInline();
	void TrimEndInline();
	void TrimStartAndEndInline();
	/** Takes one double quote from each end that has one. */
	FString TrimQuotes(bool* bQuotesRemoved = nullptr) const;
	FString Reverse() const;
	FString LeftPad(int32 CharacterCount) const;
	FString RightPad(int32 CharacterCount) const;
	FString ConvertTabsToSpaces(int32 SpacesPerTab) const;
	/** Escapes with backslashes; without a set: newline, carriage return, tab, single quote, double quote and backslash. */
	FString ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars = nullptr) const;
	FString ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars = nullptr) const;
	FString ReplaceQuotesWithEscapedQuotes() const;

	// Numbers

	bool IsNumeric() const { return !IsEmpty() && FCString::IsNumeric(**this); }
	bool ToBool() const { return FCString::ToBool(**this); }
	static FString FromInt(int32 Number);
	static FString Chr(TCHAR Char) { return FString(1, &Char); }
	static FString ChrN(int32 Count, TCHAR Char);
	/** As %f prints it, with zeros trimmed down to MinFractionalDigits; never "-0.0". */
	static FString SanitizeFloat(double Value, int32 MinFractionalDigits = 1);

	/** As C's printf, for numbers, enums and pointers only; %s takes TCHAR text, %S narrow text. */
	template <typename FormatType, typename... Types, typename = TPrintable<Types...>>
	static FString Printf(const FormatType& Format, Types... Args)
	{
		static_assert(
			std::is_array_v<FormatType> && std::is_same_v<std::remove_cv_t<std::remove_all_extents_t<FormatType>>, TCHAR>,
			"The format is a TCHAR literal");
		return PrintfImpl(Format, Args...);
	}
	template <typename FormatType, typename... Types, typename = TPrintable<Types...>>
	FString& Appendf(const FormatType& Format, Types... Args)
	{
		static_assert(std::is_array_v<FormatType>, "The format is a TCHAR literal");
		return AppendfImpl(Format, Args...);
	}

private:
	static FString PrintfImpl(const TCHAR* Format, ...);
	FString& AppendfImpl(const TCHAR* Format, ...);

	DataType Data;
};

static_assert(sizeof(FString) == 16, "A string costs no more than its array");

inline uint32 GetTypeHash(const FString& Text)
{
	return FString::HashIgnoringCase(*Text, Text.Len());
}

CORE_API FString LexToString(int32 Value);
CORE_API FString LexToString(uint32 Value);
CORE_API FString LexToString(int64 Value);
CORE_API FString LexToString(uint64 Value);
CORE_API FString LexToString(long Value);
CORE_API FString LexToString(unsigned long Value);
CORE_API FString LexToString(float Value);
CORE_API FString LexToString(double Value);
CORE_API FString LexToString(bool bValue);
inline FString LexToString(FString Value)
{
	return Value;
}
inline FString LexToString(const TCHAR* Value)
{
	return FString(Value);
}

CORE_API void LexFromString(int32& OutValue, const TCHAR* Text);
CORE_API void LexFromString(int64& OutValue, const TCHAR* Text);
CORE_API void LexFromString(float& OutValue, const TCHAR* Text);
CORE_API void LexFromString(double& OutValue, const TCHAR* Text);
CORE_API void LexFromString(bool& OutValue, const TCHAR* Text);
CORE_API void LexFromString(FString& OutValue, const TCHAR* Text);
