#include "Math/NumericNarrowing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(NumericNarrowing, CutsTheFractionOff)
{
	EXPECT_EQ(NarrowNumber<int32>(2.9), 2);
	EXPECT_EQ(NarrowNumber<int32>(-2.9), -2);
	EXPECT_EQ(NarrowNumber<uint8>(-0.9), 0);
	EXPECT_EQ(NarrowNumber<uint8>(255.9), 255);
}

TEST(NumericNarrowing, WhatIsOutOfRangeBecomesTheNearestEnd)
{
	EXPECT_EQ(NarrowNumber<int32>(2147483648.0), MAX_int32);
	EXPECT_EQ(NarrowNumber<int32>(-1e300), MIN_int32);
	EXPECT_EQ(NarrowNumber<int32>(2147483648.0f), MAX_int32);
	EXPECT_EQ(NarrowNumber<int64>(9223372036854775808.0), MAX_int64);
	EXPECT_EQ(NarrowNumber<uint64>(18446744073709551616.0), MAX_uint64);
	EXPECT_EQ(NarrowNumber<uint64>(-1.0), 0u);
	EXPECT_EQ(NarrowNumber<uint8>(256.0), 255);
	EXPECT_EQ(NarrowNumber<float>(1e300), MAX_flt);
	EXPECT_EQ(NarrowNumber<float>(-1e300), -MAX_flt);
}

TEST(NumericNarrowing, KeepsTheEndsOfTheRange)
{
	EXPECT_EQ(NarrowNumber<int32>(2147483647.0), MAX_int32);
	EXPECT_EQ(NarrowNumber<int32>(-2147483648.0), MIN_int32);
	EXPECT_EQ(NarrowNumber<int64>(-9223372036854775808.0), MIN_int64);
}

TEST(NumericNarrowing, NotANumberIsZeroInAnInteger)
{
	EXPECT_EQ(NarrowNumber<int32>(std::nan("")), 0);
	EXPECT_EQ(NarrowNumber<uint8>(std::nanf("")), 0);
	EXPECT_TRUE(std::isnan(NarrowNumber<float>(std::nan(""))));
}

TEST(NumericNarrowing, InfinityIsTheEndOfAnIntegerAndStaysInAFloat)
{
	EXPECT_EQ(NarrowNumber<int32>(HUGE_VAL), MAX_int32);
	EXPECT_EQ(NarrowNumber<int32>(-HUGE_VAL), MIN_int32);
	EXPECT_EQ(NarrowNumber<float>(HUGE_VAL), std::numeric_limits<float>::infinity());
}

TEST(NumericNarrowing, NarrowsIntegersOfAnySign)
{
	EXPECT_EQ(NarrowNumber<int32>(MAX_int64), MAX_int32);
	EXPECT_EQ(NarrowNumber<int32>(MIN_int64), MIN_int32);
	EXPECT_EQ(NarrowNumber<int32>(MAX_uint64), MAX_int32);
	EXPECT_EQ(NarrowNumber<uint8>(-1), 0);
	EXPECT_EQ(NarrowNumber<uint32>(int64(4294967295)), 4294967295u);
	EXPECT_EQ(NarrowNumber<int8>(-128), -128);
}
