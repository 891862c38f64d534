#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Margin.h"
#include "Misc/Optional.h"
#include "Styling/SlateColor.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

class FActiveTimerHandle;
class FFontOfRows;
class FTextEditor;
class FTextRows;
struct FEditableTextKey;
struct FSlateBrush;
struct FTextCaret;
struct FTextRow;

/**
 * What text fields of one and of many lines have in common: text, caret, selection, keys, mouse and painting.
 *
 * A field tells its text at every change by the user and by SetText (OnTextChanged), and when the user is done with it
 * (OnTextCommitted): at Enter in a single line, and whenever the focus leaves, changed or not. A bound text is shown again
 * when its value changes and when the focus leaves; it is never written to.
 */
class SLATE_API SEditableTextBase : public SWidget
{
public:
	SEditableTextBase(bool bMultiLine);
	virtual ~SEditableTextBase();

	/** What shows now: what the user typed counts. Costs time in proportion to the length of the text. */
	FText GetText() const;

	/** Replaces text and binding. A text that differs from the one shown is told by OnTextChanged, an equal one changes nothing. */
	void SetText(const TAttribute<FText>& InText);

	/** Shown while the field is empty. */
	FText GetHintText() const { return HintText.Get(); }
	void SetHintText(const TAttribute<FText>& InHintText);

	/** Replaces the font of the style. */
	void SetFont(const TAttribute<FSlateFontInfo>& InFont);
	const FSlateFontInfo& GetFont() const;
	void SetJustification(const TAttribute<ETextJustify::Type>& InJustification);

	/** The text can be selected and copied all the same. */
	void SetIsReadOnly(const TAttribute<bool>& InIsReadOnly);
	bool IsTextReadOnly() const { return IsReadOnly.Get(); }

	/** Whether all text gets selected when the focus comes; by a click, when the button is released without a selection. */
	void SetSelectAllTextWhenFocused(const TAttribute<bool>& InSelectAllTextWhenFocused);
	void SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InClearKeyboardFocusOnCommit);
	void SetRevertTextOnEscape(const TAttribute<bool>& InRevertTextOnEscape);

	bool AnyTextSelected() const;
	void SelectAllText();
	void ClearSelection();
	FText GetSelectedText() const;

	/** Moves the caret, or only the view, so that a place shows. Lines count from 0, before any wrapping. */
	void GoTo(const FTextLocation& NewLocation);
	void GoTo(ETextLocation NewLocation);
	void ScrollTo(const FTextLocation& NewLocation);
	void ScrollTo(ETextLocation NewLocation);

	virtual FChildren* GetChildren() override { return &FNoChildren::NoChildrenInstance; }
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost() override;

	/** None where the caret shows the focus. */
	virtual const FSlateBrush* GetFocusBrush() const override;

	/** A frame around the field shows the focus. */
	void SetFramed() { bFramed = true; }
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

protected:
	/** What comes from the style; the pointers outlive the widget or are replaced before. */
	struct FLook
	{
		const FSlateFontInfo* Font = nullptr;
		const FSlateBrush* SelectionImage = nullptr;
		const FSlateBrush* CaretImage = nullptr;
	};

	void SetLook(const FLook& InLook);

	/** The text's colour as it is painted, without the tint of the widgets around. */
	virtual FLinearColor GetTextColor(const FWidgetStyle& InWidgetStyle) const = 0;

	/** The width at which lines are broken, given the room there is; 0 for none. */
	virtual float GetWrapWidth(float Room) const { return 0.0f; }
	virtual ETextWrappingPolicy GetWrappingPolicy() const { return ETextWrappingPolicy::DefaultWrapping; }
	virtual float GetLineHeightPercentage() const { return 1.0f; }
	virtual bool IsTextPassword() const { return false; }
	virtual FMargin GetTextMargin() const { return FMargin(); }
	virtual float GetMinDesiredWidth() const { return 0.0f; }

	/** Told when the text, its size or the part of it in view may have changed. */
	virtual void OnViewChanged() const {}

	/** The part of the text in view: its top left and its size, and the size of the whole text. Slate units. */
	FVector2D GetViewOffset() const { return ViewOffset; }
	FVector2D GetViewSize() const { return ViewSize; }
	FVector2D GetTextSize() const;
	void SetViewOffset(const FVector2D& NewOffset);
	float GetRowHeight() const;

	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) const override;

	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;

private:
	/** Slate units. */
	static constexpr float CaretWidth = 1.0f;

	class FBoundText;
	struct FPainter;

	// Text
	bool ShowBoundText();
	void ReplaceText(const FText& NewText);
	void OnEdited(bool bChanged);
	void Commit(ETextCommit::Type CommitType);

	// Keys
	bool Execute(const FEditableTextKey& Binding, bool bShift);
	void Insert(const FString& Text);
	void CopySelectedText() const;
	void Paste();
	bool HandleEscape();
	FReply HandleEnter();

	// Caret and view
	FTextCaret GetCaret(ETextLocation Location) const;
	int32 GetRowsPerPage() const;
	void OnCaretMoved();
	void ScrollIntoView(const FTextCaret& Caret);
	void StartBlinking();
	void StopBlinking();
	EActiveTimerReturnType Blink(double CurrentTime, float DeltaTime);
	FTextCaret GetCaretUnder(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;

	// Layout
	const FTextRows& UpdateRows(float Scale, float AllottedWidth) const;
	FVector2D GetSizeAt(float Scale, float AllottedWidth) const;
	void UpdateView(const FGeometry& Geometry);
	FVector2D GetLargestViewOffset() const;

	TUniquePtr<FTextEditor> Editor;
	TUniquePtr<FFontOfRows> FontOfRows;
	TUniquePtr<FBoundText> BoundText;
	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> HintText{*this};
	TSlateAttribute<FSlateFontInfo, EInvalidateWidgetReason::Layout> Font{*this};
	TSlateAttribute<ETextJustify::Type, EInvalidateWidgetReason::Layout> Justification{*this, ETextJustify::Left};
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> IsReadOnly{*this, false};
	TAttribute<bool> SelectAllTextWhenFocused = false;
	TAttribute<bool> ClearKeyboardFocusOnCommit = true;
	TAttribute<bool> RevertTextOnEscape = false;
	FLook Look;

	/** What the text was when the focus came. */
	FString OriginalText;

	FVector2D ViewOffset = FVector2D::ZeroVector;

	/** What it was before the field was shown in a foreign window, for as long as it is. */
	TOptional<FVector2D> OwnViewOffset;
	FVector2D ViewSize = FVector2D::ZeroVector;

	/** What the next layout brings into view. */
	TUniquePtr<FTextCaret> CaretToShow;

	TSharedPtr<FActiveTimerHandle> BlinkTimer;

	/** The first half of a character beyond the basic plane, until the second is typed. */
	TCHAR PendingSurrogate = 0;

	uint8 bFontIsSet : 1;
	uint8 bIsSelecting : 1;
	uint8 bSelectAllOnMouseUp : 1;
	uint8 bCaretIsLit : 1;
	uint8 bCaretStaysLit : 1;
	uint8 bFramed : 1;
};
