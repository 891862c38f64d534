#pragma once

#include "CoreTypes.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>

#define PI (3.1415926535897932f)
#define DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define SMALL_NUMBER (1.e-8f)
#define KINDA_SMALL_NUMBER (1.e-4f)
#define BIG_NUMBER (3.4e+38f)

/**
 * The engine's scalar mathematics. Functions of several values take one type; only float and double mix, which gives double.
 * Rounding wants a value in the range of its result; see Math/NumericNarrowing.h for others.
 */
struct FMath
{
private:
	/** A type if all are floating-point types, but not one and the same. */
	template <typename T, typename... OtherTypes>
	using TMixedFloats = std::enable_if_t<std::is_floating_point_v<T> && (std::is_floating_point_v<OtherTypes> && ...) &&
		!(std::is_same_v<T, OtherTypes> && ...)>;

public:
	template <typename T>
	static constexpr T Abs(const T A)
	{
		return A < T(0) ? -A : A;
	}

	template <typename T>
	static constexpr T Sign(const T A)
	{
		return A > T(0) ? T(1) : (A < T(0) ? T(-1) : T(0));
	}

	template <typename T>
	static constexpr T Min(const T A, const T B)
	{
		return A <= B ? A : B;
	}

	template <typename T, typename U, typename = TMixedFloats<T, U>>
	static constexpr double Min(const T A, const U B)
	{
		return Min(double(A), double(B));
	}

	template <typename T>
	static constexpr T Max(const T A, const T B)
	{
		return B <= A ? A : B;
	}

	template <typename T, typename U, typename = TMixedFloats<T, U>>
	static constexpr double Max(const T A, const U B)
	{
		return Max(double(A), double(B));
	}

