#include "Widgets/Text/SEditableTextBase.h"

#include "Framework/Text/FontTextMeasure.h"
#include "Framework/Text/TextEditor.h"

/** A bound text. Only a change of its value is shown: until then, what the user typed stands. */
class SEditableTextBase::FBoundText final : public FSlateAttributeBinding
{
public:
	FBoundText(SEditableTextBase& InOwner, const TAttribute<FText>& InSource)
		: FSlateAttributeBinding(InOwner, EInvalidateWidgetReason::Layout)
		, Source(InSource)
		, Owner(InOwner)
	{
	}

	bool TakeChange()
	{
		FText NewValue = Source.Get();
		if (Value.IdenticalTo(NewValue) || Value.EqualTo(NewValue))
		{
			return false;
		}
		Value = MoveTemp(NewValue);
		return true;
	}

	const TAttribute<FText> Source;
	FText Value;

private:
	virtual bool Fetch() override { return TakeChange() && Owner.ShowBoundText(); }

	SEditableTextBase& Owner;
};

SEditableTextBase::SEditableTextBase(bool bMultiLine)
	: Editor(MakeUnique<FTextEditor>(bMultiLine))
	, FontOfRows(MakeUnique<FFontOfRows>())
	, bFontIsSet(false)
	, bIsSelecting(false)
	, bSelectAllOnMouseUp(false)
	, bCaretIsLit(false)
	, bCaretStaysLit(false)
	, bFramed(false)
{
	SetCanTick(false);
	SetClipping(EWidgetClipping::ClipToBounds);
}

SEditableTextBase::~SEditableTextBase() = default;

//
// Text
//

FText SEditableTextBase::GetText() const
{
	if (BoundText.IsValid())
	{
		BoundText->Update();
	}
	return FText::FromString(Editor->GetDocument().GetText());
}

void SEditableTextBase::SetText(const TAttribute<FText>& InText)
{
	const FText NewText = InText.Get();
	BoundText.Reset();
	if (InText.IsBound())
	{
		BoundText = MakeUnique<FBoundText>(*this, InText);
		BoundText->Value = NewText;
	}
	if (!Editor->GetDocument().Equals(NewText.ToString()))
	{
		ReplaceText(NewText);
		OnTextChanged.ExecuteIfBound(NewText);
	}
}

bool SEditableTextBase::ShowBoundText()
{
	if (Editor->GetDocument().Equals(BoundText->Value.ToString()))
	{
		return false;
	}
	ReplaceText(BoundText->Value);
	return true;
}

void SEditableTextBase::ReplaceText(const FText& NewText)
{
	Editor->SetText(NewText.ToString());
	PendingSurrogate = 0;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SEditableTextBase::OnEdited(bool bChanged)
{
	OnCaretMoved();
	if (bChanged && OnTextChanged.IsBound())
	{
		OnTextChanged.Execute(FText::FromString(Editor->GetDocument().GetText()));
	}
}

void SEditableTextBase::Commit(ETextCommit::Type CommitType)
{
	const FString Text = Editor->GetDocument().GetText();
	OriginalText = Text;
	OnTextCommitted.ExecuteIfBound(FText::FromString(Text), CommitType);
}

//
// Settings
//

void SEditableTextBase::SetHintText(const TAttribute<FText>& InHintText)
{
	SetAttribute(HintText, InHintText);
}

void SEditableTextBase::SetFont(const TAttribute<FSlateFontInfo>& InFont)
{
	SetAttribute(Font, InFont);
	if (bFontIsSet != InFont.IsSet())
	{
		bFontIsSet = InFont.IsSet();
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

const FSlateFontInfo& SEditableTextBase::GetFont() const
{
	return bFontIsSet ? Font.Get() : *Look.Font;
}

void SEditableTextBase::SetLook(const FLook& InLook)
{
	Look = InLook;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SEditableTextBase::SetJustification(const TAttribute<ETextJustify::Type>& InJustification)
{
	SetAttribute(Justification, InJustification);
}

void SEditableTextBase::SetIsReadOnly(const TAttribute<bool>& InIsReadOnly)
{
	SetAttribute(IsReadOnly, InIsReadOnly);
}

void SEditableTextBase::SetSelectAllTextWhenFocused(const TAttribute<bool>& InSelectAllTextWhenFocused)
{
	SelectAllTextWhenFocused = InSelectAllTextWhenFocused;
}

void SEditableTextBase::SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InClearKeyboardFocusOnCommit)
{
	ClearKeyboardFocusOnCommit = InClearKeyboardFocusOnCommit;
}

void SEditableTextBase::SetRevertTextOnEscape(const TAttribute<bool>& InRevertTextOnEscape)
{
	RevertTextOnEscape = InRevertTextOnEscape;
}

//
// Selection
//

bool SEditableTextBase::AnyTextSelected() const
{
	return Editor->HasSelection();
}

void SEditableTextBase::SelectAllText()
{
	Editor->SelectAll();
	OnCaretMoved();
}

void SEditableTextBase::ClearSelection()
{
	if (Editor->HasSelection())
	{
		Editor->ClearSelection();
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

FText SEditableTextBase::GetSelectedText() const
{
	return FText::FromString(Editor->GetSelectedText());
}

//
// Focus
//

FReply SEditableTextBase::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	OriginalText = Editor->GetDocument().GetText();
	if (SelectAllTextWhenFocused.Get() && InFocusEvent.GetCause() != EFocusCause::Mouse)
	{
		SelectAllText();
	}
	StartBlinking();
	return FReply::Handled();
}

void SEditableTextBase::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	StopBlinking();
	PendingSurrogate = 0;

	switch (InFocusEvent.GetCause())
	{
		case EFocusCause::Mouse:
		case EFocusCause::Navigation:
			Commit(ETextCommit::OnUserMovedFocus);
			break;
		case EFocusCause::Cleared:
			Commit(ETextCommit::OnCleared);
			break;
		default:
			Commit(ETextCommit::Default);
			break;
	}

	OriginalText.Empty();
	if (InFocusEvent.GetCause() != EFocusCause::WindowActivate)
	{
		ClearSelection();
	}
	if (BoundText.IsValid())
	{
		// The edit is over: what counts now is what the owner made of it.
		BoundText->TakeChange();
		ShowBoundText();
	}
}
