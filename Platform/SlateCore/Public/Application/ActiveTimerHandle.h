#pragma once

#include "CoreMinimal.h"
#include "Types/WidgetActiveTimerDelegate.h"

/** One active timer of a widget. */
class SLATECORE_API FActiveTimerHandle : public TSharedFromThis<FActiveTimerHandle>
{
public:
	FActiveTimerHandle(float InExecutionPeriod, FWidgetActiveTimerDelegate InTimerFunction, double InNextExecutionTime);

	/** Calls the function if its time has come. */
	EActiveTimerReturnType ExecuteIfPending(double CurrentTime, float DeltaTime);

	double GetNextExecutionTime() const { return NextExecutionTime; }

private:
	float ExecutionPeriod;
	FWidgetActiveTimerDelegate TimerFunction;
	double NextExecutionTime;
};
