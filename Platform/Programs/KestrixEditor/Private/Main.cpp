#include "CoreMinimal.h"
#include "LaunchEngineLoop.h"
#include "Misc/CommandLine.h"

#include <cstdio>
#include <sys/resource.h>

namespace
{
/** Descriptions may nest thousands of widgets, each a few frames of the stack. In bytes. */
constexpr rlim_t StackSize = 120 * 1024 * 1024;

/** The stack of the main thread grows on demand up to this limit. */
void AllowLargeStack()
{
	rlimit Limit;
	if (getrlimit(RLIMIT_STACK, &Limit) == 0 && Limit.rlim_cur != RLIM_INFINITY && Limit.rlim_cur < StackSize)
	{
		Limit.rlim_cur = Limit.rlim_max == RLIM_INFINITY ? StackSize : FMath::Min(Limit.rlim_max, StackSize);
		setrlimit(RLIMIT_STACK, &Limit);
	}
}
}

int main(int ArgumentCount, char** Arguments)
{
	AllowLargeStack();
	if (!GEngineLoop.PreInit(*FCommandLine::BuildFromArgV(ArgumentCount, Arguments)))
	{
		return 2;
	}
	GEngineLoop.Init();
	if (!GEngineLoop.HasUser())
	{
		GEngineLoop.Exit();
		std::fputs("Off-screen nobody can use the editor or end it. Name a script with -ExecutePythonScript=FILE.\n", stderr);
		return 2;
	}
	while (!IsEngineExitRequested())
	{
		GEngineLoop.Tick();
		GEngineLoop.WaitForWork();
	}
	GEngineLoop.Exit();
	return GEngineLoop.GetExitStatus();
}
