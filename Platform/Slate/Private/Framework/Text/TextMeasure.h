#pragma once

#include "Containers/UnrealString.h"

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

	/** The place between two characters that is nearest to a distance from the begin. */
	virtual int32 GetNearestIndex(const FString& Row, float Distance) const = 0;
};
