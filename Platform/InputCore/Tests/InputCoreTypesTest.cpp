#include "InputCoreTypes.h"

#include <gtest/gtest.h>

TEST(Key, IsKnownByItsNameInAnyCase)
{
	EXPECT_EQ(FKey(TEXT("leftmousebutton")), EKeys::LeftMouseButton);
	EXPECT_TRUE(FKey(TEXT("leftmousebutton")).IsValid());
	EXPECT_FALSE(FKey(TEXT("NoSuchKey")).IsValid());
	EXPECT_FALSE(EKeys::Invalid.IsValid());
	EXPECT_FALSE(FKey().IsValid());
}

TEST(Key, EveryKeyHasANameOfItsOwnAndDisplayNames)
{
	TArray<FKey> Keys;
	EKeys::GetAllKeys(Keys);
	TSet<FKey> Distinct;
	for (const FKey& Key : Keys)
	{
		Distinct.Add(Key);
		ASSERT_TRUE(Key.IsValid());
		EXPECT_FALSE(Key.GetDisplayName(true).IsEmpty());
		EXPECT_FALSE(Key.GetDisplayName(false).IsEmpty());
	}
	EXPECT_EQ(Distinct.Num(), Keys.Num());
}

TEST(Key, HasALongAndAShortDisplayName)
{
	EXPECT_TRUE(EKeys::RightMouseButton.GetDisplayName().ToString().Equals(TEXT("Right Mouse Button")));
	EXPECT_TRUE(EKeys::RightMouseButton.GetDisplayName(false).ToString().Equals(TEXT("RMB")));
	EXPECT_TRUE(EKeys::Quote.GetDisplayName().ToString().Equals(TEXT("\"")));
	EXPECT_TRUE(FKey(TEXT("NoSuchKey")).GetDisplayName().ToString().Equals(TEXT("NoSuchKey")));
}

TEST(Key, KnowsModifiersMouseButtonsAndAxes)
{
	EXPECT_TRUE(EKeys::LeftShift.IsModifierKey());
	EXPECT_TRUE(EKeys::RightCommand.IsModifierKey());
	EXPECT_FALSE(EKeys::CapsLock.IsModifierKey());
	EXPECT_TRUE(EKeys::ThumbMouseButton2.IsMouseButton());
	EXPECT_FALSE(EKeys::MouseScrollUp.IsMouseButton());
	EXPECT_TRUE(EKeys::MouseWheelAxis.IsAxis1D());
	EXPECT_TRUE(EKeys::Mouse2D.IsAxis2D());
	EXPECT_FALSE(EKeys::Mouse2D.IsAxis1D());
}

TEST(InputKeyManager, CodesLeadToTheKeyThatTheyCameFrom)
{
	const FInputKeyManager& Manager = FInputKeyManager::Get();
	TArray<FKey> Keys;
	EKeys::GetAllKeys(Keys);
	int32 NumWithCode = 0;
	for (const FKey& Key : Keys)
	{
		const uint32* KeyCode = nullptr;
		const uint32* CharCode = nullptr;
		Manager.GetCodesFromKey(Key, KeyCode, CharCode);
		if (KeyCode || CharCode)
		{
			++NumWithCode;
			EXPECT_EQ(Manager.GetKeyFromCodes(KeyCode ? *KeyCode : 0, CharCode ? *CharCode : 0), Key);
		}
	}
	// All but "any key", three mouse axes, the wheel in three forms and five mouse buttons.
	EXPECT_EQ(NumWithCode, Keys.Num() - 12);
}

TEST(InputKeyManager, PrintingKeysFollowTheLayoutByTheirCharacter)
{
	const FInputKeyManager& Manager = FInputKeyManager::Get();
	// Usage 0x14 is the key right of Tab, which prints A on a French keyboard.
	EXPECT_EQ(Manager.GetKeyFromCodes(0x14, u'A'), EKeys::A);
	EXPECT_EQ(Manager.GetKeyFromCodes(0x14, u'Q'), EKeys::Q);
	EXPECT_EQ(Manager.GetKeyFromCodes(0x62, u'0'), EKeys::NumPadZero);
	EXPECT_EQ(Manager.GetKeyFromCodes(0x28, u'\r'), EKeys::Enter);
	EXPECT_EQ(Manager.GetKeyFromCodes(0, 0), EKeys::Invalid);
	EXPECT_EQ(Manager.GetKeyFromCodes(0x14, 0x4E2D), EKeys::Invalid);
}
