#include "PythonTest.h"

#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

static TArray<FString> GWarningsOfStart;

class FPythonEnvironment final : public testing::Environment
{
public:
	void SetUp() override
	{
		ProcessNewlyLoadedUObjects();
		FModuleManager::Get().StartProcessingNewlyLoadedObjects();
		const FLogCapture Log(TEXT("LogPython"));
		const IPythonScriptPlugin& Python = FModuleManager::LoadModuleChecked<IPythonScriptPlugin>(TEXT("PythonScriptPlugin"));
		ASSERT_TRUE(Python.IsPythonAvailable());
		GWarningsOfStart = Log.Warnings();
	}

	void TearDown() override { FModuleManager::Get().UnloadModulesAtShutdown(); }
};

static testing::Environment* const GPythonEnvironment = testing::AddGlobalTestEnvironment(new FPythonEnvironment);

bool PythonTest::RunPython(const FString& Command)
{
	return IPythonScriptPlugin::Get()->ExecPythonCommand(*Command);
}

FPythonCommandEx PythonTest::RunEx(const FString& Command, EPythonCommandExecutionMode Mode, EPythonFileExecutionScope Scope)
{
	FPythonCommandEx Extended;
	Extended.Command = Command;
	Extended.ExecutionMode = Mode;
	Extended.FileExecutionScope = Scope;
	IPythonScriptPlugin::Get()->ExecPythonCommandEx(Extended);
	return Extended;
}

static FString LastLine(const FString& Text)
{
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines);
	return Lines.Num() > 0 ? Lines.Last() : FString();
}

FString PythonTest::Evaluate(const FString& Expression)
{
	return LastLine(RunEx(Expression, EPythonCommandExecutionMode::EvaluateStatement).CommandResult);
}

FString PythonTest::ErrorOf(const FString& Statements)
{
	const FString Result = RunEx(Statements).CommandResult;
	return Result == TEXT("None") ? FString() : LastLine(Result);
}

const TArray<FString>& PythonTest::WarningsOfStart()
{
	return GWarningsOfStart;
}
