#include "PythonSlateTicks.h"

#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "PythonCallbacks.h"
#include "PythonInterpreter.h"

static FPythonCallbacks GPreTickCallbacks(TEXT("a Slate pre-tick callback"));
static FPythonCallbacks GPostTickCallbacks(TEXT("a Slate post-tick callback"));
static FDelegateHandle GPreTickHandle;
static FDelegateHandle GPostTickHandle;

static void CallWithSeconds(const FPythonCallbacks& Callbacks, float DeltaSeconds)
{
	const FPythonRef Seconds = FPythonRef::Steal(PyFloat_FromDouble(DeltaSeconds));
	Callbacks.Call(Seconds.Get());
}

static FDelegateHandle GSleepHandle;
static FDelegateHandle GWakeHandle;

/** Lives while the main loop sleeps and scripts have threads of their own. */
static TUniquePtr<FInterpreterRelease> GReleaseWhileAsleep;

static bool HasOtherThreads()
{
	PyThreadState* const First = PyInterpreterState_ThreadHead(PyInterpreterState_Get());
	return First && PyThreadState_Next(First);
}

/** Threads that scripts started wait for the interpreter lock, which the main thread holds else all the time. */
static void LetOtherThreadsRun()
{
	if (HasOtherThreads())
	{
		const FInterpreterRelease Turn;
	}
}

/** A sleeping editor leaves the interpreter to the threads of scripts. */
static void FollowSleep()
{
	GSleepHandle = FCoreDelegates::OnMainLoopSleep.AddLambda(
		[]
		{
			if (HasOtherThreads())
			{
				GReleaseWhileAsleep = MakeUnique<FInterpreterRelease>();
			}
		});
	GWakeHandle = FCoreDelegates::OnMainLoopWake.AddLambda([] { GReleaseWhileAsleep.Reset(); });
}

void PythonSlateTicks::Start()
{
	if (!FSlateApplication::IsInitialized() || GPreTickHandle.IsValid())
	{
		return;
	}
	FollowSleep();
	GPreTickHandle = FSlateApplication::Get().OnPreTick().AddLambda(
		[](float DeltaSeconds)
		{
			LetOtherThreadsRun();
			CallWithSeconds(GPreTickCallbacks, DeltaSeconds);
		});
	GPostTickHandle = FSlateApplication::Get().OnPostTick().AddLambda(
		[](float DeltaSeconds)
		{
			CallWithSeconds(GPostTickCallbacks, DeltaSeconds);
			// Callbacks want every frame, also of an editor in which nothing else happens.
			if (!GPreTickCallbacks.IsEmpty() || !GPostTickCallbacks.IsEmpty())
			{
				RequestFrame();
			}
		});
}

void PythonSlateTicks::RequestFrame()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().RequestFrame();
	}
}

void PythonSlateTicks::ReleaseAll()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().OnPreTick().Remove(GPreTickHandle);
		FSlateApplication::Get().OnPostTick().Remove(GPostTickHandle);
	}
	FCoreDelegates::OnMainLoopSleep.Remove(GSleepHandle);
	FCoreDelegates::OnMainLoopWake.Remove(GWakeHandle);
	GPreTickHandle.Reset();
	GPostTickHandle.Reset();
	GPreTickCallbacks.Empty();
	GPostTickCallbacks.Empty();
}

template <FPythonCallbacks& Callbacks>
static PyObject* RegisterCallback(PyObject*, PyObject* Function)
{
	FPythonRef Handle = FPythonRef::Steal(Callbacks.Register(Function));
	if (Handle)
	{
		// The application may have come after the interpreter.
		PythonSlateTicks::Start();
		PythonSlateTicks::RequestFrame();
	}
	return Handle.Release();
}

template <FPythonCallbacks& Callbacks>
static PyObject* UnregisterCallback(PyObject*, PyObject* Handle)
{
	return Callbacks.Unregister(Handle);
}

static PyMethodDef GTickFunctions[] = {
	{"register_slate_pre_tick_callback", RegisterCallback<GPreTickCallbacks>, METH_O,
		"register_slate_pre_tick_callback(callable, /)\n--\n\nCalls callable(delta_seconds) before each frame. Gives a handle."},
	{"unregister_slate_pre_tick_callback", UnregisterCallback<GPreTickCallbacks>, METH_O,
		"unregister_slate_pre_tick_callback(handle, /)\n--\n\nEnds the calls of a callback."},
	{"register_slate_post_tick_callback", RegisterCallback<GPostTickCallbacks>, METH_O,
		"register_slate_post_tick_callback(callable, /)\n--\n\nCalls callable(delta_seconds) after each frame. Gives a handle."},
	{"unregister_slate_post_tick_callback", UnregisterCallback<GPostTickCallbacks>, METH_O,
		"unregister_slate_post_tick_callback(handle, /)\n--\n\nEnds the calls of a callback."},
	{nullptr, nullptr, 0, nullptr},
};

bool PythonSlateTicks::Register(PyObject* Module)
{
	return PyModule_AddFunctions(Module, GTickFunctions) == 0;
}
