#include "LaunchEngineLoop.h"

#include "Containers/Ticker.h"
#include "EditorCommandLine.h"
#include "EditorPythonScriptingLibrary.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "GarbageSchedule.h"
#include "HAL/FileManager.h"
#include "HAL/IConsoleManager.h"
#include "HAL/PlatformMisc.h"
#include "PythonScriptOfProcess.h"
#include "Interfaces/IPluginManager.h"
#include "MainWindow.h"
#include "Misc/App.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Misc/CoreMisc.h"
#include "Misc/OutputDeviceFile.h"
#include "Misc/OutputDeviceStdOutput.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "TerminalReport.h"
#include "TerminationSignals.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

#include <cstdio>

DEFINE_LOG_CATEGORY_STATIC(LogLaunch, Log, All);

FEngineLoop GEngineLoop;

namespace
{
/** Whoever wants every frame, an animation or a callback, gets no more than sixty a second. Input does not wait for it. */
constexpr double ShortestFrame = 1.0 / 60.0;

/** A shell gives this plus its number for a process that a signal ended. */
constexpr int32 SignalStatus = 128;

/** The commands behind -ExecCmds, in their order. */
TArray<FString> GetCommandsOfCommandLine()
{
	FString Commands;
	FParse::Value(FCommandLine::Get(), TEXT("-ExecCmds="), Commands, false);
	TArray<FString> Each;
	Commands.ParseIntoArray(Each, TEXT(";"));
	for (FString& Command : Each)
	{
		Command.TrimStartAndEndInline();
	}
	return Each;
}

bool IsQuit(const FString& Input)
{
	return Input == TEXT("quit") || Input == TEXT("exit") || Input == TEXT("QUIT_EDITOR");
}

/** Makes the packages of the engine, the project and its plugins known by their names. */
void MountContent()
{
	FPackageName::RegisterMountPoint(TEXT("/Engine/"), FPaths::EngineContentDir());
	FPackageName::RegisterMountPoint(TEXT("/Game/"), FPaths::ProjectContentDir());
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetEnabledPluginsWithContent())
	{
		FPackageName::RegisterMountPoint(Plugin->GetMountedAssetPath(), Plugin->GetContentDir());
	}
}

void RunConsoleInput(const FString& Input)
{
	if (IsQuit(Input))
	{
		RequestEngineExit(TEXT("The console said so."));
		return;
	}
	if (!IConsoleManager::Get().ProcessUserConsoleInput(*Input, *GLog, nullptr) &&
		!FSelfRegisteringExec::StaticExec(nullptr, *Input, *GLog))
	{
		UE_LOG(LogLaunch, Warning, TEXT("Command not recognized: %s"), *Input);
	}
}
}

FEngineLoop::FEngineLoop()
	: GarbageSchedule(MakeUnique<FGarbageSchedule>())
{
}

FEngineLoop::~FEngineLoop() = default;

bool FEngineLoop::PreInit(const TCHAR* CommandLine)
{
	FPlatformMisc::SetCrashHandler();
	FCommandLine::Set(CommandLine);
	FString ProjectFile;
	const TCHAR* Rest = CommandLine;
	FParse::Token(Rest, ProjectFile, false);
	const FString Trouble = EditorCommandLine::CheckProjectFile(ProjectFile);
	if (!Trouble.IsEmpty())
	{
		std::fprintf(stderr, "%s%s", TCHAR_TO_UTF8(*Trouble), EditorCommandLine::Usage);
		return false;
	}
	ProjectFile = EditorCommandLine::MakeFull(ProjectFile);
	FPaths::SetProjectFilePath(ProjectFile);
	OpenLog();
	for (const FString& Switch : EditorCommandLine::FindUnknownSwitches(CommandLine))
	{
		UE_LOG(LogLaunch, Warning, TEXT("Unknown switch: %s"), *Switch);
	}
	FConfigCacheIni::InitializeConfigSystem();
	return true;
}

