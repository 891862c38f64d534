#include "Serialization/JsonReader.h"

#include <gtest/gtest.h>

#include "LogCapture.h"
#include "Printers.h"
#include "Serialization/JsonSerializer.h"

namespace
{
TSharedPtr<FJsonValue> Read(const FString& Text)
{
	TSharedPtr<FJsonValue> Value;
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Value));
	return Value;
}

/** The first element of an array. */
TSharedRef<FJsonValue> ReadElement(const FString& Element)
{
	const TSharedPtr<FJsonValue> Array = Read(TEXT("[") + Element + TEXT("]"));
	return Array.IsValid() && Array->AsArray().Num() == 1 ? Array->AsArray()[0].ToSharedRef() : MakeShared<FJsonValueNull>();
}

FString ErrorOf(const FString& Text)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
	TSharedPtr<FJsonValue> Value;
	EXPECT_FALSE(FJsonSerializer::Deserialize(Reader, Value));
	EXPECT_FALSE(Value.IsValid());
	return Reader->GetErrorMessage();
}

FString Nest(int32 Depth)
{
	FString Text;
	for (int32 Level = 0; Level < Depth; ++Level)
	{
		Text += Level % 2 ? TEXT("{\"a\":") : TEXT("[");
	}
	for (int32 Level = Depth; Level-- > 0;)
	{
		Text += Level % 2 ? (Level == Depth - 1 ? TEXT("0}") : TEXT("}")) : TEXT("]");
	}
	return Text;
}
}

TEST(JsonReader, ReadsEveryTypeOfValue)
{
	EXPECT_EQ(ReadElement(TEXT("null"))->Type, EJson::Null);
	EXPECT_EQ(ReadElement(TEXT("true"))->Type, EJson::Boolean);
	EXPECT_EQ(ReadElement(TEXT("\"5\""))->Type, EJson::String);
	EXPECT_EQ(ReadElement(TEXT("5"))->Type, EJson::Number);
	EXPECT_EQ(ReadElement(TEXT(" [ 1 , 2 ] "))->AsArray().Num(), 2);
	EXPECT_EQ(ReadElement(TEXT("{\"a\":{},\"b\":[]}"))->AsObject()->Values.Num(), 2);
}

TEST(JsonReader, ReadsNumbersToTheNearestDouble)
{
	EXPECT_EQ(ReadElement(TEXT("-0"))->AsNumber(), 0.0);
	EXPECT_EQ(ReadElement(TEXT("0.1"))->AsNumber(), 0.1);
	EXPECT_EQ(ReadElement(TEXT("1.7976931348623157e308"))->AsNumber(), 1.7976931348623157e308);
	EXPECT_EQ(ReadElement(TEXT("5e-324"))->AsNumber(), 5e-324);
	EXPECT_EQ(ReadElement(TEXT("1e-400"))->AsNumber(), 0.0);
	EXPECT_EQ(ReadElement(TEXT("123456789012345678901234567890.5E+2"))->AsNumber(), 123456789012345678901234567890.5e+2);
}

// Numbers are doubles: integers above 2^53 lose digits.
TEST(JsonReader, BigIntegersLoseDigits)
{
	EXPECT_EQ(ReadElement(TEXT("9007199254740993"))->AsNumber(), 9007199254740992.0);
}

TEST(JsonReader, ReadsEscapes)
{
	EXPECT_TRUE(ReadElement(TEXT("\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e4\\uD83D\\ude00\""))
					->AsString()
					.Equals(TEXT("\"\\/\b\f\n\r\t\u00e4\U0001F600")));
}

TEST(JsonReader, KeepsUnpairedSurrogates)
{
	const FString LowInText = FString::Chr(TCHAR(0xDC0A));
	EXPECT_EQ(ReadElement(TEXT("\"\\udc0a\""))->AsString()[0], TCHAR(0xDC0A));
	EXPECT_EQ(ReadElement(TEXT("\"") + LowInText + TEXT("\""))->AsString().Len(), 1);
}

TEST(JsonReader, ReadsControlCharactersWithinStringsAsTheyStand)
{
	EXPECT_TRUE(ReadElement(TEXT("\"a\tb\nc\r\n\x1f\""))->AsString().Equals(TEXT("a\tb\nc\r\n\x1f")));
	EXPECT_TRUE(ReadElement(TEXT("\"\U0001F40A\t\\\"\n\""))->AsString().Equals(TEXT("\U0001F40A\t\"\n")));
	EXPECT_TRUE(Read(TEXT("{\"a\tb\":1}"))->AsObject()->HasField(TEXT("a\tb")));
}

TEST(JsonReader, AsksForAnObjectOrArrayAtTheRoot)
{
	const FString Expected = TEXT("Open Curly or Square Brace token expected, but not found.");
	EXPECT_EQ(ErrorOf(TEXT("")), Expected + TEXT(" Line: 1 Ch: 1"));
	EXPECT_EQ(ErrorOf(TEXT(" \n \"text\"")), Expected + TEXT(" Line: 2 Ch: 2"));
	EXPECT_EQ(ErrorOf(TEXT("5")), Expected + TEXT(" Line: 1 Ch: 1"));
}

TEST(JsonReader, AsksForTheRootThatTheCallerWants)
{
	const FLogCapture Log(TEXT("LogJsonReader"));
	TSharedPtr<FJsonObject> Object;
	TArray<TSharedPtr<FJsonValue>> Array;
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT(" [1]")), Object));
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("{}")), Array));
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(TEXT("[1]")), Array));
	EXPECT_EQ(Array.Num(), 1);
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({
			TEXT("Open Curly Brace token expected, but not found. Line: 1 Ch: 2 In: [1]"),
			TEXT("Open Square Brace token expected, but not found. Line: 1 Ch: 1 In: {}"),
		}));
}

