#include "Kismet/KismetMathLibrary.h"

#include "LogCapture.h"
#include "UObject/Stack.h"

#include <gtest/gtest.h>

using FLibrary = UKismetMathLibrary;

namespace
{
constexpr float GTolerance = 1.e-9f;

void ExpectNear(const FVector& Found, const FVector& Wanted)
{
	EXPECT_TRUE(Found.Equals(Wanted, double(GTolerance))) << TCHAR_TO_UTF8(*Found.ToString());
}

FString TakeError()
{
	FString Error;
	FFrame::TakeExecutionError(Error);
	return Error;
}
}

TEST(KismetMathLibrary, RotationsTurnUpRightAndClockwiseFromBehind)
{
	ExpectNear(FLibrary::GreaterGreater_VectorRotator(FVector(1, 0, 0), FLibrary::MakeRotator(0, 90, 0)), FVector(0, 0, 1));
	ExpectNear(FLibrary::GreaterGreater_VectorRotator(FVector(1, 0, 0), FLibrary::MakeRotator(0, 0, 90)), FVector(0, 1, 0));
	ExpectNear(FLibrary::GreaterGreater_VectorRotator(FVector(0, 1, 0), FLibrary::MakeRotator(90, 0, 0)), FVector(0, 0, -1));
	ExpectNear(FLibrary::RotateAngleAxis(FVector(1, 2, 3), 90, FVector(0, 0, 5)), FVector(-2, 1, 3));
}

TEST(KismetMathLibrary, UnrotateIsTheOppositeOfRotate)
{
	const FRotator Rotation = FLibrary::MakeRotator(20, -35, 140);
	const FVector Vector(1, 2, 3);
	ExpectNear(FLibrary::LessLess_VectorRotator(FLibrary::GreaterGreater_VectorRotator(Vector, Rotation), Rotation), Vector);
	ExpectNear(FLibrary::GreaterGreater_VectorRotator(Vector, FLibrary::NegateRotator(Rotation)),
		FLibrary::LessLess_VectorRotator(Vector, Rotation));
}

TEST(KismetMathLibrary, ComposedRotationTurnsByTheFirstThenByTheSecond)
{
	const FRotator First = FLibrary::MakeRotator(30, 10, -60);
	const FRotator Second = FLibrary::MakeRotator(-80, 45, 170);
	const FVector Vector(1, 2, 3);
	ExpectNear(FLibrary::GreaterGreater_VectorRotator(Vector, FLibrary::ComposeRotators(First, Second)),
		FLibrary::GreaterGreater_VectorRotator(FLibrary::GreaterGreater_VectorRotator(Vector, First), Second));
}

TEST(KismetMathLibrary, AnglesOfRotatorsGoTheShortWay)
{
	EXPECT_EQ(FLibrary::NormalizedDeltaRotator(FRotator(0, 170, 0), FRotator(0, -170, 0)), FRotator(0, -20, 0));
	EXPECT_EQ(FLibrary::RLerp(FRotator(0, 170, 0), FRotator(0, -170, 0), 0.5, true), FRotator(0, 180, 0));
	EXPECT_EQ(FLibrary::RLerp(FRotator(0, 170, 0), FRotator(0, -170, 0), 0.5, false), FRotator(0, 0, 0));
	EXPECT_TRUE(FLibrary::EqualEqual_RotatorRotator(FRotator(0, 360, 0), FRotator(0, 0, 0)));
}

TEST(KismetMathLibrary, VectorsLookAlongWhatTheyPointTo)
{
	const FRotator Look = FLibrary::FindLookAtRotation(FVector(1, 1, 1), FVector(1, 4, 4));
	EXPECT_TRUE(Look.Equals(FRotator(45, 90, 0), 1.e-9));
	ExpectNear(FLibrary::Conv_RotatorToVector(Look) * FMath::Sqrt(18.0), FVector(0, 3, 3));
}

TEST(KismetMathLibrary, PartsOfVectorsAddUp)
{
	const FVector Vector(1, 2, 3);
	const FVector Other(-2, 0, 1);
	ExpectNear(FLibrary::ProjectVectorOnToVector(Vector, Other) + FLibrary::ProjectVectorOnToPlane(Vector, Other), Vector);
	EXPECT_NEAR(FLibrary::ProjectVectorOnToPlane(Vector, Other) | Other, 0.0, 1.e-9);
	ExpectNear(FLibrary::GetReflectionVector(Vector, FVector(0, 0, 7)), FVector(1, 2, -3));
	ExpectNear(FLibrary::Vector_SnappedToGrid(FVector(1.6, -1.6, 0.2), 0.5), FVector(1.5, -1.5, 0));
}

TEST(KismetMathLibrary, ShortVectorsHaveNoDirection)
{
	EXPECT_EQ(FLibrary::Normal(FVector(0, 0, 1.e-3)), FVector(0, 0, 0));
	ExpectNear(FLibrary::Normal(FVector(0, 3, 4)), FVector(0, 0.6, 0.8));
	FVector Short(0, 0, 0);
	EXPECT_FALSE(FLibrary::Vector_Normalize(Short));
	EXPECT_EQ(FLibrary::NormalSafe2D(FVector2D(0, 0)), FVector2D(0, 0));
}

