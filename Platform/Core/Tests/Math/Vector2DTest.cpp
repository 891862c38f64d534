#include "Math/Vector2D.h"

#include <gtest/gtest.h>

#include "Math/Vector.h"
#include "Math/Rotator.h"
#include "Math/Box2D.h"
#include "Printers.h"

// In 5.0 FVector, FVector2D and FRotator hold doubles.
TEST(Vector2D, HoldsDoubles)
{
	EXPECT_EQ(sizeof(FVector2D), 16u);
	EXPECT_EQ(sizeof(FVector), 24u);
	EXPECT_EQ(sizeof(FRotator), 24u);
}

TEST(Vector2D, CalculatesByComponent)
{
	const FVector2D A(3.0, 4.0);
	const FVector2D B(1.0, 2.0);
	EXPECT_EQ(A + B, FVector2D(4.0, 6.0));
	EXPECT_EQ(A - B, FVector2D(2.0, 2.0));
	EXPECT_EQ(A * B, FVector2D(3.0, 8.0));
	EXPECT_EQ(A / B, FVector2D(3.0, 2.0));
	EXPECT_EQ(2.0 * A, A * 2.0);
	EXPECT_EQ(A | B, 11.0);
	EXPECT_EQ(A ^ B, 2.0);
	EXPECT_EQ(A.Size(), 5.0);
	EXPECT_EQ(A.GetSafeNormal(), FVector2D(0.6, 0.8));
	EXPECT_EQ(FVector2D::ZeroVector.GetSafeNormal(), FVector2D::ZeroVector);
	EXPECT_EQ(FVector2D::Max(A, FVector2D(5.0, 0.0)), FVector2D(5.0, 4.0));
	EXPECT_EQ(A.GetMax(), 4.0);
}

TEST(Vector2D, RoundsToWholePixels)
{
	EXPECT_EQ(FVector2D(1.5, -1.5).IntPoint(), FIntPoint(2, -1));
	EXPECT_EQ(FVector2D(FIntPoint(2, 3)), FVector2D(2.0, 3.0));
	EXPECT_EQ(FVector2D(FVector2f(0.5f, 0.25f)), FVector2D(0.5, 0.25));
}

TEST(Vector2D, PrintsThreeDecimals)
{
	EXPECT_EQ(FVector2D(1.0, -2.5).ToString(), TEXT("X=1.000 Y=-2.500"));
	EXPECT_EQ(FVector(1.0, 2.0, 3.0).ToString(), TEXT("X=1.000 Y=2.000 Z=3.000"));
	EXPECT_EQ(FIntPoint(1, 2).ToString(), TEXT("X=1 Y=2"));
}

TEST(Rotator, TurnsAlikeByWholeTurns)
{
	EXPECT_TRUE(FRotator(0.0, 370.0, 0.0).Equals(FRotator(0.0, 10.0, 360.0)));
	EXPECT_FALSE(FRotator(0.0, 180.0, 0.0).Equals(FRotator(0.0, 0.0, 0.0)));
	EXPECT_EQ(FRotator::NormalizeAxis(-190.0), 170.0);
	EXPECT_EQ(FRotator(1.0, 2.0, 3.0).ToString(), TEXT("P=1.000000 Y=2.000000 R=3.000000"));
}

TEST(Box2D, GrowsToHoldItsPoints)
{
	FBox2D Box(ForceInit);
	EXPECT_FALSE(Box.bIsValid);
	Box += FVector2D(1.0, 5.0);
	Box += FVector2D(3.0, 2.0);
	EXPECT_EQ(Box, FBox2D(FVector2D(1.0, 2.0), FVector2D(3.0, 5.0)));
	EXPECT_EQ(Box.GetSize(), FVector2D(2.0, 3.0));
	EXPECT_TRUE(Box.IsInside(Box.GetCenter()));
	EXPECT_FALSE(Box.IsInside(Box.Max));
}
