#pragma once

#include "CoreTypes.h"

/** Arithmetic of ticks. What does not fit becomes the nearest end of the range. */
namespace SaturatedTicks
{
inline int64 Add(int64 A, int64 B)
{
	int64 Sum = 0;
	return __builtin_add_overflow(A, B, &Sum) ? (B < 0 ? MIN_int64 : MAX_int64) : Sum;
}

inline int64 Subtract(int64 A, int64 B)
{
	int64 Difference = 0;
	return __builtin_sub_overflow(A, B, &Difference) ? (B > 0 ? MIN_int64 : MAX_int64) : Difference;
}

inline int64 Multiply(int64 A, int64 B)
{
	int64 Product = 0;
	return __builtin_mul_overflow(A, B, &Product) ? ((A < 0) != (B < 0) ? MIN_int64 : MAX_int64) : Product;
}
}
