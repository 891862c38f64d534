#include "Velmora/ToolDescription.h"

#include "Dom/JsonObject.h"
#include "KestrixLog.h"
#include "Misc/PackageName.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Velmora/DescriptionText.h"

namespace
{
TSharedPtr<FJsonObject> ParseDescription(const FString& FilePath, const FDescriptionText& Description, FString& OutError)
{
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Description.Text);
	TSharedPtr<FJsonObject> Object;
	if (FJsonSerializer::Deserialize(Reader, Object) && Object.IsValid())
	{
		return Object;
	}
	OutError = FString::Printf(TEXT("Deserialize File %s failed, check: '\\' "), *FilePath);
	UE_LOG(PythonKX, Warning, TEXT("%s"), *OutError);
	UE_LOG(PythonKX, Display, TEXT("%s: %s"), *Description.DescribePlace(static_cast<int32>(Reader->GetLineNumber())),
		*Reader->GetErrorMessage());
	return nullptr;
}

/** For the getters that report a description which cannot be parsed in their own words, too. */
TSharedPtr<FJsonObject> LoadJsonFileOrReport(const FString& JsonPath)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		UE_LOG(PythonKX, Error, TEXT("Json object is not Valid %s"), *JsonPath);
	}
	return Object;
}

/** A string of the top level. One that is there and is no text reads as empty, and the JSON value says so in its own category. */
bool ReadStringField(const FJsonObject& Object, const FString& Key, FString& Out)
{
	if (!Object.HasField(Key))
	{
		return false;
	}
	Out = Object.GetStringField(Key);
	return true;
}

FVector2D ReadTwoNumbers(const FJsonObject& Object, const FString& Key)
{
	const FVector2D Unset(-1.0, -1.0);
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	if (!Object.TryGetArrayField(Key, Values) || Values->Num() < 2)
	{
		return Unset;
	}
	const FJsonValue& X = *(*Values)[0];
	const FJsonValue& Y = *(*Values)[1];
	if (X.Type != EJson::Number || Y.Type != EJson::Number)
	{
		return Unset;
	}
	return FVector2D(X.AsNumber(), Y.AsNumber());
}
}

TSharedPtr<FJsonObject> LoadJsonFile(const FString& FilePath, FString& OutError)
{
	FDescriptionText Description;
	if (!ReadDescriptionText(FilePath, Description, OutError))
	{
		return nullptr;
	}
	return ParseDescription(FilePath, Description, OutError);
}

bool GetStringFieldOfFile(const FString& JsonPath, const FString& FieldName, FString& OutValue)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	OutValue.Empty();
	ReadStringField(*Object, FieldName, OutValue);
	return !OutValue.IsEmpty();
}

bool GetDataAndTabLabel(const FString& JsonPath, FString& OutDataPath, FString& OutTabLabel)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		return false;
	}
	OutDataPath.Empty();
	if (ReadStringField(*Object, TEXT("VelmoraData"), OutDataPath))
	{
		if (OutDataPath.IsEmpty())
		{
			UE_LOG(PythonKX, Log, TEXT("Default data used."));
		}
		else if (!FPackageName::DoesPackageExist(OutDataPath))
		{
			UE_LOG(PythonKX, Error, TEXT("Json File can't find: VelmoraData, Default data used. @ %s"), *OutDataPath);
		}
	}
	ReadStringField(*Object, TEXT("TabLabel"), OutTabLabel);
	return true;
}

bool GetInitPyCmd(const FString& JsonPath, FString& OutCommand)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	OutCommand.Empty();
	if (!ReadStringField(*Object, TEXT("InitPyCmd"), OutCommand))
	{
		UE_LOG(PythonKX, Error, TEXT("Json File can't find: InitPyCmd  %s"), *JsonPath);
	}
	return !OutCommand.IsEmpty();
}

bool GetOnClosePyCmd(const FString& JsonPath, FString& OutCommand)
{
	return GetStringFieldOfFile(JsonPath, TEXT("OnClosePyCmd"), OutCommand);
}

bool GetOnTabContextMenu(const FString& JsonPath, TSharedPtr<FJsonObject>& OutMenu)
{
	const TSharedPtr<FJsonObject> Object = LoadJsonFileOrReport(JsonPath);
	if (!Object.IsValid())
	{
		return false;
	}
	const TSharedPtr<FJsonObject>* Menu = nullptr;
	if (!Object->TryGetObjectField(TEXT("OnTabContextMenu"), Menu))
	{
		return false;
	}
	OutMenu = *Menu;
	return true;
}

bool GetInitTabGeometry(const FString& JsonPath, FVector2D& OutSize, FVector2D& OutPosition)
{
	FString Error;
	const TSharedPtr<FJsonObject> Object = LoadJsonFile(JsonPath, Error);
	if (!Object.IsValid())
	{
		return false;
	}
	OutSize = ReadTwoNumbers(*Object, TEXT("InitTabSize"));
	OutPosition = ReadTwoNumbers(*Object, TEXT("InitTabPosition"));
	return true;
}
