#include "Dom/JsonValue.h"

#include "Dom/JsonDisposal.h"
#include "Dom/JsonObject.h"
#include "JsonGlobals.h"
#include "Math/NumericNarrowing.h"

#include <limits>

namespace
{
const TCHAR* NameOf(EJson Type)
{
	switch (Type)
	{
		case EJson::String:
			return TEXT("String");
		case EJson::Number:
			return TEXT("Number");
		case EJson::Boolean:
			return TEXT("Boolean");
		case EJson::Array:
			return TEXT("Array");
		case EJson::Object:
			return TEXT("Object");
		default:
			return TEXT("Null");
	}
}

template <typename IntegerType>
bool TryGetInteger(const FJsonValue& Value, IntegerType& OutNumber)
{
	if (Value.Type == EJson::String)
	{
		OutNumber = NarrowNumber<IntegerType>(FCString::Atoi64(*Value.AsString()));
		return true;
	}

	double Number = 0.0;
	if (!Value.TryGetNumber(Number))
	{
		return false;
	}

	using FLimits = std::numeric_limits<IntegerType>;
	if (!(Number >= double(FLimits::min()) && Number <= double(FLimits::max())))
	{
		return false;
	}
	OutNumber = NarrowNumber<IntegerType>(FMath::RoundHalfFromZero(Number));
	return true;
}
}

FJsonValue::~FJsonValue() = default;

double FJsonValue::AsNumber() const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		LogWrongUse(TEXT("Number"));
	}
	return Number;
}

FString FJsonValue::AsString() const
{
	FString String;
	if (!TryGetString(String))
	{
		LogWrongUse(TEXT("String"));
	}
	return String;
}

bool FJsonValue::AsBool() const
{
	bool bBool = false;
	if (!TryGetBool(bBool))
	{
		LogWrongUse(TEXT("Boolean"));
	}
	return bBool;
}

const TArray<TSharedPtr<FJsonValue>>& FJsonValue::AsArray() const
{
	static const TArray<TSharedPtr<FJsonValue>> EmptyArray;
	const TArray<TSharedPtr<FJsonValue>>* Array = &EmptyArray;
	if (!TryGetArray(Array))
	{
		LogWrongUse(TEXT("Array"));
	}
	return *Array;
}

const TSharedPtr<FJsonObject>& FJsonValue::AsObject() const
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (TryGetObject(Object))
	{
		return *Object;
	}

	LogWrongUse(TEXT("Object"));
	// Somebody may have put fields into the one that was handed out before.
	static TSharedPtr<FJsonObject> EmptyObject;
	if (!EmptyObject.IsValid() || EmptyObject->Values.Num() > 0)
	{
		EmptyObject = MakeShared<FJsonObject>();
	}
	return EmptyObject;
}

bool FJsonValue::TryGetNumber(double&) const
{
	return false;
}

bool FJsonValue::TryGetNumber(float& OutNumber) const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		return false;
	}
	OutNumber = NarrowNumber<float>(Number);
	return true;
}

bool FJsonValue::TryGetNumber(int8& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int16& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int32& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int64& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint8& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint16& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint32& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(uint64& OutNumber) const
{
	return TryGetInteger(*this, OutNumber);
}

bool FJsonValue::TryGetString(FString&) const
{
	return false;
}

bool FJsonValue::TryGetBool(bool&) const
{
	return false;
}

bool FJsonValue::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*&) const
{
	return false;
}

bool FJsonValue::TryGetObject(const TSharedPtr<FJsonObject>*&) const
{
	return false;
}

void FJsonValue::LogWrongUse(const TCHAR* UsedAs) const
{
	UE_LOG(LogJson, Error, TEXT("Json Value of type '%s' used as a '%s'."), NameOf(Type), UsedAs);
}

FJsonValueString::FJsonValueString(const FString& InString)
	: FJsonValue(EJson::String)
	, Value(InString)
{
}

FJsonValueString::FJsonValueString(FString&& InString)
	: FJsonValue(EJson::String)
	, Value(MoveTemp(InString))
{
}

bool FJsonValueString::TryGetNumber(double& OutNumber) const
{
	if (!Value.IsNumeric())
	{
		return false;
	}
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueString::TryGetString(FString& OutString) const
{
	OutString = Value;
	return true;
}

bool FJsonValueString::TryGetBool(bool& OutBool) const
{
	OutBool = Value.ToBool();
	return true;
}

FJsonValueNumber::FJsonValueNumber(double InNumber)
	: FJsonValue(EJson::Number)
	, Value(InNumber)
{
}

bool FJsonValueNumber::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value;
	return true;
}

bool FJsonValueNumber::TryGetString(FString& OutString) const
{
	OutString = FString::SanitizeFloat(Value, 0);
	return true;
}

bool FJsonValueNumber::TryGetBool(bool& OutBool) const
{
	OutBool = Value != 0.0;
	return true;
}

FJsonValueBoolean::FJsonValueBoolean(bool InBool)
	: FJsonValue(EJson::Boolean)
	, Value(InBool)
{
}

bool FJsonValueBoolean::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value ? 1.0 : 0.0;
	return true;
}

bool FJsonValueBoolean::TryGetString(FString& OutString) const
{
	OutString = Value ? TEXT("true") : TEXT("false");
	return true;
}

bool FJsonValueBoolean::TryGetBool(bool& OutBool) const
{
	OutBool = Value;
	return true;
}

FJsonValueArray::FJsonValueArray(const TArray<TSharedPtr<FJsonValue>>& InArray)
	: FJsonValue(EJson::Array)
	, Value(InArray)
{
}

FJsonValueArray::FJsonValueArray(TArray<TSharedPtr<FJsonValue>>&& InArray)
	: FJsonValue(EJson::Array)
	, Value(MoveTemp(InArray))
{
}

FJsonValueArray::~FJsonValueArray()
{
	FJsonDisposal Disposal;
	for (TSharedPtr<FJsonValue>& Element : Value)
	{
		Disposal.Take(Element);
	}
}

bool FJsonValueArray::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	OutArray = &Value;
	return true;
}

FJsonValueObject::FJsonValueObject(TSharedPtr<FJsonObject> InObject)
	: FJsonValue(EJson::Object)
	, Value(MoveTemp(InObject))
{
}

FJsonValueObject::~FJsonValueObject() = default;

bool FJsonValueObject::TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const
{
	OutObject = &Value;
	return true;
}

FJsonValueNull::FJsonValueNull()
	: FJsonValue(EJson::Null)
{
}
