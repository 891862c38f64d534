#pragma once

#include "CoreTypes.h"

#include <type_traits>

template <typename T>
struct TIsArithmetic
{
	enum
	{
		Value = std::is_arithmetic_v<T>
	};
};

template <typename T>
struct TIsEnum
{
	enum
	{
		Value = std::is_enum_v<T>
	};
};

template <typename T>
struct TIsPODType
{
	enum
	{
		Value = std::is_trivially_copyable_v<T> && std::is_trivially_default_constructible_v<T>
	};
};

template <typename Derived, typename Base>
struct TIsDerivedFrom
{
	enum
	{
		Value = std::is_base_of_v<Base, Derived>,
		IsDerived = Value
	};
};

template <typename From, typename To>
struct TPointerIsConvertibleFromTo
{
	enum
	{
		Value = std::is_convertible_v<From*, To*>
	};
};

template <bool bCondition, typename Result = void>
using TEnableIf = std::enable_if<bCondition, Result>;

template <bool bCondition, typename IfTrue, typename IfFalse>
struct TChooseClass
{
	using Result = std::conditional_t<bCondition, IfTrue, IfFalse>;
};

template <typename T>
using TDecay = std::decay<T>;

template <typename T>
struct TRemoveReference
{
	using Type = std::remove_reference_t<T>;
};

/** How a value of the type is best handed to a function: small plain values as copies, everything else by reference. */
template <typename T>
struct TCallTraits
{
	using ParamType = std::conditional_t<std::is_trivially_copyable_v<T> && sizeof(T) <= 8, const T, const T&>;
};
