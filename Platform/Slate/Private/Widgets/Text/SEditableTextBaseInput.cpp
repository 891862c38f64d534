#include "Widgets/Text/SEditableTextBase.h"

#include "Framework/Text/TextEditor.h"
#include "Framework/Text/TextRange.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Widgets/Text/EditableTextKeys.h"

namespace
{
bool IsHighSurrogate(TCHAR Unit)
{
	return Unit >= 0xd800 && Unit < 0xdc00;
}

bool IsControlCharacter(TCHAR Unit)
{
	return Unit < 0x20 || Unit == 0x7f;
}

/** For a single line: line ends become blanks, but for those at the end. */
FString JoinLines(const FString& Text)
{
	TArray<FTextRange> Lines;
	FTextRange::CalculateLineRangesFromString(Text, Lines);
	while (Lines.Num() > 1 && Lines.Last().IsEmpty())
	{
		Lines.RemoveAt(Lines.Num() - 1);
	}
	FString Joined;
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		Joined += Index > 0 ? TEXT(" ") : TEXT("");
		Joined += Text.Mid(Lines[Index].BeginIndex, Lines[Index].Len());
	}
	return Joined;
}
}

//
// Keys
//

FReply SEditableTextBase::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Unit = InCharacterEvent.GetCharacter();
	const bool bIsCommand =
		InCharacterEvent.IsCommandDown() || (InCharacterEvent.IsControlDown() && !InCharacterEvent.IsAltDown());
	if (IsTextReadOnly() || bIsCommand || IsControlCharacter(Unit))
	{
		return FReply::Unhandled();
	}

	if (IsHighSurrogate(Unit))
	{
		PendingSurrogate = Unit;
		return FReply::Handled();
	}
	FString Character;
	if (PendingSurrogate != 0)
	{
		Character.AppendChar(PendingSurrogate);
		PendingSurrogate = 0;
	}
	Character.AppendChar(Unit);
	Insert(Character);
	return FReply::Handled();
}

FReply SEditableTextBase::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::Enter)
	{
		return HandleEnter();
	}
	const FEditableTextKey* const Binding = FindEditableTextKey(InKeyEvent, Editor->GetDocument().IsMultiLine());
	return Binding && Execute(*Binding, InKeyEvent.IsShiftDown()) ? FReply::Handled() : FReply::Unhandled();
}

bool SEditableTextBase::Execute(const FEditableTextKey& Binding, bool bShift)
{
	if (Binding.Edits() && IsTextReadOnly())
	{
		return false;
	}

	switch (Binding.Action)
	{
		case EEditableTextAction::MoveCaret:
			Editor->MoveCaret(Binding.Move, bShift, GetRowsPerPage());
			OnCaretMoved();
			break;
		case EEditableTextAction::Delete:
			OnEdited(Editor->Delete(Binding.Move));
			break;
		case EEditableTextAction::SelectAll:
			SelectAllText();
			break;
		case EEditableTextAction::Copy:
			CopySelectedText();
			break;
		case EEditableTextAction::Cut:
			if (AnyTextSelected() && !IsTextPassword())
			{
				CopySelectedText();
				Insert(FString());
			}
			break;
		case EEditableTextAction::Paste:
			Paste();
			break;
		case EEditableTextAction::Undo:
			OnEdited(Editor->Undo());
			break;
		case EEditableTextAction::Redo:
			OnEdited(Editor->Redo());
			break;
		case EEditableTextAction::Escape:
			return HandleEscape();
	}
	return true;
}

void SEditableTextBase::Insert(const FString& Text)
{
	OnEdited(Editor->Insert(Text));
}

void SEditableTextBase::CopySelectedText() const
{
	if (AnyTextSelected() && !IsTextPassword())
	{
		FPlatformApplicationMisc::ClipboardCopy(*Editor->GetSelectedText());
	}
}

void SEditableTextBase::Paste()
{
	FString Text;
	FPlatformApplicationMisc::ClipboardPaste(Text);
	if (!Text.IsEmpty())
	{
		Insert(Editor->GetDocument().IsMultiLine() ? Text : JoinLines(Text));
	}
}

bool SEditableTextBase::HandleEscape()
{
	if (AnyTextSelected())
	{
		ClearSelection();
		return true;
	}
	if (IsTextReadOnly() || !RevertTextOnEscape.Get() || Editor->GetDocument().Equals(OriginalText))
	{
		return false;
	}
	ReplaceText(FText::FromString(OriginalText));
	OnEdited(true);
	return true;
}

FReply SEditableTextBase::HandleEnter()
{
	if (IsTextReadOnly())
	{
		return FReply::Unhandled();
	}
	if (Editor->GetDocument().IsMultiLine())
	{
		Insert(TEXT("\n"));
		return FReply::Handled();
	}

	Commit(ETextCommit::OnEnter);
	const bool bLeave = ClearKeyboardFocusOnCommit.Get() && HasKeyboardFocus();
	return bLeave ? FReply::Handled().ClearUserFocus(EFocusCause::Cleared) : FReply::Handled();
}

//
// Mouse
//

FReply SEditableTextBase::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}

	const bool bHadFocus = HasKeyboardFocus();
	Editor->PlaceCaret(GetCaretUnder(MyGeometry, MouseEvent), MouseEvent.IsShiftDown() && bHadFocus);
	bIsSelecting = true;
	bSelectAllOnMouseUp = !bHadFocus && SelectAllTextWhenFocused.Get();
	OnCaretMoved();
	return FReply::Handled().CaptureMouse(SharedThis(this)).SetUserFocus(SharedThis(this), EFocusCause::Mouse);
}

FReply SEditableTextBase::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	if (IsTextPassword())
	{
		SelectAllText();
	}
	else
	{
		Editor->SelectWordAt(GetCaretUnder(MyGeometry, MouseEvent).Location);
		OnCaretMoved();
	}
	return FReply::Handled().SetUserFocus(SharedThis(this), EFocusCause::Mouse);
}

FReply SEditableTextBase::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// A subclass may have thrown the capture away, so the button decides whether this is still a drag.
	bIsSelecting = bIsSelecting && MouseEvent.IsMouseButtonDown(EKeys::LeftMouseButton);
	if (!bIsSelecting)
	{
		return FReply::Unhandled();
	}

	const FTextCaret Caret = GetCaretUnder(MyGeometry, MouseEvent);
	if (Caret.Location != Editor->GetCaret().Location)
	{
		Editor->PlaceCaret(Caret, true);
		OnCaretMoved();
	}
	return FReply::Handled();
}

FReply SEditableTextBase::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}

	bIsSelecting = false;
	if (bSelectAllOnMouseUp && !AnyTextSelected())
	{
		SelectAllText();
	}
	bSelectAllOnMouseUp = false;
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

void SEditableTextBase::OnMouseCaptureLost()
{
	bIsSelecting = false;
}

FCursorReply SEditableTextBase::OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const
{
	const FCursorReply Own = SWidget::OnCursorQuery(MyGeometry, CursorEvent);
	return Own.IsEventHandled() ? Own : FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

FTextCaret SEditableTextBase::GetCaretUnder(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	const FMargin Margin = GetTextMargin();
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	return UpdateRows(MyGeometry.Scale, MyGeometry.GetLocalSize().X)
		.GetCaretAt(Local - FVector2D(Margin.Left, Margin.Top) + ViewOffset);
}
