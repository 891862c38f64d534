#pragma once

#include <type_traits>

/** Gives an enum class the bit operators. */
#define ENUM_CLASS_FLAGS(Enum) \
	inline constexpr Enum operator|(Enum Left, Enum Right) \
	{ \
		return Enum(std::underlying_type_t<Enum>(Left) | std::underlying_type_t<Enum>(Right)); \
	} \
	inline constexpr Enum operator&(Enum Left, Enum Right) \
	{ \
		return Enum(std::underlying_type_t<Enum>(Left) & std::underlying_type_t<Enum>(Right)); \
	} \
	inline constexpr Enum operator^(Enum Left, Enum Right) \
	{ \
		return Enum(std::underlying_type_t<Enum>(Left) ^ std::underlying_type_t<Enum>(Right)); \
	} \
	inline constexpr Enum operator~(Enum Value) \
	{ \
		return Enum(~std::underlying_type_t<Enum>(Value)); \
	} \
	inline constexpr bool operator!(Enum Value) \
	{ \
		return !std::underlying_type_t<Enum>(Value); \
	} \
	inline Enum& operator|=(Enum& Left, Enum Right) \
	{ \
		return Left = Left | Right; \
	} \
	inline Enum& operator&=(Enum& Left, Enum Right) \
	{ \
		return Left = Left & Right; \
	} \
	inline Enum& operator^=(Enum& Left, Enum Right) \
	{ \
		return Left = Left ^ Right; \
	}

template <typename Enum>
constexpr bool EnumHasAllFlags(Enum Flags, Enum Contains)
{
	return (std::underlying_type_t<Enum>(Flags) & std::underlying_type_t<Enum>(Contains)) ==
		std::underlying_type_t<Enum>(Contains);
}

template <typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	return (std::underlying_type_t<Enum>(Flags) & std::underlying_type_t<Enum>(Contains)) != 0;
}

template <typename Enum>
void EnumAddFlags(Enum& Flags, Enum FlagsToAdd)
{
	Flags = Enum(std::underlying_type_t<Enum>(Flags) | std::underlying_type_t<Enum>(FlagsToAdd));
}

template <typename Enum>
void EnumRemoveFlags(Enum& Flags, Enum FlagsToRemove)
{
	Flags = Enum(std::underlying_type_t<Enum>(Flags) & ~std::underlying_type_t<Enum>(FlagsToRemove));
}
