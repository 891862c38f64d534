#include "Engine/Blueprint.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "NameOfText.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "Velmora/VelmoraData.h"

namespace
{
UBlueprint* LoadDataBlueprint(const FString& DataPath)
{
	if (DataPath.IsEmpty() || !FPackageName::DoesPackageExist(DataPath))
	{
		return nullptr;
	}
	return Cast<UBlueprint>(StaticLoadObject(UBlueprint::StaticClass(), nullptr, *DataPath));
}

/** The name that a data object would like to have, or one like it where another tool's object bears that. */
FName MakeDataObjectName(UClass* Class, const FString& DesiredName)
{
	const FName Name = NameOfText(DesiredName);
	const bool bTaken = StaticFindObjectFast(UObject::StaticClass(), GetTransientPackage(), Name) != nullptr;
	return bTaken ? MakeUniqueObjectName(GetTransientPackage(), Class, Name) : Name;
}

UVelmoraData* MakeDataObject(const FString& JsonPath, const FString& DataPath)
{
	const FString ToolName = FPaths::GetBaseFilename(JsonPath);
	if (const UBlueprint* const Blueprint = LoadDataBlueprint(DataPath))
	{
		UE_LOG(PythonKX, Log, TEXT("GetToolsDataInstance: Creat DataBP: %s"), *DataPath);
		UClass* const Class = Blueprint->GeneratedClass;
		const FName Name = MakeDataObjectName(Class, FPaths::GetBaseFilename(DataPath) + TEXT("_") + ToolName);
		return Cast<UVelmoraData>(NewObject<UObject>(GetTransientPackage(), Class, Name, RF_MarkAsRootSet));
	}
	UE_LOG(PythonKX, Log, TEXT("GetToolsDataInstance: Creat from UVelmoraData"));
	const FName Name = MakeDataObjectName(UVelmoraData::StaticClass(), TEXT("UVelmoraData_") + ToolName);
	return NewObject<UVelmoraData>(GetTransientPackage(), Name, RF_MarkAsRootSet);
}
}

UVelmoraData* FKestrixModule::GetToolsDataInstance(FString JsonPath, FString DataPath)
{
	if (UVelmoraData* const* const Existing = ToolDataInstances.Find(JsonPath))
	{
		return *Existing;
	}
	UVelmoraData* const Data = MakeDataObject(JsonPath, DataPath);
	Data->AddToRoot();
	return ToolDataInstances.Add(JsonPath, Data);
}

UVelmoraData* FKestrixModule::GetToolsDataInstanceByName(FString JsonPath)
{
	UVelmoraData* const* const Data = ToolDataInstances.Find(JsonPath);
	if (Data == nullptr)
	{
		UE_LOG(PythonKX, Warning, TEXT("Can't find Tools Data Instance by Name: %s"), *JsonPath);
		return nullptr;
	}
	return *Data;
}

TArray<FString> FKestrixModule::GetAllToolDataPaths() const
{
	TArray<FString> Paths;
	ToolDataInstances.GetKeys(Paths);
	return Paths;
}

FString FKestrixModule::GetToolPathOfDataObject(UVelmoraData* Data) const
{
	const FString* const Path = ToolDataInstances.FindKey(Data);
	return Path != nullptr ? *Path : FString();
}
