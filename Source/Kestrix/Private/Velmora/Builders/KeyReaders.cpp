#include "Velmora/Builders/KeyReaders.h"

#include "Velmora/ValueParsers.h"

FString ReadString(const FJsonObject& Object, const FString& Key)
{
	FString Value;
	Object.TryGetStringField(Key, Value);
	return Value;
}

FString ReadTypedString(const FJsonObject& Object, const FString& Key)
{
	return Object.HasTypedField<EJson::String>(Key) ? Object.GetStringField(Key) : FString();
}

bool ReadBool(const FJsonObject& Object, const FString& Key)
{
	bool bValue = false;
	Object.TryGetBoolField(Key, bValue);
	return bValue;
}

FMargin ReadMargin(const FJsonObject& Object, const FString& Key)
{
	FMargin Margin;
	const TSharedPtr<FJsonValue> Value = Object.TryGetField(Key);
	if (Value.IsValid())
	{
		ParseMargin(Value, Margin);
	}
	return Margin;
}

FLinearColor ReadColor(const FJsonObject& Object, const FString& Key, const FLinearColor& Default)
{
	FLinearColor Color = Default;
	const TSharedPtr<FJsonValue> Value = Object.TryGetField(Key);
	if (Value.IsValid())
	{
		ParseLinearColorValues(Value, Color);
	}
	return Color;
}
