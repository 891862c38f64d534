#include "Serialization/JsonParser.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"

#include <charconv>
#include <cstdlib>

#include <rapidjson/reader.h>

namespace
{
constexpr int32 GMaxDepth = 5000;

/** UTF-16 whose surrogates need not come in pairs, as strings in memory are. */
struct FLenientUtf16 : rapidjson::UTF16<TCHAR>
{
	template <typename OutputStream>
	static void Encode(OutputStream& Output, unsigned CodePoint)
	{
		if (CodePoint < 0x10000)
		{
			Output.Put(TCHAR(CodePoint));
			return;
		}
		Output.Put(TCHAR(0xD800 + ((CodePoint - 0x10000) >> 10)));
		Output.Put(TCHAR(0xDC00 + ((CodePoint - 0x10000) & 0x3FF)));
	}
};

/**
 * The text as the tokenizer sees it. It refuses control characters within strings, which descriptions written by hand contain
 * and the engine reads; there it is shown other characters in their place.
 *
 * The tokenizer believes that it decodes strings in place. In truth the text stays as it is: a string is a part of the text
 * and needs a buffer only if it has escapes.
 */
class FTextStream
{
public:
	using Ch = TCHAR;

	explicit FTextStream(const FString& Text)
		: Begin(*Text)
		, Current(*Text)
		, End(*Text + Text.Len())
	{
	}

	/** Zero at the end, and at a zero character within the text. */
	Ch Peek() const
	{
		const Ch Char = *Current;
		return UNLIKELY(Char < 0x20) && bInString && Char != 0 ? GControlStandIn : Char;
	}

	Ch Take()
	{
		const Ch Char = Peek();
		if (bEscaped)
		{
			bEscaped = false;
		}
		else if (UNLIKELY(Char == '"'))
		{
			bInString = !bInString;
		}
		else if (UNLIKELY(Char == '\\' && bInString))
		{
			BeginEscape();
		}
		Current += Current != End ? 1 : 0;
		return Char;
	}

	/** White space stands between strings, where no character needs a second look. */
	void SkipWhitespace()
	{
		while (*Current == ' ' || *Current == '\t' || *Current == '\n' || *Current == '\r')
		{
			++Current;
		}
	}

	size_t Tell() const { return size_t(Current - Begin); }
	bool IsAtEnd() const { return Current == End; }

	/** The characters in front of the next one, as far back as a condition holds. */
	template <typename PredicateType>
	TArrayView<const Ch> GetTextBefore(PredicateType Predicate) const
	{
		const Ch* First = Current;
		while (First != Begin && Predicate(First[-1]))
		{
			--First;
		}
		return TArrayView<const Ch>(First, int32(Current - First));
	}

	/** The string that was just read, between its quotes. */
	FString GetString() const
	{
		return bHasEscapes ? FString(Unescaped.Num(), Unescaped.GetData())
						   : FString(int32(Current - 1 - StringBegin), StringBegin);
	}

	// What the tokenizer writes a string with.

	Ch* PutBegin()
	{
		StringBegin = Current;
		bHasEscapes = false;
		return nullptr;
	}

	void Put(Ch Char)
	{
		// The zero behind the closing quote is no part of the string.
		if (UNLIKELY(bHasEscapes) && bInString)
		{
			Unescaped.Add(Char == GControlStandIn && Current[-1] < 0x20 ? Current[-1] : Char);
		}
	}

	void Flush() {}
	size_t PutEnd(Ch*) { return 1; }

private:
	/** Any character that the tokenizer lets pass. */
	static constexpr Ch GControlStandIn = 0x7F;

	void BeginEscape()
	{
		bEscaped = true;
		if (!bHasEscapes)
		{
			bHasEscapes = true;
			Unescaped.Reset();
			Unescaped.Append(StringBegin, int32(Current - StringBegin));
		}
	}

	const Ch* Begin;
	const Ch* Current;
	const Ch* End;
	/** Behind the opening quote of the string that was met last. */
	const Ch* StringBegin = nullptr;
	/** That string, if it has escapes. */
	TArray<Ch> Unescaped;
	bool bHasEscapes = false;
	bool bInString = false;
	/** Whether the next character stands behind a backslash. */
	bool bEscaped = false;
};

}