	template <typename T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}

	template <typename T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}

	/** A value that is not a number stays one. */
	template <typename T>
	static constexpr T Clamp(const T X, const T MinValue, const T MaxValue)
	{
		return X < MinValue ? MinValue : (MaxValue < X ? MaxValue : X);
	}

	template <typename T, typename U, typename V, typename = TMixedFloats<T, U, V>>
	static constexpr double Clamp(const T X, const U MinValue, const V MaxValue)
	{
		return Clamp(double(X), double(MinValue), double(MaxValue));
	}

	template <typename T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}

	template <typename T, typename U>
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return T(A + Alpha * (B - A));
	}

	template <typename T>
	static constexpr T DivideAndRoundUp(const T Dividend, const T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}

	template <typename T>
	static constexpr bool IsPowerOfTwo(const T Value)
	{
		return (Value & (Value - 1)) == T(0);
	}

	/** Whether Min <= Value < Max. */
	template <typename T, typename U>
	static constexpr bool IsWithin(const T& Value, const U& MinValue, const U& MaxValue)
	{
		return Value >= MinValue && Value < MaxValue;
	}

	static float TruncToFloat(float F) { return std::trunc(F); }
	static double TruncToDouble(double F) { return std::trunc(F); }
	static int32 TruncToInt(float F) { return int32(F); }
	static int64 TruncToInt(double F) { return TruncToInt64(F); }
	static int32 TruncToInt32(double F) { return int32(F); }
	static int64 TruncToInt64(double F) { return int64(F); }

	static float FloorToFloat(float F) { return std::floor(F); }
	static double FloorToDouble(double F) { return std::floor(F); }
	static int32 FloorToInt(float F) { return int32(std::floor(F)); }
	static int64 FloorToInt(double F) { return FloorToInt64(F); }
	static int32 FloorToInt32(double F) { return int32(std::floor(F)); }
	static int64 FloorToInt64(double F) { return int64(std::floor(F)); }

	static float CeilToFloat(float F) { return std::ceil(F); }
	static double CeilToDouble(double F) { return std::ceil(F); }
	static int32 CeilToInt(float F) { return int32(std::ceil(F)); }
	static int64 CeilToInt(double F) { return CeilToInt64(F); }
	static int32 CeilToInt32(double F) { return int32(std::ceil(F)); }
	static int64 CeilToInt64(double F) { return int64(std::ceil(F)); }

	/** Halves go up: -0.5 gives 0, 0.5 gives 1. */
	static float RoundToFloat(float F) { return float(std::floor(double(F) + 0.5)); }
	static double RoundToDouble(double F) { return RoundHalfUp(F); }
	static int32 RoundToInt(float F) { return int32(std::floor(double(F) + 0.5)); }
	static int64 RoundToInt(double F) { return RoundToInt64(F); }
	static int32 RoundToInt32(double F) { return int32(RoundHalfUp(F)); }
	static int64 RoundToInt64(double F) { return int64(RoundHalfUp(F)); }

	/** Halves go away from zero: -0.5 gives -1, 0.5 gives 1. */
	static float RoundHalfFromZero(float F) { return std::round(F); }
	static double RoundHalfFromZero(double F) { return std::round(F); }

	static float Fractional(float F) { return F - std::trunc(F); }
	static double Fractional(double F) { return F - std::trunc(F); }

	/** The fraction above the next lower whole number; never negative. */
	static float Frac(float F) { return F - std::floor(F); }
	static double Frac(double F) { return F - std::floor(F); }

	/** The remainder with the sign of X; 0, not a fatal error, where Y is 0. */
	static float Fmod(float X, float Y) { return Abs(Y) <= SMALL_NUMBER ? 0.0f : std::fmod(X, Y); }
	static double Fmod(double X, double Y) { return Abs(Y) <= 1.e-8 ? 0.0 : std::fmod(X, Y); }

	static float Sqrt(float F) { return std::sqrt(F); }
	static double Sqrt(double F) { return std::sqrt(F); }
	static float Pow(float A, float B) { return std::pow(A, B); }
	static double Pow(double A, double B) { return std::pow(A, B); }
	static float Exp(float F) { return std::exp(F); }
	static double Exp(double F) { return std::exp(F); }
	static float Loge(float F) { return std::log(F); }
	static double Loge(double F) { return std::log(F); }
	static float LogX(float Base, float F) { return std::log(F) / std::log(Base); }
	static double LogX(double Base, double F) { return std::log(F) / std::log(Base); }
	static float Log2(float F) { return std::log2(F); }
	static double Log2(double F) { return std::log2(F); }

	static float Sin(float F) { return std::sin(F); }
	static double Sin(double F) { return std::sin(F); }
	static float Cos(float F) { return std::cos(F); }
	static double Cos(double F) { return std::cos(F); }
	static float Tan(float F) { return std::tan(F); }
	static double Tan(double F) { return std::tan(F); }
	static float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static double Atan2(double Y, double X) { return std::atan2(Y, X); }

	template <typename T>
	static constexpr auto DegreesToRadians(const T Degrees)
	{
		return Degrees * (T(DOUBLE_PI) / T(180));
	}

	template <typename T>
	static constexpr auto RadiansToDegrees(const T Radians)
	{
		return Radians * (T(180) / T(DOUBLE_PI));
	}

	static bool IsFinite(float F) { return std::isfinite(F); }
	static bool IsFinite(double F) { return std::isfinite(F); }
	static bool IsNaN(float F) { return std::isnan(F); }
	static bool IsNaN(double F) { return std::isnan(F); }

	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyEqual(double A, double B, double ErrorTolerance = 1.e-8) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyZero(float Value, float ErrorTolerance = SMALL_NUMBER) { return Abs(Value) <= ErrorTolerance; }
	static bool IsNearlyZero(double Value, double ErrorTolerance = 1.e-8) { return Abs(Value) <= ErrorTolerance; }

	static constexpr uint32 FloorLog2(uint32 Value) { return Value == 0 ? 0 : 31 - __builtin_clz(Value); }
	static constexpr uint32 CeilLogTwo(uint32 Value) { return Value <= 1 ? 0 : 32 - __builtin_clz(Value - 1); }
	static constexpr uint32 RoundUpToPowerOfTwo(uint32 Value) { return 1u << CeilLogTwo(Value); }

	/** The value to the nearest multiple of the grid; unchanged where the grid is 0. */
	template <typename T>
	static T GridSnap(T Location, T Grid)
	{
		return Grid == T(0) ? Location : std::floor((Location + Grid / T(2)) / Grid) * Grid;
	}

	template <typename T>
	static constexpr T GetRangePct(T MinValue, T MaxValue, T Value)
	{
		const T Divisor = MaxValue - MinValue;
		return Abs(Divisor) <= T(SMALL_NUMBER) ? (Value >= MaxValue ? T(1) : T(0)) : (Value - MinValue) / Divisor;
	}

private:
	/** Adding a half to the double just below a half would round up to 1. */
	static double RoundHalfUp(double F)
	{
		const double Floor = std::floor(F);
		return F - Floor >= 0.5 ? Floor + 1.0 : Floor;
	}
};
