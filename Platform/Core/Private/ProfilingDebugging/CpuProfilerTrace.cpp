#include "ProfilingDebugging/CpuProfilerTrace.h"

__thread FCpuProfilerScopeStack::FLink* FCpuProfilerScopeStack::Innermost = nullptr;

TArray<FString> FCpuProfilerScopeStack::Describe()
{
	TArray<FString> Texts;
	for (const FLink* Link = Innermost; Link; Link = Link->Outer)
	{
		Texts.Add(Link->Describe(*Link));
	}
	return Texts;
}
