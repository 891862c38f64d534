#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Framework/Text/TextLayout.h"

/** One replacement in a document, with the selection from before: LocationB is the caret's end. */
struct FTextEdit
{
	FTextLocation Begin;
	FString Removed;
	FString Inserted;
	FTextSelection SelectionBefore;
};

/** The edits that can be taken back, and those that were. Edits are kept, not texts: a step costs what it changed. */
class FTextUndoHistory
{
public:
	/** The oldest edit beyond this number is forgotten. */
	static constexpr int32 MaxEdits = 100;

	/** Adds an edit; whatever was taken back can then not be repeated any more. */
	void Record(FTextEdit&& Edit);
	void Clear();

	/** The edit to take back or to repeat next; null if there is none. Valid until the next call. */
	const FTextEdit* StepBack();
	const FTextEdit* StepForward();

private:
	TArray<FTextEdit> Edits;
	int32 NumDone = 0;
};
