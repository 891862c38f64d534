#include "Internationalization/Text.h"

#include "Internationalization/TextData.h"

#include <unicode/ucol.h>
#include <unicode/unum.h>

FText::FText(const FText& Other)
	: Data(Other.Data)
{
	if (Data)
	{
		Data->AddReference();
	}
}

FText::~FText()
{
	if (Data)
	{
		Data->Release();
	}
}

FText& FText::operator=(const FText& Other)
{
	FText Copy(Other);
	::Swap(Data, Copy.Data);
	return *this;
}

const FText& FText::GetEmpty()
{
	static const FText Empty;
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return FromString(FString(String));
}

FText FText::FromString(FString&& String)
{
	return String.IsEmpty() ? FText() : FText(new FTextData(MoveTemp(String)));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

const FString& FText::ToString() const
{
	static const FString Empty;
	return Data ? Data->String : Empty;
}

bool FText::IsEmptyOrWhitespace() const
{
	return ToString().TrimStart().IsEmpty();
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Texts)
{
	FString Result;
	for (int32 Index = 0; Index < Texts.Num(); ++Index)
	{
		if (Index > 0)
		{
			Result += Delimiter.ToString();
		}
		Result += Texts[Index].ToString();
	}
	return FromString(MoveTemp(Result));
}

namespace
{
UNumberFormat* MakeNumberFormat()
{
	UErrorCode Status = U_ZERO_ERROR;
	UNumberFormat* const Format = unum_open(UNUM_DECIMAL, nullptr, 0, "en_US", nullptr, &Status);
	checkf(U_SUCCESS(Status), TEXT("No number format for English: %S"), u_errorName(Status));
	unum_setAttribute(Format, UNUM_MAX_FRACTION_DIGITS, 3);
	return Format;
}

/** Formats are not safe for several threads at once. */
const UNumberFormat* GetNumberFormat()
{
	static thread_local const UNumberFormat* const Format = MakeNumberFormat();
	return Format;
}

UCollator* MakeCollator(UCollationStrength Strength)
{
	UErrorCode Status = U_ZERO_ERROR;
	UCollator* const Collator = ucol_open("en_US", &Status);
	checkf(U_SUCCESS(Status), TEXT("No collation for English: %S"), u_errorName(Status));
	ucol_setStrength(Collator, Strength);
	return Collator;
}

int32 Collate(const UCollator* Collator, const FString& Left, const FString& Right)
{
	return ucol_strcoll(Collator, *Left, Left.Len(), *Right, Right.Len());
}

constexpr int32 MaxNumberLength = 512;
}

FText FText::AsNumber(int64 Value)
{
	UErrorCode Status = U_ZERO_ERROR;
	TCHAR Buffer[MaxNumberLength];
	return FromString(FString(unum_formatInt64(GetNumberFormat(), Value, Buffer, MaxNumberLength, nullptr, &Status), Buffer));
}

FText FText::AsNumber(double Value)
{
	UErrorCode Status = U_ZERO_ERROR;
	TCHAR Buffer[MaxNumberLength];
	return FromString(FString(unum_formatDouble(GetNumberFormat(), Value, Buffer, MaxNumberLength, nullptr, &Status), Buffer));
}

FText FText::AsNumber(uint64 Value)
{
	const FString Digits = LexToString(Value);
	UErrorCode Status = U_ZERO_ERROR;
	TCHAR Buffer[MaxNumberLength];
	const FTCHARToUTF8 Decimal(*Digits);
	const int32 Length =
		unum_formatDecimal(GetNumberFormat(), Decimal.Get(), Decimal.Length(), Buffer, MaxNumberLength, nullptr, &Status);
	return FromString(FString(Length, Buffer));
}

FText FText::AsNumber(int32 Value)
{
	return AsNumber(int64(Value));
}

FText FText::AsNumber(uint32 Value)
{
	return AsNumber(int64(Value));
}

FText FText::AsNumber(float Value)
{
	return AsNumber(double(Value));
}

int32 FText::CompareTo(const FText& Other) const
{
	static const UCollator* const Collator = MakeCollator(UCOL_TERTIARY);
	return Collate(Collator, ToString(), Other.ToString());
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	static const UCollator* const Collator = MakeCollator(UCOL_SECONDARY);
	return Collate(Collator, ToString(), Other.ToString());
}
