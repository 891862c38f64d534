#include "Serialization/JsonSerializer.h"

#include <algorithm>

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject)
{
	const TSharedPtr<FJsonValue> Root = Reader->Read(EJson::Object);
	if (!Root.IsValid())
	{
		return false;
	}
	OutObject = Root->AsObject();
	return true;
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray)
{
	const TSharedPtr<FJsonValue> Root = Reader->Read(EJson::Array);
	if (!Root.IsValid())
	{
		return false;
	}
	OutArray = Root->AsArray();
	return true;
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue)
{
	const TSharedPtr<FJsonValue> Root = Reader->Read(EJson::None);
	if (!Root.IsValid())
	{
		return false;
	}
	OutValue = Root;
	return true;
}

void FJsonSerializer::PushFields(const FJsonObject* Object, TArray<FStep>& Steps)
{
	Steps.Add({nullptr, nullptr, EJson::Object});
	if (!Object)
	{
		return;
	}

	const int32 First = Steps.Num();
	for (const auto& Field : Object->Values)
	{
		Steps.Add({&Field.Key, Field.Value.Get()});
	}
	std::reverse(Steps.GetData() + First, Steps.GetData() + Steps.Num());
}

void FJsonSerializer::PushElements(const TArray<TSharedPtr<FJsonValue>>& Array, TArray<FStep>& Steps)
{
	Steps.Add({nullptr, nullptr, EJson::Array});
	for (int32 Index = Array.Num() - 1; Index >= 0; --Index)
	{
		Steps.Add({nullptr, Array[Index].Get()});
	}
}
