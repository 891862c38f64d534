#include <gtest/gtest.h>

#include "Rendering/SlateDamage.h"

TEST(SlateDamage, GrowsToWholePixels)
{
	FSlateDamage Damage;
	Damage.Add(FSlateRect(1.4f, 1.6f, 9.2f, 9.9f));
	EXPECT_EQ(Damage.GetRects(), TArray<FSlateRect>({FSlateRect(1.0f, 1.0f, 10.0f, 10.0f)}));
}

TEST(SlateDamage, LeavesOutWhatHasNoArea)
{
	FSlateDamage Damage;
	Damage.Add(FSlateRect(5.0f, 5.0f, 5.0f, 9.0f));
	EXPECT_TRUE(Damage.IsEmpty());
}

TEST(SlateDamage, MergesRectanglesThatOverlapAndKeepsThoseThatDoNot)
{
	FSlateDamage Damage;
	Damage.Add(FSlateRect(0.0f, 0.0f, 10.0f, 10.0f));
	Damage.Add(FSlateRect(100.0f, 0.0f, 110.0f, 10.0f));
	EXPECT_EQ(Damage.GetRects().Num(), 2);

	Damage.Add(FSlateRect(5.0f, 5.0f, 105.0f, 8.0f));
	EXPECT_EQ(Damage.GetRects(), TArray<FSlateRect>({FSlateRect(0.0f, 0.0f, 110.0f, 10.0f)}));
}

TEST(SlateDamage, KeepsFewRectanglesThatCoverAllThatWasAdded)
{
	FSlateDamage Damage;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Damage.Add(FSlateRect(Index * 20.0f, 0.0f, Index * 20.0f + 10.0f, 10.0f));
	}
	EXPECT_LE(Damage.GetRects().Num(), FSlateDamage::MaxRects);
	for (int32 Index = 0; Index < 100; ++Index)
	{
		EXPECT_TRUE(Damage.Intersects(FSlateRect(Index * 20.0f + 4.0f, 4.0f, Index * 20.0f + 5.0f, 5.0f)));
	}
}
