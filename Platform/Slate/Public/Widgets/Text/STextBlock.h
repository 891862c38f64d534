#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Margin.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

class FTextBlockLayout;
class FTextRows;

/**
 * Text that is only shown. Everything but the text comes from the style until it is set on the widget.
 *
 * Lines end where the text has line ends, and where the text is told to wrap. The default is one row per line, left-aligned.
 */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)

	/** Slate units, right and down. (0, 0) is no shadow. */
	SLATE_ATTRIBUTE(FVector2D, ShadowOffset)
	SLATE_ATTRIBUTE(FLinearColor, ShadowColorAndOpacity)

	/** The width in Slate units at which lines are broken; 0 for none. */
	SLATE_ATTRIBUTE(float, WrapTextAt)

	/** Whether lines are broken at the width that the widget was given last. With WrapTextAt the smaller width counts. */
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(ETextWrappingPolicy, WrappingPolicy)

	/** Blank space around the text. */
	SLATE_ATTRIBUTE(FMargin, Margin)

	/** Scales the distance of the rows; 1 is the font's own. */
	SLATE_ATTRIBUTE(float, LineHeightPercentage)
	SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)

	/** Counts for text of one line. */
	SLATE_ARGUMENT(TOptional<ETextOverflowPolicy>, OverflowPolicy)
	SLATE_END_ARGS()

	STextBlock();
	virtual ~STextBlock();

	void Construct(const FArguments& InArgs);

	/** What shows now; a binding is asked. */
	const FText& GetText() const { return Text.GetUpdated(); }

	/** A text that shows the same changes nothing. A binding is replaced. */
	void SetText(TAttribute<FText> InText);

	/** The style must outlive the widget; null gives the default style. */
	void SetTextStyle(const FTextBlockStyle* InTextStyle);

	// What follows replaces what the style says. An attribute that is not set gives it back to the style.
	void SetFont(TAttribute<FSlateFontInfo> InFont);
	void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity);
	void SetShadowOffset(TAttribute<FVector2D> InShadowOffset);
	void SetShadowColorAndOpacity(TAttribute<FLinearColor> InShadowColorAndOpacity);

	void SetWrapTextAt(TAttribute<float> InWrapTextAt);
	void SetAutoWrapText(TAttribute<bool> InAutoWrapText);
	void SetWrappingPolicy(TAttribute<ETextWrappingPolicy> InWrappingPolicy);
	void SetMargin(TAttribute<FMargin> InMargin);
	void SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage);
	void SetJustification(TAttribute<ETextJustify::Type> InJustification);
	void SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth);
	void SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy);

	const FSlateFontInfo& GetFont() const;
	const FSlateColor& GetColorAndOpacity() const;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

private:
	struct FOverrides;

	template <typename ValueType, typename OverrideType>
	void SetOverride(OverrideType FOverrides::*Member, const TAttribute<ValueType>& Value);

	static const FOverrides& GetDefaults();
	const FOverrides& GetOverrides() const;
	const FVector2D& GetShadowOffset() const;
	const FLinearColor& GetShadowColorAndOpacity() const;

	bool NeedsLayout() const;
	FVector2D GetSpaceAroundText() const;
	FVector2D GetSizeAt(float Scale, float AllottedWidth) const;
	float GetWrapWidth(float Room) const;
	const FTextRows& UpdateRows(float Scale, float AllottedWidth) const;

	/** The one line of the text as far as it fits, with an ellipsis where it does not. */
	FString ShortenToRoom(const FGeometry& Geometry) const;
	float GetJustifiedLeft(const FString& Row, const FGeometry& Geometry) const;
	void PaintRow(const FString& Row, const FVector2D& Position, const FGeometry& Geometry,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bEnabled) const;

	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> Text{*this};
	const FTextBlockStyle* TextStyle;

	/** Set once something differs from the style and the defaults: most labels have just a text. */
	TUniquePtr<FOverrides> Overrides;

	/** Only for text of several rows. */
	mutable TUniquePtr<FTextBlockLayout> Layout;
};