namespace rapidjson
{
template <>
inline void SkipWhitespace(FTextStream& Stream)
{
	Stream.SkipWhitespace();
}
}

namespace
{
/** Makes values of what the tokenizer meets. */
class FValueBuilder
{
public:
	explicit FValueBuilder(FTextStream& InStream)
		: Stream(InStream)
	{
	}

	TSharedPtr<FJsonValue> TakeRoot() { return MoveTemp(Root); }

	/** Why this stopped the reading, or null if it did not. */
	const TCHAR* GetReasonOfStop() const { return ReasonOfStop; }

	bool Null() { return Add(MakeShared<FJsonValueNull>()); }
	bool Bool(bool bValue) { return Add(MakeShared<FJsonValueBoolean>(bValue)); }
	bool String(const TCHAR*, rapidjson::SizeType, bool) { return Add(MakeShared<FJsonValueString>(Stream.GetString())); }

	bool Int(int Number) { return AddNumber(Number); }
	bool Uint(unsigned Number) { return AddNumber(Number); }
	bool Int64(int64_t Number) { return AddNumber(double(Number)); }
	bool Uint64(uint64_t Number) { return AddNumber(double(Number)); }

	/** The tokenizer's double may be a few units off; the text behind the stream gives the nearest one. */
	bool Double(double)
	{
		const double Number = ReadNumber(Stream.GetTextBefore([](TCHAR Char)
			{ return FChar::IsDigit(Char) || Char == '.' || Char == '-' || Char == '+' || Char == 'e' || Char == 'E'; }));
		return FMath::IsFinite(Number) ? AddNumber(Number) : Stop(TEXT("The number is too big."));
	}

	/** Only for a tokenizer that is told to hand numbers over as text. */
	bool RawNumber(const TCHAR*, rapidjson::SizeType, bool) { return false; }

	bool StartObject() { return Open(true); }

	bool Key(const TCHAR*, rapidjson::SizeType, bool)
	{
		Entries.Emplace(Stream.GetString());
		return true;
	}

	bool EndObject(rapidjson::SizeType NumMembers)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->Values.Reserve(int32(NumMembers));
		for (int32 Index = Entries.Num() - int32(NumMembers); Index < Entries.Num(); ++Index)
		{
			Object->Values.Add(MoveTemp(Entries[Index].Name), MoveTemp(Entries[Index].Value));
		}
		return Close(NumMembers, MakeShared<FJsonValueObject>(Object));
	}

	bool StartArray() { return Open(false); }

	bool EndArray(rapidjson::SizeType NumElements)
	{
		TArray<TSharedPtr<FJsonValue>> Elements;
		Elements.Reserve(int32(NumElements));
		for (int32 Index = Entries.Num() - int32(NumElements); Index < Entries.Num(); ++Index)
		{
			Elements.Add(MoveTemp(Entries[Index].Value));
		}
		return Close(NumElements, MakeShared<FJsonValueArray>(MoveTemp(Elements)));
	}

private:
	/** A field or element of a container that is still open. */
	struct FEntry
	{
		explicit FEntry(FString&& InName)
			: Name(MoveTemp(InName))
		{
		}

		explicit FEntry(TSharedPtr<FJsonValue>&& InValue)
			: Value(MoveTemp(InValue))
		{
		}

		FString Name;
		TSharedPtr<FJsonValue> Value;
	};

	bool AddNumber(double Number) { return Add(MakeShared<FJsonValueNumber>(Number)); }

	bool Add(TSharedPtr<FJsonValue> Value)
	{
		if (OpenContainers.Num() == 0)
		{
			Root = MoveTemp(Value);
		}
		else if (OpenContainers.Last())
		{
			Entries.Last().Value = MoveTemp(Value);
		}
		else
		{
			Entries.Emplace(MoveTemp(Value));
		}
		return true;
	}

	bool Open(bool bObject)
	{
		if (OpenContainers.Num() == GMaxDepth)
		{
			return Stop(TEXT("Objects and arrays are nested deeper than 5000 levels."));
		}
		OpenContainers.Add(bObject);
		return true;
	}