TEST(JsonReader, SaysWhatIsMissingAndWhere)
{
	EXPECT_EQ(ErrorOf(TEXT("{\"a\" 1}")), TEXT("Colon token expected, but not found. Line: 1 Ch: 6"));
	EXPECT_EQ(ErrorOf(TEXT("{\"a\": 1 \"b\"")), TEXT("Comma or Close Curly Brace token expected, but not found. Line: 1 Ch: 9"));
	EXPECT_EQ(ErrorOf(TEXT("[1 2]")), TEXT("Comma or Close Square Brace token expected, but not found. Line: 1 Ch: 4"));
	EXPECT_EQ(ErrorOf(TEXT("{a: 1}")), TEXT("String token expected, but not found. Line: 1 Ch: 2"));
	EXPECT_EQ(ErrorOf(TEXT("{\"a\":}")), TEXT("Value expected, but not found. Line: 1 Ch: 6"));
	EXPECT_EQ(
		ErrorOf(TEXT("{\"a\": \"b\\c\"}")), TEXT("Bad Json escaped char; a backslash itself is written as two. Line: 1 Ch: 9"));
	EXPECT_EQ(ErrorOf(TEXT("[\"abc")), TEXT("Closing quotation mark expected, but not found. Line: 1 Ch: 6"));
	EXPECT_EQ(ErrorOf(TEXT("[1.]")), TEXT("Poorly formed Number Token. Line: 1 Ch: 4"));
	EXPECT_EQ(ErrorOf(TEXT("[9e308]")), TEXT("The number is too big. Line: 1 Ch: 2"));
	EXPECT_EQ(ErrorOf(TEXT("{} {}")), TEXT("Unexpected additional input found. Line: 1 Ch: 4"));
	EXPECT_EQ(ErrorOf(TEXT("[tru]")), TEXT("Value expected, but not found. Line: 1 Ch: 5"));
}

TEST(JsonReader, RefusesCommentsTrailingCommasAndZeroCharacters)
{
	EXPECT_EQ(ErrorOf(TEXT("[1,]")), TEXT("Value expected, but not found. Line: 1 Ch: 4"));
	EXPECT_EQ(ErrorOf(TEXT("{\"a\":1,}")), TEXT("String token expected, but not found. Line: 1 Ch: 8"));
	EXPECT_EQ(ErrorOf(TEXT("[1 /*one*/]")), TEXT("Comma or Close Square Brace token expected, but not found. Line: 1 Ch: 4"));
	EXPECT_EQ(ErrorOf(FString(4, TEXT("[1]\0"))), TEXT("Unexpected additional input found. Line: 1 Ch: 4"));
}

TEST(JsonReader, CountsLinesAndCharactersFromOne)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(TEXT("{\r\n\t\"a\": 1,\r\n\t\"b\" 2\r\n}"));
	TSharedPtr<FJsonObject> Object;
	EXPECT_EQ(Reader->GetLineNumber(), 0u);
	EXPECT_FALSE(FJsonSerializer::Deserialize(Reader, Object));
	EXPECT_EQ(Reader->GetLineNumber(), 3u);
	EXPECT_EQ(Reader->GetCharacterNumber(), 6u);
}

TEST(JsonReader, LogsTheLineOfTheError)
{
	const FLogCapture Log;
	ErrorOf(TEXT("{\r\n\t\"a\" 1\r\n}"));
	EXPECT_EQ(Log.Lines(),
		TArray<FString>({TEXT("LogJsonReader: Warning: Colon token expected, but not found. Line: 2 Ch: 6 In: \"a\" 1")}));
}

TEST(JsonReader, CutsALongLineAroundTheError)
{
	const FLogCapture Log(TEXT("LogJsonReader"));
	const FString Many = FString::ChrN(100, TEXT('1'));
	ErrorOf(TEXT("[") + Many + TEXT(" x") + Many + TEXT("]"));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("Comma or Close Square Brace token expected, but not found. Line: 1 Ch: 103 In: ...") +
			FString::ChrN(59, TEXT('1')) + TEXT(" x") + FString::ChrN(59, TEXT('1')) + TEXT("...")}));
}

TEST(JsonReader, AGoodTextLogsNothing)
{
	const FLogCapture Log;
	Read(TEXT("{\"a\":[1,2]}"));
	EXPECT_EQ(Log.Lines(), TArray<FString>());
}

TEST(JsonReader, ReadsFiveThousandLevelsAndRefusesMore)
{
	EXPECT_TRUE(Read(Nest(5000)).IsValid());
	EXPECT_TRUE(ErrorOf(Nest(5001)).StartsWith(TEXT("Objects and arrays are nested deeper than 5000 levels. Line: 1 Ch: ")));
	EXPECT_FALSE(ErrorOf(FString::ChrN(1000000, TEXT('['))).IsEmpty());
}

TEST(JsonReader, EveryTruncationOfATextIsRefused)
{
	const FString Text = TEXT("{\"a\":[1,-2.5e3,true,null,\"x\\n\\u0041\"],\"b\":{}}");
	EXPECT_TRUE(Read(Text).IsValid());
	for (int32 Length = 0; Length < Text.Len(); ++Length)
	{
		EXPECT_FALSE(ErrorOf(Text.Left(Length)).IsEmpty()) << Length;
	}
}
