#include "CoreMinimal.h"
#include "LogCapture.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

TEST(Name, ComparesAndHashesWithoutCaseButKeepsItsSpelling)
{
	const FName Lower(TEXT("someTextOfMine"));
	const FName Upper(TEXT("SOMETEXTOFMINE"));
	EXPECT_EQ(Lower, Upper);
	EXPECT_EQ(GetTypeHash(Lower), GetTypeHash(Upper));
	EXPECT_TRUE(Lower.ToString().Equals(TEXT("someTextOfMine")));
	EXPECT_TRUE(Upper.ToString().Equals(TEXT("SOMETEXTOFMINE")));
	EXPECT_TRUE(Lower == TEXT("sometextofmine"));
	EXPECT_NE(Lower, FName(TEXT("someTextOfMine2")));
}

TEST(Name, WideTextsIgnoreCaseToo)
{
	EXPECT_EQ(FName(TEXT("Größe")), FName(TEXT("GRÖßE")));
	EXPECT_TRUE(FName(TEXT("Größe")).ToString().Equals(TEXT("Größe")));
}

TEST(Name, ANumberAtTheEndIsStoredApart)
{
	const FName Name(TEXT("Base_12"));
	EXPECT_EQ(Name.GetNumber(), NAME_EXTERNAL_TO_INTERNAL(12));
	EXPECT_TRUE(Name.GetPlainNameString().Equals(TEXT("Base")));
	EXPECT_TRUE(Name.ToString().Equals(TEXT("Base_12")));
	EXPECT_EQ(Name.GetComparisonIndex(), FName(TEXT("base_13")).GetComparisonIndex());
	EXPECT_EQ(FName(TEXT("Base"), NAME_EXTERNAL_TO_INTERNAL(12)), Name);
	EXPECT_EQ(FName(Name, NAME_NO_NUMBER_INTERNAL), FName(TEXT("Base")));
}

TEST(Name, LeadingZerosMakeAnotherName)
{
	EXPECT_NE(FName(TEXT("A_1")), FName(TEXT("A_01")));
	for (const TCHAR* Text : {TEXT("A_1"), TEXT("A_01"), TEXT("A_0"), TEXT("A_00"), TEXT("_7"), TEXT("A_2147483646"),
			 TEXT("A_2147483647"), TEXT("A_99999999999"), TEXT("A_"), TEXT("A12"), TEXT("None_3")})
	{
		EXPECT_TRUE(FName(Text).ToString().Equals(Text)) << TCHAR_TO_UTF8(Text);
	}
}

TEST(Name, EmptyAndNoneInAnyCaseAreNameNone)
{
	for (const TCHAR* Text : {TEXT(""), TEXT("None"), TEXT("none"), TEXT("NONE")})
	{
		EXPECT_TRUE(FName(Text).IsNone()) << TCHAR_TO_UTF8(Text);
		EXPECT_EQ(FName(Text), NAME_None);
		EXPECT_TRUE(FName(Text).ToString().Equals(TEXT("None")));
	}
	EXPECT_TRUE(FName().IsNone());
	EXPECT_FALSE(FName(TEXT("None_3")).IsNone());
}

TEST(Name, ATextOfMoreThan1023CharactersGivesAnErrorLineAndNoName)
{
	const FString Longest = FString::ChrN(1023, u'x');
	EXPECT_TRUE(FName(*Longest).ToString().Equals(Longest));

	const FLogCapture Log(TEXT("LogUnrealNames"));
	EXPECT_TRUE(FName(*(Longest + TEXT("x"))).IsNone());
	ASSERT_EQ(Log.Errors().Num(), 1);
	EXPECT_TRUE(Log.Errors()[0].StartsWith(TEXT("A name has at most 1023 characters, found 1024: 'xxx")));
}

TEST(Name, FindDoesNotAdd)
{
	EXPECT_TRUE(FName(TEXT("NobodyMadeThisOne"), FNAME_Find).IsNone());
	const FName Made(TEXT("SomebodyMadeThisOne"));
	EXPECT_EQ(FName(TEXT("somebodymadethisone"), FNAME_Find), Made);
}

TEST(Name, ComparesByTheAlphabetThenByNumber)
{
	EXPECT_TRUE(FName(TEXT("alpha")).LexicalLess(TEXT("Beta")));
	EXPECT_LT(FName(TEXT("Item_2")).Compare(TEXT("item_10")), 0);
	EXPECT_EQ(FName(TEXT("Item_2")).Compare(TEXT("ITEM_2")), 0);
}

TEST(Name, ManyNamesOfManyThreadsStayApart)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumNames = 20000;
	std::vector<TArray<FName>> Names(NumThreads);
	std::vector<std::thread> Threads;
	for (TArray<FName>& Own : Names)
	{
		Threads.emplace_back(
			[&Own]
			{
				for (int32 Index = 0; Index < NumNames; ++Index)
				{
					Own.Add(FName(*FString::Printf(TEXT("Threaded%dName"), Index)));
				}
			});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (int32 Index = 0; Index < NumNames; ++Index)
	{
		ASSERT_EQ(Names[0][Index], Names[3][Index]);
		ASSERT_TRUE(Names[1][Index].ToString().Equals(FString::Printf(TEXT("Threaded%dName"), Index)));
	}
}
