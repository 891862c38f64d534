#pragma once

#include "Framework/Application/SlateApplication.h"
#include "ProfilingDebugging/CpuProfilerTrace.h"

namespace SlateEventText
{
/** Says in words what an event is with, e.g. `mouse button up on SButton "Find" in tab "Regex Tester"`. */
FString Describe(const FRoutedEvent& Event);
}

/**
 * An event is with a widget. Errors that happen meanwhile can name it; the words are made only then. The event also keeps the
 * widget alive.
 */
class FSlateApplication::FRoutingScope
{
public:
	FRoutingScope(FSlateApplication& InApplication, const TCHAR* Kind, const TSharedRef<SWidget>& Widget)
		: Application(InApplication)
		, Outer(InApplication.RoutedEvent)
		, Event{Kind, Widget}
		, ProfilerScope(FDescription{&Event})
	{
		Application.RoutedEvent = &Event;
	}

	~FRoutingScope() { Application.RoutedEvent = Outer; }

private:
	struct FDescription
	{
		const FRoutedEvent* Event;
		FString operator()() const { return SlateEventText::Describe(*Event); }
	};

	FSlateApplication& Application;
	const FRoutedEvent* Outer;
	FRoutedEvent Event;
	FCpuProfilerScopeStack::FScope<FDescription> ProfilerScope;
};
