#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTypeTraits.h"

#include <new>
#include <utility>

#define UE_ARRAY_COUNT(Array) (sizeof(ArrayCountHelper(Array)))
#define STRUCT_OFFSET(Struct, Member) offsetof(Struct, Member)
#define ARRAY_COUNT(Array) UE_ARRAY_COUNT(Array)

template <typename T, uint32 Num>
char (&ArrayCountHelper(const T (&)[Num]))[Num];

/** Like std::move, but refuses a constant or a temporary, for which moving would silently be a copy or pointless. */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Value) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on a temporary");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp called on a constant");
	return static_cast<std::remove_reference_t<T>&&>(Value);
}

/** Moves what can be moved, copies the rest. */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Value) noexcept
{
	return static_cast<std::remove_reference_t<T>&&>(Value);
}

template <typename T>
constexpr T CopyTemp(const T& Value)
{
	return Value;
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Value) noexcept
{
	return static_cast<T&&>(Value);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Value) noexcept
{
	return static_cast<T&&>(Value);
}

template <typename T>
void Swap(T& Left, T& Right)
{
	T Temporary = MoveTemp(Left);
	Left = MoveTemp(Right);
	Right = MoveTemp(Temporary);
}

template <typename T, typename U = T>
T Exchange(T& Target, U&& NewValue)
{
	T OldValue = MoveTemp(Target);
	Target = Forward<U>(NewValue);
	return OldValue;
}

template <typename T>
T* AddressOf(T& Value)
{
	return reinterpret_cast<T*>(&const_cast<char&>(reinterpret_cast<const volatile char&>(Value)));
}

/** Sets a variable for the length of a scope and puts the old value back at its end. */
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue
{
	TGuardValue(RefType& InRefValue, const AssignedType& NewValue)
		: RefValue(InRefValue)
		, OriginalValue(InRefValue)
	{
		RefValue = NewValue;
	}

	~TGuardValue() { RefValue = OriginalValue; }

	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

	const AssignedType& operator*() const { return OriginalValue; }

private:
	RefType& RefValue;
	AssignedType OriginalValue;
};

/** Counts a variable up for the length of a scope. */
template <typename Type>
struct TScopeCounter
{
	explicit TScopeCounter(Type& InCounter)
		: Counter(InCounter)
	{
		++Counter;
	}

	~TScopeCounter() { --Counter; }

	TScopeCounter(const TScopeCounter&) = delete;
	TScopeCounter& operator=(const TScopeCounter&) = delete;

private:
	Type& Counter;
};

class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

private:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

/** The size rounded up to a multiple of Alignment, a power of two. */
template <typename T>
constexpr T Align(T Value, uint64 Alignment)
{
	return T((uint64(Value) + Alignment - 1) & ~(Alignment - 1));
}
