#include "Math/UnrealMathUtility.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Math, RoundToIntTakesHalvesUp)
{
	EXPECT_EQ(FMath::RoundToInt(0.5), 1);
	EXPECT_EQ(FMath::RoundToInt(-0.5), 0);
	EXPECT_EQ(FMath::RoundToInt(-1.5f), -1);
	EXPECT_EQ(FMath::RoundToInt(2.4f), 2);
}

TEST(Math, RoundingKeepsTheNumberJustBelowAHalfDown)
{
	EXPECT_EQ(FMath::RoundToInt(0.49999999999999994), 0);
	EXPECT_EQ(FMath::RoundToInt(0.49999997f), 0);
}

TEST(Math, RoundHalfFromZeroTakesHalvesOutwards)
{
	EXPECT_EQ(FMath::RoundHalfFromZero(0.5), 1.0);
	EXPECT_EQ(FMath::RoundHalfFromZero(-0.5), -1.0);
	EXPECT_EQ(FMath::RoundHalfFromZero(-2.5f), -3.0f);
}

TEST(Math, FloorCeilAndTruncDifferBelowZero)
{
	EXPECT_EQ(FMath::FloorToInt(-1.5), -2);
	EXPECT_EQ(FMath::CeilToInt(-1.5), -1);
	EXPECT_EQ(FMath::TruncToInt(-1.5), -1);
	EXPECT_EQ(FMath::CeilToInt(1.1f), 2);
}

TEST(Math, MinMaxAndClampMixTypes)
{
	EXPECT_EQ(FMath::Max(1, 2.5f), 2.5f);
	EXPECT_EQ(FMath::Min(1, 2.5), 1.0);
	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
	EXPECT_EQ(FMath::Clamp(-5.0, 0.0, 3.0), 0.0);
}

TEST(Math, FmodOfZeroIsNoError)
{
	EXPECT_EQ(FMath::Fmod(5.0, 3.0), 2.0);
	EXPECT_EQ(FMath::Fmod(-5.0, 3.0), -2.0);
	EXPECT_EQ(FMath::Fmod(5.0f, 0.0f), 0.0f);
}

TEST(Math, NearlyEqualHasTheEnginesTolerance)
{
	EXPECT_TRUE(FMath::IsNearlyEqual(1.0, 1.0 + 1e-9));
	EXPECT_FALSE(FMath::IsNearlyEqual(1.0, 1.0 + 1e-7));
	EXPECT_TRUE(FMath::IsNearlyEqual(1.0f, 1.05f, 0.1f));
	EXPECT_TRUE(FMath::IsNearlyZero(-1e-9));
}

TEST(Math, PowersOfTwo)
{
	EXPECT_EQ(FMath::CeilLogTwo(5), 3u);
	EXPECT_EQ(FMath::FloorLog2(5), 2u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(5), 8u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(8), 8u);
	EXPECT_TRUE(FMath::IsPowerOfTwo(8));
	EXPECT_FALSE(FMath::IsPowerOfTwo(6));
}

TEST(Math, FiniteTellsNumbersFromInfinityAndNotANumber)
{
	EXPECT_TRUE(FMath::IsFinite(1.0));
	EXPECT_FALSE(FMath::IsFinite(HUGE_VAL));
	EXPECT_FALSE(FMath::IsFinite(std::nanf("")));
	EXPECT_TRUE(FMath::IsNaN(std::nan("")));
}

TEST(Math, LerpAndGridSnap)
{
	EXPECT_EQ(FMath::Lerp(10.0f, 20.0f, 0.25f), 12.5f);
	EXPECT_EQ(FMath::GridSnap(7.4f, 5.0f), 5.0f);
	EXPECT_EQ(FMath::GridSnap(7.5, 5.0), 10.0);
	EXPECT_EQ(FMath::GridSnap(7.4f, 0.0f), 7.4f);
}
