#include "Containers/Ticker.h"

struct FTSTicker::FElement
{
	FTickerDelegate Delegate;
	double Delay;
	double LastTime;
	double DueTime;
	bool bRemoved = false;
};

FTSTicker::FTSTicker() = default;
FTSTicker::~FTSTicker() = default;

FTSTicker& FTSTicker::GetCoreTicker()
{
	static FTSTicker Ticker;
	return Ticker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	const TSharedRef<FElement> Element = MakeShared<FElement>(FElement{InDelegate, InDelay, CurrentTime, CurrentTime + InDelay});
	Elements.Add(Element);
	return Element;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const TCHAR* InName, float InDelay, TFunction<bool(float)> Function)
{
	return AddTicker(FTickerDelegate::CreateLambda(MoveTemp(Function)), InDelay);
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const TSharedPtr<FElement> Element = Handle.Pin())
	{
		Element->bRemoved = true;
	}
}

bool FTSTicker::Tick(float DeltaTime)
{
	CurrentTime += DeltaTime;
	bool bCalled = false;

	// Delegates may add others, which wait for the next tick, and remove any.
	const TArray<TSharedRef<FElement>> Present = Elements;
	for (const TSharedRef<FElement>& Element : Present)
	{
		if (Element->bRemoved || Element->DueTime > CurrentTime)
		{
			continue;
		}
		bCalled = true;
		const float Passed = static_cast<float>(CurrentTime - Element->LastTime);
		Element->LastTime = CurrentTime;
		Element->DueTime = CurrentTime + Element->Delay;
		if (!Element->Delegate.IsBound() || !Element->Delegate.Execute(Passed))
		{
			Element->bRemoved = true;
		}
	}
	Elements.RemoveAll([](const TSharedRef<FElement>& Element) { return Element->bRemoved; });
	return bCalled;
}

double FTSTicker::GetSecondsToNextCall() const
{
	double Soonest = TNumericLimits<double>::Max();
	for (const TSharedRef<FElement>& Element : Elements)
	{
		Soonest = FMath::Min(Soonest, Element->DueTime - CurrentTime);
	}
	return Soonest;
}
