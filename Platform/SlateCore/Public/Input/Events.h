#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"
#include "Layout/Geometry.h"

class FWeakWidgetPath;
class FWidgetPath;

/** What made the focus move. */
enum class EFocusCause : uint8
{
	/** A click. */
	Mouse,
	/** Tab or an arrow key. */
	Navigation,
	/** Code that asked for it. */
	SetDirectly,
	/** The focus was given up. */
	Cleared,
	OtherWidgetLostFocus,
	/** The window was activated or left. */
	WindowActivate,
};

class FFocusEvent
{
public:
	explicit FFocusEvent(EFocusCause InCause, uint32 InUserIndex = 0)
		: Cause(InCause)
		, UserIndex(InUserIndex)
	{
	}

	EFocusCause GetCause() const { return Cause; }
	uint32 GetUser() const { return UserIndex; }

private:
	EFocusCause Cause;
	uint32 UserIndex;
};

class FInputEvent
{
public:
	FInputEvent(const FModifierKeysState& InModifierKeys, bool bInIsRepeat)
		: ModifierKeys(InModifierKeys)
		, bIsRepeat(bInIsRepeat)
	{
	}

	bool IsRepeat() const { return bIsRepeat; }
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }
	bool IsAltDown() const { return ModifierKeys.IsAltDown(); }
	bool IsCommandDown() const { return ModifierKeys.IsCommandDown(); }
	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }

private:
	FModifierKeysState ModifierKeys;
	bool bIsRepeat;
};

/** A key went down or up. */
class FKeyEvent : public FInputEvent
{
public:
	FKeyEvent(const FKey& InKey, const FModifierKeysState& InModifierKeys, bool bInIsRepeat, uint32 InCharacterCode)
		: FInputEvent(InModifierKeys, bInIsRepeat)
		, Key(InKey)
		, CharacterCode(InCharacterCode)
	{
	}

	const FKey& GetKey() const { return Key; }

	/** The character on the key without modifiers, 0 when it has none. */
	uint32 GetCharacter() const { return CharacterCode; }

private:
	FKey Key;
	uint32 CharacterCode;
};

/** A character was typed. */
class FCharacterEvent : public FInputEvent
{
public:
	FCharacterEvent(TCHAR InCharacter, const FModifierKeysState& InModifierKeys, bool bInIsRepeat)
		: FInputEvent(InModifierKeys, bInIsRepeat)
		, Character(InCharacter)
	{
	}

	/** One UTF-16 unit; a character beyond the basic plane comes as two events. */
	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};

/** The mouse moved, a button changed, or the wheel turned. Positions are desktop pixels. */
class SLATECORE_API FPointerEvent : public FInputEvent
{
public:
	FPointerEvent(const FVector2D& InScreenSpacePosition, const FVector2D& InLastScreenSpacePosition,
		const TSet<FKey>& InPressedButtons, const FKey& InEffectingButton, float InWheelDelta,
		const FModifierKeysState& InModifierKeys);

	const FVector2D& GetScreenSpacePosition() const { return ScreenSpacePosition; }
	const FVector2D& GetLastScreenSpacePosition() const { return LastScreenSpacePosition; }

	/** How far the pointer moved; zero for an event that the application made because the layout changed. */
	FVector2D GetCursorDelta() const { return ScreenSpacePosition - LastScreenSpacePosition; }

	/** The button that changed, or EKeys::Invalid for a move. */
	const FKey& GetEffectingButton() const { return EffectingButton; }
	float GetWheelDelta() const { return WheelDelta; }
	bool IsMouseButtonDown(const FKey& MouseButton) const { return PressedButtons->Contains(MouseButton); }
	const TSet<FKey>& GetPressedButtons() const { return *PressedButtons; }

private:
	FVector2D ScreenSpacePosition;
	FVector2D LastScreenSpacePosition;
	const TSet<FKey>* PressedButtons;
	FKey EffectingButton;
	float WheelDelta;
};
