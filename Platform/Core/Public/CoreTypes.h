#pragma once

#include "HAL/Platform.h"
#include "Misc/Build.h"

/** The index that stands for "none". */
enum
{
	INDEX_NONE = -1
};

enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

enum EInPlace
{
	InPlace
};

inline constexpr uint8 MIN_uint8 = 0x00;
inline constexpr uint16 MIN_uint16 = 0x0000;
inline constexpr uint32 MIN_uint32 = 0x00000000;
inline constexpr uint64 MIN_uint64 = 0x0000000000000000;
inline constexpr int8 MIN_int8 = -128;
inline constexpr int16 MIN_int16 = -32768;
inline constexpr int32 MIN_int32 = -2147483647 - 1;
inline constexpr int64 MIN_int64 = -9223372036854775807LL - 1;
inline constexpr uint8 MAX_uint8 = 0xff;
inline constexpr uint16 MAX_uint16 = 0xffff;
inline constexpr uint32 MAX_uint32 = 0xffffffff;
inline constexpr uint64 MAX_uint64 = 0xffffffffffffffffULL;
inline constexpr int8 MAX_int8 = 0x7f;
inline constexpr int16 MAX_int16 = 0x7fff;
inline constexpr int32 MAX_int32 = 0x7fffffff;
inline constexpr int64 MAX_int64 = 0x7fffffffffffffffLL;
inline constexpr float MIN_flt = 1.175494351e-38F;
inline constexpr float MAX_flt = 3.402823466e+38F;
inline constexpr double MIN_dbl = 2.2250738585072014e-308;
inline constexpr double MAX_dbl = 1.7976931348623158e+308;
