#include "CoreMinimal.h"

#include <gtest/gtest.h>

namespace
{
template <typename MapType>
TArray<typename MapType::KeyType> KeysOf(const MapType& Map)
{
	TArray<typename MapType::KeyType> Keys;
	Map.GenerateKeyArray(Keys);
	return Keys;
}

TMap<int32, int32> MakeMap(int32 Count)
{
	TMap<int32, int32> Map;
	for (int32 Key = 0; Key < Count; ++Key)
	{
		Map.Add(Key, Key * 10);
	}
	return Map;
}

struct FExactKeys : TDefaultMapHashableKeyFuncs<FString, int32, false>
{
	static bool Matches(const FString& Left, const FString& Right) { return Left.Equals(Right); }
};
}

TEST(Map, IteratesInTheOrderOfAddingWhileNothingWasRemoved)
{
	TMap<FString, int32> Map = {{TEXT("z"), 1}, {TEXT("a"), 2}, {TEXT("m"), 3}};
	Map.Add(TEXT("b"), 4);
	Map.FindOrAdd(TEXT("c")) = 5;
	Map.Add(TEXT("a"), 6);
	EXPECT_EQ(KeysOf(Map), TArray<FString>({TEXT("z"), TEXT("a"), TEXT("m"), TEXT("b"), TEXT("c")}));
	TArray<int32> Values;
	Map.GenerateValueArray(Values);
	EXPECT_EQ(Values, TArray<int32>({1, 6, 3, 4, 5}));
}

TEST(Map, TheNextAdditionFillsTheHoleOfARemoval)
{
	TMap<int32, int32> Map = MakeMap(8);
	EXPECT_EQ(Map.Remove(2), 1);
	EXPECT_EQ(Map.Remove(2), 0);
	EXPECT_EQ(Map.Remove(5), 1);
	Map.Add(100, 0);
	Map.Add(101, 0);
	Map.Add(102, 0);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 1, 101, 3, 4, 100, 6, 7, 102}));
}

TEST(Map, AddOnAPresentKeyReplacesTheValueKeepsThePlaceAndTakesTheNewSpelling)
{
	TMap<FString, int32> Map = {{TEXT("First"), 1}, {TEXT("Second"), 2}};
	Map.Add(TEXT("FIRST"), 3);
	EXPECT_EQ(Map.Num(), 2);
	EXPECT_TRUE(Map.begin()->Key.Equals(TEXT("FIRST")));
	EXPECT_EQ(Map.begin()->Value, 3);
}

TEST(Map, StringKeysIgnoreCase)
{
	TMap<FString, int32> Map;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Map.Add(FString::Printf(TEXT("/Game/Key%d"), Index), Index);
	}
	EXPECT_EQ(Map.FindRef(TEXT("/GAME/KEY37")), 37);
	EXPECT_TRUE(Map.Contains(TEXT("/game/key0")));
	EXPECT_EQ(Map.Find(TEXT("/Game/Key50")), nullptr);
}

TEST(Map, CustomKeyFunctionsDecideWhatIsEqual)
{
	TMap<FString, int32, FDefaultSetAllocator, FExactKeys> Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("A"), 2);
	EXPECT_EQ(Map.Num(), 2);
	EXPECT_EQ(Map.FindRef(TEXT("A")), 2);
}

TEST(Map, FindsEverythingThroughGrowthRemovalAndCopy)
{
	TMap<int32, int32> Map = MakeMap(1000);
	for (int32 Key = 0; Key < 1000; Key += 3)
	{
		Map.Remove(Key);
	}
	const TMap<int32, int32> Copy = Map;
	TMap<int32, int32> Assigned = MakeMap(3);
	Assigned = Copy;
	for (int32 Key = 0; Key < 1000; ++Key)
	{
		const int32* const Value = Assigned.Find(Key);
		ASSERT_EQ(Value != nullptr, Key % 3 != 0) << Key;
		ASSERT_TRUE(!Value || *Value == Key * 10) << Key;
	}
	EXPECT_EQ(Copy.Num(), 666);
	EXPECT_TRUE(Copy.OrderIndependentCompareEqual(Map));
}

TEST(Map, IteratorRemovesAndGoesOn)
{
	TMap<int32, int32> Map = MakeMap(10);
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		if (It.Key() % 2)
		{
			It.RemoveCurrent();
		}
		else
		{
			It.Value() += 1;
		}
	}
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 2, 4, 6, 8}));
	EXPECT_EQ(Map[4], 41);
	Map.Compact();
	EXPECT_EQ(Map[8], 81);
	Map.Add(1, 1);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({0, 2, 4, 6, 8, 1}));
}

