#include "BenchmarkedEditor.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "IPythonScriptPlugin.h"
#include "LaunchEngineLoop.h"
#include "Misc/CommandLine.h"
#include "Misc/Paths.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace
{
SWidget* FindShown(SWidget& Widget, const FName Type)
{
	if (Widget.GetType() == Type)
	{
		return &Widget;
	}
	for (SWidget* const Child : Widget.GetVisibleChildren())
	{
		if (SWidget* const Found = FindShown(*Child, Type))
		{
			return Found;
		}
	}
	return nullptr;
}

[[noreturn]] void Fail(const FString& Reason)
{
	std::fprintf(stderr, "%s\n", TCHAR_TO_UTF8(*Reason));
	std::exit(1);
}
}

IPythonScriptPlugin& BenchmarkedEditor::GetPython()
{
	return *IPythonScriptPlugin::Get();
}

void BenchmarkedEditor::Run(const FString& Command)
{
	if (!GetPython().ExecPythonCommand(*Command))
	{
		Fail(TEXT("This command failed, see the project's log: ") + Command);
	}
}

FString BenchmarkedEditor::GetForm(int64 NumLeaves)
{
	return FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), FString::Printf(TEXT("Forms/Form%lld.json"), NumLeaves));
}

void BenchmarkedEditor::OpenForm(const FString& Path)
{
	Run(FString::Printf(TEXT("assert unreal.VelmoraData.launch_velmora_tool('%s')"), *Path));
	PassFrame();
}

void BenchmarkedEditor::CloseForm(const FString& Path)
{
	Run(FString::Printf(TEXT("assert unreal.VelmoraData.request_close('%s')"), *Path));
	PassFrame();
}

TSharedRef<SWidget> BenchmarkedEditor::FindInForm(const FString& Path, const TCHAR* Type)
{
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FName(*Path)));
	SWidget* const Found = Tab.IsValid() ? FindShown(*Tab->GetContent(), Type) : nullptr;
	if (!Found)
	{
		Fail(FString::Printf(TEXT("The form shows no %s"), Type));
	}
	return Found->AsShared();
}

void BenchmarkedEditor::DamageMainWindow()
{
	FSlateApplication::Get().OnOSPaint(FGlobalTabmanager::Get()->GetRootWindow()->GetNativeWindow().ToSharedRef());
}

void BenchmarkedEditor::PassFrame()
{
	GEngineLoop.Tick();
}

/** usage: EditorBenchmarks PROJECT.uproject [flags of Google Benchmark]. The forms stand in the project's folder Forms. */
int main(int ArgumentCount, char** Arguments)
{
	benchmark::Initialize(&ArgumentCount, Arguments);
	if (!GEngineLoop.PreInit(*(FCommandLine::BuildFromArgV(ArgumentCount, Arguments) + TEXT(" -RenderOffScreen -unattended"))))
	{
		return 2;
	}
	GEngineLoop.Init();
	BenchmarkedEditor::PassFrame();
	benchmark::RunSpecifiedBenchmarks();
	GEngineLoop.Exit();
	return 0;
}
