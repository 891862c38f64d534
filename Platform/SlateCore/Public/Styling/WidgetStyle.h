#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

/** What a widget hands down to its children while painting: the tint of all colours and the colour of the foreground. */
class FWidgetStyle
{
public:
	FWidgetStyle()
		: ColorAndOpacityTint(FLinearColor::White)
		, ForegroundColor(FLinearColor::White)
	{
	}

	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint)
	{
		ColorAndOpacityTint = ColorAndOpacityTint * InTint;
		return *this;
	}

	FWidgetStyle& BlendOpacity(float InOpacity)
	{
		ColorAndOpacityTint.A *= InOpacity;
		return *this;
	}

	/** Resolves a colour that says "use the foreground" against the foreground so far. */
	FWidgetStyle& SetForegroundColor(const FSlateColor& InForegroundColor)
	{
		ForegroundColor = InForegroundColor.GetColor(*this);
		return *this;
	}

	const FLinearColor& GetColorAndOpacityTint() const { return ColorAndOpacityTint; }
	const FLinearColor& GetForegroundColor() const { return ForegroundColor; }

private:
	FLinearColor ColorAndOpacityTint;
	FLinearColor ForegroundColor;
};