void FEngineLoop::OpenLog()
{
	FString LogPath;
	if (!FParse::Value(FCommandLine::Get(), TEXT("-abslog="), LogPath))
	{
		LogPath = FPaths::ProjectLogDir() / FString(FApp::GetProjectName()) + TEXT(".log");
	}
	LogFile = MakeUnique<FOutputDeviceFile>(*LogPath);
	GLog->SerializeBacklog(LogFile.Get());
	GLog->AddOutputDevice(LogFile.Get());
	if (FParse::Param(FCommandLine::Get(), TEXT("stdout")))
	{
		StdOut = MakeUnique<FOutputDeviceStdOutput>();
		GLog->SerializeBacklog(StdOut.Get());
		GLog->AddOutputDevice(StdOut.Get());
		return;
	}
	std::fprintf(stderr, LogFile->IsOpened() ? "The log is %s\n" : "The log cannot be written to %s\n",
		TCHAR_TO_UTF8(*LogFile->GetFilename()));
	TerminalReport = MakeUnique<FTerminalReport>();
	GLog->SerializeBacklog(TerminalReport.Get());
	GLog->AddOutputDevice(TerminalReport.Get());
}

void FEngineLoop::Init()
{
	FModuleManager& Modules = FModuleManager::Get();
	Modules.LoadModule(TEXT("CoreUObject"));
	Modules.StartProcessingNewlyLoadedObjects();
	MountContent();

	FSlateApplication::Create();
	FApp::SetUseFixedTimeStep(!FSlateApplication::Get().GetPlatformApplication()->HasVisibleWindows());
	Modules.LoadModule(TEXT("EditorStyle"));
	Modules.LoadModule(TEXT("PythonScriptPlugin"));
	Modules.LoadModule(TEXT("EditorDriver"));
	Signals = MakeUnique<FTerminationSignals>([] { FSlateApplication::Get().GetPlatformApplication()->WakeUp(); });
	OpenMainWindow();

	IPluginManager& Plugins = IPluginManager::Get();
	for (const ELoadingPhase::Type Phase :
		{ELoadingPhase::PreDefault, ELoadingPhase::Default, ELoadingPhase::PostDefault, ELoadingPhase::PostEngineInit})
	{
		Plugins.LoadModulesForEnabledPlugins(Phase);
	}
	UE_LOG(LogLaunch, Log, TEXT("Project %s is open."), *FPaths::GetProjectFilePath());
	FCoreDelegates::OnPostEngineInit.Broadcast();
	// Whoever wanted the lines of the start has them; those of a long day would fill the memory.
	GLog->EnableBacklog(false);
}

bool FEngineLoop::HasUser() const
{
	FString Script;
	return FSlateApplication::Get().GetPlatformApplication()->HasVisibleWindows() ||
		FParse::Value(FCommandLine::Get(), TEXT("-ExecutePythonScript="), Script, false) ||
		GetCommandsOfCommandLine().ContainsByPredicate(&IsQuit);
}

void FEngineLoop::OpenMainWindow()
{
	MainWindow = MakeMainWindow();
	MainWindow->SetRequestDestroyWindowOverride(
		FRequestDestroyWindowOverride::CreateRaw(this, &FEngineLoop::OnMainWindowWantsToClose));
	FSlateApplication::Get().AddWindow(MainWindow.ToSharedRef());
	FGlobalTabmanager::Get()->SetRootWindow(MainWindow.ToSharedRef());
}

void FEngineLoop::OnMainWindowWantsToClose(const TSharedRef<SWindow>& Window)
{
	// A tab may refuse, and the editor stays.
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		if (!Tab->RequestCloseTab())
		{
			return;
		}
	}
	RequestEngineExit(TEXT("The main window was closed."));
}

void FEngineLoop::AdvanceClock()
{
	const double Now = FApp::UseFixedTimeStep() ? FApp::GetCurrentTime() + FApp::GetFixedDeltaTime() : FPlatformTime::Seconds();
	FApp::SetDeltaTime(GFrameCounter == 0 ? 0.0 : Now - FApp::GetCurrentTime());
	FApp::SetCurrentTime(Now);
	++GFrameCounter;
}

