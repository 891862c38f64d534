#pragma once

#include "CoreMinimal.h"

/** A size that may be left open, e.g. a width override that is not set. */
struct FOptionalSize
{
	constexpr FOptionalSize() = default;
	constexpr FOptionalSize(float InSize)
		: Size(InSize)
	{
	}

	constexpr bool IsSet() const { return Size != Unspecified; }
	constexpr float Get() const { return Size; }
	constexpr bool operator==(const FOptionalSize& Other) const { return Size == Other.Size; }
	constexpr bool operator!=(const FOptionalSize& Other) const { return Size != Other.Size; }

private:
	static constexpr float Unspecified = -1.0f;
	float Size = Unspecified;
};

/** How a slot of a box panel takes room along the panel's axis. */
struct FSizeParam
{
	enum ESizeRule : uint8
	{
		/** The child's desired size. */
		SizeRule_Auto,
		/** A share of what the auto slots leave, in the ratio of Value. */
		SizeRule_Stretch,
	};

	ESizeRule SizeRule;
	float Value;

	bool operator==(const FSizeParam& Other) const { return SizeRule == Other.SizeRule && Value == Other.Value; }

protected:
	constexpr FSizeParam(ESizeRule InRule, float InValue)
		: SizeRule(InRule)
		, Value(InValue)
	{
	}
};

struct FStretch : FSizeParam
{
	constexpr FStretch(float Coefficient = 1.0f)
		: FSizeParam(SizeRule_Stretch, Coefficient)
	{
	}
};

struct FAuto : FSizeParam
{
	constexpr FAuto()
		: FSizeParam(SizeRule_Auto, 0.0f)
	{
	}
};
