#include "IPythonScriptPlugin.h"

#include <benchmark/benchmark.h>

namespace
{
IPythonScriptPlugin& GetPython()
{
	static IPythonScriptPlugin* Python = nullptr;
	if (!Python)
	{
		FModuleManager::Get().LoadModuleChecked(TEXT("CoreUObject"));
		FModuleManager::Get().StartProcessingNewlyLoadedObjects();
		Python = &FModuleManager::LoadModuleChecked<IPythonScriptPlugin>(TEXT("PythonScriptPlugin"));
		Python->ExecPythonCommand(TEXT("def handler(value): pass\nobj = unreal.PythonScriptLibrary.static_class()"));
	}
	return *Python;
}

/** One event of a widget that runs the same text again. */
void RepeatedCommand(benchmark::State& State, const TCHAR* Command)
{
	IPythonScriptPlugin& Python = GetPython();
	for (auto _ : State)
	{
		Python.ExecPythonCommand(Command);
	}
}

BENCHMARK_CAPTURE(RepeatedCommand, Nothing, TEXT("pass"));
BENCHMARK_CAPTURE(RepeatedCommand, PythonFunction, TEXT("handler(1)"));
BENCHMARK_CAPTURE(RepeatedCommand, StaticFunction, TEXT("unreal.EditorPythonScripting.set_keep_python_script_alive(False)"));
BENCHMARK_CAPTURE(RepeatedCommand, ObjectMethod, TEXT("obj.get_name()"));

/** One event of a widget whose text differs each time, such as that of a slider: compiled anew. */
void NewCommand(benchmark::State& State)
{
	IPythonScriptPlugin& Python = GetPython();
	int32 Value = 0;
	for (auto _ : State)
	{
		Python.ExecPythonCommand(*FString::Printf(TEXT("handler(%d)"), ++Value));
	}
}
BENCHMARK(NewCommand);
}
