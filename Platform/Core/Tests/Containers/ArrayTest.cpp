#include "CoreMinimal.h"

#include <gtest/gtest.h>

namespace
{
/** Counts the living. */
struct FCounted
{
	FCounted(int32 InValue = 0)
		: Value(InValue)
	{
		++NumAlive;
	}
	FCounted(const FCounted& Other)
		: Value(Other.Value)
	{
		++NumAlive;
	}
	FCounted& operator=(const FCounted&) = default;
	~FCounted() { --NumAlive; }
	bool operator==(const FCounted& Other) const { return Value == Other.Value; }

	int32 Value;
	static int32 NumAlive;
};

int32 FCounted::NumAlive = 0;
}

TEST(Array, GrowingKeepsTheElementsAndRelocatesThemWithoutCopies)
{
	{
		TArray<FCounted> Array;
		for (int32 Index = 0; Index < 1000; ++Index)
		{
			Array.Emplace(Index);
		}
		EXPECT_EQ(FCounted::NumAlive, 1000);
		EXPECT_EQ(Array[0].Value, 0);
		EXPECT_EQ(Array.Last().Value, 999);
		Array.RemoveAt(10, 980);
		EXPECT_EQ(FCounted::NumAlive, 20);
		EXPECT_EQ(Array[10].Value, 990);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Array, InsertMovesTheOnesBehind)
{
	TArray<FString> Array = {TEXT("a"), TEXT("d")};
	Array.Insert(TEXT("b"), 1);
	Array.Insert({TEXT("x"), TEXT("y")}, 2);
	Array.EmplaceAt(5, TEXT("e"));
	EXPECT_EQ(Array, TArray<FString>({TEXT("a"), TEXT("b"), TEXT("x"), TEXT("y"), TEXT("d"), TEXT("e")}));
}

TEST(Array, RemoveKeepsTheOrderAndRemoveAtSwapDoesNot)
{
	TArray<int32> Array = {1, 2, 3, 2, 4, 5};
	EXPECT_EQ(Array.Remove(2), 2);
	EXPECT_EQ(Array, TArray<int32>({1, 3, 4, 5}));
	Array.RemoveAtSwap(0);
	EXPECT_EQ(Array, TArray<int32>({5, 3, 4}));
	Array.RemoveAtSwap(1, 2);
	EXPECT_EQ(Array, TArray<int32>({5}));
	EXPECT_EQ(Array.RemoveSingle(7), 0);
	EXPECT_EQ(Array.RemoveAll([](int32 Value) { return Value > 4; }), 1);
	EXPECT_TRUE(Array.IsEmpty());
}

TEST(Array, FindsFromBothEnds)
{
	const TArray<int32> Array = {4, 7, 4};
	EXPECT_EQ(Array.Find(4), 0);
	EXPECT_EQ(Array.FindLast(4), 2);
	EXPECT_EQ(Array.Find(5), INDEX_NONE);
	EXPECT_EQ(Array.IndexOfByPredicate([](int32 Value) { return Value > 4; }), 1);
	EXPECT_EQ(Array.FindByPredicate([](int32 Value) { return Value > 9; }), nullptr);
	EXPECT_EQ(Array.FindByKey(7), Array.GetData() + 1);
}

TEST(Array, OfStringsIgnoresCaseInContainsFindAndAddUnique)
{
	TArray<FString> Array = {TEXT("/Game/Tool.JSON")};
	EXPECT_TRUE(Array.Contains(TEXT("/game/tool.json")));
	EXPECT_EQ(Array.Find(TEXT("/GAME/TOOL.json")), 0);
	EXPECT_EQ(Array.AddUnique(TEXT("/game/TOOL.json")), 0);
	EXPECT_EQ(Array.Num(), 1);
}

TEST(Array, SortsPlainPointersByWhatTheyPointAt)
{
	int32 Values[] = {3, 1, 2};
	TArray<int32*> Pointers = {&Values[0], &Values[1], &Values[2]};
	Pointers.Sort();
	EXPECT_EQ(Pointers, TArray<int32*>({&Values[1], &Values[2], &Values[0]}));
	Pointers.Sort([](int32 Left, int32 Right) { return Left > Right; });
	EXPECT_EQ(*Pointers[0], 3);
}

TEST(Array, StableSortKeepsTheOrderOfEquals)
{
	TArray<int32> Array = {31, 12, 33, 14};
	Array.StableSort([](int32 Left, int32 Right) { return Left / 10 < Right / 10; });
	EXPECT_EQ(Array, TArray<int32>({12, 14, 31, 33}));
}

TEST(Array, SortingByAPredicateThatIsNoOrderStaysInBounds)
{
	TArray<int32> Array;
	for (int32 Index = 0; Index < 500; ++Index)
	{
		Array.Add(Index * 7919 % 500);
	}
	Array.Sort([](int32, int32) { return true; });
	EXPECT_EQ(Array.Num(), 500);
	Array.Sort();
	EXPECT_EQ(Array[499], 499);
}

TEST(Array, SetNumFillsWithDefaultsAndCuts)
{
	TArray<int32> Array = {5};
	Array.SetNum(3);
	EXPECT_EQ(Array, TArray<int32>({5, 0, 0}));
	Array.SetNum(1);
	EXPECT_EQ(Array, TArray<int32>({5}));
	Array.SetNumZeroed(2);
	EXPECT_EQ(Array.Last(), 0);
}

TEST(Array, ResetKeepsTheMemoryAndEmptyGivesItBack)
{
	TArray<int32> Array;
	Array.Reserve(100);
	EXPECT_GE(Array.Max(), 100);
	Array.Add(1);
	Array.Reset();
	EXPECT_GE(Array.Max(), 100);
	Array.Empty();
	EXPECT_EQ(Array.Max(), 0);
	EXPECT_EQ(Array.GetData(), nullptr);
}

TEST(Array, MovingLeavesTheSourceEmpty)
{
	TArray<FString> Source = {TEXT("a")};
	const FString* const Data = Source.GetData();
	TArray<FString> Target = MoveTemp(Source);
	EXPECT_EQ(Target.GetData(), Data);
	EXPECT_TRUE(Source.IsEmpty());
	Source.Add(TEXT("b"));
	Target.Append(MoveTemp(Source));
	EXPECT_EQ(Target, TArray<FString>({TEXT("a"), TEXT("b")}));
}

TEST(Array, InlineElementsNeedNoHeapUntilThereAreTooMany)
{
	TArray<FString, TInlineAllocator<2>> Array = {TEXT("a"), TEXT("b")};
	EXPECT_EQ(Array.GetAllocatedSize(), 0u);
	Array.Add(TEXT("c"));
	EXPECT_GT(Array.GetAllocatedSize(), 0u);
	TArray<FString, TInlineAllocator<2>> Moved = MoveTemp(Array);
	EXPECT_EQ(Moved.Num(), 3);
	Moved.SetNum(1);
	Moved.Shrink();
	EXPECT_EQ(Moved.GetAllocatedSize(), 0u);
	Array = MoveTemp(Moved);
	EXPECT_EQ(Array[0], TEXT("a"));
}

TEST(Array, IteratorMayRemoveOnTheWay)
{
	TArray<int32> Array = {1, 2, 3, 4};
	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Array, TArray<int32>({1, 3}));
}

TEST(ArrayDeathTest, AnIndexOutOfRangeIsFatalAndSaysWhich)
{
	TArray<int32> Array = {1, 2};
	EXPECT_DEATH(Array[2] = 0, "Array index out of bounds: 2 from an array of size 2");
	EXPECT_DEATH(Array[-1] = 0, "Array index out of bounds: -1 from an array of size 2");
	EXPECT_DEATH(Array.RemoveAt(1, 2), "Array index out of bounds");
	EXPECT_DEATH(TArray<int32>().Last(), "Array index out of bounds: -1 from an array of size 0");
}

TEST(ArrayDeathTest, AddingAnElementOfTheArrayItselfIsFatal)
{
	TArray<FString> Array = {TEXT("a")};
	EXPECT_DEATH(Array.Add(Array[0]), "already comes from the container being modified");
}
