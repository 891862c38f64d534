#include "PythonSlateTicks.h"

#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"
#include "UObject/GCScopeLock.h"

/** The callbacks of one event, in the order of their registration. */
class FPythonTickCallbacks
{
public:
	explicit FPythonTickCallbacks(const TCHAR* InScopeName)
		: ScopeName(InScopeName)
	{
	}

	void Add(uint64 Handle, FPythonRef Function) { Callbacks.Add(Handle, MoveTemp(Function)); }
	bool Remove(uint64 Handle) { return Callbacks.Remove(Handle) > 0; }
	bool IsEmpty() const { return Callbacks.Num() == 0; }
	void Empty() { Callbacks.Empty(); }

	/** A callback that raises is logged and stays. One that was removed by an earlier one is not called any more. */
	void Call(float DeltaSeconds) const
	{
		TArray<uint64> Handles;
		Callbacks.GenerateKeyArray(Handles);
		for (const uint64 Handle : Handles)
		{
			if (const FPythonRef* const Function = Callbacks.Find(Handle))
			{
				CallOne(FPythonRef(*Function), DeltaSeconds);
			}
		}
	}

private:
	void CallOne(const FPythonRef Function, float DeltaSeconds) const
	{
		TRACE_CPUPROFILER_EVENT_SCOPE_STR(ScopeName);
		const FGCScopeGuard NoCollection;
		const FPythonRef Seconds = FPythonRef::Steal(PyFloat_FromDouble(DeltaSeconds));
		if (!FPythonRef::Steal(PyObject_CallOneArg(Function.Get(), Seconds.Get())))
		{
			PythonErrors::Report();
		}
		PythonLog::FlushStandardStreams();
	}

	const TCHAR* const ScopeName;
	TMap<uint64, FPythonRef> Callbacks;
};

static FPythonTickCallbacks GPreTickCallbacks(TEXT("a Slate pre-tick callback"));
static FPythonTickCallbacks GPostTickCallbacks(TEXT("a Slate post-tick callback"));
static FDelegateHandle GPreTickHandle;
static FDelegateHandle GPostTickHandle;
static uint64 GLastHandle = 0;

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
			GPreTickCallbacks.Call(DeltaSeconds);
		});
	GPostTickHandle = FSlateApplication::Get().OnPostTick().AddLambda(
		[](float DeltaSeconds)
		{
			GPostTickCallbacks.Call(DeltaSeconds);
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

template <FPythonTickCallbacks& Callbacks>
static PyObject* RegisterCallback(PyObject*, PyObject* Function)
{
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	if (!PyCallable_Check(Function))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("callable"), Function);
		return nullptr;
	}
	// The application may have come after the interpreter.
	PythonSlateTicks::Start();
	PythonSlateTicks::RequestFrame();
	Callbacks.Add(++GLastHandle, FPythonRef::Borrow(Function));
	return PyLong_FromUnsignedLongLong(GLastHandle);
}

template <FPythonTickCallbacks& Callbacks>
static PyObject* UnregisterCallback(PyObject*, PyObject* Handle)
{
	if (!FPythonInterpreter::CheckMainThread())
	{
		return nullptr;
	}
	if (!PyLong_Check(Handle))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("the handle of a callback"), Handle);
		return nullptr;
	}
	Callbacks.Remove(PyLong_AsUnsignedLongLongMask(Handle));
	Py_RETURN_NONE;
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
