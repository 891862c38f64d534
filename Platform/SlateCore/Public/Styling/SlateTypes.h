#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"

/** State of a check box. */
enum class ECheckBoxState : uint8
{
	Unchecked,
	Checked,
	Undetermined,
};

/** Declares the setter of a style's member that returns the style. */
#define SLATE_STYLE_MEMBER(Type, Name, Default) \
	Type Name Default; \
	StyleType& Set##Name(const Type& In##Name) \
	{ \
		Name = In##Name; \
		return *this; \
	}

/** Gives a style its type name and its default. */
#define SLATE_STYLE_TYPE(Type) \
	using StyleType = Type; \
	static const FName TypeName; \
	virtual const FName GetTypeName() const override \
	{ \
		return TypeName; \
	} \
	static const Type& GetDefault();

struct SLATECORE_API FTextBlockStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FTextBlockStyle)

	SLATE_STYLE_MEMBER(FSlateFontInfo, Font, )
	SLATE_STYLE_MEMBER(FSlateColor, ColorAndOpacity, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FVector2D, ShadowOffset, = FVector2D(0.0, 0.0))
	SLATE_STYLE_MEMBER(FLinearColor, ShadowColorAndOpacity, = FLinearColor::Black)
	SLATE_STYLE_MEMBER(FSlateColor, SelectedBackgroundColor, = FSlateColor(FLinearColor(0.0f, 0.17f, 0.54f)))
};

struct SLATECORE_API FButtonStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FButtonStyle)

	SLATE_STYLE_MEMBER(FSlateBrush, Normal, )
	SLATE_STYLE_MEMBER(FSlateBrush, Hovered, )
	SLATE_STYLE_MEMBER(FSlateBrush, Pressed, )
	SLATE_STYLE_MEMBER(FSlateBrush, Disabled, )
	SLATE_STYLE_MEMBER(FSlateColor, NormalForeground, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, HoveredForeground, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, PressedForeground, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, DisabledForeground, = FSlateColor::UseForeground())
	/** Added to the content padding of a button that shows itself normal, and pressed. */
	SLATE_STYLE_MEMBER(FMargin, NormalPadding, )
	SLATE_STYLE_MEMBER(FMargin, PressedPadding, )
};

struct SLATECORE_API FCheckBoxStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FCheckBoxStyle)

	SLATE_STYLE_MEMBER(FSlateBrush, UncheckedImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, UncheckedHoveredImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, UncheckedPressedImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, CheckedImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, CheckedHoveredImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, CheckedPressedImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, UndeterminedImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, UndeterminedHoveredImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, UndeterminedPressedImage, )
	/** Between the box and what stands beside it. */
	SLATE_STYLE_MEMBER(FMargin, Padding, = FMargin(2.0f, 0.0f, 0.0f, 0.0f))
	SLATE_STYLE_MEMBER(FSlateColor, ForegroundColor, = FSlateColor::UseForeground())
};

struct SLATECORE_API FScrollBarStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FScrollBarStyle)

	SLATE_STYLE_MEMBER(FSlateBrush, HorizontalBackgroundImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, VerticalBackgroundImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, NormalThumbImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, HoveredThumbImage, )
	SLATE_STYLE_MEMBER(FSlateBrush, DraggedThumbImage, )
	/** Slate units across the bar. */
	SLATE_STYLE_MEMBER(float, Thickness, = 10.0f)
};

struct SLATECORE_API FEditableTextStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FEditableTextStyle)

	SLATE_STYLE_MEMBER(FSlateFontInfo, Font, )
	SLATE_STYLE_MEMBER(FSlateColor, ColorAndOpacity, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateBrush, BackgroundImageSelected, )
	SLATE_STYLE_MEMBER(FSlateBrush, CaretImage, )
};

struct SLATECORE_API FEditableTextBoxStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FEditableTextBoxStyle)

	SLATE_STYLE_MEMBER(FSlateBrush, BackgroundImageNormal, )
	SLATE_STYLE_MEMBER(FSlateBrush, BackgroundImageHovered, )
	SLATE_STYLE_MEMBER(FSlateBrush, BackgroundImageFocused, )
	SLATE_STYLE_MEMBER(FSlateBrush, BackgroundImageReadOnly, )
	SLATE_STYLE_MEMBER(FMargin, Padding, = FMargin(4.0f, 2.0f))
	SLATE_STYLE_MEMBER(FSlateColor, ForegroundColor, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, BackgroundColor, = FSlateColor(FLinearColor::White))
	SLATE_STYLE_MEMBER(FSlateColor, ReadOnlyForegroundColor, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, FocusedForegroundColor, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FEditableTextStyle, TextStyle, )
	SLATE_STYLE_MEMBER(FScrollBarStyle, ScrollBarStyle, )

	FEditableTextBoxStyle& SetFont(const FSlateFontInfo& InFont)
	{
		TextStyle.Font = InFont;
		return *this;
	}
};

struct SLATECORE_API FScrollBoxStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FScrollBoxStyle)

	/** Faded edges that say there is more. */
	SLATE_STYLE_MEMBER(FSlateBrush, TopShadowBrush, )
	SLATE_STYLE_MEMBER(FSlateBrush, BottomShadowBrush, )
};

struct SLATECORE_API FDockTabStyle : public FSlateWidgetStyle
{
	SLATE_STYLE_TYPE(FDockTabStyle)

	SLATE_STYLE_MEMBER(FButtonStyle, CloseButtonStyle, )
	SLATE_STYLE_MEMBER(FSlateBrush, NormalBrush, )
	SLATE_STYLE_MEMBER(FSlateBrush, HoveredBrush, )
	SLATE_STYLE_MEMBER(FSlateBrush, ForegroundBrush, )
	SLATE_STYLE_MEMBER(FSlateBrush, ContentAreaBrush, )
	SLATE_STYLE_MEMBER(FSlateBrush, TabWellBrush, )
	SLATE_STYLE_MEMBER(FTextBlockStyle, TabTextStyle, )
	SLATE_STYLE_MEMBER(FMargin, TabPadding, = FMargin(12.0f, 6.0f))
	SLATE_STYLE_MEMBER(FSlateColor, NormalForegroundColor, = FSlateColor::UseForeground())
	SLATE_STYLE_MEMBER(FSlateColor, ForegroundForegroundColor, = FSlateColor::UseForeground())
	/** The stripe along the tab in front. */
	SLATE_STYLE_MEMBER(FSlateBrush, ActiveStripeBrush, )
	/** What a tab that draws attention is filled with for a moment. */
	SLATE_STYLE_MEMBER(FSlateColor, FlashColor, = FSlateColor(FLinearColor::White))
};
