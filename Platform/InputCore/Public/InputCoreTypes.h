#pragma once

#include "CoreMinimal.h"

struct FKeyDetails;

/** A key of the keyboard or a button or axis of the mouse, known by its name (see EKeys). */
struct INPUTCORE_API FKey
{
	FKey() = default;
	FKey(const FName InName)
		: KeyName(InName)
	{
	}
	FKey(const TCHAR* InName)
		: KeyName(InName)
	{
	}

	/** True when the name is one of EKeys. */
	bool IsValid() const;
	bool IsModifierKey() const;
	bool IsMouseButton() const;
	bool IsAxis1D() const;
	bool IsAxis2D() const;

	/** "Left Mouse Button", or with bLongDisplayName false "LMB". A name that is no key is shown as it is. */
	FText GetDisplayName(bool bLongDisplayName = true) const;

	FString ToString() const { return KeyName.ToString(); }
	FName GetFName() const { return KeyName; }

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }
	friend bool operator!=(const FKey& A, const FKey& B) { return A.KeyName != B.KeyName; }
	friend bool operator<(const FKey& A, const FKey& B) { return A.KeyName.LexicalLess(B.KeyName); }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	FName KeyName;
};

/** What is known of a key: its display names and its kind. */
struct INPUTCORE_API FKeyDetails
{
	enum EKeyFlags : uint32
	{
		NoFlags = 0,
		ModifierKey = 1 << 0,
		MouseButton = 1 << 1,
		Axis1D = 1 << 2,
		Axis2D = 1 << 3,
	};

	FKeyDetails(const FKey InKey, const FText& InLongDisplayName, const FText& InShortDisplayName, uint32 InKeyFlags)
		: Key(InKey)
		, LongDisplayName(InLongDisplayName)
		, ShortDisplayName(InShortDisplayName)
		, KeyFlags(InKeyFlags)
	{
	}

	bool IsModifierKey() const { return (KeyFlags & ModifierKey) != 0; }
	bool IsMouseButton() const { return (KeyFlags & MouseButton) != 0; }
	bool IsAxis1D() const { return (KeyFlags & Axis1D) != 0; }
	bool IsAxis2D() const { return (KeyFlags & Axis2D) != 0; }
	FText GetDisplayName(bool bLongDisplayName = true) const { return bLongDisplayName ? LongDisplayName : ShortDisplayName; }
	const FKey& GetKey() const { return Key; }

private:
	FKey Key;
	FText LongDisplayName;
	FText ShortDisplayName;
	uint32 KeyFlags;
};

/** The keys of a usual keyboard and mouse. */
struct INPUTCORE_API EKeys
{
	static const FKey AnyKey;

	static const FKey MouseX;
	static const FKey MouseY;
	static const FKey Mouse2D;
	static const FKey MouseScrollUp;
	static const FKey MouseScrollDown;
	static const FKey MouseWheelAxis;

	static const FKey LeftMouseButton;
	static const FKey RightMouseButton;
	static const FKey MiddleMouseButton;
	static const FKey ThumbMouseButton;
	static const FKey ThumbMouseButton2;

	static const FKey BackSpace;
	static const FKey Tab;
	static const FKey Enter;
	static const FKey Pause;

	static const FKey CapsLock;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey PageUp;
	static const FKey PageDown;
	static const FKey End;
	static const FKey Home;

	static const FKey Left;
	static const FKey Up;
	static const FKey Right;
	static const FKey Down;

	static const FKey Insert;
	static const FKey Delete;

	static const FKey Zero;
	static const FKey One;
	static const FKey Two;
	static const FKey Three;
	static const FKey Four;
	static const FKey Five;
	static const FKey Six;
	static const FKey Seven;
	static const FKey Eight;
	static const FKey Nine;

	static const FKey A;
	static const FKey B;
	static const FKey C;
	static const FKey D;
	static const FKey E;
	static const FKey F;
	static const FKey G;
	static const FKey H;
	static const FKey I;
	static const FKey J;
	static const FKey K;
	static const FKey L;
	static const FKey M;
	static const FKey N;
	static const FKey O;
	static const FKey P;
	static const FKey Q;
	static const FKey R;
	static const FKey S;
	static const FKey T;
	static const FKey U;
	static const FKey V;
	static const FKey W;
	static const FKey X;
	static const FKey Y;
	static const FKey Z;

	static const FKey NumPadZero;
	static const FKey NumPadOne;
	static const FKey NumPadTwo;
	static const FKey NumPadThree;
	static const FKey NumPadFour;
	static const FKey NumPadFive;
	static const FKey NumPadSix;
	static const FKey NumPadSeven;
	static const FKey NumPadEight;
	static const FKey NumPadNine;

	static const FKey Multiply;
	static const FKey Add;
	static const FKey Subtract;
	static const FKey Decimal;
	static const FKey Divide;

	static const FKey F1;
	static const FKey F2;
	static const FKey F3;
	static const FKey F4;
	static const FKey F5;
	static const FKey F6;
	static const FKey F7;
	static const FKey F8;
	static const FKey F9;
	static const FKey F10;
	static const FKey F11;
	static const FKey F12;

	static const FKey NumLock;
	static const FKey ScrollLock;

	static const FKey LeftShift;
	static const FKey RightShift;
	static const FKey LeftControl;
	static const FKey RightControl;
	static const FKey LeftAlt;
	static const FKey RightAlt;
	static const FKey LeftCommand;
	static const FKey RightCommand;

	static const FKey Semicolon;
	static const FKey Equals;
	static const FKey Comma;
	static const FKey Underscore;
	static const FKey Hyphen;
	static const FKey Period;
	static const FKey Slash;
	static const FKey Tilde;
	static const FKey LeftBracket;
	static const FKey LeftParantheses;
	static const FKey Backslash;
	static const FKey RightBracket;
	static const FKey RightParantheses;
	static const FKey Apostrophe;
	static const FKey Quote;

	static const FKey Asterix;
	static const FKey Ampersand;
	static const FKey Caret;
	static const FKey Dollar;
	static const FKey Exclamation;
	static const FKey Colon;

	static const FKey A_AccentGrave;
	static const FKey E_AccentGrave;
	static const FKey E_AccentAigu;
	static const FKey C_Cedille;
	static const FKey Section;

	static const FKey Invalid;

	/** Every key with its details, in the order above. */
	static void GetAllKeys(TArray<FKey>& OutKeys);

	/** Null when the key is none of these. */
	static const FKeyDetails* GetKeyDetails(const FKey Key);

	static bool IsModifierKey(FKey Key) { return Key.IsModifierKey(); }
};

/**
 * Key codes of the platform to keys and back.
 *
 * A key code is the key's usage id on the keyboard page of the USB HID Usage Tables, a character code is the upper-case
 * character of the key in the user's keyboard layout. Keys that print are found by character, so that a shortcut
 * follows the layout; all others by code. Zero stands for none.
 */
class INPUTCORE_API FInputKeyManager
{
public:
	static FInputKeyManager& Get();

	/** The key with this code, else with this character, else EKeys::Invalid. */
	FKey GetKeyFromCodes(const uint32 KeyCode, const uint32 CharCode) const;

	/** Points at the codes of a key; null where it has none. */
	void GetCodesFromKey(const FKey Key, const uint32*& OutKeyCode, const uint32*& OutCharCode) const;

private:
	FInputKeyManager();

	TMap<uint32, FKey> KeysByCode;
	TMap<uint32, FKey> KeysByCharacter;
	TMap<FKey, uint32> CodesByKey;
	TMap<FKey, uint32> CharactersByKey;
};