void FEngineLoop::HandleSignal()
{
	if (const int32 Signal = FTerminationSignals::Take())
	{
		UE_LOG(LogLaunch, Log, TEXT("The editor is asked to end by signal %d."), Signal);
		FPlatformMisc::RequestExitWithStatus(false, static_cast<uint8>(SignalStatus + Signal));
	}
}

void FEngineLoop::Tick()
{
	const bool bInnerFrame = bInFrame;
	const TGuardValue<bool> Frame(bInFrame, true);
	HandleSignal();
	AdvanceClock();
	FSlateApplication& Slate = FSlateApplication::Get();
	Slate.PumpMessages();
	GLog->FlushThreadedLogs();
	if (FTSTicker::GetCoreTicker().Tick(static_cast<float>(FApp::GetDeltaTime())))
	{
		Slate.RequestFrame();
	}
	Slate.Tick();
	if (!bInnerFrame)
	{
		GarbageSchedule->EndFrame();
	}
	if (!bCommandsDone)
	{
		bCommandsDone = true;
		RunCommandLineCommands();
	}
}

void FEngineLoop::RunCommandLineCommands()
{
	for (const FString& Command : GetCommandsOfCommandLine())
	{
		RunConsoleInput(Command);
	}

	FString Script;
	if (FParse::Value(FCommandLine::Get(), TEXT("-ExecutePythonScript="), Script, false))
	{
		const FString ScriptFile = EditorCommandLine::MakeFull(Script);
		if (FPaths::FileExists(ScriptFile))
		{
			// A name with blanks in it would be taken for a file with arguments.
			Script = TEXT("\"") + ScriptFile + TEXT("\"");
		}
		ScriptStatus = RunPythonScriptOfProcess(*Script);
		if (ScriptStatus != 0)
		{
			UE_LOG(LogLaunch, Error, TEXT("The script failed: %s"), *Script);
		}
		if (!UEditorPythonScripting::GetKeepPythonScriptAlive())
		{
			RequestEngineExit(TEXT("The script of the command line has ended."));
		}
	}
	FSlateApplication::Get().RequestFrame();
}

void FEngineLoop::WaitForWork(double Longest)
{
	FSlateApplication& Slate = FSlateApplication::Get();
	if (IsEngineExitRequested())
	{
		return;
	}
	if (FApp::UseFixedTimeStep())
	{
		// There is no sleep, but whoever waits for one, a thread of a script for instance, has its turn.
		FCoreDelegates::OnMainLoopSleep.Broadcast();
		FCoreDelegates::OnMainLoopWake.Broadcast();
		return;
	}
	const double ToNextCall = FMath::Min(Slate.GetSecondsToNextCall(), FTSTicker::GetCoreTicker().GetSecondsToNextCall());
	const double ToNextFrame = FApp::GetCurrentTime() + ShortestFrame - FPlatformTime::Seconds();
	const double Seconds = Slate.NeedsFrame() ? ToNextFrame : FMath::Max(ToNextCall, ToNextFrame);
	if (Seconds <= 0.0)
	{
		return;
	}
	FCoreDelegates::OnMainLoopSleep.Broadcast();
	Slate.GetPlatformApplication()->WaitForMessages(FMath::Clamp(Seconds, 0.0, Longest));
	FCoreDelegates::OnMainLoopWake.Broadcast();
}

int32 FEngineLoop::GetExitStatus() const
{
	return ScriptStatus != 0 ? ScriptStatus : FPlatformMisc::GetRequestedReturnCode();
}

void FEngineLoop::Exit()
{
	// One may have come while the last script ran.
	HandleSignal();
	for (const TSharedRef<SDockTab>& Tab : FGlobalTabmanager::Get()->GetLiveTabs())
	{
		Tab->RequestCloseTab();
	}
	FSlateApplication::Get().CloseAllWindowsImmediately();
	MainWindow.Reset();

	Signals.Reset();
	FCoreDelegates::OnEnginePreExit.Broadcast();
	GConfig->Flush(false);
	FModuleManager::Get().UnloadModulesAtShutdown();
	FSlateApplication::Shutdown();
	UE_LOG(LogLaunch, Log, TEXT("The editor has ended."));
	GLog->TearDown();
}
