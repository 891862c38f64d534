#include "Dom/JsonValue.h"

#include <gtest/gtest.h>

#include "Dom/JsonObject.h"
#include "LogCapture.h"
#include "Printers.h"

namespace
{
template <typename OutType>
TOptional<OutType> NumberOf(const FJsonValue& Value)
{
	OutType Number = OutType(42);
	const bool bGiven = Value.TryGetNumber(Number);
	return bGiven ? TOptional<OutType>(Number) : TOptional<OutType>();
}

FString StringOf(double Number)
{
	return FJsonValueNumber(Number).AsString();
}
}

// Number to string without a forced fraction (5 is "5", 0.5 is "0.5").
TEST(JsonValue, ANumberIsAStringOfTheDigitsThatItNeeds)
{
	EXPECT_EQ(StringOf(5.0), TEXT("5"));
	EXPECT_EQ(StringOf(0.5), TEXT("0.5"));
	EXPECT_EQ(StringOf(-1.25), TEXT("-1.25"));
	EXPECT_EQ(StringOf(1e-7), TEXT("0"));
}

TEST(JsonValue, ANumberIsABoolByNonZero)
{
	EXPECT_FALSE(FJsonValueNumber(0.0).AsBool());
	EXPECT_TRUE(FJsonValueNumber(-0.5).AsBool());
}

TEST(JsonValue, ABoolIsANumberAndAString)
{
	EXPECT_EQ(FJsonValueBoolean(true).AsNumber(), 1.0);
	EXPECT_EQ(FJsonValueBoolean(false).AsNumber(), 0.0);
	EXPECT_EQ(FJsonValueBoolean(true).AsString(), TEXT("true"));
	EXPECT_EQ(FJsonValueBoolean(false).AsString(), TEXT("false"));
}

TEST(JsonValue, ANumericStringIsANumber)
{
	EXPECT_EQ(FJsonValueString(TEXT("-2.5")).AsNumber(), -2.5);
	EXPECT_FALSE(NumberOf<double>(FJsonValueString(TEXT("2 apples"))).IsSet());
	EXPECT_FALSE(NumberOf<float>(FJsonValueString(TEXT(""))).IsSet());
}

// A string to an integer type never fails (no digits: 0).
TEST(JsonValue, AStringIsTheIntegerThatItBeginsWith)
{
	EXPECT_EQ(NumberOf<int32>(FJsonValueString(TEXT("12 apples"))), 12);
	EXPECT_EQ(NumberOf<int32>(FJsonValueString(TEXT("apples"))), 0);
	EXPECT_EQ(NumberOf<uint8>(FJsonValueString(TEXT("300"))), uint8(255));
}

TEST(JsonValue, AnyStringIsABoolByItsText)
{
	for (const TCHAR* Text : {TEXT("true"), TEXT("Yes"), TEXT("ON"), TEXT("1")})
	{
		EXPECT_TRUE(FJsonValueString(Text).AsBool());
	}
	for (const TCHAR* Text : {TEXT("false"), TEXT(""), TEXT("0"), TEXT("apples")})
	{
		bool bBool = true;
		EXPECT_TRUE(FJsonValueString(Text).TryGetBool(bBool));
		EXPECT_FALSE(bBool);
	}
}

// TryGetNumber into an integer rounds halves away from zero and fails only outside the range.
TEST(JsonValue, IntegersAreRoundedAndRefusedOutOfRange)
{
	EXPECT_EQ(NumberOf<int32>(FJsonValueNumber(2.5)), 3);
	EXPECT_EQ(NumberOf<int32>(FJsonValueNumber(-2.5)), -3);
	EXPECT_EQ(NumberOf<int32>(FJsonValueNumber(2147483647.0)), MAX_int32);
	EXPECT_FALSE(NumberOf<int32>(FJsonValueNumber(2147483648.0)).IsSet());
	EXPECT_FALSE(NumberOf<uint32>(FJsonValueNumber(-1.0)).IsSet());
	EXPECT_FALSE(NumberOf<uint8>(FJsonValueNumber(256.0)).IsSet());
	EXPECT_EQ(NumberOf<int64>(FJsonValueNumber(9223372036854775808.0)), MAX_int64);
	EXPECT_EQ(NumberOf<float>(FJsonValueNumber(1e300)), MAX_flt);
}

TEST(JsonValue, NullArraysAndObjectsConvertToNothing)
{
	const FLogCapture Log(TEXT("LogJson"));
	FJsonValueNull().AsString();
	FJsonValueNull().AsBool();
	FJsonValueArray(TArray<TSharedPtr<FJsonValue>>()).AsNumber();
	FJsonValueObject(MakeShared<FJsonObject>()).AsString();
	FJsonValueString(TEXT("x")).AsArray();
	FJsonValueBoolean(true).AsObject();
	FJsonValueNumber(1.0).AsObject();

	EXPECT_EQ(Log.Errors(),
		TArray<FString>({
			TEXT("Json Value of type 'Null' used as a 'String'."),
			TEXT("Json Value of type 'Null' used as a 'Boolean'."),
			TEXT("Json Value of type 'Array' used as a 'Number'."),
			TEXT("Json Value of type 'Object' used as a 'String'."),
			TEXT("Json Value of type 'String' used as a 'Array'."),
			TEXT("Json Value of type 'Boolean' used as a 'Object'."),
			TEXT("Json Value of type 'Number' used as a 'Object'."),
		}));
}

TEST(JsonValue, TheEmptyObjectOfAWrongUseStaysEmpty)
{
	FJsonValueNull().AsObject()->SetStringField(TEXT("Left"), TEXT("behind"));
	EXPECT_EQ(FJsonValueNull().AsObject()->Values.Num(), 0);
}
