#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

/** Receives the seconds since its last call; false ends it. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float /* DeltaTime */);

/** Calls delegates from the main loop, each frame or after a delay. */
class CORE_API FTSTicker
{
	struct FElement;

public:
	using FDelegateHandle = TWeakPtr<FElement>;

	static FTSTicker& GetCoreTicker();

	FTSTicker();
	~FTSTicker();

	/**
	 * Adds a delegate, which is called from the next tick on.
	 *
	 * @param InDelay  Seconds before the first and between all calls; 0 for every tick.
	 */
	FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);
	FDelegateHandle AddTicker(const TCHAR* InName, float InDelay, TFunction<bool(float)> Function);

	/** Ends the calls; also of a delegate that is just being called. */
	static void RemoveTicker(FDelegateHandle Handle);

	/**
	 * Moves the time on and calls what is due.
	 *
	 * @return Whether something was called.
	 */
	bool Tick(float DeltaTime);

	/** Seconds until the next call; beyond all time when nothing waits. */
	double GetSecondsToNextCall() const;

private:
	TArray<TSharedRef<FElement>> Elements;
	double CurrentTime = 0.0;
};
