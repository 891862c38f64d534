#include "PythonCommand.h"

#include "Velmora/PythonRecorder.h"

#include <gtest/gtest.h>

TEST(PythonCommand, NothingRunsWhenTheModuleIsGone)
{
	ASSERT_EQ(GetPythonScriptPlugin(), nullptr);
	RunPythonCommand(TEXT("x()"));

	FPythonRecorder Python;
	RunPythonCommand(TEXT("y()"));
	EXPECT_EQ(Python.Take(), TArray<FString>({TEXT("y()")}));
}
