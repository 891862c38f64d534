#include "DescriptorReader.h"

#include "Misc/FileHelper.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

namespace
{
const TCHAR* NameOf(EJson Type)
{
	switch (Type)
	{
		case EJson::String:
			return TEXT("a string");
		case EJson::Number:
			return TEXT("a number");
		case EJson::Boolean:
			return TEXT("a boolean");
		case EJson::Array:
			return TEXT("an array");
		case EJson::Object:
			return TEXT("an object");
		default:
			return TEXT("null");
	}
}
}

FDescriptorReader::FDescriptorReader(const FJsonObject& InObject, const FString& InPlace, FText& InFailReason)
	: Object(InObject)
	, Place(InPlace)
	, FailReason(InFailReason)
{
}

void FDescriptorReader::Fail(const TCHAR* Key, const FString& Expected, const FString& Found)
{
	if (!bFailed)
	{
		FailReason = FText::FromString(FString::Printf(
			TEXT("%s%s%s: expected %s, found %s"), *Place, Place.IsEmpty() ? TEXT("") : TEXT("."), Key, *Expected, *Found));
	}
	bFailed = true;
}

TSharedPtr<FJsonValue> FDescriptorReader::Find(const TCHAR* Key, EJson Type, const TCHAR* NameOfType)
{
	const TSharedPtr<FJsonValue> Value = Object.TryGetField(Key);
	if (Value && Value->Type != Type)
	{
		Fail(Key, NameOfType, NameOf(Value->Type));
		return nullptr;
	}
	return Value;
}

void FDescriptorReader::Read(const TCHAR* Key, FString& OutValue)
{
	if (const TSharedPtr<FJsonValue> Value = Find(Key, EJson::String, TEXT("a string")))
	{
		OutValue = Value->AsString();
	}
}

void FDescriptorReader::Read(const TCHAR* Key, bool& OutValue)
{
	if (const TSharedPtr<FJsonValue> Value = Find(Key, EJson::Boolean, TEXT("true or false")))
	{
		OutValue = Value->AsBool();
	}
}

void FDescriptorReader::ReadRequired(const TCHAR* Key, FString& OutValue)
{
	Read(Key, OutValue);
	if (OutValue.IsEmpty())
	{
		Fail(Key, TEXT("a name"), TEXT("none"));
	}
}

void FDescriptorReader::ReadObjects(const TCHAR* Key, TFunctionRef<void(FDescriptorReader&)> Visitor)
{
	const TSharedPtr<FJsonValue> Value = Find(Key, EJson::Array, TEXT("an array"));
	if (!Value)
	{
		return;
	}

	const TArray<TSharedPtr<FJsonValue>>& Elements = Value->AsArray();
	for (int32 Index = 0; Index < Elements.Num() && !bFailed; ++Index)
	{
		const FString ElementKey = FString::Printf(TEXT("%s[%d]"), Key, Index);
		if (Elements[Index]->Type != EJson::Object)
		{
			Fail(*ElementKey, TEXT("an object"), NameOf(Elements[Index]->Type));
			return;
		}
		FDescriptorReader Element(*Elements[Index]->AsObject(), ElementKey, FailReason);
		Visitor(Element);
		bFailed |= Element.bFailed;
	}
}

bool FDescriptorReader::LoadFile(const FString& FileName, FText& OutFailReason, TFunctionRef<bool(const FJsonObject&)> Visitor)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		OutFailReason = FText::FromString(TEXT("the file cannot be read"));
		return false;
	}

	TSharedPtr<FJsonObject> Root;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(MoveTemp(Text));
	if (!FJsonSerializer::Deserialize(Reader, Root))
	{
		OutFailReason = FText::FromString(Reader->GetErrorMessage());
		return false;
	}
	return Visitor(*Root);
}
