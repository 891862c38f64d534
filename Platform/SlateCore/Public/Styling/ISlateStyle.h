#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateWidgetStyle.h"

/**
 * A set of named looks: brushes, fonts, colours, margins and whole widget styles. Names ignore case. An unknown name gives
 * a usable default and, once for each name, a line in the log.
 */
class SLATECORE_API ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;

	virtual const FName& GetStyleSetName() const = 0;

	/** The brush, or the default brush. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName) const = 0;

	/** The brush, or null, without a word in the log. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName) const = 0;

	/** The font, or the default font. */
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName) const = 0;

	virtual FSlateColor GetSlateColor(const FName PropertyName) const = 0;
	virtual FLinearColor GetColor(const FName PropertyName) const = 0;
	virtual float GetFloat(const FName PropertyName) const = 0;
	virtual const FMargin& GetMargin(const FName PropertyName) const = 0;

	template <typename WidgetStyleType>
	bool HasWidgetStyle(const FName StyleName) const
	{
		return GetWidgetStyleInternal(WidgetStyleType::TypeName, StyleName, false) != nullptr;
	}

	/** The widget style, or its type's default. The reference stays true for the set's life. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(const FName StyleName) const
	{
		const FSlateWidgetStyle* Style = GetWidgetStyleInternal(WidgetStyleType::TypeName, StyleName, true);
		return Style ? static_cast<const WidgetStyleType&>(*Style) : WidgetStyleType::GetDefault();
	}

protected:
	friend class FSlateStyleSet;

	virtual TOptional<FSlateFontInfo> FindFont(const FName PropertyName) const = 0;
	virtual TOptional<FSlateColor> FindColor(const FName PropertyName) const = 0;
	virtual TOptional<float> FindFloat(const FName PropertyName) const = 0;
	virtual const FMargin* FindMargin(const FName PropertyName) const = 0;
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(
		const FName DesiredTypeName, const FName StyleName, bool bWarn) const = 0;
};
