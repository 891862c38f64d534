#include "Widgets/Text/EditableTextKeys.h"

#include <gtest/gtest.h>

#include "Input/Events.h"

namespace
{
const FEditableTextKey* Find(const FKey& Key, bool bShift, bool bControl, bool bAlt, bool bMultiLine)
{
	const FModifierKeysState Modifiers(bShift, false, bControl, false, bAlt, false, false, false, false);
	return FindEditableTextKey(FKeyEvent(Key, Modifiers, false, 0), bMultiLine);
}
}

TEST(EditableTextKeys, RowsAndPagesAreForSeveralLines)
{
	for (const FKey& Key : {EKeys::Up, EKeys::Down, EKeys::PageUp, EKeys::PageDown})
	{
		EXPECT_EQ(Find(Key, false, false, false, false), nullptr);
		EXPECT_NE(Find(Key, false, false, false, true), nullptr);
	}
}

TEST(EditableTextKeys, ShiftMakesDeleteCut)
{
	EXPECT_EQ(Find(EKeys::Delete, false, false, false, false)->Action, EEditableTextAction::Delete);
	EXPECT_EQ(Find(EKeys::Delete, true, false, false, false)->Action, EEditableTextAction::Cut);
}

TEST(EditableTextKeys, KeysWithAltAreForOthers)
{
	EXPECT_EQ(Find(EKeys::Left, false, false, true, true), nullptr);
	EXPECT_EQ(Find(EKeys::C, false, true, true, true), nullptr);
}

TEST(EditableTextKeys, ALetterAloneIsTextAndNoCommand)
{
	EXPECT_EQ(Find(EKeys::C, false, false, false, true), nullptr);
	EXPECT_EQ(Find(EKeys::V, true, false, false, true), nullptr);
}
