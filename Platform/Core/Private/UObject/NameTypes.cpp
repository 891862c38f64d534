#include "UObject/NameTypes.h"

#include "Logging/LogMacros.h"
#include "UObject/NameTable.h"

DEFINE_LOG_CATEGORY_STATIC(LogUnrealNames, Log, All);

namespace
{
struct FNameParts
{
	int32 Length;
	int32 Number = NAME_NO_NUMBER_INTERNAL;
};

/** Takes "_12" off the end: decimal digits without a leading zero, below the largest int32, with something in front. */
FNameParts SplitNumber(const TCHAR* Text, int32 Length)
{
	int32 FirstDigit = Length;
	while (FirstDigit > 0 && FChar::IsDigit(Text[FirstDigit - 1]))
	{
		--FirstDigit;
	}
	const int32 NumDigits = Length - FirstDigit;
	if (NumDigits == 0 || NumDigits > 10 || FirstDigit < 2 || Text[FirstDigit - 1] != u'_' ||
		(Text[FirstDigit] == u'0' && NumDigits > 1))
	{
		return {Length};
	}
	int64 Number = 0;
	for (int32 Index = FirstDigit; Index < Length; ++Index)
	{
		Number = Number * 10 + (Text[Index] - u'0');
	}
	if (Number >= MAX_int32)
	{
		return {Length};
	}
	return {FirstDigit - 1, NAME_EXTERNAL_TO_INTERNAL(int32(Number))};
}

/** False, with an Error line for a text that is too long, where only NAME_None will do. */
bool FindIndices(const TCHAR* Text, int32 Length, EFindName FindType, FNameTable::FIndices& OutIndices)
{
	if (Length >= NAME_SIZE)
	{
		UE_LOG(
			LogUnrealNames, Error, TEXT("A name has at most %d characters, found %d: '%.64s...'"), NAME_SIZE - 1, Length, Text);
		return false;
	}
	return FNameTable::Get().Find(Text, Length, FindType == FNAME_Add, OutIndices);
}
}

FName::FName(const TCHAR* Text, EFindName FindType)
	: FName(Text ? FCString::Strlen(Text) : 0, Text, FindType)
{
}

FName::FName(const ANSICHAR* Text, EFindName FindType)
{
	const FUTF8ToTCHAR Wide(Text);
	*this = FName(Wide.Length(), Wide.Get(), FindType);
}

FName::FName(int32 Length, const TCHAR* Text, EFindName FindType)
{
	if (Length <= 0)
	{
		return;
	}
	const FNameParts Parts = SplitNumber(Text, Length);
	FNameTable::FIndices Indices;
	if (FindIndices(Text, Parts.Length, FindType, Indices))
	{
		ComparisonIndex = Indices.Comparison;
		DisplayIndex = Indices.Display;
		Number = Parts.Number;
	}
}

FName::FName(const TCHAR* Text, int32 InNumber)
{
	FNameTable::FIndices Indices;
	const int32 Length = Text ? FCString::Strlen(Text) : 0;
	if (Length > 0 && FindIndices(Text, Length, FNAME_Add, Indices))
	{
		ComparisonIndex = Indices.Comparison;
		DisplayIndex = Indices.Display;
		Number = InNumber;
	}
}

FString FName::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FName::ToString(FString& Out) const
{
	Out.Reset();
	AppendString(Out);
}

void FName::AppendString(FString& Out) const
{
	// NAME_None prints "None", however it was spelled.
	const FNameTable::FEntry& Entry = FNameTable::Get().GetEntry(ComparisonIndex == 0 ? 0 : DisplayIndex);
	TCHAR Text[NAME_SIZE];
	Entry.CopyTo(Text);
	Out.AppendChars(Text, Entry.Length);
	if (Number != NAME_NO_NUMBER_INTERNAL)
	{
		Out.AppendChar(u'_');
		Out.AppendInt(NAME_INTERNAL_TO_EXTERNAL(Number));
	}
}

FString FName::GetPlainNameString() const
{
	return FName(*this, NAME_NO_NUMBER_INTERNAL).ToString();
}

uint32 FName::GetStringLength() const
{
	return uint32(ToString().Len());
}

bool FName::IsValid() const
{
	return FNameTable::Get().Contains(ComparisonIndex) && FNameTable::Get().Contains(DisplayIndex);
}

bool FName::operator==(const TCHAR* Other) const
{
	const FString Text = ToString();
	return Other && *Other ? Text == Other : IsNone();
}

int32 FName::Compare(const FName& Other) const
{
	if (ComparisonIndex == Other.ComparisonIndex)
	{
		return Number < Other.Number ? -1 : Number > Other.Number;
	}
	return GetPlainNameString().Compare(Other.GetPlainNameString(), ESearchCase::IgnoreCase);
}
