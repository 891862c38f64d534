#include "EditorPythonScriptingLibrary.h"
#include "HAL/PlatformProcess.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/CommandLine.h"
#include "Misc/CoreDelegates.h"
#include "Misc/CoreMisc.h"
#include "PythonTest.h"
#include "TempProject.h"

#include <gtest/gtest.h>

using namespace PythonTest;

/** A further instance of the module, started as things stand now. */
class FSecondPython
{
public:
	FSecondPython()
	{
		const FString Library = FString(FPlatformProcess::BaseDir()) / TEXT("libPythonScriptPlugin.so");
		using FInitialize = IModuleInterface* (*)();
		const FInitialize Initialize = reinterpret_cast<FInitialize>(
			FPlatformProcess::GetDllExport(FPlatformProcess::GetDllHandle(*Library), TEXT("InitializeModule")));
		Module.Reset(static_cast<IPythonScriptPlugin*>(Initialize()));
		Module->StartupModule();
	}

	~FSecondPython() { Module->ShutdownModule(); }

	IPythonScriptPlugin* operator->() const { return Module.Get(); }

private:
	TUniquePtr<IPythonScriptPlugin> Module;
};

static void ExpectNothingRuns(const FSecondPython& Python)
{
	const FLogCapture Log(TEXT("LogPython"));
	EXPECT_FALSE(Python->IsPythonAvailable());
	EXPECT_FALSE(Python->ExecPythonCommand(TEXT("print('x')")));
	FPythonCommandEx Command;
	Command.Command = TEXT("print('x')");
	EXPECT_FALSE(Python->ExecPythonCommandEx(Command));
	EXPECT_EQ(Log.Lines().Num(), 0);
}

TEST(PythonScriptPlugin, CommandLineTurnsPythonOff)
{
	const FString CommandLine = FCommandLine::Get();
	FCommandLine::Append(TEXT(" -DisablePython"));
	ExpectNothingRuns(FSecondPython());
	FCommandLine::Set(*CommandLine);
}

TEST(PythonScriptPlugin, ProjectTurnsPythonOff)
{
	{
		const FTempProject Project(TEXT("NoPython"));
		Project.Write(TEXT("NoPython.uproject"),
			TEXT("{ \"FileVersion\": 3, \"Plugins\": [ { \"Name\": \"PythonScriptPlugin\", \"Enabled\": false } ] }"));
		IPluginManager::Get().RefreshPluginsList();
		ExpectNothingRuns(FSecondPython());
	}
	IPluginManager::Get().RefreshPluginsList();
}

TEST(PythonScriptPlugin, IsFoundByItsName)
{
	EXPECT_NE(IPythonScriptPlugin::Get(), nullptr);
	EXPECT_EQ(FModuleManager::GetModulePtr<IPythonScriptPlugin>(TEXT("PythonScriptPlugin")), IPythonScriptPlugin::Get());
}

TEST(PythonScriptPlugin, InterpreterIsIsolated)
{
	EXPECT_EQ(Evaluate(TEXT("(__import__('sys').flags.isolated, __import__('sys').flags.ignore_environment, "
							"__import__('sys').flags.no_user_site)")),
		TEXT("(1, 1, 1)"));
	EXPECT_EQ(Evaluate(TEXT("any(p.endswith('dist-packages') for p in __import__('sys').path)")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.get_interpreter_executable_path() == __import__('sys').executable")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT(
				  "__import__('subprocess').check_output([unreal.get_interpreter_executable_path(), '-c', 'print(7)']).strip()")),
		TEXT("b'7'"));
}

TEST(PythonScriptPlugin, ExtensionModulesOfTheSystemCanBeImported)
{
	EXPECT_EQ(ErrorOf(TEXT("import _ssl, _decimal, sqlite3")), TEXT(""));
}

TEST(PythonScriptPlugin, StartupScriptsOfProjectAndPluginsRunWhenTheEditorIsUp)
{
	{
		const FTempProject Project;
		Project.Write(TEXT("Plugins/Helper/Helper.uplugin"), TEXT("{ \"FileVersion\": 3, \"EnabledByDefault\": true }"));
		Project.Write(TEXT("Plugins/Helper/Content/Python/init_unreal.py"), TEXT("started.append('plugin')\n"));
		Project.Write(TEXT("Content/Python/init_unreal.py"), TEXT("started.append('project')\n"));
		IPluginManager::Get().RefreshPluginsList();

		const FDelegateHandle Initialized = IPythonScriptPlugin::Get()->OnPythonInitialized().AddLambda(
			[] { RunPython(TEXT("import builtins; builtins.started = ['editor']")); });
		FCoreDelegates::OnPostEngineInit.Broadcast();
		IPythonScriptPlugin::Get()->OnPythonInitialized().Remove(Initialized);
	}
	IPluginManager::Get().RefreshPluginsList();
	EXPECT_EQ(Evaluate(TEXT("started")), TEXT("['editor', 'plugin', 'project']"));
}

TEST(PythonScriptPlugin, KeepAliveIsRemembered)
{
	EXPECT_FALSE(UEditorPythonScripting::GetKeepPythonScriptAlive());
	EXPECT_TRUE(RunPython(TEXT("unreal.EditorPythonScripting.set_keep_python_script_alive(True)")));
	EXPECT_TRUE(UEditorPythonScripting::GetKeepPythonScriptAlive());
	EXPECT_EQ(Evaluate(TEXT("unreal.EditorPythonScripting.get_keep_python_script_alive()")), TEXT("True"));
	UEditorPythonScripting::SetKeepPythonScriptAlive(false);
}

TEST(PythonScriptLibrary, RunsCommandsFromPython)
{
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonScriptLibrary.is_python_available()")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonScriptLibrary.execute_python_command('ran = 1')")), TEXT("True"));
	EXPECT_TRUE(RunPython(TEXT("result = unreal.PythonScriptLibrary.execute_python_command_ex('print(1)\\n')")));
	EXPECT_EQ(Evaluate(TEXT("(result[0], [(e.type.name, e.output) for e in result[1]])")), TEXT("('None', [('INFO', '1')])"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonScriptLibrary.execute_python_command_ex('1/0')")), TEXT("None"));
	EXPECT_EQ(Evaluate(TEXT("unreal.PythonScriptLibrary.execute_python_command_ex('6*7', "
							"execution_mode=unreal.PythonCommandExecutionMode.EVALUATE_STATEMENT)[0]")),
		TEXT("'42'"));
}

TEST(PythonScriptPlugin, ConsoleInputThatBeginsWithPyRuns)
{
	EXPECT_TRUE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("py from_console = 'a' + \"b\""), *GLog));
	EXPECT_EQ(Evaluate(TEXT("from_console")), TEXT("'ab'"));
	EXPECT_FALSE(FSelfRegisteringExec::StaticExec(nullptr, TEXT("python from_console = 1"), *GLog));
}
