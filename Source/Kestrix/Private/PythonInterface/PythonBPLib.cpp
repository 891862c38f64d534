#include "PythonInterface/PythonBPLib.h"

#include "IPythonScriptPlugin.h"
#include "Kestrix.h"
#include "KestrixLog.h"
#include "PythonCommand.h"
#include "Velmora/VelmoraData.h"

void UPythonBPLib::ExecPythonCommand(const FString& PythonCommand)
{
	IPythonScriptPlugin* const Python = GetPythonScriptPlugin();
	if (Python == nullptr || !Python->IsPythonAvailable())
	{
		UE_LOG(PythonKX, Warning, TEXT("Python Not Available."));
		return;
	}
	Python->ExecPythonCommand(*PythonCommand);
}

UVelmoraData* UPythonBPLib::GetVelmoraData(FString ToolsJsonPath)
{
	const TArray<FString> Matches = FKestrixModule::Get().GetAllToolDataPaths().FilterByPredicate(
		[&ToolsJsonPath](const FString& Path) { return Path.EndsWith(ToolsJsonPath, ESearchCase::IgnoreCase); });
	return FKestrixModule::Get().GetToolsDataInstanceByName(Matches.Num() == 1 ? Matches[0] : ToolsJsonPath);
}

TArray<FString> UPythonBPLib::GetAllVelmoraDataPaths()
{
	return FKestrixModule::Get().GetAllToolDataPaths();
}
