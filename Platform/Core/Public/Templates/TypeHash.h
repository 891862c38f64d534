#pragma once

#include "CoreTypes.h"

#include <cstring>
#include <type_traits>

/** One hash out of two; the order of the two counts. */
constexpr uint32 HashCombine(uint32 Left, uint32 Right)
{
	const uint64 Mixed = (uint64(Left) << 32 | Right) * 0x9E3779B97F4A7C15ULL;
	return uint32(Mixed >> 32) ^ uint32(Mixed);
}

constexpr uint32 GetTypeHash(const uint8 Value)
{
	return Value;
}

constexpr uint32 GetTypeHash(const int8 Value)
{
	return uint32(Value);
}

constexpr uint32 GetTypeHash(const uint16 Value)
{
	return Value;
}

constexpr uint32 GetTypeHash(const int16 Value)
{
	return uint32(Value);
}

constexpr uint32 GetTypeHash(const int32 Value)
{
	return uint32(Value);
}

constexpr uint32 GetTypeHash(const uint32 Value)
{
	return Value;
}

constexpr uint32 GetTypeHash(const uint64 Value)
{
	return uint32(Value) + uint32(Value >> 32) * 23;
}

constexpr uint32 GetTypeHash(const int64 Value)
{
	return GetTypeHash(uint64(Value));
}

constexpr uint32 GetTypeHash(const unsigned long Value)
{
	return GetTypeHash(uint64(Value));
}

constexpr uint32 GetTypeHash(const long Value)
{
	return GetTypeHash(uint64(Value));
}

constexpr uint32 GetTypeHash(const TCHAR Value)
{
	return Value;
}

constexpr uint32 GetTypeHash(const bool Value)
{
	return Value ? 1 : 0;
}

/** The two zeros are equal, so they hash alike. */
inline uint32 GetTypeHash(const float Value)
{
	uint32 Bits;
	const float Normal = Value + 0.0f;
	std::memcpy(&Bits, &Normal, sizeof(Bits));
	return Bits;
}

inline uint32 GetTypeHash(const double Value)
{
	uint64 Bits;
	const double Normal = Value + 0.0;
	std::memcpy(&Bits, &Normal, sizeof(Bits));
	return GetTypeHash(Bits);
}

inline uint32 PointerHash(const void* Key, uint32 Seed = 0)
{
	const UPTRINT Bits = reinterpret_cast<UPTRINT>(Key) >> 4;
	return HashCombine(GetTypeHash(uint64(Bits)), Seed);
}

inline uint32 GetTypeHash(const void* Key)
{
	return GetTypeHash(uint64(reinterpret_cast<UPTRINT>(Key) >> 4));
}

/** Text hashes without regard to case, as it compares. */
CORE_API uint32 GetTypeHash(const TCHAR* Text);

template <typename EnumType, std::enable_if_t<std::is_enum_v<EnumType>, int> = 0>
constexpr uint32 GetTypeHash(EnumType Value)
{
	return GetTypeHash(std::underlying_type_t<EnumType>(Value));
}