TEST(KismetMathLibrary, DivisionByZeroWarnsAndGivesZero)
{
	const FLogCapture Log(TEXT("LogScript"));
	EXPECT_EQ(FLibrary::Divide_VectorFloat(FVector(1, 2, 3), 0), FVector(0, 0, 0));
	EXPECT_EQ(FLibrary::Divide_VectorVector(FVector(1, 2, 3), FVector(0, 1, 2)), FVector(0, 2, 1.5));
	EXPECT_EQ(FLibrary::Divide_IntPointInt(FIntPoint(1, 2), 0), FIntPoint(0, 0));
	EXPECT_EQ(FLibrary::Divide_TimespanFloat(FTimespan(5), 0), FTimespan(0));
	EXPECT_EQ(Log.Warnings(),
		TArray<FString>({TEXT("Divide by zero: Divide_VectorFloat"), TEXT("Divide by zero: Divide_VectorVector"),
			TEXT("Divide by zero: Divide_IntPointInt"), TEXT("Divide by zero: Divide_TimespanFloat")}));
}

TEST(KismetMathLibrary, WholeNumbersWrapAround)
{
	EXPECT_EQ(FLibrary::Add_IntPointInt(FIntPoint(MAX_int32, 1), 1), FIntPoint(MIN_int32, 2));
	EXPECT_EQ(FLibrary::Multiply_IntPointInt(FIntPoint(1 << 30, 3), 4), FIntPoint(0, 12));
	EXPECT_EQ(FLibrary::Divide_IntPointInt(FIntPoint(MIN_int32, 7), -1), FIntPoint(MIN_int32, -7));
	EXPECT_EQ(FLibrary::Conv_Vector2DToIntPoint(FVector2D(1.e20, -1.9)), FIntPoint(MAX_int32, -1));
}

TEST(KismetMathLibrary, DatesOutsideOfTheCalendarAreErrors)
{
	EXPECT_EQ(FLibrary::MakeDateTime(2024, 2, 29), FDateTime(2024, 2, 29));
	EXPECT_EQ(TakeError(), TEXT(""));
	FLibrary::MakeDateTime(2023, 2, 29, 1, 2, 3, 4);
	EXPECT_EQ(TakeError(), TEXT("expected a date in the years 1 to 9999 and a time of day, found 2023-2-29 1:2:3.4"));
	FLibrary::Add_DateTimeTimespan(FDateTime::MaxValue(), FTimespan(1));
	EXPECT_EQ(TakeError(), TEXT("expected a date in the years 1 to 9999, found one beyond them"));
	FLibrary::Subtract_DateTimeTimespan(FDateTime::MinValue(), FTimespan::MaxValue());
	EXPECT_EQ(TakeError(), TEXT("expected a date in the years 1 to 9999, found one beyond them"));
	FLibrary::DaysInMonth(2024, 13);
	EXPECT_EQ(TakeError(), TEXT("expected a month from 1 to 12, found 13"));
}

TEST(KismetMathLibrary, TimespansStayWithinTheirRange)
{
	EXPECT_EQ(FLibrary::MakeTimespan(1, 2, 3, 4, 5), FTimespan(1, 2, 3, 4, 5000000));
	EXPECT_EQ(FLibrary::MakeTimespan(MAX_int32, MAX_int32, 0, 0, 0), FTimespan::MaxValue());
	EXPECT_EQ(FLibrary::MakeTimespan(MIN_int32, 0, 0, 0, 0), FTimespan::MinValue());
	EXPECT_EQ(FLibrary::MakeTimespan(0, MIN_int32, 0, 0, 0), FTimespan::MinValue());
	EXPECT_EQ(FLibrary::MakeTimespan(0, 0, MAX_int32, 0, 0), FTimespan::FromMinutes(MAX_int32));
	EXPECT_EQ(FLibrary::Add_TimespanTimespan(FTimespan::MaxValue(), FTimespan(1)), FTimespan::MaxValue());
	EXPECT_EQ(FLibrary::Subtract_TimespanTimespan(FTimespan::MinValue(), FTimespan(1)), FTimespan::MinValue());
	EXPECT_EQ(FLibrary::GetDuration(FTimespan::MinValue()), FTimespan::MaxValue());
	EXPECT_EQ(FLibrary::Divide_TimespanFloat(FTimespan::FromSeconds(30), 3), FTimespan::FromSeconds(10));
	EXPECT_EQ(FLibrary::TimespanRatio(FTimespan::FromHours(3), FTimespan::FromHours(2)), 1.5);
}

TEST(KismetMathLibrary, ColoursGoToHueAndBack)
{
	float H = 0;
	float S = 0;
	float V = 0;
	float A = 0;
	FLibrary::RGBToHSV(FLinearColor(0, 0.5f, 0, 0.25f), H, S, V, A);
	EXPECT_FLOAT_EQ(H, 120);
	EXPECT_FLOAT_EQ(S, 1);
	EXPECT_FLOAT_EQ(V, 0.5f);
	EXPECT_TRUE(FLibrary::HSVToRGB(H, S, V, A).Equals(FLinearColor(0, 0.5f, 0, 0.25f)));
	EXPECT_EQ(FLibrary::Conv_LinearColorToColor(FLinearColor(1, 0.5f, 0)), FColor(255, 188, 0));
	EXPECT_EQ(FLibrary::Conv_LinearColorToColor(FLinearColor(1, 0, 0.2f), false), FColor(255, 0, 51));
}
