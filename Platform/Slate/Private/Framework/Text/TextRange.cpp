#include "Framework/Text/TextRange.h"

void FTextRange::CalculateLineRangesFromString(const FString& Input, TArray<FTextRange>& LineRanges)
{
	LineRanges.Reset();

	const TCHAR* const Characters = *Input;
	const int32 Length = Input.Len();
	int32 LineBegin = 0;
	for (int32 Index = 0; Index < Length; ++Index)
	{
		if (Characters[Index] != TEXT('\n') && Characters[Index] != TEXT('\r'))
		{
			continue;
		}

		LineRanges.Emplace(LineBegin, Index);
		const bool bTwoUnits = Characters[Index] == TEXT('\r') && Index + 1 < Length && Characters[Index + 1] == TEXT('\n');
		Index += bTwoUnits ? 1 : 0;
		LineBegin = Index + 1;
	}
	LineRanges.Emplace(LineBegin, Length);
}
