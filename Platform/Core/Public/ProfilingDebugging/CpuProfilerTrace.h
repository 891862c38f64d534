#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/**
 * What a thread is doing at this moment: a stack of named scopes. Opening a scope costs two stores; its text is made only when
 * somebody asks.
 */
class CORE_API FCpuProfilerScopeStack
{
	struct FLink;

public:
	/** A scope from its construction to its destruction; it keeps a callable that returns its text (FString or TCHAR*). */
	template <typename DescribeType>
	class FScope;

	/** The texts of the open scopes of the calling thread, innermost first. */
	static TArray<FString> Describe();

private:
	struct FLink
	{
		FLink* Outer;
		FString (*Describe)(const FLink&);
	};

	static __thread FLink* Innermost __attribute__((tls_model("initial-exec")));
};

template <typename DescribeType>
class FCpuProfilerScopeStack::FScope : private FLink
{
public:
	FORCEINLINE explicit FScope(DescribeType InDescribe)
		: FLink{Innermost,
			  [](const FLink& Link)
			  {
				  return FString(static_cast<const FScope&>(Link).Callable());
			  }}
		, Callable(static_cast<DescribeType&&>(InDescribe))
	{
		Innermost = this;
	}

	FORCEINLINE ~FScope() { Innermost = Outer; }

	FScope(const FScope&) = delete;
	FScope& operator=(const FScope&) = delete;

private:
	DescribeType Callable;
};

#define UE_CPUPROFILER_JOIN_INNER(A, B) A##B
#define UE_CPUPROFILER_JOIN(A, B) UE_CPUPROFILER_JOIN_INNER(A, B)

/** Opens a scope to the end of the block; NameStr is a TCHAR* that lives as long. */
#define TRACE_CPUPROFILER_EVENT_SCOPE_STR(NameStr) \
	const FCpuProfilerScopeStack::FScope UE_CPUPROFILER_JOIN(CpuProfilerScope, __LINE__)( \
		[ScopeName = static_cast<const TCHAR*>(NameStr)] { return ScopeName; })

/** As above, with an identifier as name. */
#define TRACE_CPUPROFILER_EVENT_SCOPE(Name) TRACE_CPUPROFILER_EVENT_SCOPE_STR(TEXT(#Name))
