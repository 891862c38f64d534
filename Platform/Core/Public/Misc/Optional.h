#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"

#include <optional>
#include <type_traits>
#include <utility>

/** A value, or none. Asking for a value that is not there is a programming error. */
template <typename OptionalType>
struct TOptional
{
public:
	using ElementType = OptionalType;

	TOptional() = default;

	TOptional(const OptionalType& InValue)
		: Value(InValue)
	{
	}

	TOptional(OptionalType&& InValue)
		: Value(std::move(InValue))
	{
	}

	/** Constructs the value from the arguments that follow. */
	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: Value(std::in_place, std::forward<ArgTypes>(Args)...)
	{
	}

	bool IsSet() const { return Value.has_value(); }
	explicit operator bool() const { return IsSet(); }

	void Reset() { Value.reset(); }

	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		return Value.emplace(std::forward<ArgTypes>(Args)...);
	}

	OptionalType& GetValue()
	{
		checkf(IsSet(),
			TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use "
				 "Get(DefaultValue) instead."));
		return *Value;
	}

	const OptionalType& GetValue() const { return const_cast<TOptional*>(this)->GetValue(); }

	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }
	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }

	/** The value, or the given one if there is none. */
	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? *Value : DefaultValue; }

	OptionalType* GetPtrOrNull() { return IsSet() ? &*Value : nullptr; }
	const OptionalType* GetPtrOrNull() const { return IsSet() ? &*Value : nullptr; }

	friend bool operator==(const TOptional& Left, const TOptional& Right)
	{
		return Left.IsSet() == Right.IsSet() && (!Left.IsSet() || *Left.Value == *Right.Value);
	}

	friend bool operator!=(const TOptional& Left, const TOptional& Right) { return !(Left == Right); }

	friend uint32 GetTypeHash(const TOptional& Optional) { return Optional.IsSet() ? GetTypeHash(*Optional.Value) : 0; }

private:
	std::optional<OptionalType> Value;
};
