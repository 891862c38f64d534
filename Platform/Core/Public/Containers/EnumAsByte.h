#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** An old-style enum kept in one byte. */
template <typename InEnumType>
class TEnumAsByte
{
	static_assert(std::is_enum_v<InEnumType> && std::is_convertible_v<InEnumType, int32>, "Only plain enums are kept as a byte");

public:
	using EnumType = InEnumType;

	TEnumAsByte() = default;
	constexpr TEnumAsByte(EnumType InValue)
		: Value(uint8(InValue))
	{
	}
	explicit constexpr TEnumAsByte(int32 InValue)
		: Value(uint8(InValue))
	{
	}
	explicit constexpr TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{
	}

	constexpr operator EnumType() const { return EnumType(Value); }
	constexpr EnumType GetValue() const { return EnumType(Value); }
	constexpr bool operator==(EnumType Other) const { return GetValue() == Other; }
	constexpr bool operator==(TEnumAsByte Other) const { return Value == Other.Value; }
	constexpr bool operator!=(EnumType Other) const { return GetValue() != Other; }
	constexpr bool operator!=(TEnumAsByte Other) const { return Value != Other.Value; }
	friend constexpr uint32 GetTypeHash(TEnumAsByte Enum) { return Enum.Value; }

private:
	uint8 Value = 0;
};
