#include "Dom/JsonObject.h"

#include <gtest/gtest.h>

#include "LogCapture.h"
#include "Printers.h"
#include "Serialization/JsonSerializer.h"

namespace
{
TSharedRef<FJsonObject> Parse(const TCHAR* Text)
{
	TSharedPtr<FJsonObject> Object;
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object));
	return Object.IsValid() ? Object.ToSharedRef() : MakeShared<FJsonObject>();
}

/** The names and string values of all fields, in order. */
FString Join(const FJsonObject& Object)
{
	FString Result;
	for (const auto& Field : Object.Values)
	{
		Result += FString::Printf(TEXT("%s=%s;"), *Field.Key, *Field.Value->AsString());
	}
	return Result;
}
}

TEST(JsonObject, KeepsTheFieldsInTheOrderOfTheText)
{
	EXPECT_TRUE(Join(*Parse(TEXT("{\"z\":1,\"a\":2,\"m\":3,\"b\":4,\"y\":5,\"c\":6}"))).Equals(TEXT("z=1;a=2;m=3;b=4;y=5;c=6;")));
}

// Names ignore case in every accessor.
TEST(JsonObject, FindsNamesInAnyCase)
{
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"Name\":\"x\",\"LIST\":[1],\"inner\":{}}"));
	FString String;
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	EXPECT_TRUE(Object->HasField(TEXT("nAME")));
	EXPECT_TRUE(Object->TryGetStringField(TEXT("NAME"), String));
	EXPECT_TRUE(Object->TryGetArrayField(TEXT("list"), Array));
	EXPECT_TRUE(Object->HasTypedField<EJson::Object>(TEXT("INNER")));
	EXPECT_FALSE(Object->HasTypedField<EJson::Array>(TEXT("INNER")));
}

// A name that comes again (in any case) keeps the first place and takes the later spelling and value.
TEST(JsonObject, ARepeatedNameKeepsItsPlaceAndTakesTheLaterSpellingAndValue)
{
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"a\":1,\"b\":2,\"A\":3,\"c\":4}"));
	EXPECT_EQ(Object->Values.Num(), 3);
	EXPECT_EQ(Join(*Object), TEXT("A=3;b=2;c=4;"));
}

TEST(JsonObject, PlainGettersSayThatAFieldIsMissing)
{
	const FLogCapture Log(TEXT("LogJson"));
	const FJsonObject Object;
	EXPECT_EQ(Object.GetStringField(TEXT("Text")), TEXT(""));
	EXPECT_EQ(Object.GetNumberField(TEXT("Size")), 0.0);
	EXPECT_FALSE(Object.GetBoolField(TEXT("On")));
	EXPECT_EQ(Object.GetArrayField(TEXT("List")).Num(), 0);
	EXPECT_EQ(Object.GetObjectField(TEXT("Sub"))->Values.Num(), 0);

	EXPECT_EQ(Log.Lines(),
		TArray<FString>({
			TEXT("LogJson: Warning: Field Text was not found."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'String'."),
			TEXT("LogJson: Warning: Field Size was not found."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'Number'."),
			TEXT("LogJson: Warning: Field On was not found."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'Boolean'."),
			TEXT("LogJson: Warning: Field List was not found."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'Array'."),
			TEXT("LogJson: Warning: Field Sub was not found."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'Object'."),
		}));
}

TEST(JsonObject, PlainGettersSayThatAFieldIsOfTheWrongType)
{
	const FLogCapture Log(TEXT("LogJson"));
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"Text\":\"x\",\"List\":[]}"));
	EXPECT_EQ(Object->GetArrayField(TEXT("Text")).Num(), 0);
	EXPECT_TRUE(Object->GetField<EJson::Number>(TEXT("List"))->IsNull());
	EXPECT_EQ(Object->GetStringField(TEXT("List")), TEXT(""));

	EXPECT_EQ(Log.Lines(),
		TArray<FString>({
			TEXT("LogJson: Warning: Field Text is of the wrong type."),
			TEXT("LogJson: Error: Json Value of type 'Null' used as a 'Array'."),
			TEXT("LogJson: Warning: Field List is of the wrong type."),
			TEXT("LogJson: Error: Json Value of type 'Array' used as a 'String'."),
		}));
}

TEST(JsonObject, TryGettersAreSilentAndLeaveTheirResultAlone)
{
	const FLogCapture Log(TEXT("LogJson"));
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"List\":[],\"None\":null}"));
	FString String = TEXT("before");
	double Number = 7.0;
	bool bBool = true;
	const TSharedPtr<FJsonObject>* Sub = nullptr;
	for (const TCHAR* Name : {TEXT("Missing"), TEXT("List"), TEXT("None")})
	{
		EXPECT_FALSE(Object->TryGetStringField(Name, String));
		EXPECT_FALSE(Object->TryGetNumberField(Name, Number));
		EXPECT_FALSE(Object->TryGetBoolField(Name, bBool));
		EXPECT_FALSE(Object->TryGetObjectField(Name, Sub));
	}
	EXPECT_FALSE(Object->TryGetField(TEXT("Missing")).IsValid());
	EXPECT_EQ(String, TEXT("before"));
	EXPECT_EQ(Number, 7.0);
	EXPECT_TRUE(bBool);
	EXPECT_EQ(Log.Lines(), TArray<FString>());
}

// TryGetNumber into an integer rounds; GetIntegerField truncates.
TEST(JsonObject, AnIntegerFieldIsTruncatedOrRounded)
{
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"Up\":2.5,\"Down\":-2.5,\"Far\":1e300}"));
	int32 Number = 0;
	EXPECT_EQ(Object->GetIntegerField(TEXT("Up")), 2);
	EXPECT_EQ(Object->GetIntegerField(TEXT("Down")), -2);
	EXPECT_EQ(Object->GetIntegerField(TEXT("Far")), MAX_int32);
	EXPECT_TRUE(Object->TryGetNumberField(TEXT("Down"), Number));
	EXPECT_EQ(Number, -3);
}

