#include "Delegates/Delegate.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

DECLARE_MULTICAST_DELEGATE_OneParam(FOnNumber, int32);

namespace
{
class FListener : public TSharedFromThis<FListener>
{
public:
	void Hear(int32 Number) { Sum += Number; }
	int32 Sum = 0;
};

class FBroadcaster
{
public:
	DECLARE_EVENT_OneParam(FBroadcaster, FOnChanged, int32);
	FOnChanged& OnChanged() { return Changed; }
	void Change() { Changed.Broadcast(1); }

private:
	FOnChanged Changed;
};
}

TEST(MulticastDelegate, CallsEveryBinding)
{
	FListener Raw;
	const TSharedRef<FListener> Shared = MakeShared<FListener>();
	int32 Sum = 0;

	FOnNumber Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	Delegate.AddRaw(&Raw, &FListener::Hear);
	Delegate.AddSP(Shared, &FListener::Hear);
	Delegate.AddSP(&Shared.Get(), &FListener::Hear);
	Delegate.AddLambda([&Sum](int32 Number, int32 Factor) { Sum += Number * Factor; }, 10);
	EXPECT_TRUE(Delegate.IsBound());

	Delegate.Broadcast(2);
	EXPECT_EQ(Raw.Sum, 2);
	EXPECT_EQ(Shared->Sum, 4);
	EXPECT_EQ(Sum, 20);
}

TEST(MulticastDelegate, RemovesByHandleAndByObject)
{
	FListener First;
	FListener Second;
	FOnNumber Delegate;
	const FDelegateHandle Handle = Delegate.AddRaw(&First, &FListener::Hear);
	Delegate.AddRaw(&Second, &FListener::Hear);
	Delegate.AddRaw(&Second, &FListener::Hear);
	EXPECT_TRUE(Delegate.IsBoundToObject(&Second));

	EXPECT_TRUE(Delegate.Remove(Handle));
	EXPECT_FALSE(Delegate.Remove(Handle));
	EXPECT_FALSE(Delegate.Remove(FDelegateHandle()));
	EXPECT_EQ(Delegate.RemoveAll(&Second), 2);
	EXPECT_FALSE(Delegate.IsBound());
}

// Objects bound weakly drop out silently.
TEST(MulticastDelegate, ForgetsBindingsWhoseObjectIsGone)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	FOnNumber Delegate;
	Delegate.AddSP(Listener.Get(), &FListener::Hear);
	Listener.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	Delegate.Broadcast(1);
	EXPECT_FALSE(Delegate.IsBound());
}

// A binding added while it broadcasts is not called in that broadcast.
TEST(MulticastDelegate, DoesNotCallWhatIsAddedDuringTheBroadcast)
{
	int32 NumLateCalls = 0;
	FOnNumber Delegate;
	Delegate.AddLambda(
		[&](int32)
		{
			for (int32 Index = 0; Index < 50; ++Index)
			{
				Delegate.AddLambda([&NumLateCalls](int32) { ++NumLateCalls; });
			}
		});
	Delegate.Broadcast(1);
	EXPECT_EQ(NumLateCalls, 0);
	Delegate.Broadcast(1);
	EXPECT_EQ(NumLateCalls, 50);
}

TEST(MulticastDelegate, ABindingMayRemoveItselfAndOthersWhileItRuns)
{
	FOnNumber Delegate;
	FDelegateHandle Other;
	FDelegateHandle Self;
	FString Seen;
	int32 NumOtherCalls = 0;
	Self = Delegate.AddLambda(
		[&, Text = FString(TEXT("captures are still there"))](int32)
		{
			EXPECT_TRUE(Delegate.Remove(Self));
			EXPECT_TRUE(Delegate.Remove(Other));
			EXPECT_FALSE(Delegate.IsBound());
			Seen = Text;
		});
	Other = Delegate.AddLambda([&NumOtherCalls](int32) { ++NumOtherCalls; });

	Delegate.Broadcast(1);
	EXPECT_EQ(Seen, TEXT("captures are still there"));
	EXPECT_EQ(NumOtherCalls, 0);
	Delegate.Broadcast(1);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, MayBeClearedAndBroadcastAgainWhileItBroadcasts)
{
	FOnNumber Delegate;
	int32 NumCalls = 0;
	Delegate.AddLambda(
		[&](int32 Depth)
		{
			++NumCalls;
			if (Depth > 0)
			{
				Delegate.Broadcast(Depth - 1);
				Delegate.Clear();
			}
		});
	Delegate.Broadcast(2);
	EXPECT_EQ(NumCalls, 3);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, TheEndOfABindingMayRemoveAnother)
{
	FOnNumber Delegate;
	FDelegateHandle Other = Delegate.AddLambda([](int32) {});
	struct FRemover
	{
		~FRemover() { Delegate.Remove(Handle); }
		FOnNumber& Delegate;
		FDelegateHandle Handle;
	};
	const FDelegateHandle First = Delegate.AddLambda([Remover = TSharedPtr<FRemover>(new FRemover{Delegate, Other})](int32) {});
	Delegate.Remove(First);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, DropsDeadBindingsWhenOthersAreAdded)
{
	FOnNumber Delegate;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Delegate.AddSP(MakeShared<FListener>(), &FListener::Hear);
	}
	int32 NumCalls = 0;
	Delegate.AddLambda([&NumCalls](int32) { ++NumCalls; });
	FOnNumber Copy = Delegate;
	Copy.Broadcast(1);
	Delegate.Broadcast(1);
	EXPECT_EQ(NumCalls, 2);
}

TEST(MulticastDelegate, AnUnboundDelegateIsNotAdded)
{
	FOnNumber Delegate;
	EXPECT_FALSE(Delegate.Add(FOnNumber::FDelegate()).IsValid());
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(MulticastDelegate, AnEventIsBroadcastByItsOwner)
{
	FBroadcaster Broadcaster;
	FListener Listener;
	Broadcaster.OnChanged().AddRaw(&Listener, &FListener::Hear);
	Broadcaster.Change();
	EXPECT_EQ(Listener.Sum, 1);
}
