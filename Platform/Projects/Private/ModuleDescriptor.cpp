#include "ModuleDescriptor.h"

#include "DescriptorReader.h"

namespace
{
const TCHAR* const GLoadingPhases[] = {
	TEXT("EarliestPossible"),
	TEXT("PostConfigInit"),
	TEXT("PostSplashScreen"),
	TEXT("PreEarlyLoadingScreen"),
	TEXT("PreLoadingScreen"),
	TEXT("PreDefault"),
	TEXT("Default"),
	TEXT("PostDefault"),
	TEXT("PostEngineInit"),
	TEXT("None"),
};
static_assert(sizeof(GLoadingPhases) / sizeof(GLoadingPhases[0]) == ELoadingPhase::Max, "Each phase has its name");

struct FModuleType
{
	const TCHAR* Name;
	bool bForEditor;
};

// clang-format off
const FModuleType GModuleTypes[] = {
	{ TEXT("Runtime"),                true },
	{ TEXT("RuntimeNoCommandlet"),    true },
	{ TEXT("RuntimeAndProgram"),      true },
	{ TEXT("CookedOnly"),             false },
	{ TEXT("UncookedOnly"),           true },
	{ TEXT("Developer"),              true },
	{ TEXT("DeveloperTool"),          true },
	{ TEXT("Editor"),                 true },
	{ TEXT("EditorNoCommandlet"),     true },
	{ TEXT("EditorAndProgram"),       true },
	{ TEXT("Program"),                false },
	{ TEXT("ServerOnly"),             true },
	{ TEXT("ClientOnly"),             true },
	{ TEXT("ClientOnlyNoCommandlet"), true },
};
// clang-format on

void ReadLoadingPhase(FDescriptorReader& Reader, ELoadingPhase::Type& OutPhase)
{
	FString Text(ELoadingPhase::ToString(OutPhase));
	Reader.Read(TEXT("LoadingPhase"), Text);
	for (int32 Phase = 0; Phase < ELoadingPhase::Max; ++Phase)
	{
		if (Text == GLoadingPhases[Phase])
		{
			OutPhase = static_cast<ELoadingPhase::Type>(Phase);
			return;
		}
	}
	Reader.Fail(TEXT("LoadingPhase"), FString::Join(GLoadingPhases, TEXT(", ")), Text);
}

void ReadType(FDescriptorReader& Reader, bool& bOutForEditor)
{
	FString Text(TEXT("Runtime"));
	Reader.Read(TEXT("Type"), Text);
	TArray<FString> Names;
	for (const FModuleType& Type : GModuleTypes)
	{
		if (Text == Type.Name)
		{
			bOutForEditor = Type.bForEditor;
			return;
		}
		Names.Add(Type.Name);
	}
	Reader.Fail(TEXT("Type"), FString::Join(Names, TEXT(", ")), Text);
}
}

const TCHAR* ELoadingPhase::ToString(Type Phase)
{
	return GLoadingPhases[Phase];
}

bool FModuleDescriptor::ReadArray(const FJsonObject& In, TArray<FModuleDescriptor>& OutModules, FText& OutFailReason)
{
	FDescriptorReader Root(In, FString(), OutFailReason);
	Root.ReadObjects(TEXT("Modules"),
		[&OutModules](FDescriptorReader& Reader)
		{
			FModuleDescriptor& Module = OutModules.AddDefaulted_GetRef();
			FString Name;
			Reader.ReadRequired(TEXT("Name"), Name);
			Module.Name = FName(*Name);
			ReadType(Reader, Module.bForEditor);
			ReadLoadingPhase(Reader, Module.LoadingPhase);
		});
	return !Root.HasFailed();
}
