#include "Templates/Function.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

namespace
{
int32 Double(int32 Number)
{
	return 2 * Number;
}

int32 CallWithThree(TFunctionRef<int32(int32)> Function)
{
	return Function(3);
}
}

TEST(Function, HoldsACopyOfTheFunctor)
{
	TFunction<int32()> Counter = [Count = 0]() mutable
	{
		return ++Count;
	};
	Counter();
	TFunction<int32()> Copy = Counter;
	EXPECT_EQ(Counter(), 2);
	EXPECT_EQ(Counter(), 3);
	EXPECT_EQ(Copy(), 2);
}

TEST(Function, IsUnsetFromNullAndFromAnUnsetFunction)
{
	EXPECT_FALSE(TFunction<void()>());
	EXPECT_FALSE(TFunction<void()>(nullptr));
	EXPECT_FALSE(TFunction<int32(int32)>(static_cast<int32 (*)(int32)>(nullptr)));
	EXPECT_FALSE(TFunction<int64(int32)>(TFunction<int32(int32)>()));
	EXPECT_TRUE(TFunction<int32(int32)>(&Double));
}

TEST(Function, ConvertsArgumentsAndResult)
{
	const TFunction<double(int8)> Function = &Double;
	EXPECT_EQ(Function(4), 8.0);
}

TEST(Function, LosesItsFunctorByMoveAndReset)
{
	TFunction<int32(int32)> From = &Double;
	TFunction<int32(int32)> To = MoveTemp(From);
	EXPECT_FALSE(From.IsSet());
	To.Reset();
	EXPECT_FALSE(To.IsSet());
}

TEST(Function, IsOnePointerSoThatArraysMayMoveIt)
{
	EXPECT_EQ(sizeof(TFunction<void()>), sizeof(void*));
	TArray<TFunction<int32()>> Functions;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Functions.Add([Index] { return Index; });
	}
	EXPECT_EQ(Functions[0](), 0);
	EXPECT_EQ(Functions[99](), 99);
}

TEST(Function, AUniqueFunctionOwnsWhatCannotBeCopied)
{
	TUniqueFunction<int32()> Function = [Number = MakeUnique<int32>(6)]
	{
		return *Number;
	};
	const TUniqueFunction<int32()> Moved = MoveTemp(Function);
	EXPECT_FALSE(Function.IsSet());
	EXPECT_EQ(Moved(), 6);
}

TEST(Function, AReferenceCallsWhatTheCallerHas)
{
	int32 Sum = 0;
	const auto AddTo = [&Sum](int32 Number)
	{
		return Sum += Number;
	};
	EXPECT_EQ(CallWithThree(AddTo), 3);
	EXPECT_EQ(CallWithThree(AddTo), 6);
	EXPECT_EQ(CallWithThree(Double), 6);
	EXPECT_EQ(CallWithThree(&Double), 6);
	EXPECT_EQ(CallWithThree(TFunction<int32(int32)>(&Double)), 6);
}

TEST(FunctionDeathTest, AnUnsetFunctionCannotBeCalled)
{
	const TFunction<void()> Unset;
	EXPECT_DEATH(Unset(), "Assertion failed: Callable != nullptr");
}
