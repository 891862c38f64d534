#pragma once

#include "Framework/Text/FontTextMeasure.h"
#include "Framework/Text/TextDocument.h"
#include "Framework/Text/TextRows.h"

/** The rows of a text that is only shown; they are formed again when something differs from the last time. */
class FTextBlockLayout
{
public:
	FTextBlockLayout();

	/** @param ViewWidth  The room in which rows are centred or right-aligned. */
	void Update(const FString& Text, const FSlateFontInfo& Font, float Scale, const FTextRowFormat& Format, float ViewWidth);

	const FTextRows& GetRows() const { return Rows; }

private:
	FTextDocument Document;
	FTextRows Rows;
	FFontOfRows FontOfRows;
};
