#include "PythonInterface/PythonBPLib.h"

#include "LogCapture.h"
#include "RunningPlugin.h"
#include "Velmora/VelmoraData.h"

#include <gtest/gtest.h>

namespace
{
using FLines = TArray<FString>;

const FString EmptyTool = ToolWithRoot("{ \"SBox\": {} }");
}

TEST(PythonBPLib, CommandRunsWhilePythonIsAvailable)
{
	FPythonRecorder Python;
	const FLogCapture Log;

	UPythonBPLib::ExecPythonCommand(TEXT("print(1)"));
	UPythonBPLib::ExecPythonCommand(TEXT(""));

	EXPECT_EQ(Python.Take(), FLines({TEXT("print(1)"), TEXT("")}));
	EXPECT_EQ(Log.Lines(), FLines());
}

TEST(PythonBPLib, CommandWithPythonTurnedOffIsAWarning)
{
	FPythonRecorder Python;
	Python.SetAvailable(false);
	const FLogCapture Log;

	UPythonBPLib::ExecPythonCommand(TEXT("print(1)"));

	EXPECT_EQ(Python.Take(), FLines());
	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Warning: Python Not Available.")}));
}

TEST(PythonBPLib, CommandWithoutThePythonModuleIsAWarning)
{
	const FLogCapture Log;

	UPythonBPLib::ExecPythonCommand(TEXT("print(1)"));

	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Warning: Python Not Available.")}));
}

TEST(PythonBPLib, EndOfAPathThatTwoToolsShareFindsNeither)
{
	FRunningPlugin Plugin;
	Plugin.Launch(TEXT("A/Tool.json"), EmptyTool);
	UVelmoraData& B = Plugin.Launch(TEXT("B/Tool.json"), EmptyTool);
	const FLogCapture Log;

	EXPECT_EQ(UPythonBPLib::GetVelmoraData(TEXT("Tool.json")), nullptr);
	EXPECT_EQ(UPythonBPLib::GetVelmoraData(TEXT("B/Tool.json")), &B);

	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Warning: Can't find Tools Data Instance by Name: Tool.json")}));
}

TEST(PythonBPLib, EndOfAPathIsFoundInAnyCase)
{
	FRunningPlugin Plugin;
	UVelmoraData& Data = Plugin.Launch(TEXT("A/Tool.json"), EmptyTool);

	EXPECT_EQ(UPythonBPLib::GetVelmoraData(TEXT("a/TOOL.JSON")), &Data);
	EXPECT_EQ(UPythonBPLib::GetVelmoraData(Plugin.Project.Path(TEXT("KX/Kestrix/Python/A/Tool.json"))), &Data);
}

TEST(PythonBPLib, UnknownPathIsAWarning)
{
	FRunningPlugin Plugin;
	const FLogCapture Log;

	EXPECT_EQ(UPythonBPLib::GetVelmoraData(TEXT("Nowhere.json")), nullptr);

	EXPECT_EQ(Log.Lines(), FLines({TEXT("PythonKX: Warning: Can't find Tools Data Instance by Name: Nowhere.json")}));
}

TEST(PythonBPLib, AllPathsIncludeThoseOfClosedTools)
{
	FRunningPlugin Plugin;
	EXPECT_EQ(UPythonBPLib::GetAllVelmoraDataPaths(), FLines());
	Plugin.Launch(TEXT("A.json"), EmptyTool);
	Plugin.Launch(TEXT("B.json"), EmptyTool);

	EXPECT_TRUE(UVelmoraData::RequestClose(TEXT("A.json")));

	EXPECT_EQ(UPythonBPLib::GetAllVelmoraDataPaths(),
		FLines({Plugin.Project.Path(TEXT("KX/Kestrix/Python/A.json")), Plugin.Project.Path(TEXT("KX/Kestrix/Python/B.json"))}));
}
