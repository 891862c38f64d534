#include "Engine/Blueprint.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
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

UVelmoraData* MakeDataObject(const FString& JsonPath, const FString& DataPath)
{
	const FString ToolName = FPaths::GetBaseFilename(JsonPath);
	if (const UBlueprint* const Blueprint = LoadDataBlueprint(DataPath))
	{
		UE_LOG(PythonKX, Log, TEXT("GetToolsDataInstance: Creat DataBP: %s"), *DataPath);
		const FName Name(*(FPaths::GetBaseFilename(DataPath) + TEXT("_") + ToolName));
		return Cast<UVelmoraData>(NewObject<UObject>(GetTransientPackage(), Blueprint->GeneratedClass, Name, RF_MarkAsRootSet));
	}
	UE_LOG(PythonKX, Log, TEXT("GetToolsDataInstance: Creat from UVelmoraData"));
	return NewObject<UVelmoraData>(GetTransientPackage(), FName(*(TEXT("UVelmoraData_") + ToolName)), RF_MarkAsRootSet);
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