TEST(Map, SortsByKeyAndByValue)
{
	TMap<FString, int32> Map = {{TEXT("b"), 1}, {TEXT("C"), 3}, {TEXT("a"), 2}};
	Map.KeySort(TLess<FString>());
	EXPECT_EQ(KeysOf(Map), TArray<FString>({TEXT("a"), TEXT("b"), TEXT("C")}));
	Map.ValueSort([](int32 Left, int32 Right) { return Left > Right; });
	EXPECT_EQ(KeysOf(Map), TArray<FString>({TEXT("C"), TEXT("a"), TEXT("b")}));
	EXPECT_EQ(Map[TEXT("A")], 2);
}

TEST(Map, RemoveAndCopyValueHandsTheValueOut)
{
	TMap<FString, FString> Map = {{TEXT("a"), TEXT("1")}};
	FString Value;
	EXPECT_TRUE(Map.RemoveAndCopyValue(TEXT("A"), Value));
	EXPECT_EQ(Value, TEXT("1"));
	EXPECT_FALSE(Map.RemoveAndCopyValue(TEXT("a"), Value));
	EXPECT_TRUE(Map.IsEmpty());
}

TEST(Map, ResetKeepsWorking)
{
	TMap<int32, int32> Map = MakeMap(100);
	Map.Remove(3);
	Map.Reset();
	EXPECT_EQ(Map.Find(4), nullptr);
	Map.Add(7, 8);
	Map.Add(9, 9);
	EXPECT_EQ(KeysOf(Map), TArray<int32>({7, 9}));
	Map.Empty();
	EXPECT_EQ(Map.GetAllocatedSize(), 0u);
}

TEST(MapDeathTest, AMissingKeyIsFatal)
{
	TMap<FString, int32> Map = {{TEXT("a"), 1}};
	EXPECT_DEATH(Map[TEXT("b")] = 2, "Pair != nullptr");
	EXPECT_DEATH(Map.FindChecked(TEXT("c")) = 2, "Pair != nullptr");
}

TEST(Set, KeepsTheOrderOfAddingAndFillsHoles)
{
	TSet<FString> Set = {TEXT("c"), TEXT("a"), TEXT("b"), TEXT("A")};
	EXPECT_EQ(Set.Array(), TArray<FString>({TEXT("c"), TEXT("A"), TEXT("b")}));
	Set.Remove(TEXT("C"));
	bool bWasThere = true;
	Set.Add(TEXT("new"), &bWasThere);
	EXPECT_FALSE(bWasThere);
	Set.Add(TEXT("NEW"), &bWasThere);
	EXPECT_TRUE(bWasThere);
	EXPECT_EQ(Set.Array(), TArray<FString>({TEXT("NEW"), TEXT("A"), TEXT("b")}));
}

TEST(Set, KnowsUnionIntersectionAndDifference)
{
	const TSet<int32> Left = {1, 2, 3, 4, 5, 6};
	const TSet<int32> Right = {5, 6, 7};
	EXPECT_EQ(Left.Intersect(Right).Array(), TArray<int32>({5, 6}));
	EXPECT_EQ(Left.Difference(Right).Array(), TArray<int32>({1, 2, 3, 4}));
	EXPECT_EQ(Left.Union(Right).Num(), 7);
	EXPECT_TRUE(Left.Includes(TSet<int32>({2, 4})));
	EXPECT_FALSE(Left.Includes(Right));
}

TEST(Set, AddingItsOwnElementChangesNothing)
{
	TSet<FString> Set = {TEXT("a long enough text to live on the heap")};
	Set.Add(*Set.begin());
	EXPECT_EQ(Set.Array(), TArray<FString>({TEXT("a long enough text to live on the heap")}));
}

TEST(SparseArray, FillsTheLastHoleFirstAndSkipsHoles)
{
	TSparseArray<FString> Array;
	for (const TCHAR* Text : {TEXT("a"), TEXT("b"), TEXT("c")})
	{
		Array.Add(Text);
	}
	Array.RemoveAt(0);
	Array.RemoveAt(2);
	EXPECT_EQ(Array.Num(), 1);
	EXPECT_FALSE(Array.IsValidIndex(2));
	EXPECT_EQ(Array.Add(TEXT("d")), 2);
	EXPECT_EQ(Array.Add(TEXT("e")), 0);
	EXPECT_EQ(Array.Add(TEXT("f")), 3);
	FString Joined;
	for (const FString& Text : Array)
	{
		Joined += Text;
	}
	EXPECT_EQ(Joined, TEXT("ebdf"));
}
