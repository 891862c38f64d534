#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "Misc/App.h"
#include "Misc/CommandLine.h"
#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

/** A Slate application without windows, frame by frame. */
class PythonSlateTicks : public testing::Test
{
protected:
	PythonSlateTicks()
	{
		if (!FSlateApplication::IsInitialized())
		{
			FCommandLine::Append(TEXT(" -RenderOffScreen"));
			FSlateApplication::Create();
		}
		RunPython(TEXT("calls = []"));
	}

	static void Frame()
	{
		FApp::SetCurrentTime(FApp::GetCurrentTime() + 0.25);
		FSlateApplication::Get().PumpMessages();
		FSlateApplication::Get().Tick();
	}
};

TEST_F(PythonSlateTicks, CallbacksRunBeforeAndAfterEachFrameWithTheSeconds)
{
	EXPECT_TRUE(
		RunPython(TEXT("pre = unreal.register_slate_pre_tick_callback(lambda s: calls.append(('pre', type(s).__name__)))\n")
				TEXT("post = unreal.register_slate_post_tick_callback(lambda s: calls.append(('post', type(s).__name__)))")));
	Frame();
	Frame();
	EXPECT_EQ(Evaluate(TEXT("calls")), TEXT("[('pre', 'float'), ('post', 'float'), ('pre', 'float'), ('post', 'float')]"));

	EXPECT_TRUE(RunPython(
		TEXT("unreal.unregister_slate_pre_tick_callback(pre)\nunreal.unregister_slate_post_tick_callback(post)\ncalls.clear()")));
	Frame();
	EXPECT_EQ(Evaluate(TEXT("calls")), TEXT("[]"));
}

TEST_F(PythonSlateTicks, RaisingCallbackIsLoggedAndStays)
{
	EXPECT_TRUE(RunPython(TEXT("handle = unreal.register_slate_post_tick_callback(lambda s: 1 / 0)")));
	const FLogCapture Log(TEXT("LogPython"));
	Frame();
	Frame();
	const TArray<FString> Errors = Log.Errors();
	EXPECT_EQ(
		Errors.FilterByPredicate([](const FString& Line) { return Line == TEXT("ZeroDivisionError: division by zero"); }).Num(),
		2);
	EXPECT_TRUE(Errors.Last().StartsWith(TEXT("While handling a Slate post-tick callback")));
	EXPECT_TRUE(RunPython(TEXT("unreal.unregister_slate_post_tick_callback(handle)")));
}

TEST_F(PythonSlateTicks, CallbackMayUnregisterItselfAndOthers)
{
	EXPECT_TRUE(RunPython(TEXT("def once(seconds):\n    calls.append(1)\n    unreal.unregister_slate_post_tick_callback(first)\n "
							   "   unreal.unregister_slate_post_tick_callback(second)\n")
			TEXT("first = unreal.register_slate_post_tick_callback(once)\nsecond = "
				 "unreal.register_slate_post_tick_callback(lambda s: calls.append(2))")));
	Frame();
	Frame();
	EXPECT_EQ(Evaluate(TEXT("calls")), TEXT("[1]"));
}

TEST_F(PythonSlateTicks, OtherThreadsGetTheirTurn)
{
	EXPECT_TRUE(RunPython(TEXT("import threading\nthread = threading.Thread(target=lambda: calls.append('thread'))\n")
			TEXT("go = threading.Event()\nthread = threading.Thread(target=lambda: (go.wait(), "
				 "calls.append('thread')))\nthread.start()\ngo.set()")));
	for (int32 Try = 0; Try < 100000 && Evaluate(TEXT("len(calls)")) == TEXT("0"); ++Try)
	{
		Frame();
	}
	EXPECT_EQ(Evaluate(TEXT("calls")), TEXT("['thread']"));
	EXPECT_TRUE(RunPython(TEXT("thread.join()")));
}

TEST_F(PythonSlateTicks, OtherThreadsRunWhileTheMainLoopSleeps)
{
	EXPECT_TRUE(RunPython(TEXT("import threading\ngo = threading.Event()\n")
			TEXT("thread = threading.Thread(target=lambda: (go.wait(), calls.append('thread')))\nthread.start()\ngo.set()")));
	for (int32 Try = 0; Try < 100000 && Evaluate(TEXT("len(calls)")) == TEXT("0"); ++Try)
	{
		FCoreDelegates::OnMainLoopSleep.Broadcast();
		FCoreDelegates::OnMainLoopWake.Broadcast();
	}
	EXPECT_EQ(Evaluate(TEXT("calls")), TEXT("['thread']"));
	EXPECT_TRUE(RunPython(TEXT("thread.join()")));
}

TEST_F(PythonSlateTicks, OnlyCallablesCanBeRegistered)
{
	EXPECT_EQ(ErrorOf(TEXT("unreal.register_slate_pre_tick_callback(5)")), TEXT("TypeError: expected callable, got int"));
}
