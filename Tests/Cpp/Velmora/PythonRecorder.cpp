#include "Velmora/PythonRecorder.h"

#include "IPythonScriptPlugin.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

namespace
{
const FName ModuleName("PythonScriptPlugin");

TArray<FString>& GetCommands()
{
	static TArray<FString> Commands;
	return Commands;
}

bool bPythonAvailable = true;

TFunction<void()>& GetOnCommand()
{
	static TFunction<void()> OnCommand;
	return OnCommand;
}

class FRecordingPython final : public IPythonScriptPlugin
{
public:
	virtual bool IsPythonAvailable() const override { return bPythonAvailable; }

	virtual bool ExecPythonCommand(const TCHAR* PythonCommand) override
	{
		GetCommands().Add(PythonCommand);
		if (GetOnCommand())
		{
			GetOnCommand()();
		}
		return true;
	}

	virtual bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) override
	{
		ADD_FAILURE() << "events run plain commands";
		return false;
	}

	virtual FSimpleMulticastDelegate& OnPythonInitialized() override { return Initialized; }
	virtual FSimpleMulticastDelegate& OnPythonShutdown() override { return Shutdown; }

private:
	FSimpleMulticastDelegate Initialized;
	FSimpleMulticastDelegate Shutdown;
};
}

FPythonRecorder::FPythonRecorder()
{
	FModuleManager& Modules = FModuleManager::Get();
	EXPECT_FALSE(Modules.IsModuleLoaded(ModuleName)) << "two of them, or a real one beside it";
	Modules.RegisterStaticallyLinkedModule(ModuleName, [] { return new FRecordingPython; });
	Modules.LoadModule(ModuleName);
	GetCommands().Empty();
	bPythonAvailable = true;
}

FPythonRecorder::~FPythonRecorder()
{
	FModuleManager::Get().UnloadModule(ModuleName);
	GetOnCommand() = nullptr;
}

TArray<FString> FPythonRecorder::Take()
{
	TArray<FString> Taken = MoveTemp(GetCommands());
	GetCommands().Empty();
	return Taken;
}

void FPythonRecorder::SetAvailable(bool bAvailable)
{
	bPythonAvailable = bAvailable;
}

void FPythonRecorder::SetOnCommand(TFunction<void()> OnCommand)
{
	GetOnCommand() = MoveTemp(OnCommand);
}
