#pragma once

#include "Containers/UnrealString.h"
#include "UObject/UnrealNames.h"

enum EFindName
{
	/** Gives NAME_None for a text that is no name yet. */
	FNAME_Find,
	FNAME_Add
};

/**
 * A text in the global table of names, which is never cleaned up. Names are equal without regard to case; each keeps the
 * spelling that it was made with. A number at the end ("Base_12", no leading zeros) is stored apart and takes no room in the
 * table. An empty text and "None" in any case make NAME_None; so does a text of 1,024 characters or more, with an Error line.
 */
class CORE_API FName
{
public:
	FName() = default;
	FName(EName HardcodedIndex)
		: ComparisonIndex(HardcodedIndex)
		, DisplayIndex(HardcodedIndex)
	{
	}
	FName(const FName& Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, DisplayIndex(Other.DisplayIndex)
		, Number(InNumber)
	{
	}
	FName(const TCHAR* Text, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Text, EFindName FindType = FNAME_Add);
	FName(int32 Length, const TCHAR* Text, EFindName FindType = FNAME_Add);
	/** The text is not searched for a number. */
	FName(const TCHAR* Text, int32 InNumber);
	explicit FName(const FString& Text, EFindName FindType = FNAME_Add)
		: FName(Text.Len(), *Text, FindType)
	{
	}

	FString ToString() const;
	void ToString(FString& Out) const;
	void AppendString(FString& Out) const;
	FString GetPlainNameString() const;
	uint32 GetStringLength() const;

	int32 GetNumber() const { return Number; }
	void SetNumber(int32 NewNumber) { Number = NewNumber; }
	uint32 GetComparisonIndex() const { return ComparisonIndex; }
	uint32 GetDisplayIndex() const { return DisplayIndex; }
	bool IsNone() const { return ComparisonIndex == 0 && Number == NAME_NO_NUMBER_INTERNAL; }
	/** Whether the name's entry exists in the table, as it does unless memory was overwritten. */
	bool IsValid() const;

	bool operator==(FName Other) const { return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number; }
	bool operator!=(FName Other) const { return !(*this == Other); }
	bool operator==(EName Other) const { return ComparisonIndex == uint32(Other) && Number == NAME_NO_NUMBER_INTERNAL; }
	bool operator!=(EName Other) const { return !(*this == Other); }
	bool operator==(const TCHAR* Other) const;
	bool operator!=(const TCHAR* Other) const { return !(*this == Other); }
	bool IsEqual(FName Other) const { return *this == Other; }

	/** By the alphabet without case, then by number: less than, equal to or more than 0. */
	int32 Compare(const FName& Other) const;
	bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }
	/** Some order, the same as long as the process lives. */
	bool FastLess(const FName& Other) const
	{
		return ComparisonIndex != Other.ComparisonIndex ? ComparisonIndex < Other.ComparisonIndex : Number < Other.Number;
	}

private:
	uint32 ComparisonIndex = 0;
	uint32 DisplayIndex = 0;
	int32 Number = NAME_NO_NUMBER_INTERNAL;
};

static_assert(sizeof(FName) == 12, "A name is two indices and a number");

inline uint32 GetTypeHash(FName Name)
{
	return Name.GetComparisonIndex() + uint32(Name.GetNumber()) * 0x85EBCA6Bu;
}

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

inline void LexFromString(FName& OutName, const TCHAR* Text)
{
	OutName = FName(Text);
}

struct FNameLexicalLess
{
	bool operator()(const FName& Left, const FName& Right) const { return Left.LexicalLess(Right); }
};

struct FNameFastLess
{
	bool operator()(const FName& Left, const FName& Right) const { return Left.FastLess(Right); }
};