	bool Close(rapidjson::SizeType NumEntries, TSharedPtr<FJsonValue> Container)
	{
		Entries.RemoveAt(Entries.Num() - int32(NumEntries), int32(NumEntries), false);
		OpenContainers.Pop(false);
		return Add(MoveTemp(Container));
	}

	bool Stop(const TCHAR* Reason)
	{
		ReasonOfStop = Reason;
		return false;
	}

	/** To the nearest double: 0 for what is too small for one, infinity for what is too big. The syntax is known to be right. */
	static double ReadNumber(TArrayView<const TCHAR> Text)
	{
		TArray<char, TInlineAllocator<64>> Narrow;
		Narrow.Reserve(Text.Num() + 1);
		for (const TCHAR Char : Text)
		{
			Narrow.Add(char(Char));
		}
		Narrow.Add('\0');

		double Number = 0.0;
		const char* Begin = Narrow.GetData();
		const bool bOutOfRange = std::from_chars(Begin, Begin + Text.Num(), Number).ec == std::errc::result_out_of_range;
		return bOutOfRange ? std::strtod(Begin, nullptr) : Number;
	}

	FTextStream& Stream;
	TArray<FEntry> Entries;
	/** For each open container, outermost first, whether it is an object. */
	TArray<bool> OpenContainers;
	TSharedPtr<FJsonValue> Root;
	const TCHAR* ReasonOfStop = nullptr;
};

const TCHAR* MessageOf(rapidjson::ParseErrorCode Code)
{
	switch (Code)
	{
		case rapidjson::kParseErrorDocumentEmpty:
			return TEXT("Open Curly or Square Brace token expected, but not found.");
		case rapidjson::kParseErrorDocumentRootNotSingular:
			return TEXT("Unexpected additional input found.");
		case rapidjson::kParseErrorObjectMissName:
			return TEXT("String token expected, but not found.");
		case rapidjson::kParseErrorObjectMissColon:
			return TEXT("Colon token expected, but not found.");
		case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
			return TEXT("Comma or Close Curly Brace token expected, but not found.");
		case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
			return TEXT("Comma or Close Square Brace token expected, but not found.");
		case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
			return TEXT("Four hexadecimal digits expected behind \\u, but not found.");
		case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
			return TEXT("The second half of a surrogate pair expected behind \\u, but not found.");
		case rapidjson::kParseErrorStringEscapeInvalid:
			return TEXT("Bad Json escaped char; a backslash itself is written as two.");
		case rapidjson::kParseErrorStringMissQuotationMark:
			return TEXT("Closing quotation mark expected, but not found.");
		case rapidjson::kParseErrorNumberTooBig:
			return TEXT("The number is too big.");
		case rapidjson::kParseErrorNumberMissFraction:
		case rapidjson::kParseErrorNumberMissExponent:
			return TEXT("Poorly formed Number Token.");
		default:
			return TEXT("Value expected, but not found.");
	}
}
}

TSharedPtr<FJsonValue> ParseJsonText(const FString& Text, FJsonSyntaxError& OutError)
{
	FTextStream Stream(Text);
	rapidjson::SkipWhitespace(Stream);
	if (Stream.Peek() != '{' && Stream.Peek() != '[')
	{
		OutError = {MessageOf(rapidjson::kParseErrorDocumentEmpty), int32(Stream.Tell())};
		return nullptr;
	}

	FValueBuilder Builder(Stream);
	rapidjson::GenericReader<FLenientUtf16, FLenientUtf16> Reader;
	const rapidjson::ParseResult Result =
		Reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseInsituFlag>(Stream, Builder);
	if (Result.IsError())
	{
		const TCHAR* Reason = Builder.GetReasonOfStop();
		OutError = {Reason ? Reason : MessageOf(Result.Code()), int32(Result.Offset())};
		return nullptr;
	}
	if (!Stream.IsAtEnd())
	{
		// A zero character, which to the tokenizer is the end.
		OutError = {MessageOf(rapidjson::kParseErrorDocumentRootNotSingular), int32(Stream.Tell())};
		return nullptr;
	}
	return Builder.TakeRoot();
}
