#include "Delegates/Delegate.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

DECLARE_DELEGATE_RetVal_OneParam(int32, FTransformNumber, int32);
DECLARE_DELEGATE_OneParam(FReceiveNumber, int32);

namespace
{
int32 AddTo(int32 Number, int32 Summand)
{
	return Number + Summand;
}

class FReceiver : public TSharedFromThis<FReceiver>
{
public:
	void Receive(int32 Number) { Sum += Number; }
	void ReceiveTimes(int32 Number, int32 Times) { Sum += Number * Times; }
	int32 GetPlus(int32 Number) const { return Sum + Number; }
	int32 Sum = 0;
};

class FDerivedReceiver : public FReceiver
{
};
}

TEST(Delegate, IsUnboundUntilSomethingIsBound)
{
	FReceiveNumber Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
	EXPECT_FALSE(Delegate.GetHandle().IsValid());

	Delegate.BindLambda([](int32) {});
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(Delegate.ExecuteIfBound(1));
	EXPECT_TRUE(Delegate.GetHandle().IsValid());

	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(Delegate, PassesThePayloadBehindTheArguments)
{
	const TSharedRef<FReceiver> Receiver = MakeShared<FReceiver>();
	EXPECT_EQ(FTransformNumber::CreateStatic(&AddTo, 10).Execute(1), 11);
	EXPECT_EQ(FTransformNumber::CreateLambda(
				  [](int32 Number, const FString& Text) { return Number + Text.Len(); }, FString(TEXT("abc")))
				  .Execute(1),
		4);
	FReceiveNumber::CreateSP(Receiver, &FReceiver::ReceiveTimes, 5).Execute(2);
	EXPECT_EQ(Receiver->Sum, 10);
}

TEST(Delegate, CallsMethodsOfBasesAndConstMethods)
{
	FDerivedReceiver Receiver;
	FReceiveNumber::CreateRaw(&Receiver, &FReceiver::Receive).Execute(2);
	FReceiveNumber::CreateRaw(&Receiver, &FDerivedReceiver::Receive).Execute(3);
	EXPECT_EQ(FTransformNumber::CreateRaw(&Receiver, &FReceiver::GetPlus).Execute(1), 6);
}

TEST(Delegate, ASharedObjectIsNotKeptAliveAndDropsOutSilently)
{
	TSharedPtr<FDerivedReceiver> Receiver = MakeShared<FDerivedReceiver>();
	const FReceiveNumber ByPointer = FReceiveNumber::CreateSP(Receiver.Get(), &FDerivedReceiver::Receive);
	const FReceiveNumber ByReference = FReceiveNumber::CreateSP(Receiver.ToSharedRef(), &FDerivedReceiver::Receive);
	EXPECT_TRUE(Receiver.IsUnique());
	EXPECT_TRUE(ByPointer.IsBoundToObject(Receiver.Get()));

	Receiver.Reset();
	EXPECT_FALSE(ByPointer.IsBound());
	EXPECT_FALSE(ByPointer.ExecuteIfBound(1));
	EXPECT_FALSE(ByReference.IsBound());
}

TEST(Delegate, AnObjectThatItsOwnCallDropsLivesToTheEndOfTheCall)
{
	class FSuicidal : public TSharedFromThis<FSuicidal>
	{
	public:
		void Drop(TSharedPtr<FSuicidal>* Owner, int32* OutNumber)
		{
			Owner->Reset();
			*OutNumber = Number;
		}
		int32 Number = 8;
	};

	int32 Number = 0;
	TSharedPtr<FSuicidal> Owner = MakeShared<FSuicidal>();
	FSimpleDelegate::CreateSP(Owner.Get(), &FSuicidal::Drop, &Owner, &Number).Execute();
	EXPECT_EQ(Number, 8);
	EXPECT_FALSE(Owner.IsValid());
}

TEST(Delegate, ACopyHasItsOwnFunctorAndTheSameHandle)
{
	const TDelegate<int32()> Counter = TDelegate<int32()>::CreateLambda([Count = 0]() mutable { return ++Count; });
	const TDelegate<int32()> Copy = Counter;
	EXPECT_EQ(Counter.Execute(), 1);
	EXPECT_EQ(Counter.Execute(), 2);
	EXPECT_EQ(Copy.Execute(), 1);
	EXPECT_EQ(Copy.GetHandle(), Counter.GetHandle());
}

TEST(Delegate, ACopyCanBeExecutedWhoseCallDestroysTheOriginal)
{
	TUniquePtr<FSimpleDelegate> Original = MakeUnique<FSimpleDelegate>();
	FString Seen;
	Original->BindLambda(
		[&Original, &Seen, Text = FString(TEXT("still here"))]
		{
			Original.Reset();
			Seen = Text;
		});
	const FSimpleDelegate Copy = *Original;
	Copy.Execute();
	EXPECT_EQ(Seen, TEXT("still here"));
}

TEST(Delegate, PassesReferencesAndMoveOnlyArguments)
{
	FString Text;
	TDelegate<void(FString&)>::CreateLambda([](FString& Out) { Out = TEXT("set"); }).Execute(Text);
	EXPECT_EQ(Text, TEXT("set"));

	const auto Take = TDelegate<int32(TUniquePtr<int32>)>::CreateLambda([](TUniquePtr<int32> Number) { return *Number; });
	EXPECT_EQ(Take.Execute(MakeUnique<int32>(4)), 4);
}

TEST(Delegate, IsSmallEnoughToBeAMemberOfEveryWidget)
{
	EXPECT_LE(sizeof(FSimpleDelegate), 2 * sizeof(void*));
}

TEST(DelegateDeathTest, AnUnboundDelegateCannotBeExecuted)
{
	const FTransformNumber Unbound;
	EXPECT_DEATH(Unbound.Execute(1), "Assertion failed: Binding != nullptr");
}
