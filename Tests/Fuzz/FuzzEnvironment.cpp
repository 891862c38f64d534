#include "FuzzEnvironment.h"

#include "Framework/Application/SlateApplication.h"
#include "HAL/FileManager.h"
#include "IPythonScriptPlugin.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

#include <cstdlib>

namespace
{
/** A field whose text is set while it is built tells its command; here nobody runs it. */
class FSilentPython final : public IPythonScriptPlugin
{
public:
	virtual bool IsPythonAvailable() const override { return false; }
	virtual bool ExecPythonCommand(const TCHAR* PythonCommand) override { return false; }
	virtual bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) override { return false; }
	virtual FSimpleMulticastDelegate& OnPythonInitialized() override { return Initialized; }
	virtual FSimpleMulticastDelegate& OnPythonShutdown() override { return Shutdown; }

private:
	FSimpleMulticastDelegate Initialized;
	FSimpleMulticastDelegate Shutdown;
};

FString ProjectFolder;

void RemoveProject()
{
	IFileManager::Get().DeleteDirectory(*ProjectFolder, false, true);
}
}

void StartFuzzEnvironment()
{
	ANSICHAR Pattern[] = "/tmp/KestrixFuzzXXXXXX";
	ProjectFolder = mkdtemp(Pattern);
	std::atexit(&RemoveProject);

	FCommandLine::Set(TEXT("-RenderOffScreen -unattended"));
	FPaths::SetProjectFilePath(ProjectFolder / TEXT("Fuzz.uproject"));
	FConfigCacheIni::InitializeConfigSystem();
	// The lines of thousands of runs would fill the memory.
	GLog->EnableBacklog(false);
	FModuleManager::Get().RegisterStaticallyLinkedModule("PythonScriptPlugin", [] { return new FSilentPython; });
	FModuleManager::Get().LoadModule("PythonScriptPlugin");
	FSlateApplication::Create();
}

FString WriteFuzzFile(const TCHAR* Name, const uint8* Data, SIZE_T Size)
{
	const FString Path = ProjectFolder / Name;
	FFileHelper::SaveArrayToFile(TArrayView<const uint8>(Data, static_cast<int32>(Size)), *Path);
	return Path;
}
