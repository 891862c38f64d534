#include "Containers/Ticker.h"

#include <gtest/gtest.h>

TEST(Ticker, CallsEachTickWithTheSecondsSinceTheLast)
{
	FTSTicker Ticker;
	TArray<float> Deltas;
	Ticker.AddTicker(FTickerDelegate::CreateLambda(
		[&Deltas](float Delta)
		{
			Deltas.Add(Delta);
			return true;
		}));
	Ticker.Tick(0.5f);
	Ticker.Tick(0.25f);
	EXPECT_EQ(Deltas, TArray<float>({0.5f, 0.25f}));
}

TEST(Ticker, FalseEndsIt)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	Ticker.AddTicker(TEXT("Once"), 0.0f,
		[&Calls](float)
		{
			++Calls;
			return false;
		});
	Ticker.Tick(1.0f);
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, 1);
}

TEST(Ticker, DelayCountsBeforeTheFirstAndBetweenAllCalls)
{
	FTSTicker Ticker;
	TArray<float> Deltas;
	Ticker.AddTicker(FTickerDelegate::CreateLambda(
						 [&Deltas](float Delta)
						 {
							 Deltas.Add(Delta);
							 return true;
						 }),
		1.0f);
	for (int32 Tick = 0; Tick < 9; ++Tick)
	{
		Ticker.Tick(0.25f);
	}
	EXPECT_EQ(Deltas, TArray<float>({1.0f, 1.0f}));
}

TEST(Ticker, DelegateAddedDuringATickWaitsForTheNext)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	Ticker.AddTicker(TEXT("Adder"), 0.0f,
		[&](float)
		{
			Ticker.AddTicker(TEXT("Added"), 0.0f,
				[&Calls](float)
				{
					++Calls;
					return true;
				});
			return false;
		});
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, 0);
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, 1);
}

TEST(Ticker, DelegateMayRemoveAnotherAndItself)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	FTSTicker::FDelegateHandle First;
	FTSTicker::FDelegateHandle Second;
	First = Ticker.AddTicker(TEXT("First"), 0.0f,
		[&](float)
		{
			++Calls;
			FTSTicker::RemoveTicker(Second);
			FTSTicker::RemoveTicker(First);
			return true;
		});
	Second = Ticker.AddTicker(TEXT("Second"), 0.0f,
		[&Calls](float)
		{
			++Calls;
			return true;
		});
	Ticker.Tick(1.0f);
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, 1);
	FTSTicker::RemoveTicker(FTSTicker::FDelegateHandle());
}
