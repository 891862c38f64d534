#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonSlowTask, CallsWorkWithinTheBlockOnly)
{
	EXPECT_EQ(
		ErrorOf(TEXT(
			"with unreal.ScopedSlowTask(10, 'Work') as task:\n    task.make_dialog(True)\n    task.make_dialog_delayed(1.0)\n")
				TEXT("    task.enter_progress_frame(1, 'Part')\n    cancelled = task.should_cancel()")),
		TEXT(""));
	EXPECT_EQ(Evaluate(TEXT("cancelled")), TEXT("False"));
	EXPECT_EQ(
		ErrorOf(TEXT("task.enter_progress_frame()")), TEXT("RuntimeError: a ScopedSlowTask is used inside of its 'with' block"));
}

TEST(PythonSlowTask, ExceptionLeavesTheBlock)
{
	EXPECT_EQ(ErrorOf(TEXT("with unreal.ScopedSlowTask(10) as task:\n    raise KeyError('k')")), TEXT("KeyError: 'k'"));
}
