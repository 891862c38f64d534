#include "Math/UnsetNumbers.h"

#include "CoreMinimal.h"
#include "Math/Box2D.h"
#include "Math/IntRect.h"
#include "Math/IntVector.h"
#include "Math/Rotator.h"
#include "Math/Vector4.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <new>

namespace
{
constexpr uint8 Before = 0x5A;

/** The bytes after a default construction in memory that was filled with one value. */
template <typename T>
struct TConstructed
{
	TConstructed()
	{
		std::memset(Bytes, Before, sizeof(Bytes));
		KeepBytes();
		::new (static_cast<void*>(Bytes)) T;
		KeepBytes();
	}

	/** Reads a number of the object. */
	template <typename NumberType>
	NumberType Read(int32 Index) const
	{
		NumberType Number;
		std::memcpy(&Number, Bytes + Index * sizeof(NumberType), sizeof(NumberType));
		return Number;
	}

	/** The compiler must not conclude what stands in the memory. */
	void KeepBytes() { asm volatile("" : : "r"(Bytes) : "memory"); }

	alignas(T) uint8 Bytes[sizeof(T)];
};

template <typename NumberType>
bool IsPoison(NumberType Number)
{
	if constexpr (std::is_floating_point_v<NumberType>)
	{
		return std::isnan(Number);
	}
	else
	{
		NumberType Poison;
		std::memset(&Poison, 0xCD, sizeof(Poison));
		return Number == Poison;
	}
}

/** As memory was; or, in a build that poisons, poison. */
template <typename NumberType>
bool IsLeftUnset(NumberType Number)
{
	NumberType Untouched;
	std::memset(&Untouched, Before, sizeof(Untouched));
	return POISON_UNSET_NUMBERS ? IsPoison(Number) : std::memcmp(&Number, &Untouched, sizeof(Number)) == 0;
}

template <typename T, typename NumberType>
void ExpectUnset(const char* Name)
{
	const TConstructed<T> Object;
	for (int32 Index = 0; Index < int32(sizeof(T) / sizeof(NumberType)); ++Index)
	{
		EXPECT_TRUE(IsLeftUnset(Object.template Read<NumberType>(Index))) << Name << ", number " << Index;
	}
}
}

// Default constructors of vectors, colours and points leave the numbers unset.
TEST(UnsetNumbers, DefaultConstructorsSetNothing)
{
	ExpectUnset<FVector2D, double>("FVector2D");
	ExpectUnset<FVector2f, float>("FVector2f");
	ExpectUnset<FVector, double>("FVector");
	ExpectUnset<FVector3f, float>("FVector3f");
	ExpectUnset<FRotator, double>("FRotator");
	ExpectUnset<FLinearColor, float>("FLinearColor");
	ExpectUnset<FColor, uint32>("FColor");
	ExpectUnset<FIntPoint, int32>("FIntPoint");
	ExpectUnset<FIntVector, int32>("FIntVector");
}

// FVector4: W is 1.
TEST(UnsetNumbers, OnlyTheFourthNumberOfAVector4IsSet)
{
	const TConstructed<FVector4> Vector;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		EXPECT_TRUE(IsLeftUnset(Vector.Read<double>(Index))) << Index;
	}
	EXPECT_EQ(Vector.Read<double>(3), 1.0);
}

TEST(UnsetNumbers, ABoxIsUnsetAndARectangleIsEmpty)
{
	const TConstructed<FBox2D> Box;
	EXPECT_TRUE(IsLeftUnset(Box.Read<double>(0)));
	EXPECT_TRUE(IsLeftUnset(Box.Read<double>(3)));
	EXPECT_EQ(FIntRect(), FIntRect(0, 0, 0, 0));
}

TEST(UnsetNumbers, ForceInitGivesZeros)
{
	EXPECT_EQ(FVector2D(ForceInit), FVector2D(0.0, 0.0));
	EXPECT_EQ(FVector(ForceInit), FVector(0.0, 0.0, 0.0));
	EXPECT_EQ(FRotator(ForceInit), FRotator(0.0, 0.0, 0.0));
	EXPECT_EQ(FLinearColor(ForceInit), FLinearColor(0.0f, 0.0f, 0.0f, 0.0f));
	EXPECT_EQ(FColor(ForceInit), FColor(0, 0, 0, 0));
	EXPECT_EQ(FIntPoint(ForceInit), FIntPoint(0, 0));
	EXPECT_EQ(FIntVector(ForceInit), FIntVector(0, 0, 0));
	EXPECT_FALSE(FBox2D(ForceInit).bIsValid);
}

// What a build for finding faults does, whatever this build is.
TEST(UnsetNumbers, PoisonIsNoNumberAndBytesOfCD)
{
	double Double = 1.0;
	float Float = 1.0f;
	int32 Integer = 1;
	uint8 Byte = 1;
	UE::Math::LeaveUnset<true>(Double, Float, Integer, Byte);
	EXPECT_TRUE(std::isnan(Double));
	EXPECT_TRUE(std::isnan(Float));
	EXPECT_EQ(uint32(Integer), 0xCDCDCDCDu);
	EXPECT_EQ(Byte, 0xCD);

	UE::Math::LeaveUnset<false>(Integer, Byte);
	EXPECT_EQ(Byte, 0xCD);
}
