#pragma once

#include <type_traits>

/** Whether a value may be an argument of FString::Printf and its like: a number, an enum or a pointer. */
template <typename T>
struct TIsValidVariadicFunctionArg
{
	enum
	{
		Value = std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> || std::is_null_pointer_v<T>
	};
};
