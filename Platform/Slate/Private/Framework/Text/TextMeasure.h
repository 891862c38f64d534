#pragma once

#include "Containers/UnrealString.h"
#include "Math/Vector2D.h"

/** Sizes of rows of text in Slate units, in one font at one scale. Indices are UTF-16 offsets from the begin of the row. */
class ITextMeasure
{
public:
	virtual ~ITextMeasure() = default;

	/** From one baseline to the next. */
	virtual float GetLineHeight() const = 0;

	/** Of the first characters of a row. */
	virtual float GetWidth(const FString& Row, int32 NumCharacters) const = 0;

	/** How many of the first characters are no wider than Width. */
	virtual int32 GetNumFitting(const FString& Row, float Width) const = 0;

	/** The place between two characters that is nearest to a distance from the left end. */
	virtual int32 GetNearestIndex(const FString& Row, float Distance) const = 0;

	/** Where the caret stands in front of a character, or behind the last one, from the left end. */
	virtual float GetCaretDistance(const FString& Row, int32 Index) const { return GetWidth(Row, Index); }

	/** The parts of the row that the characters [Begin, End) take up, from left to right; X is where one begins, Y its end. */
	virtual TArray<FVector2D> GetSpans(const FString& Row, int32 Begin, int32 End) const
	{
		return {FVector2D(GetWidth(Row, Begin), GetWidth(Row, End))};
	}
};
