#pragma once

#include "Framework/Text/TextCaretMove.h"
#include "Framework/Text/TextDocument.h"
#include "Framework/Text/TextRows.h"
#include "Framework/Text/TextUndoHistory.h"
#include "Misc/Optional.h"
#include "Templates/UniquePtr.h"

/**
 * A text under edit with its caret, selection and undo history, and no idea of a widget. Functions that change the text say
 * whether they did. The rows need a measure before anything here moves by rows.
 */
class SLATE_API FTextEditor
{
public:
	explicit FTextEditor(bool bMultiLine);

	const FTextDocument& GetDocument() const { return Document; }
	FTextRows& GetRows() { return Rows; }
	const FTextRows& GetRows() const { return Rows; }

	/** Replaces everything from outside: the selection and the history go, the caret stays as near as it can. */
	void SetText(const FString& Text);

	const FTextCaret& GetCaret() const { return Caret; }
	bool HasSelection() const { return Anchor != Caret.Location; }

	/** From the place where selecting began to the caret; empty if nothing is selected. */
	FTextSelection GetSelection() const { return FTextSelection(Anchor, Caret.Location); }
	FString GetSelectedText() const { return Document.GetText(GetSelection()); }

	/** Puts the caret somewhere, nearest to what exists; bExtend selects on the way. */
	void PlaceCaret(const FTextCaret& NewCaret, bool bExtend);
	void MoveCaret(ETextCaretMove Move, bool bExtend, int32 RowsPerPage = 1);
	void SelectAll();
	void SelectWordAt(const FTextLocation& Location);
	void ClearSelection();

	/** Puts Text in place of the selection. */
	bool Insert(const FString& Text);

	/** Deletes the selection or, without one, what lies between the caret and where the step leads. */
	bool Delete(ETextCaretMove Move);

	bool Undo();
	bool Redo();
	void ClearHistory() { History.Reset(); }

private:
	/** One step of the history: Text in place of Range. */
	bool Edit(const FTextSelection& Range, const FString& Text);
	void Replace(const FTextSelection& Range, const FString& Text);

	FTextDocument Document;
	FTextRows Rows;
	FTextCaret Caret;
	FTextLocation Anchor;

	/** What a row of vertical steps aims at. */
	TOptional<float> Column;

	/** Most fields are never typed into. */
	TUniquePtr<FTextUndoHistory> History;
};
