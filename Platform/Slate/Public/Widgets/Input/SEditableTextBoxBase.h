#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/SEditableTextBase.h"

/** What framed text fields of one and of many lines have in common: the frame's looks, and what they pass on to the field. */
class SLATE_API SEditableTextBoxBase : public SBorder
{
public:
	FText GetText() const { return Field->GetText(); }
	void SetText(const TAttribute<FText>& InText) { Field->SetText(InText); }
	FText GetHintText() const { return Field->GetHintText(); }
	void SetHintText(const TAttribute<FText>& InHintText) { Field->SetHintText(InHintText); }
	void SetJustification(const TAttribute<ETextJustify::Type>& InJustification) { Field->SetJustification(InJustification); }
	void SetIsReadOnly(const TAttribute<bool>& InIsReadOnly);
	bool IsReadOnly() const { return Field->IsTextReadOnly(); }
	bool AnyTextSelected() const { return Field->AnyTextSelected(); }
	void SelectAllText() { Field->SelectAllText(); }
	void ClearSelection() { Field->ClearSelection(); }
	FText GetSelectedText() const { return Field->GetSelectedText(); }

	/** Replaces the font of the style. */
	void SetFont(const TAttribute<FSlateFontInfo>& InFont);

	/** The style must outlive the widget; null gives the default style. */
	void SetStyle(const FEditableTextBoxStyle* InStyle);

	/** What the style says of text, as long as SetForegroundColor was not called. */
	virtual FSlateColor GetForegroundColor() const override;

	virtual void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;

protected:
	/** What the widgets' own arguments come down to. */
	struct FFrame
	{
		const FEditableTextBoxStyle* Style;
		TAttribute<FSlateFontInfo> Font;
		TAttribute<FSlateColor> ForegroundColor;
		TAttribute<FSlateColor> BackgroundColor;
		TAttribute<bool> IsReadOnly;
	};

	/** @param InContent  Holds InField and fills the frame. */
	void ConstructFrame(const FFrame& Frame, const TSharedRef<SEditableTextBase>& InField, const TSharedRef<SWidget>& InContent);

	/** Told when the style was set, also the first time. */
	virtual void OnStyleChanged() = 0;
	const FEditableTextBoxStyle& GetStyle() const { return *Style; }

	virtual const FSlateBrush* GetBorder() const override;

private:
	TSharedPtr<SEditableTextBase> Field;
	const FEditableTextBoxStyle* Style = nullptr;

	/** The look of a read-only field with the outline of a focused one. */
	FSlateBrush FocusedReadOnlyImage;

	/** The same as the field's; here a change repaints the frame. */
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> IsFrameReadOnly{*this, false};
	bool bFontIsSet = false;
	bool bBackgroundColorIsSet = false;
};
