#include "PythonTest.h"

#include <gtest/gtest.h>

using namespace PythonTest;

TEST(PythonMath, VectorsCalculate)
{
	EXPECT_TRUE(RunPython(TEXT("V = unreal.Vector\na = V(1, 2, 3)\nb = V(4, 5, 6)")));
	EXPECT_EQ(Evaluate(TEXT("[v.to_tuple() for v in (a + b, b - a, a * b, a * 2, b / 2, -a, a ^ b)]")),
		TEXT("[(5.0, 7.0, 9.0), (3.0, 3.0, 3.0), (4.0, 10.0, 18.0), (2.0, 4.0, 6.0), (2.0, 2.5, 3.0), (-1.0, -2.0, -3.0), "
			 "(-3.0, 6.0, -3.0)]"));
	EXPECT_EQ(Evaluate(TEXT("(a | b, a.dot(b), V(3, 4, 0).length(), V(3, 4, 0).length_squared(), a.distance(b) ** 2)")),
		TEXT("(32.0, 32.0, 5.0, 25.0, 27.0)"));
	EXPECT_EQ(Evaluate(TEXT("(V(0, 0, 5).normal() == V.UP, V().is_nearly_zero(), a.lerp_to(b, 0.5).to_tuple(), a == b, a != b)")),
		TEXT("(True, True, (2.5, 3.5, 4.5), False, True)"));
	EXPECT_EQ(Evaluate(TEXT("[getattr(V, n).to_tuple() for n in ('ZERO', 'ONE', 'FORWARD', 'RIGHT', 'DOWN')]")),
		TEXT("[(0.0, 0.0, 0.0), (1.0, 1.0, 1.0), (1.0, 0.0, 0.0), (0.0, 1.0, 0.0), (0.0, 0.0, -1.0)]"));
	EXPECT_TRUE(RunPython(TEXT("c = a\nc += b\nc.normalize()")));
	EXPECT_EQ(Evaluate(TEXT("(c is a, round(a.length(), 12))")), TEXT("(True, 1.0)"));
}

TEST(PythonMath, OtherStructsCalculate)
{
	EXPECT_EQ(Evaluate(TEXT("((unreal.Vector2D(1, 2) * 2).to_tuple(), unreal.Vector2D(3, 4).length(), unreal.Vector2D.ONE.x)")),
		TEXT("((2.0, 4.0), 5.0, 1.0)"));
	EXPECT_EQ(Evaluate(TEXT("((unreal.IntPoint(1, 2) + unreal.IntPoint(3, 4)) * 2).to_tuple()")), TEXT("(8, 12)"));
	EXPECT_EQ(Evaluate(TEXT("(unreal.Rotator(1, 2, 3) == unreal.Rotator(1, 2, 363), unreal.Rotator(0, 0, 90).vector().distance("
							"unreal.Vector.RIGHT) < 1e-9)")),
		TEXT("(True, True)"));
	EXPECT_EQ(
		Evaluate(TEXT("(unreal.LinearColor.RED + unreal.LinearColor.BLUE * 0.5).to_tuple()")), TEXT("(1.0, 0.0, 0.5, 1.5)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.LinearColor.WHITE.to_color().to_tuple()")), TEXT("(255, 255, 255, 255)"));
}

TEST(PythonMath, DatesAndTimespansCalculate)
{
	EXPECT_TRUE(RunPython(TEXT("D = unreal.DateTime\nT = unreal.Timespan\nd = D(2021, 12, 31)")));
	EXPECT_EQ(Evaluate(TEXT("(str(d + T(1)), str(d - T(hours=1)), str(D(2022, 1, 2) - d))")),
		TEXT("('2022.01.01-00.00.00', '2021.12.30-23.00.00', '+2.00:00:00.000')"));
	EXPECT_EQ(Evaluate(TEXT("(d < D(2022, 1, 1), d >= D.MAX_VALUE, d.get_year(), d.get_day_of_year())")),
		TEXT("(True, False, 2021, 365)"));
	EXPECT_EQ(Evaluate(TEXT("((T(1) * 1.5).get_total_hours(), T(1) > T.ZERO_VALUE, T(seconds=90).get_minutes())")),
		TEXT("(36.0, True, 1)"));
	EXPECT_EQ(Evaluate(TEXT("unreal.MathLibrary.from_minutes(1.5).get_total_seconds()")), TEXT("90.0"));
	EXPECT_EQ(Evaluate(TEXT("(unreal.MathLibrary.utc_now() - D(2024, 1, 1)).get_total_days() > 0")), TEXT("True"));
	EXPECT_EQ(Evaluate(TEXT("unreal.MathLibrary.today() <= unreal.MathLibrary.now()")), TEXT("True"));
	EXPECT_EQ(
		ErrorOf(TEXT("D.MAX_VALUE + T(1)")), TEXT("RuntimeError: expected a date in the years 1 to 9999, found one beyond them"));
}
