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

// The constant is PI; UE_PI came later.
#if defined(UE_PI) || !defined(PI)
#error "The engine of this version has PI"
#endif

TEST(Math, MinMaxAndClampOfOneType)
{
	EXPECT_EQ(FMath::Max(1, 2), 2);
	EXPECT_EQ(FMath::Min(1.5f, 2.5f), 1.5f);
	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
	EXPECT_EQ(FMath::Clamp(-5.0, 0.0, 3.0), 0.0);
	EXPECT_EQ(FMath::Max<int64>(1, int64(1) << 40), int64(1) << 40);
}

namespace
{
template <typename... Types>
constexpr auto CanMax(int) -> decltype(FMath::Max(std::declval<Types>()...), true)
{
	return true;
}
template <typename... Types>
constexpr bool CanMax(...)
{
	return false;
}

template <typename... Types>
constexpr auto CanMin(int) -> decltype(FMath::Min(std::declval<Types>()...), true)
{
	return true;
}
template <typename... Types>
constexpr bool CanMin(...)
{
	return false;
}

template <typename... Types>
constexpr auto CanClamp(int) -> decltype(FMath::Clamp(std::declval<Types>()...), true)
{
	return true;
}
template <typename... Types>
constexpr bool CanClamp(...)
{
	return false;
}
}

// FMath::Max, Min, Clamp take one type (and float with double).
TEST(Math, MinMaxAndClampRefuseMixedTypes)
{
	static_assert(CanMax<int32, int32>(0) && CanMin<double, double>(0) && CanClamp<float, float, float>(0));
	static_assert(!CanMax<int32, float>(0) && !CanMax<double, int32>(0) && !CanMax<int32, int64>(0) && !CanMax<uint32, int32>(0));
	static_assert(!CanMin<int32, float>(0) && !CanMin<double, int32>(0) && !CanMin<uint8, int32>(0));
	static_assert(!CanClamp<int32, int32, float>(0) && !CanClamp<double, int32, int32>(0) && !CanClamp<float, double, int32>(0));

	static_assert(std::is_same_v<decltype(FMath::Max(1.0f, 2.0)), double>);
	static_assert(std::is_same_v<decltype(FMath::Min(1.0, 2.0f)), double>);
	static_assert(std::is_same_v<decltype(FMath::Clamp(1.0f, 0.0, 2.0f)), double>);
	EXPECT_EQ(FMath::Max(1.0f, 2.5), 2.5);
	EXPECT_EQ(FMath::Min(1.0, 2.5f), 1.0);
	EXPECT_EQ(FMath::Clamp(5.0f, 0.0, 3.0f), 3.0);
}

// RoundToInt, FloorToInt, CeilToInt, TruncToInt of a double give int64.
TEST(Math, RoundingADoubleGives64Bits)
{
	static_assert(
		std::is_same_v<decltype(FMath::RoundToInt(1.0)), int64> && std::is_same_v<decltype(FMath::FloorToInt(1.0)), int64>);
	static_assert(
		std::is_same_v<decltype(FMath::CeilToInt(1.0)), int64> && std::is_same_v<decltype(FMath::TruncToInt(1.0)), int64>);
	static_assert(
		std::is_same_v<decltype(FMath::RoundToInt(1.0f)), int32> && std::is_same_v<decltype(FMath::FloorToInt(1.0f)), int32>);
	static_assert(
		std::is_same_v<decltype(FMath::CeilToInt(1.0f)), int32> && std::is_same_v<decltype(FMath::TruncToInt(1.0f)), int32>);
	EXPECT_EQ(FMath::RoundToInt(1e12 + 0.5), int64(1000000000001));
	EXPECT_EQ(FMath::FloorToInt(-1e12 - 0.5), int64(-1000000000001));
	EXPECT_EQ(FMath::CeilToInt(1e12 + 0.25), int64(1000000000001));
	EXPECT_EQ(FMath::TruncToInt(-1e12 - 0.5), int64(-1000000000000));
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
