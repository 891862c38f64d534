#include "Math/TransformCalculus2D.h"

#include <gtest/gtest.h>

#include "Printers.h"

namespace
{
const FVector2D GPoint(3.0, 5.0);

void ExpectNear(const FVector2D& Found, const FVector2D& Expected)
{
	EXPECT_TRUE(Found.Equals(Expected)) << TCHAR_TO_UTF8(*Found.ToString());
}
}

TEST(TransformCalculus2D, ConcatenateAppliesTheLeftTransformFirst)
{
	const FTransform2D Scale(2.0f);
	const FTransform2D Move(FVector2D(10.0, 0.0));
	EXPECT_EQ(TransformPoint(Concatenate(Scale, Move), GPoint), FVector2D(16.0, 10.0));
	EXPECT_EQ(TransformPoint(Concatenate(Move, Scale), GPoint), FVector2D(26.0, 10.0));
	EXPECT_EQ(TransformPoint(Concatenate(FScale2D(2.0f), FVector2D(10.0, 0.0)), GPoint), FVector2D(16.0, 10.0));
}

TEST(TransformCalculus2D, VectorsAreNotTranslated)
{
	const FTransform2D Transform(2.0f, FVector2D(10.0, 10.0));
	EXPECT_EQ(TransformVector(Transform, GPoint), FVector2D(6.0, 10.0));
	EXPECT_EQ(TransformPoint(2.0f, GPoint), FVector2D(6.0, 10.0));
	EXPECT_EQ(TransformPoint(FVector2D(1.0, 1.0), GPoint), FVector2D(4.0, 6.0));
}

TEST(TransformCalculus2D, InverseUndoes)
{
	const FTransform2D Transform(FMatrix2x2(1.0, 2.0, -3.0, 4.0), FVector2D(7.0, -1.0));
	ExpectNear(Inverse(Transform).TransformPoint(Transform.TransformPoint(GPoint)), GPoint);
	ExpectNear(TransformPoint(Concatenate(Transform, Inverse(Transform)), GPoint), GPoint);
	EXPECT_EQ(Inverse(FMatrix2x2(1.0, 2.0, 2.0, 4.0)).Determinant(), 0.0);
}

TEST(TransformCalculus2D, AQuarterTurnIsClockwiseWithYDown)
{
	ExpectNear(TransformPoint(FTransform2D(FQuat2D(PI / 2.0f)), FVector2D(1.0, 0.0)), FVector2D(0.0, 1.0));
}

TEST(TransformCalculus2D, OnlyTheIdentityIsIdentity)
{
	EXPECT_TRUE(FTransform2D().IsIdentity());
	EXPECT_FALSE(FTransform2D(FVector2D(1.0, 0.0)).IsIdentity());
	EXPECT_FALSE(FTransform2D(2.0f).IsIdentity());
}
