#pragma once

#include "CoreMinimal.h"

class FWidgetStyle;

/** Where a FSlateColor takes its colour from. */
enum class ESlateColorStylingMode : uint8
{
	UseColor_Specified,
	UseColor_Foreground,
	UseColor_UseStyle,
};

/** A linear colour, or the wish to take the foreground colour of whatever the widget stands in. */
struct SLATECORE_API FSlateColor
{
	FSlateColor()
		: SpecifiedColor(1.0f, 0.0f, 1.0f)
	{
	}
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
		, ColorUseRule(ESlateColorStylingMode::UseColor_Specified)
	{
	}

	/** The colour itself, or the foreground of the style. */
	const FLinearColor& GetColor(const FWidgetStyle& InWidgetStyle) const;

	/** The stored colour, whatever the rule. */
	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }
	bool IsColorSpecified() const { return ColorUseRule == ESlateColorStylingMode::UseColor_Specified; }
	ESlateColorStylingMode GetColorRule() const { return ColorUseRule; }

	static FSlateColor UseForeground() { return FSlateColor(ESlateColorStylingMode::UseColor_Foreground); }
	static FSlateColor UseStyle() { return FSlateColor(ESlateColorStylingMode::UseColor_UseStyle); }

	bool operator==(const FSlateColor& Other) const
	{
		return ColorUseRule == Other.ColorUseRule && SpecifiedColor == Other.SpecifiedColor;
	}
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

private:
	explicit FSlateColor(ESlateColorStylingMode InRule)
		: SpecifiedColor(FLinearColor::White)
		, ColorUseRule(InRule)
	{
	}

	FLinearColor SpecifiedColor;
	ESlateColorStylingMode ColorUseRule = ESlateColorStylingMode::UseColor_Specified;
};
