#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

class FJsonObject;
class SWidget;

/** The layout that an element of "Slots" asks for. Which of it has an effect depends on the panel. */
struct FSlotRequest
{
	/** Stands for a missing "FillWidth" or "FillHeight". */
	static constexpr float NoFill = -1.0f;

	/** One, two or four numbers as the author gave them; empty without "Padding". */
	TArray<float> PaddingValues;
	bool bAutoHeight = false;
	bool bAutoWidth = false;
	EVerticalAlignment VAlign = VAlign_Fill;
	EHorizontalAlignment HAlign = HAlign_Fill;
	float FillWidth = NoFill;
	float FillHeight = NoFill;
};

/** Reads the layout keys of an element of "Slots", in any case and in the order of the text. Wrong values are reported. */
FSlotRequest ReadSlotRequest(const FJsonObject& Slot);

/** Adds a slot with a child to a panel. A widget that is no panel draws an error, and the child is lost. */
void AttachWidget(const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Child, const FSlotRequest& Request);
