#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

/** An icon by name: a style set and a brush of it, looked up when it is used. */
struct SLATECORE_API FSlateIcon
{
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
		: StyleSetName(InStyleSetName)
		, StyleName(InStyleName)
	{
	}

	bool IsSet() const { return !StyleName.IsNone(); }
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }

	/** The brush, or null when the set or the name is not there. */
	const FSlateBrush* GetOptionalIcon() const;

private:
	FName StyleSetName;
	FName StyleName;
};
