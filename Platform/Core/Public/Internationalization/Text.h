#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

class FFormatArgumentValue;
class FTextData;

using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

/** A text for users: shared, never changed. A copy costs a counter. */
class CORE_API FText
{
public:
	FText() = default;
	FText(const FText& Other);
	FText(FText&& Other) noexcept
		: Data(Exchange(Other.Data, nullptr))
	{
	}
	~FText();
	FText& operator=(const FText& Other);
	FText& operator=(FText&& Other) noexcept
	{
		::Swap(Data, Other.Data);
		return *this;
	}

	static const FText& GetEmpty();
	/** A text that is never translated and gives its string back unchanged. */
	static FText FromString(const FString& String);
	static FText FromString(FString&& String);
	static FText FromName(const FName& Name);
	static FText AsCultureInvariant(const FString& String) { return FromString(String); }
	static FText AsCultureInvariant(FString&& String) { return FromString(MoveTemp(String)); }

	/** With thousands grouped by commas and at most three digits behind the point. */
	static FText AsNumber(int32 Value);
	static FText AsNumber(uint32 Value);
	static FText AsNumber(int64 Value);
	static FText AsNumber(uint64 Value);
	static FText AsNumber(float Value);
	static FText AsNumber(double Value);

	/**
	 * Puts arguments into the places "{Name}" or "{0}" of a pattern. A place without an argument stays as it is written; a
	 * backtick takes the meaning from a following "{", "}" or backtick.
	 */
	static FText Format(const FText& Pattern, const FFormatNamedArguments& Arguments);
	static FText Format(const FText& Pattern, const FFormatOrderedArguments& Arguments);
	template <typename... ArgTypes>
	static FText Format(const FText& Pattern, ArgTypes... Args);
	/** Names and values in turn: FormatNamed(Pattern, TEXT("Name"), Value, ...). */
	template <typename... ArgTypes>
	static FText FormatNamed(const FText& Pattern, ArgTypes&&... Args);
	template <typename... ArgTypes>
	static FText FormatOrdered(const FText& Pattern, ArgTypes&&... Args);
	/** Joins texts, with the delimiter between. */
	static FText Join(const FText& Delimiter, const TArray<FText>& Texts);

	const FString& ToString() const;
	bool IsEmpty() const { return ToString().IsEmpty(); }
	bool IsEmptyOrWhitespace() const;
	bool IsNumeric() const { return ToString().IsNumeric(); }

	/** Whether both read the same. */
	bool EqualTo(const FText& Other) const { return Data == Other.Data || ToString().Equals(Other.ToString()); }
	bool EqualToCaseIgnored(const FText& Other) const { return ToString() == Other.ToString(); }
	/** Whether both are the same text: copies of one, or made from the same namespace and key. */
	bool IdenticalTo(const FText& Other) const { return Data == Other.Data; }
	/** By the rules of the English alphabet, where case counts last: less than, equal to or more than 0. */
	int32 CompareTo(const FText& Other) const;
	int32 CompareToCaseIgnored(const FText& Other) const;

private:
	friend class FInternationalization;

	explicit FText(FTextData* InData)
		: Data(InData)
	{
	}

	/** Null is the empty text. */
	FTextData* Data = nullptr;
};

static_assert(sizeof(FText) <= 24, "A text is cheap to keep");

/** What FText::Format can put into a pattern. */
class CORE_API FFormatArgumentValue
{
public:
	FFormatArgumentValue() = default;
	FFormatArgumentValue(const FText& Value)
		: Text(Value)
	{
	}
	FFormatArgumentValue(FText&& Value)
		: Text(MoveTemp(Value))
	{
	}
	FFormatArgumentValue(int32 Value)
		: Text(FText::AsNumber(Value))
	{
	}
	FFormatArgumentValue(uint32 Value)
		: Text(FText::AsNumber(Value))
	{
	}
	FFormatArgumentValue(int64 Value)
		: Text(FText::AsNumber(Value))
	{
	}
	FFormatArgumentValue(uint64 Value)
		: Text(FText::AsNumber(Value))
	{
	}
	FFormatArgumentValue(float Value)
		: Text(FText::AsNumber(Value))
	{
	}
	FFormatArgumentValue(double Value)
		: Text(FText::AsNumber(Value))
	{
	}

	const FText& ToFormattedText() const { return Text; }

private:
	FText Text;
};

namespace UE::Core::Private
{
inline void AddNamedArguments(FFormatNamedArguments&)
{
}

template <typename ValueType, typename... RestTypes>
void AddNamedArguments(FFormatNamedArguments& Arguments, const TCHAR* Name, ValueType&& Value, RestTypes&&... Rest)
{
	Arguments.Add(FString(Name), FFormatArgumentValue(Forward<ValueType>(Value)));
	AddNamedArguments(Arguments, Forward<RestTypes>(Rest)...);
}
}

template <typename... ArgTypes>
FText FText::Format(const FText& Pattern, ArgTypes... Args)
{
	return Format(Pattern, FFormatOrderedArguments{FFormatArgumentValue(MoveTemp(Args))...});
}

template <typename... ArgTypes>
FText FText::FormatOrdered(const FText& Pattern, ArgTypes&&... Args)
{
	return Format(Pattern, FFormatOrderedArguments{FFormatArgumentValue(Forward<ArgTypes>(Args))...});
}

template <typename... ArgTypes>
FText FText::FormatNamed(const FText& Pattern, ArgTypes&&... Args)
{
	FFormatNamedArguments Arguments;
	UE::Core::Private::AddNamedArguments(Arguments, Forward<ArgTypes>(Args)...);
	return Format(Pattern, Arguments);
}

/** A text that is never translated, made once. */
#define INVTEXT(Literal) \
	[]() -> const FText& \
	{ \
		static const FText Text = FText::AsCultureInvariant(TEXT(Literal)); \
		return Text; \
	}()
