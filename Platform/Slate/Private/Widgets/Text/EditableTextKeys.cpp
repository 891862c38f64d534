#include "Widgets/Text/EditableTextKeys.h"

#include "Input/Events.h"

namespace
{
using EShift = FEditableTextKey::EShift;
using EAction = EEditableTextAction;
using EMove = ETextCaretMove;

constexpr bool GControl = true;
constexpr bool GMultiLineOnly = true;

// clang-format off
const FEditableTextKey GKeys[] =
{
	// Key             Control    Shift           Action              Where to                  Which fields
	{ EKeys::Left,      false,    EShift::Either, EAction::MoveCaret, EMove::PreviousCharacter },
	{ EKeys::Right,     false,    EShift::Either, EAction::MoveCaret, EMove::NextCharacter },
	{ EKeys::Left,      GControl, EShift::Either, EAction::MoveCaret, EMove::PreviousWord },
	{ EKeys::Right,     GControl, EShift::Either, EAction::MoveCaret, EMove::NextWord },
	{ EKeys::Home,      false,    EShift::Either, EAction::MoveCaret, EMove::RowBegin },
	{ EKeys::End,       false,    EShift::Either, EAction::MoveCaret, EMove::RowEnd },
	{ EKeys::Home,      GControl, EShift::Either, EAction::MoveCaret, EMove::DocumentBegin },
	{ EKeys::End,       GControl, EShift::Either, EAction::MoveCaret, EMove::DocumentEnd },
	{ EKeys::Up,        false,    EShift::Either, EAction::MoveCaret, EMove::RowAbove,          GMultiLineOnly },
	{ EKeys::Down,      false,    EShift::Either, EAction::MoveCaret, EMove::RowBelow,          GMultiLineOnly },
	{ EKeys::PageUp,    false,    EShift::Either, EAction::MoveCaret, EMove::PageAbove,         GMultiLineOnly },
	{ EKeys::PageDown,  false,    EShift::Either, EAction::MoveCaret, EMove::PageBelow,         GMultiLineOnly },
	{ EKeys::BackSpace, false,    EShift::Either, EAction::Delete,    EMove::PreviousCharacter },
	{ EKeys::Delete,    false,    EShift::Up,     EAction::Delete,    EMove::NextCharacter },
	{ EKeys::BackSpace, GControl, EShift::Either, EAction::Delete,    EMove::PreviousWord },
	{ EKeys::Delete,    GControl, EShift::Either, EAction::Delete,    EMove::NextWord },
	{ EKeys::A,         GControl, EShift::Up,     EAction::SelectAll },
	{ EKeys::C,         GControl, EShift::Up,     EAction::Copy },
	{ EKeys::Insert,    GControl, EShift::Up,     EAction::Copy },
	{ EKeys::X,         GControl, EShift::Up,     EAction::Cut },
	{ EKeys::Delete,    false,    EShift::Down,   EAction::Cut },
	{ EKeys::V,         GControl, EShift::Up,     EAction::Paste },
	{ EKeys::Insert,    false,    EShift::Down,   EAction::Paste },
	{ EKeys::Z,         GControl, EShift::Up,     EAction::Undo },
	{ EKeys::Z,         GControl, EShift::Down,   EAction::Redo },
	{ EKeys::Y,         GControl, EShift::Up,     EAction::Redo },
	{ EKeys::Escape,    false,    EShift::Either, EAction::Escape },
};
// clang-format on

bool IsMeant(const FEditableTextKey& Row, const FKeyEvent& KeyEvent)
{
	const bool bShiftFits = Row.Shift == EShift::Either || (Row.Shift == EShift::Down) == KeyEvent.IsShiftDown();
	return Row.Key == KeyEvent.GetKey() && Row.bControl == KeyEvent.IsControlDown() && bShiftFits;
}
}

bool FEditableTextKey::Edits() const
{
	switch (Action)
	{
		case EAction::Delete:
		case EAction::Cut:
		case EAction::Paste:
		case EAction::Undo:
		case EAction::Redo:
			return true;
		default:
			return false;
	}
}

const FEditableTextKey* FindEditableTextKey(const FKeyEvent& KeyEvent, bool bMultiLine)
{
	if (KeyEvent.IsAltDown() || KeyEvent.IsCommandDown())
	{
		return nullptr;
	}
	for (const FEditableTextKey& Row : GKeys)
	{
		if (IsMeant(Row, KeyEvent) && (bMultiLine || !Row.bMultiLineOnly))
		{
			return &Row;
		}
	}
	return nullptr;
}
