#pragma once

#include "CoreMinimal.h"
#include "Policies/PrettyJsonPrintPolicy.h"
#include "Serialization/JsonTypes.h"

namespace JsonWriterInternals
{
/** What a token means for the layout of the next one. */
enum class EToken : uint8
{
	None,
	Open,
	CloseObject,
	CloseArray,
	String,
	ShortValue
};

/** In quotes. "/" and what is not ASCII stay as they are; control characters are escaped. */
JSON_API void AppendString(FString& Text, const FString& String);

/** As "%.17g" prints it, so that reading gives the same double again. */
JSON_API void AppendNumber(FString& Text, double Number);

/** As "%g" prints it. */
JSON_API void AppendNumber(FString& Text, float Number);

JSON_API void AppendNumber(FString& Text, int64 Number);
JSON_API void AppendNumber(FString& Text, uint64 Number);
}

/**
 * Writes a JSON text token by token. The caller keeps to the grammar; fields take a name, the root and elements of arrays do
 * not. The target receives the text when the writer is closed.
 *
 * The pretty layout: an object or array behind a name opens on the next line; the numbers, booleans and nulls of an array
 * share its line, its strings, objects and arrays get lines of their own.
 */
template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriter
{
	using EToken = JsonWriterInternals::EToken;

public:
	TJsonWriter(FString* InTarget, int32 InitialIndentLevel)
		: Target(InTarget)
		, IndentLevel(InitialIndentLevel)
	{
	}

	int32 GetIndentLevel() const { return IndentLevel; }

	void WriteObjectStart() { Open(TEXT('{'), EJson::Object); }
	void WriteObjectStart(const FString& Identifier) { Open(Identifier, TEXT('{'), EJson::Object); }

	void WriteObjectEnd()
	{
		check(Stack.Num() > 0 && Stack.Last() == EJson::Object);
		Stack.Pop(false);
		--IndentLevel;
		WriteLineStart();
		Text += TEXT('}');
		PreviousToken = EToken::CloseObject;
	}

	void WriteArrayStart() { Open(TEXT('['), EJson::Array); }
	void WriteArrayStart(const FString& Identifier) { Open(Identifier, TEXT('['), EJson::Array); }

	void WriteArrayEnd()
	{
		check(Stack.Num() > 0 && Stack.Last() == EJson::Array);
		Stack.Pop(false);
		--IndentLevel;
		if (PreviousToken == EToken::ShortValue)
		{
			PrintPolicy::WriteSpace(Text);
		}
		else if (PreviousToken != EToken::Open)
		{
			WriteLineStart();
		}
		Text += TEXT(']');
		PreviousToken = EToken::CloseArray;
	}

	template <typename ValueType>
	void WriteValue(const ValueType& Value)
	{
		check(Stack.Num() > 0 && Stack.Last() == EJson::Array);
		WriteCommaIfNeeded();
		const bool bSharesLine =
			TokenOf(Value) == EToken::ShortValue && (PreviousToken == EToken::Open || PreviousToken == EToken::ShortValue);
		if (bSharesLine)
		{
			PrintPolicy::WriteSpace(Text);
		}
		else
		{
			WriteLineStart();
		}
		WriteValueOnly(Value);
	}

	template <typename ValueType>
	void WriteValue(const FString& Identifier, const ValueType& Value)
	{
		WriteIdentifier(Identifier);
		PrintPolicy::WriteSpace(Text);
		WriteValueOnly(Value);
	}

	void WriteNull() { WriteValue(nullptr); }
	void WriteNull(const FString& Identifier) { WriteValue(Identifier, nullptr); }

	/** Hands the text over. @return Whether everything that was opened had been ended, and something written at all. */
	bool Close()
	{
		if (Target)
		{
			*Target = MoveTemp(Text);
			Target = nullptr;
		}
		return PreviousToken != EToken::None && Stack.Num() == 0;
	}

private:
	static EToken TokenOf(const FString&) { return EToken::String; }
	static EToken TokenOf(const TCHAR*) { return EToken::String; }
	template <typename ValueType>
	static EToken TokenOf(const ValueType&)
	{
		return EToken::ShortValue;
	}

	void WriteLineStart()
	{
		PrintPolicy::WriteLineTerminator(Text);
		PrintPolicy::WriteTabs(Text, IndentLevel);
	}

	void WriteCommaIfNeeded()
	{
		if (PreviousToken != EToken::None && PreviousToken != EToken::Open)
		{
			Text += TEXT(',');
		}
	}

	void WriteIdentifier(const FString& Identifier)
	{
		check(Stack.Num() > 0 && Stack.Last() == EJson::Object);
		WriteCommaIfNeeded();
		WriteLineStart();
		JsonWriterInternals::AppendString(Text, Identifier);
		Text += TEXT(':');
	}

	void Open(TCHAR Bracket, EJson Type)
	{
		check(Stack.Num() > 0 ? Stack.Last() == EJson::Array : PreviousToken == EToken::None);
		if (PreviousToken != EToken::None)
		{
			WriteCommaIfNeeded();
			WriteLineStart();
		}
		Push(Bracket, Type);
	}

	void Open(const FString& Identifier, TCHAR Bracket, EJson Type)
	{
		WriteIdentifier(Identifier);
		WriteLineStart();
		Push(Bracket, Type);
	}

	void Push(TCHAR Bracket, EJson Type)
	{
		Text += Bracket;
		++IndentLevel;
		Stack.Add(Type);
		PreviousToken = EToken::Open;
	}

	void WriteValueOnly(decltype(nullptr))
	{
		Text += TEXT("null");
		PreviousToken = EToken::ShortValue;
	}

	void WriteValueOnly(bool bValue)
	{
		Text += bValue ? TEXT("true") : TEXT("false");
		PreviousToken = EToken::ShortValue;
	}

	void WriteValueOnly(const FString& Value)
	{
		JsonWriterInternals::AppendString(Text, Value);
		PreviousToken = EToken::String;
	}

	void WriteValueOnly(const TCHAR* Value) { WriteValueOnly(FString(Value)); }

	template <typename NumberType>
	std::enable_if_t<std::is_arithmetic_v<NumberType>> WriteValueOnly(NumberType Value)
	{
		using FWritten = std::conditional_t<std::is_floating_point_v<NumberType>, NumberType,
			std::conditional_t<std::is_signed_v<NumberType>, int64, uint64>>;
		JsonWriterInternals::AppendNumber(Text, FWritten(Value));
		PreviousToken = EToken::ShortValue;
	}

	FString* Target;
	FString Text;
	TArray<EJson> Stack;
	int32 IndentLevel;
	EToken PreviousToken = EToken::None;
};

template <class CharType = TCHAR, class PrintPolicy = TPrettyJsonPrintPolicy<CharType>>
class TJsonWriterFactory
{
public:
	/** The target must live until the writer is closed. */
	static TSharedRef<TJsonWriter<CharType, PrintPolicy>> Create(FString* Target, int32 InitialIndent = 0)
	{
		return MakeShared<TJsonWriter<CharType, PrintPolicy>>(Target, InitialIndent);
	}
};
