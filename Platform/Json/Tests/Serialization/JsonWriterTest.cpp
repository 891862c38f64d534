#include "Serialization/JsonWriter.h"

#include <gtest/gtest.h>

#include "Policies/CondensedJsonPrintPolicy.h"
#include "Printers.h"
#include "Serialization/JsonSerializer.h"

namespace
{
using FCondensedFactory = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>;

/** Reads a text and writes it again. */
template <typename Factory>
FString Rewrite(const TCHAR* Text)
{
	TSharedPtr<FJsonObject> Object;
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object));
	FString Result;
	EXPECT_TRUE(Object.IsValid() && FJsonSerializer::Serialize(Object.ToSharedRef(), Factory::Create(&Result)));
	return Result;
}
}

// Tabs; "Name": value; a container behind a name opens on the next line; numbers, bools and nulls of an array share its
// line, strings and containers get their own.
TEST(JsonWriter, PrintsPrettily)
{
	EXPECT_TRUE(Rewrite<TJsonWriterFactory<>>(
		TEXT("{\"Name\":\"x\",\"On\":true,\"None\":null,\"Numbers\":[1,2,false,null],\"Mixed\":[1,\"a\",2],\"Empty\":[],")
			TEXT("\"Sub\":{\"A\":1},\"Subs\":[{\"B\":2},{}]}"))
					.Equals(TEXT("{\n"
								 "\t\"Name\": \"x\",\n"
								 "\t\"On\": true,\n"
								 "\t\"None\": null,\n"
								 "\t\"Numbers\":\n"
								 "\t[ 1, 2, false, null ],\n"
								 "\t\"Mixed\":\n"
								 "\t[ 1,\n"
								 "\t\t\"a\",\n"
								 "\t\t2 ],\n"
								 "\t\"Empty\":\n"
								 "\t[],\n"
								 "\t\"Sub\":\n"
								 "\t{\n"
								 "\t\t\"A\": 1\n"
								 "\t},\n"
								 "\t\"Subs\":\n"
								 "\t[\n"
								 "\t\t{\n"
								 "\t\t\t\"B\": 2\n"
								 "\t\t},\n"
								 "\t\t{\n"
								 "\t\t}\n"
								 "\t]\n"
								 "}")));
}

TEST(JsonWriter, PrintsCondensed)
{
	const TCHAR* Text = TEXT("{\"Name\":\"x\",\"Numbers\":[1,2],\"Subs\":[{\"B\":[\"b\"]},{}]}");
	EXPECT_TRUE(Rewrite<FCondensedFactory>(Text).Equals(Text));
}

TEST(JsonWriter, PrintsNumbersSoThatTheyReadBackTheSame)
{
	EXPECT_EQ(Rewrite<FCondensedFactory>(TEXT("{\"a\":[0.1,5,-0.5,1e300,123456789012]}")),
		TEXT("{\"a\":[0.10000000000000001,5,-0.5,1.0000000000000001e+300,123456789012]}"));
}

TEST(JsonWriter, EscapesWhatMustBeAndLeavesTheRest)
{
	FString Text;
	const TSharedRef<TJsonWriter<>> Writer = TJsonWriterFactory<>::Create(&Text);
	Writer->WriteArrayStart();
	Writer->WriteValue(TEXT("a/\"\\\b\f\n\r\t\x01\u00e4\U0001F600"));
	Writer->WriteArrayEnd();
	EXPECT_TRUE(Writer->Close());
	EXPECT_TRUE(Text.Equals(TEXT("[\n\t\"a/\\\"\\\\\\b\\f\\n\\r\\t\\u0001\u00e4\U0001F600\"\n]")));
}

TEST(JsonWriter, WritesTokenByToken)
{
	FString Text;
	const auto Writer = FCondensedFactory::Create(&Text);
	Writer->WriteObjectStart();
	Writer->WriteValue(TEXT("Index"), 5);
	Writer->WriteValue(TEXT("Big"), MAX_uint64);
	Writer->WriteValue(TEXT("Half"), 0.1f);
	Writer->WriteValue(TEXT("Name"), FString(TEXT("x")));
	Writer->WriteNull(TEXT("None"));
	Writer->WriteArrayStart(TEXT("List"));
	Writer->WriteNull();
	Writer->WriteObjectStart();
	Writer->WriteObjectEnd();
	Writer->WriteArrayEnd();
	Writer->WriteObjectStart(TEXT("Sub"));
	EXPECT_EQ(Writer->GetIndentLevel(), 2);
	Writer->WriteObjectEnd();
	Writer->WriteObjectEnd();
	EXPECT_TRUE(Text.IsEmpty());
	EXPECT_TRUE(Writer->Close());
	EXPECT_TRUE(Text.Equals(TEXT(
		"{\"Index\":5,\"Big\":18446744073709551615,\"Half\":0.1,\"Name\":\"x\",\"None\":null,\"List\":[null,{}],\"Sub\":{}}")));
}

TEST(JsonWriter, ClosingSaysWhetherSomethingIsStillOpen)
{
	FString Text;
	const TSharedRef<TJsonWriter<>> Writer = TJsonWriterFactory<>::Create(&Text);
	EXPECT_FALSE(TJsonWriterFactory<>::Create(&Text)->Close());
	Writer->WriteObjectStart();
	EXPECT_FALSE(Writer->Close());
}

TEST(JsonSerializer, AnObjectMayBePartOfALargerText)
{
	FString Text;
	const auto Writer = FCondensedFactory::Create(&Text);
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("Null"), nullptr);
	Writer->WriteArrayStart();
	EXPECT_TRUE(FJsonSerializer::Serialize(Object, Writer, false));
	EXPECT_TRUE(FJsonSerializer::Serialize(TArray<TSharedPtr<FJsonValue>>({MakeShared<FJsonValueNumber>(1.0)}), Writer, false));
	Writer->WriteArrayEnd();
	EXPECT_TRUE(Writer->Close());
	EXPECT_EQ(Text, TEXT("[{\"Null\":null},[1]]"));
}

TEST(JsonSerializer, WritesDeepValuesWithoutRecursion)
{
	TSharedPtr<FJsonValue> Value = MakeShared<FJsonValueNull>();
	for (int32 Depth = 0; Depth < 200000; ++Depth)
	{
		Value = MakeShared<FJsonValueArray>(TArray<TSharedPtr<FJsonValue>>({Value}));
	}
	FString Text;
	EXPECT_TRUE(FJsonSerializer::Serialize(Value->AsArray(), FCondensedFactory::Create(&Text)));
	EXPECT_EQ(Text.Len(), 2 * 200000 + 4);
}

TEST(JsonWriterDeathTest, AFieldNeedsAnObject)
{
	FString Text;
	const TSharedRef<TJsonWriter<>> Writer = TJsonWriterFactory<>::Create(&Text);
	Writer->WriteArrayStart();
	EXPECT_DEATH(
		Writer->WriteValue(TEXT("Name"), 1), "Assertion failed: Stack.Num\\(\\) > 0 && Stack.Last\\(\\) == EJson::Object");
}
