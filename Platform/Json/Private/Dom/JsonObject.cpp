#include "Dom/JsonObject.h"

#include "Dom/JsonDisposal.h"
#include "JsonGlobals.h"
#include "Math/NumericNarrowing.h"

FJsonObject::FJsonObject() = default;
FJsonObject::FJsonObject(const FJsonObject&) = default;
FJsonObject::FJsonObject(FJsonObject&&) = default;
FJsonObject& FJsonObject::operator=(const FJsonObject&) = default;
FJsonObject& FJsonObject::operator=(FJsonObject&&) = default;

FJsonObject::~FJsonObject()
{
	FJsonDisposal Disposal;
	for (auto& Field : Values)
	{
		Disposal.Take(Field.Value);
	}
}

const FJsonValue* FJsonObject::FindField(const FString& FieldName) const
{
	const TSharedPtr<FJsonValue>* Field = Values.Find(FieldName);
	return Field ? Field->Get() : nullptr;
}

bool FJsonObject::HasField(const FString& FieldName) const
{
	return FindField(FieldName) != nullptr;
}

bool FJsonObject::HasFieldOfType(const FString& FieldName, EJson JsonType) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && (JsonType == EJson::None || Field->Type == JsonType);
}

TSharedPtr<FJsonValue> FJsonObject::GetFieldOfType(const FString& FieldName, EJson JsonType) const
{
	const TSharedPtr<FJsonValue> Field = TryGetField(FieldName);
	if (!Field.IsValid())
	{
		UE_LOG(LogJson, Warning, TEXT("Field %s was not found."), *FieldName);
		return MakeShared<FJsonValueNull>();
	}
	if (JsonType != EJson::None && Field->Type != JsonType)
	{
		UE_LOG(LogJson, Warning, TEXT("Field %s is of the wrong type."), *FieldName);
		return MakeShared<FJsonValueNull>();
	}
	return Field;
}

TSharedPtr<FJsonValue> FJsonObject::TryGetField(const FString& FieldName) const
{
	return Values.FindRef(FieldName);
}

void FJsonObject::SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value)
{
	Values.Add(FieldName, Value);
}

void FJsonObject::RemoveField(const FString& FieldName)
{
	Values.Remove(FieldName);
}

double FJsonObject::GetNumberField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsNumber();
}

int32 FJsonObject::GetIntegerField(const FString& FieldName) const
{
	return NarrowNumber<int32>(GetNumberField(FieldName));
}

template <typename OutType>
bool FJsonObject::TryGetNumberOf(const FString& FieldName, OutType& OutNumber) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && Field->TryGetNumber(OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, double& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, float& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int8& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int16& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int32& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, int64& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint8& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint16& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint32& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

bool FJsonObject::TryGetNumberField(const FString& FieldName, uint64& OutNumber) const
{
	return TryGetNumberOf(FieldName, OutNumber);
}

void FJsonObject::SetNumberField(const FString& FieldName, double Number)
{
	SetField(FieldName, MakeShared<FJsonValueNumber>(Number));
}

FString FJsonObject::GetStringField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsString();
}

bool FJsonObject::TryGetStringField(const FString& FieldName, FString& OutString) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && Field->TryGetString(OutString);
}

bool FJsonObject::TryGetStringArrayField(const FString& FieldName, TArray<FString>& OutArray) const
{
	OutArray.Reset();
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!TryGetArrayField(FieldName, Array))
	{
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Element : *Array)
	{
		FString String;
		if (!Element.IsValid() || !Element->TryGetString(String))
		{
			return false;
		}
		OutArray.Add(MoveTemp(String));
	}
	return true;
}

void FJsonObject::SetStringField(const FString& FieldName, const FString& StringValue)
{
	SetField(FieldName, MakeShared<FJsonValueString>(StringValue));
}

bool FJsonObject::GetBoolField(const FString& FieldName) const
{
	return GetField<EJson::None>(FieldName)->AsBool();
}

bool FJsonObject::TryGetBoolField(const FString& FieldName, bool& OutBool) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && Field->TryGetBool(OutBool);
}

void FJsonObject::SetBoolField(const FString& FieldName, bool InValue)
{
	SetField(FieldName, MakeShared<FJsonValueBoolean>(InValue));
}

const TArray<TSharedPtr<FJsonValue>>& FJsonObject::GetArrayField(const FString& FieldName) const
{
	return GetField<EJson::Array>(FieldName)->AsArray();
}

bool FJsonObject::TryGetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && Field->TryGetArray(OutArray);
}

void FJsonObject::SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array)
{
	SetField(FieldName, MakeShared<FJsonValueArray>(Array));
}

const TSharedPtr<FJsonObject>& FJsonObject::GetObjectField(const FString& FieldName) const
{
	return GetField<EJson::Object>(FieldName)->AsObject();
}

bool FJsonObject::TryGetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>*& OutObject) const
{
	const FJsonValue* Field = FindField(FieldName);
	return Field && Field->TryGetObject(OutObject);
}

void FJsonObject::SetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>& JsonObject)
{
	SetField(FieldName, MakeShared<FJsonValueObject>(JsonObject));
}