TEST(JsonObject, ReadsArraysOfStrings)
{
	const TSharedRef<FJsonObject> Object = Parse(TEXT("{\"Good\":[\"a\",1],\"Bad\":[\"a\",[]]}"));
	TArray<FString> Strings;
	EXPECT_TRUE(Object->TryGetStringArrayField(TEXT("Good"), Strings));
	EXPECT_EQ(Strings, TArray<FString>({TEXT("a"), TEXT("1")}));
	EXPECT_FALSE(Object->TryGetStringArrayField(TEXT("Bad"), Strings));
	EXPECT_FALSE(Object->TryGetStringArrayField(TEXT("Missing"), Strings));
	EXPECT_EQ(Strings.Num(), 0);
}

TEST(JsonObject, SettersReplaceAndRemoveFieldEnds)
{
	FJsonObject Object;
	Object.SetStringField(TEXT("Text"), TEXT("x"));
	Object.SetNumberField(TEXT("text"), 2.0);
	Object.SetBoolField(TEXT("On"), true);
	Object.SetArrayField(TEXT("List"), {MakeShared<FJsonValueNull>()});
	Object.SetObjectField(TEXT("Sub"), MakeShared<FJsonObject>());
	EXPECT_EQ(Object.Values.Num(), 4);
	EXPECT_EQ(Object.GetNumberField(TEXT("Text")), 2.0);

	Object.RemoveField(TEXT("TEXT"));
	EXPECT_FALSE(Object.HasField(TEXT("Text")));
	EXPECT_EQ(Object.GetArrayField(TEXT("List")).Num(), 1);
}

TEST(JsonObject, EndsWithoutRecursionHoweverDeepItIs)
{
	TSharedPtr<FJsonObject> Object = MakeShared<FJsonObject>();
	for (int32 Depth = 0; Depth < 1000000; ++Depth)
	{
		const TSharedRef<FJsonObject> Outer = MakeShared<FJsonObject>();
		Outer->SetArrayField(TEXT("In"), {MakeShared<FJsonValueObject>(Object)});
		Object = Outer;
	}
	const TWeakPtr<FJsonObject> Weak = Object;
	Object.Reset();
	EXPECT_FALSE(Weak.IsValid());
}

TEST(JsonObject, APartThatIsStillReferredToOutlivesTheWhole)
{
	TSharedPtr<FJsonObject> Object = Parse(TEXT("{\"Keep\":{\"Text\":\"x\"},\"Drop\":{}}"));
	const TSharedPtr<FJsonValue> Kept = Object->TryGetField(TEXT("Keep"));
	Object.Reset();
	EXPECT_EQ(Kept->AsObject()->GetStringField(TEXT("Text")), TEXT("x"));
}
