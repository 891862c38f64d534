#include "ProfilingDebugging/CpuProfilerTrace.h"

#include <thread>

#include <gtest/gtest.h>

TEST(CpuProfilerScopeStack, DescribesOpenScopesInnermostFirst)
{
	TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("Outer"));
	{
		TRACE_CPUPROFILER_EVENT_SCOPE(Inner);
		EXPECT_EQ(FCpuProfilerScopeStack::Describe(), TArray<FString>({TEXT("Inner"), TEXT("Outer")}));
	}
	EXPECT_EQ(FCpuProfilerScopeStack::Describe(), TArray<FString>({TEXT("Outer")}));
}

TEST(CpuProfilerScopeStack, TextIsMadeOnlyWhenAskedFor)
{
	int32 Calls = 0;
	const FString Widget(TEXT("SButton"));
	{
		const FCpuProfilerScopeStack::FScope Scope(
			[&]
			{
				++Calls;
				return TEXT("click on ") + Widget;
			});
		EXPECT_EQ(Calls, 0);
		EXPECT_EQ(FCpuProfilerScopeStack::Describe(), TArray<FString>({TEXT("click on SButton")}));
	}
	EXPECT_EQ(Calls, 1);
	EXPECT_EQ(FCpuProfilerScopeStack::Describe(), TArray<FString>());
}

TEST(CpuProfilerScopeStack, EachThreadHasItsOwn)
{
	TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT("Game"));
	TArray<FString> Other({TEXT("not asked")});
	std::thread([&Other] { Other = FCpuProfilerScopeStack::Describe(); }).join();
	EXPECT_EQ(Other, TArray<FString>());
}
