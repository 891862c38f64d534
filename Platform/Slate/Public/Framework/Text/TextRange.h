#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** A stretch of one text: UTF-16 units from BeginIndex up to, not including, EndIndex. */
struct SLATE_API FTextRange
{
	FTextRange() = default;

	FTextRange(int32 InBeginIndex, int32 InEndIndex)
		: BeginIndex(InBeginIndex)
		, EndIndex(InEndIndex)
	{
	}

	int32 Len() const { return EndIndex - BeginIndex; }
	bool IsEmpty() const { return EndIndex <= BeginIndex; }

	friend bool operator==(const FTextRange& A, const FTextRange& B)
	{
		return A.BeginIndex == B.BeginIndex && A.EndIndex == B.EndIndex;
	}
	friend bool operator!=(const FTextRange& A, const FTextRange& B) { return !(A == B); }

	/** The lines of a text without their ends (LF, CRLF or CR). A text that ends with a line end has an empty last line. */
	static void CalculateLineRangesFromString(const FString& Input, TArray<FTextRange>& LineRanges);

	int32 BeginIndex = INDEX_NONE;
	int32 EndIndex = INDEX_NONE;
};
