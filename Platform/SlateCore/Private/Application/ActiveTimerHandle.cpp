#include "Application/ActiveTimerHandle.h"

FActiveTimerHandle::FActiveTimerHandle(
	float InExecutionPeriod, FWidgetActiveTimerDelegate InTimerFunction, double InNextExecutionTime)
	: ExecutionPeriod(InExecutionPeriod)
	, TimerFunction(MoveTemp(InTimerFunction))
	, NextExecutionTime(InNextExecutionTime)
{
}

EActiveTimerReturnType FActiveTimerHandle::ExecuteIfPending(double CurrentTime, float DeltaTime)
{
	if (CurrentTime < NextExecutionTime)
	{
		return EActiveTimerReturnType::Continue;
	}
	// Times are kept on the grid of the period, but a long pause is not made up for.
	NextExecutionTime = FMath::Max(NextExecutionTime + ExecutionPeriod, CurrentTime);
	return TimerFunction.IsBound() ? TimerFunction.Execute(CurrentTime, DeltaTime) : EActiveTimerReturnType::Stop;
}
