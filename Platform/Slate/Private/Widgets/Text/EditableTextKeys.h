#pragma once

#include "Framework/Text/TextCaretMove.h"
#include "InputCoreTypes.h"

class FKeyEvent;

/** What a key does in a text field. */
enum class EEditableTextAction : uint8
{
	MoveCaret,
	Delete,
	SelectAll,
	Copy,
	Cut,
	Paste,
	Undo,
	Redo,
	Escape,
};

/** A row of the key table. */
struct FEditableTextKey
{
	enum class EShift : uint8
	{
		/** Works with and without; extends the selection when the caret moves. */
		Either,
		Up,
		Down,
	};

	const FKey& Key;
	bool bControl;
	EShift Shift;
	EEditableTextAction Action;

	/** Where the caret goes, or up to where text is deleted. */
	ETextCaretMove Move = ETextCaretMove::NextCharacter;
	bool bMultiLineOnly = false;

	/** Whether the action changes the text, which a field that is read-only leaves to others. */
	bool Edits() const;
};

/** The row that a key event means, or null. Enter is not among them: fields answer it differently. */
SLATE_API const FEditableTextKey* FindEditableTextKey(const FKeyEvent& KeyEvent, bool bMultiLine);
