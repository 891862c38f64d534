#include "PythonScriptPlugin.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"
#include "PythonCommands.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonModule.h"
#include "PythonReferences.h"
#include "PythonSearchPaths.h"
#include "PythonShutdownCallbacks.h"
#include "PythonSlateTicks.h"
#include "PythonStubWriter.h"
#include "UObject/GCScopeLock.h"

IMPLEMENT_MODULE(FPythonScriptPlugin, PythonScriptPlugin)

/** Python is on unless the command line or the project turns it off. */
static bool IsEnabled()
{
	if (FParse::Param(FCommandLine::Get(), TEXT("DisablePython")))
	{
		return false;
	}
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("PythonScriptPlugin"));
	return !Plugin || Plugin->IsEnabled();
}

void FPythonScriptPlugin::StartupModule()
{
	if (!IsEnabled() || !FPythonInterpreter::Start())
	{
		return;
	}
	for (const FString& Folder : PythonSearchPaths::Collect())
	{
		PythonSearchPaths::Add(Folder);
	}
	if (!PythonModule::Create())
	{
		PythonErrors::Report();
		FPythonInterpreter::Stop();
		return;
	}

	FPythonReferences::Start();
	bIsAvailable = true;
	FollowModules();
	PostEngineInit = FCoreDelegates::OnPostEngineInit.AddRaw(this, &FPythonScriptPlugin::FinishStartup);
	EnginePreExit = FCoreDelegates::OnEnginePreExit.AddRaw(this, &FPythonScriptPlugin::StopPython);
}

void FPythonScriptPlugin::ShutdownModule()
{
	StopPython();
	FCoreDelegates::OnPostEngineInit.Remove(PostEngineInit);
	FCoreDelegates::OnEnginePreExit.Remove(EnginePreExit);
	FModuleManager::Get().OnModulesChanged().Remove(ModulesChanged);
}

/** A module's types are there for scripts from the moment it is loaded; a plugin may bring a Python folder too. */
void FPythonScriptPlugin::FollowModules()
{
	ModulesChanged = FModuleManager::Get().OnModulesChanged().AddLambda(
		[this](FName, EModuleChangeReason Reason)
		{
			if (!bIsAvailable || Reason != EModuleChangeReason::ModuleLoaded)
			{
				return;
			}
			PythonModule::Update();
			for (const FString& Folder : PythonSearchPaths::Collect())
			{
				PythonSearchPaths::Add(Folder);
			}
		});
}

void FPythonScriptPlugin::FinishStartup()
{
	if (!bIsAvailable)
	{
		return;
	}
	PythonSlateTicks::Start();
	PythonInitialized.Broadcast();
	bool bDeveloperMode = false;
	GConfig->GetBool(TEXT("/Script/PythonScriptPlugin.PythonScriptPluginUserSettings"), TEXT("bDeveloperMode"), bDeveloperMode,
		GEditorPerProjectIni);
	if (bDeveloperMode)
	{
		PythonStubWriter::Write(FPaths::Combine(FPaths::ProjectDir(), TEXT("Intermediate/PythonStub")));
	}
	RunStartupScripts();
}

void FPythonScriptPlugin::RunStartupScripts()
{
	for (const FString& Script : PythonSearchPaths::FindStartupScripts())
	{
		ExecPythonCommand(*(TEXT("\"") + Script + TEXT("\"")));
	}
}

void FPythonScriptPlugin::StopPython()
{
	if (!bIsAvailable)
	{
		return;
	}
	PythonShutdownCallbacks::Run();
	PythonShutdown.Broadcast();
	bIsAvailable = false;
	PythonCommands::EmptyCache();
	PythonModule::Release();
	FPythonInterpreter::Stop();
	FPythonReferences::Stop();
}

/** Commands run on the game thread, and not at all while Python is off. */
bool FPythonScriptPlugin::CanRun() const
{
	if (!bIsAvailable)
	{
		return false;
	}
	if (!IsInGameThread())
	{
		UE_LOG(LogPython, Error, TEXT("Python commands can be run on the game thread only"));
		return false;
	}
	return true;
}

bool FPythonScriptPlugin::ExecPythonCommand(const TCHAR* PythonCommand)
{
	return RunForStatus(PythonCommand) == 0;
}

int32 FPythonScriptPlugin::RunForStatus(const TCHAR* PythonCommand)
{
	if (!CanRun())
	{
		return 1;
	}
	const FGCScopeGuard NoCollection;
	const int32 Status = PythonCommands::Run(PythonCommand);
	PythonSlateTicks::RequestFrame();
	return Status;
}

bool FPythonScriptPlugin::ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand)
{
	if (!CanRun())
	{
		return false;
	}
	const FGCScopeGuard NoCollection;
	const bool bSucceeded = PythonCommands::Run(InOutPythonCommand);
	PythonSlateTicks::RequestFrame();
	return bSucceeded;
}

bool FPythonScriptPlugin::Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar)
{
	if (!FParse::Command(&Cmd, TEXT("py")))
	{
		return false;
	}
	ExecPythonCommand(Cmd);
	return true;
}
