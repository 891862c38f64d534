#include "Framework/Text/TextUndoHistory.h"

#include "Templates/UnrealTemplate.h"

void FTextUndoHistory::Record(FTextEdit&& Edit)
{
	Edits.RemoveAt(NumDone, Edits.Num() - NumDone);
	if (NumDone == MaxEdits)
	{
		Edits.RemoveAt(0);
	}
	Edits.Add(MoveTemp(Edit));
	NumDone = Edits.Num();
}

void FTextUndoHistory::Clear()
{
	Edits.Empty();
	NumDone = 0;
}

const FTextEdit* FTextUndoHistory::StepBack()
{
	return NumDone > 0 ? &Edits[--NumDone] : nullptr;
}

const FTextEdit* FTextUndoHistory::StepForward()
{
	return NumDone < Edits.Num() ? &Edits[NumDone++] : nullptr;
}
