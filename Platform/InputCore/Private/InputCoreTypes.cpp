#include "InputCoreTypes.h"

const FKey EKeys::AnyKey(TEXT("AnyKey"));
const FKey EKeys::MouseX(TEXT("MouseX"));
const FKey EKeys::MouseY(TEXT("MouseY"));
const FKey EKeys::Mouse2D(TEXT("Mouse2D"));
const FKey EKeys::MouseScrollUp(TEXT("MouseScrollUp"));
const FKey EKeys::MouseScrollDown(TEXT("MouseScrollDown"));
const FKey EKeys::MouseWheelAxis(TEXT("MouseWheelAxis"));
const FKey EKeys::LeftMouseButton(TEXT("LeftMouseButton"));
const FKey EKeys::RightMouseButton(TEXT("RightMouseButton"));
const FKey EKeys::MiddleMouseButton(TEXT("MiddleMouseButton"));
const FKey EKeys::ThumbMouseButton(TEXT("ThumbMouseButton"));
const FKey EKeys::ThumbMouseButton2(TEXT("ThumbMouseButton2"));
const FKey EKeys::BackSpace(TEXT("BackSpace"));
const FKey EKeys::Tab(TEXT("Tab"));
const FKey EKeys::Enter(TEXT("Enter"));
const FKey EKeys::Pause(TEXT("Pause"));
const FKey EKeys::CapsLock(TEXT("CapsLock"));
const FKey EKeys::Escape(TEXT("Escape"));
const FKey EKeys::SpaceBar(TEXT("SpaceBar"));
const FKey EKeys::PageUp(TEXT("PageUp"));
const FKey EKeys::PageDown(TEXT("PageDown"));
const FKey EKeys::End(TEXT("End"));
const FKey EKeys::Home(TEXT("Home"));
const FKey EKeys::Left(TEXT("Left"));
const FKey EKeys::Up(TEXT("Up"));
const FKey EKeys::Right(TEXT("Right"));
const FKey EKeys::Down(TEXT("Down"));
const FKey EKeys::Insert(TEXT("Insert"));
const FKey EKeys::Delete(TEXT("Delete"));
const FKey EKeys::Zero(TEXT("Zero"));
const FKey EKeys::One(TEXT("One"));
const FKey EKeys::Two(TEXT("Two"));
const FKey EKeys::Three(TEXT("Three"));
const FKey EKeys::Four(TEXT("Four"));
const FKey EKeys::Five(TEXT("Five"));
const FKey EKeys::Six(TEXT("Six"));
const FKey EKeys::Seven(TEXT("Seven"));
const FKey EKeys::Eight(TEXT("Eight"));
const FKey EKeys::Nine(TEXT("Nine"));
const FKey EKeys::A(TEXT("A"));
const FKey EKeys::B(TEXT("B"));
const FKey EKeys::C(TEXT("C"));
const FKey EKeys::D(TEXT("D"));
const FKey EKeys::E(TEXT("E"));
const FKey EKeys::F(TEXT("F"));
const FKey EKeys::G(TEXT("G"));
const FKey EKeys::H(TEXT("H"));
const FKey EKeys::I(TEXT("I"));
const FKey EKeys::J(TEXT("J"));
const FKey EKeys::K(TEXT("K"));
const FKey EKeys::L(TEXT("L"));
const FKey EKeys::M(TEXT("M"));
const FKey EKeys::N(TEXT("N"));
const FKey EKeys::O(TEXT("O"));
const FKey EKeys::P(TEXT("P"));
const FKey EKeys::Q(TEXT("Q"));
const FKey EKeys::R(TEXT("R"));
const FKey EKeys::S(TEXT("S"));
const FKey EKeys::T(TEXT("T"));
const FKey EKeys::U(TEXT("U"));
const FKey EKeys::V(TEXT("V"));
const FKey EKeys::W(TEXT("W"));
const FKey EKeys::X(TEXT("X"));
const FKey EKeys::Y(TEXT("Y"));
const FKey EKeys::Z(TEXT("Z"));
const FKey EKeys::NumPadZero(TEXT("NumPadZero"));
const FKey EKeys::NumPadOne(TEXT("NumPadOne"));
const FKey EKeys::NumPadTwo(TEXT("NumPadTwo"));
const FKey EKeys::NumPadThree(TEXT("NumPadThree"));
const FKey EKeys::NumPadFour(TEXT("NumPadFour"));
const FKey EKeys::NumPadFive(TEXT("NumPadFive"));
const FKey EKeys::NumPadSix(TEXT("NumPadSix"));
const FKey EKeys::NumPadSeven(TEXT("NumPadSeven"));
const FKey EKeys::NumPadEight(TEXT("NumPadEight"));
const FKey EKeys::NumPadNine(TEXT("NumPadNine"));
const FKey EKeys::Multiply(TEXT("Multiply"));
const FKey EKeys::Add(TEXT("Add"));
const FKey EKeys::Subtract(TEXT("Subtract"));
const FKey EKeys::Decimal(TEXT("Decimal"));
const FKey EKeys::Divide(TEXT("Divide"));
const FKey EKeys::F1(TEXT("F1"));
const FKey EKeys::F2(TEXT("F2"));
const FKey EKeys::F3(TEXT("F3"));
const FKey EKeys::F4(TEXT("F4"));
const FKey EKeys::F5(TEXT("F5"));
const FKey EKeys::F6(TEXT("F6"));
const FKey EKeys::F7(TEXT("F7"));
const FKey EKeys::F8(TEXT("F8"));
const FKey EKeys::F9(TEXT("F9"));
const FKey EKeys::F10(TEXT("F10"));
const FKey EKeys::F11(TEXT("F11"));
const FKey EKeys::F12(TEXT("F12"));
const FKey EKeys::NumLock(TEXT("NumLock"));
const FKey EKeys::ScrollLock(TEXT("ScrollLock"));
const FKey EKeys::LeftShift(TEXT("LeftShift"));
const FKey EKeys::RightShift(TEXT("RightShift"));
const FKey EKeys::LeftControl(TEXT("LeftControl"));
const FKey EKeys::RightControl(TEXT("RightControl"));
const FKey EKeys::LeftAlt(TEXT("LeftAlt"));
const FKey EKeys::RightAlt(TEXT("RightAlt"));
const FKey EKeys::LeftCommand(TEXT("LeftCommand"));
const FKey EKeys::RightCommand(TEXT("RightCommand"));
const FKey EKeys::Semicolon(TEXT("Semicolon"));
const FKey EKeys::Equals(TEXT("Equals"));
const FKey EKeys::Comma(TEXT("Comma"));
const FKey EKeys::Underscore(TEXT("Underscore"));
const FKey EKeys::Hyphen(TEXT("Hyphen"));
const FKey EKeys::Period(TEXT("Period"));
const FKey EKeys::Slash(TEXT("Slash"));
const FKey EKeys::Tilde(TEXT("Tilde"));
const FKey EKeys::LeftBracket(TEXT("LeftBracket"));
const FKey EKeys::LeftParantheses(TEXT("LeftParantheses"));
const FKey EKeys::Backslash(TEXT("Backslash"));
const FKey EKeys::RightBracket(TEXT("RightBracket"));
const FKey EKeys::RightParantheses(TEXT("RightParantheses"));
const FKey EKeys::Apostrophe(TEXT("Apostrophe"));
const FKey EKeys::Quote(TEXT("Quote"));
const FKey EKeys::Asterix(TEXT("Asterix"));
const FKey EKeys::Ampersand(TEXT("Ampersand"));
const FKey EKeys::Caret(TEXT("Caret"));
const FKey EKeys::Dollar(TEXT("Dollar"));
const FKey EKeys::Exclamation(TEXT("Exclamation"));
const FKey EKeys::Colon(TEXT("Colon"));
const FKey EKeys::A_AccentGrave(TEXT("A_AccentGrave"));
const FKey EKeys::E_AccentGrave(TEXT("E_AccentGrave"));
const FKey EKeys::E_AccentAigu(TEXT("E_AccentAigu"));
const FKey EKeys::C_Cedille(TEXT("C_Cedille"));
const FKey EKeys::Section(TEXT("Section"));
const FKey EKeys::Invalid(NAME_None);

namespace
{

struct FKeyRow
{
	const FKey& Key;
	const TCHAR* LongName;
	const TCHAR* ShortName;
	uint32 Flags;
	/** Usage id on the keyboard page of the USB HID Usage Tables, for keys that print nothing or lie on the number pad. */
	uint32 KeyCode;
	uint32 Character;
};

const FKeyRow GKeyRows[] = {
	{EKeys::AnyKey, TEXT("Any Key"), TEXT("Any Key"), FKeyDetails::NoFlags, 0, 0},
	{EKeys::MouseX, TEXT("Mouse X"), TEXT("Mouse X"), FKeyDetails::Axis1D, 0, 0},
	{EKeys::MouseY, TEXT("Mouse Y"), TEXT("Mouse Y"), FKeyDetails::Axis1D, 0, 0},
	{EKeys::Mouse2D, TEXT("Mouse XY 2D-Axis"), TEXT("Mouse XY"), FKeyDetails::Axis2D, 0, 0},
	{EKeys::MouseScrollUp, TEXT("Mouse Wheel Up"), TEXT("Wheel Up"), FKeyDetails::NoFlags, 0, 0},
	{EKeys::MouseScrollDown, TEXT("Mouse Wheel Down"), TEXT("Wheel Down"), FKeyDetails::NoFlags, 0, 0},
	{EKeys::MouseWheelAxis, TEXT("Mouse Wheel Axis"), TEXT("Wheel"), FKeyDetails::Axis1D, 0, 0},
	{EKeys::LeftMouseButton, TEXT("Left Mouse Button"), TEXT("LMB"), FKeyDetails::MouseButton, 0, 0},
	{EKeys::RightMouseButton, TEXT("Right Mouse Button"), TEXT("RMB"), FKeyDetails::MouseButton, 0, 0},
	{EKeys::MiddleMouseButton, TEXT("Middle Mouse Button"), TEXT("MMB"), FKeyDetails::MouseButton, 0, 0},
	{EKeys::ThumbMouseButton, TEXT("Thumb Mouse Button"), TEXT("MB4"), FKeyDetails::MouseButton, 0, 0},
	{EKeys::ThumbMouseButton2, TEXT("Thumb Mouse Button 2"), TEXT("MB5"), FKeyDetails::MouseButton, 0, 0},
	{EKeys::BackSpace, TEXT("Backspace"), TEXT("Backspace"), FKeyDetails::NoFlags, 0x2A, 0},
	{EKeys::Tab, TEXT("Tab"), TEXT("Tab"), FKeyDetails::NoFlags, 0x2B, 0},
	{EKeys::Enter, TEXT("Enter"), TEXT("Enter"), FKeyDetails::NoFlags, 0x28, 0},
	{EKeys::Pause, TEXT("Pause"), TEXT("Pause"), FKeyDetails::NoFlags, 0x48, 0},
	{EKeys::CapsLock, TEXT("Caps Lock"), TEXT("Caps"), FKeyDetails::NoFlags, 0x39, 0},
	{EKeys::Escape, TEXT("Escape"), TEXT("Esc"), FKeyDetails::NoFlags, 0x29, 0},
	{EKeys::SpaceBar, TEXT("Space Bar"), TEXT("Space"), FKeyDetails::NoFlags, 0x2C, 0},
	{EKeys::PageUp, TEXT("Page Up"), TEXT("PgUp"), FKeyDetails::NoFlags, 0x4B, 0},
	{EKeys::PageDown, TEXT("Page Down"), TEXT("PgDn"), FKeyDetails::NoFlags, 0x4E, 0},
	{EKeys::End, TEXT("End"), TEXT("End"), FKeyDetails::NoFlags, 0x4D, 0},
	{EKeys::Home, TEXT("Home"), TEXT("Home"), FKeyDetails::NoFlags, 0x4A, 0},
	{EKeys::Left, TEXT("Left"), TEXT("Left"), FKeyDetails::NoFlags, 0x50, 0},
	{EKeys::Up, TEXT("Up"), TEXT("Up"), FKeyDetails::NoFlags, 0x52, 0},
	{EKeys::Right, TEXT("Right"), TEXT("Right"), FKeyDetails::NoFlags, 0x4F, 0},
	{EKeys::Down, TEXT("Down"), TEXT("Down"), FKeyDetails::NoFlags, 0x51, 0},
	{EKeys::Insert, TEXT("Insert"), TEXT("Ins"), FKeyDetails::NoFlags, 0x49, 0},
	{EKeys::Delete, TEXT("Delete"), TEXT("Del"), FKeyDetails::NoFlags, 0x4C, 0},
	{EKeys::Zero, TEXT("0"), TEXT("0"), FKeyDetails::NoFlags, 0, u'0'},
	{EKeys::One, TEXT("1"), TEXT("1"), FKeyDetails::NoFlags, 0, u'1'},
	{EKeys::Two, TEXT("2"), TEXT("2"), FKeyDetails::NoFlags, 0, u'2'},
	{EKeys::Three, TEXT("3"), TEXT("3"), FKeyDetails::NoFlags, 0, u'3'},
	{EKeys::Four, TEXT("4"), TEXT("4"), FKeyDetails::NoFlags, 0, u'4'},
	{EKeys::Five, TEXT("5"), TEXT("5"), FKeyDetails::NoFlags, 0, u'5'},
	{EKeys::Six, TEXT("6"), TEXT("6"), FKeyDetails::NoFlags, 0, u'6'},
	{EKeys::Seven, TEXT("7"), TEXT("7"), FKeyDetails::NoFlags, 0, u'7'},
	{EKeys::Eight, TEXT("8"), TEXT("8"), FKeyDetails::NoFlags, 0, u'8'},
	{EKeys::Nine, TEXT("9"), TEXT("9"), FKeyDetails::NoFlags, 0, u'9'},
	{EKeys::A, TEXT("A"), TEXT("A"), FKeyDetails::NoFlags, 0, u'A'},
	{EKeys::B, TEXT("B"), TEXT("B"), FKeyDetails::NoFlags, 0, u'B'},
	{EKeys::C, TEXT("C"), TEXT("C"), FKeyDetails::NoFlags, 0, u'C'},
	{EKeys::D, TEXT("D"), TEXT("D"), FKeyDetails::NoFlags, 0, u'D'},
	{EKeys::E, TEXT("E"), TEXT("E"), FKeyDetails::NoFlags, 0, u'E'},
	{EKeys::F, TEXT("F"), TEXT("F"), FKeyDetails::NoFlags, 0, u'F'},
	{EKeys::G, TEXT("G"), TEXT("G"), FKeyDetails::NoFlags, 0, u'G'},
	{EKeys::H, TEXT("H"), TEXT("H"), FKeyDetails::NoFlags, 0, u'H'},
	{EKeys::I, TEXT("I"), TEXT("I"), FKeyDetails::NoFlags, 0, u'I'},
	{EKeys::J, TEXT("J"), TEXT("J"), FKeyDetails::NoFlags, 0, u'J'},
	{EKeys::K, TEXT("K"), TEXT("K"), FKeyDetails::NoFlags, 0, u'K'},
	{EKeys::L, TEXT("L"), TEXT("L"), FKeyDetails::NoFlags, 0, u'L'},
	{EKeys::M, TEXT("M"), TEXT("M"), FKeyDetails::NoFlags, 0, u'M'},
	{EKeys::N, TEXT("N"), TEXT("N"), FKeyDetails::NoFlags, 0, u'N'},
	{EKeys::O, TEXT("O"), TEXT("O"), FKeyDetails::NoFlags, 0, u'O'},
	{EKeys::P, TEXT("P"), TEXT("P"), FKeyDetails::NoFlags, 0, u'P'},
	{EKeys::Q, TEXT("Q"), TEXT("Q"), FKeyDetails::NoFlags, 0, u'Q'},
	{EKeys::R, TEXT("R"), TEXT("R"), FKeyDetails::NoFlags, 0, u'R'},
	{EKeys::S, TEXT("S"), TEXT("S"), FKeyDetails::NoFlags, 0, u'S'},
	{EKeys::T, TEXT("T"), TEXT("T"), FKeyDetails::NoFlags, 0, u'T'},
	{EKeys::U, TEXT("U"), TEXT("U"), FKeyDetails::NoFlags, 0, u'U'},
	{EKeys::V, TEXT("V"), TEXT("V"), FKeyDetails::NoFlags, 0, u'V'},
	{EKeys::W, TEXT("W"), TEXT("W"), FKeyDetails::NoFlags, 0, u'W'},
	{EKeys::X, TEXT("X"), TEXT("X"), FKeyDetails::NoFlags, 0, u'X'},
	{EKeys::Y, TEXT("Y"), TEXT("Y"), FKeyDetails::NoFlags, 0, u'Y'},
	{EKeys::Z, TEXT("Z"), TEXT("Z"), FKeyDetails::NoFlags, 0, u'Z'},
	{EKeys::NumPadZero, TEXT("Num 0"), TEXT("Num 0"), FKeyDetails::NoFlags, 0x62, 0},
	{EKeys::NumPadOne, TEXT("Num 1"), TEXT("Num 1"), FKeyDetails::NoFlags, 0x59, 0},
	{EKeys::NumPadTwo, TEXT("Num 2"), TEXT("Num 2"), FKeyDetails::NoFlags, 0x5A, 0},
	{EKeys::NumPadThree, TEXT("Num 3"), TEXT("Num 3"), FKeyDetails::NoFlags, 0x5B, 0},
	{EKeys::NumPadFour, TEXT("Num 4"), TEXT("Num 4"), FKeyDetails::NoFlags, 0x5C, 0},
	{EKeys::NumPadFive, TEXT("Num 5"), TEXT("Num 5"), FKeyDetails::NoFlags, 0x5D, 0},
	{EKeys::NumPadSix, TEXT("Num 6"), TEXT("Num 6"), FKeyDetails::NoFlags, 0x5E, 0},
	{EKeys::NumPadSeven, TEXT("Num 7"), TEXT("Num 7"), FKeyDetails::NoFlags, 0x5F, 0},
	{EKeys::NumPadEight, TEXT("Num 8"), TEXT("Num 8"), FKeyDetails::NoFlags, 0x60, 0},
	{EKeys::NumPadNine, TEXT("Num 9"), TEXT("Num 9"), FKeyDetails::NoFlags, 0x61, 0},
	{EKeys::Multiply, TEXT("Num *"), TEXT("Num *"), FKeyDetails::NoFlags, 0x55, 0},
	{EKeys::Add, TEXT("Num +"), TEXT("Num +"), FKeyDetails::NoFlags, 0x57, 0},
	{EKeys::Subtract, TEXT("Num -"), TEXT("Num -"), FKeyDetails::NoFlags, 0x56, 0},
	{EKeys::Decimal, TEXT("Num ."), TEXT("Num ."), FKeyDetails::NoFlags, 0x63, 0},
	{EKeys::Divide, TEXT("Num /"), TEXT("Num /"), FKeyDetails::NoFlags, 0x54, 0},
	{EKeys::F1, TEXT("F1"), TEXT("F1"), FKeyDetails::NoFlags, 0x3A, 0},
	{EKeys::F2, TEXT("F2"), TEXT("F2"), FKeyDetails::NoFlags, 0x3B, 0},
	{EKeys::F3, TEXT("F3"), TEXT("F3"), FKeyDetails::NoFlags, 0x3C, 0},
	{EKeys::F4, TEXT("F4"), TEXT("F4"), FKeyDetails::NoFlags, 0x3D, 0},
	{EKeys::F5, TEXT("F5"), TEXT("F5"), FKeyDetails::NoFlags, 0x3E, 0},
	{EKeys::F6, TEXT("F6"), TEXT("F6"), FKeyDetails::NoFlags, 0x3F, 0},
	{EKeys::F7, TEXT("F7"), TEXT("F7"), FKeyDetails::NoFlags, 0x40, 0},
	{EKeys::F8, TEXT("F8"), TEXT("F8"), FKeyDetails::NoFlags, 0x41, 0},
	{EKeys::F9, TEXT("F9"), TEXT("F9"), FKeyDetails::NoFlags, 0x42, 0},
	{EKeys::F10, TEXT("F10"), TEXT("F10"), FKeyDetails::NoFlags, 0x43, 0},
	{EKeys::F11, TEXT("F11"), TEXT("F11"), FKeyDetails::NoFlags, 0x44, 0},
	{EKeys::F12, TEXT("F12"), TEXT("F12"), FKeyDetails::NoFlags, 0x45, 0},
	{EKeys::NumLock, TEXT("Num Lock"), TEXT("Num Lock"), FKeyDetails::NoFlags, 0x53, 0},
	{EKeys::ScrollLock, TEXT("Scroll Lock"), TEXT("Scroll Lock"), FKeyDetails::NoFlags, 0x47, 0},
	{EKeys::LeftShift, TEXT("Left Shift"), TEXT("Left Shift"), FKeyDetails::ModifierKey, 0xE1, 0},
	{EKeys::RightShift, TEXT("Right Shift"), TEXT("Right Shift"), FKeyDetails::ModifierKey, 0xE5, 0},
	{EKeys::LeftControl, TEXT("Left Ctrl"), TEXT("Left Ctrl"), FKeyDetails::ModifierKey, 0xE0, 0},
	{EKeys::RightControl, TEXT("Right Ctrl"), TEXT("Right Ctrl"), FKeyDetails::ModifierKey, 0xE4, 0},
	{EKeys::LeftAlt, TEXT("Left Alt"), TEXT("Left Alt"), FKeyDetails::ModifierKey, 0xE2, 0},
	{EKeys::RightAlt, TEXT("Right Alt"), TEXT("Right Alt"), FKeyDetails::ModifierKey, 0xE6, 0},
	{EKeys::LeftCommand, TEXT("Left Cmd"), TEXT("Left Cmd"), FKeyDetails::ModifierKey, 0xE3, 0},
	{EKeys::RightCommand, TEXT("Right Cmd"), TEXT("Right Cmd"), FKeyDetails::ModifierKey, 0xE7, 0},
	{EKeys::Semicolon, TEXT(";"), TEXT(";"), FKeyDetails::NoFlags, 0, u';'},
	{EKeys::Equals, TEXT("="), TEXT("="), FKeyDetails::NoFlags, 0, u'='},
	{EKeys::Comma, TEXT(","), TEXT(","), FKeyDetails::NoFlags, 0, u','},
	{EKeys::Underscore, TEXT("_"), TEXT("_"), FKeyDetails::NoFlags, 0, u'_'},
	{EKeys::Hyphen, TEXT("-"), TEXT("-"), FKeyDetails::NoFlags, 0, u'-'},
	{EKeys::Period, TEXT("."), TEXT("."), FKeyDetails::NoFlags, 0, u'.'},
	{EKeys::Slash, TEXT("/"), TEXT("/"), FKeyDetails::NoFlags, 0, u'/'},
	{EKeys::Tilde, TEXT("`"), TEXT("`"), FKeyDetails::NoFlags, 0, u'`'},
	{EKeys::LeftBracket, TEXT("["), TEXT("["), FKeyDetails::NoFlags, 0, u'['},
	{EKeys::LeftParantheses, TEXT("("), TEXT("("), FKeyDetails::NoFlags, 0, u'('},
	{EKeys::Backslash, TEXT("\\"), TEXT("\\"), FKeyDetails::NoFlags, 0, u'\\'},
	{EKeys::RightBracket, TEXT("]"), TEXT("]"), FKeyDetails::NoFlags, 0, u']'},
	{EKeys::RightParantheses, TEXT(")"), TEXT(")"), FKeyDetails::NoFlags, 0, u')'},
	{EKeys::Apostrophe, TEXT("'"), TEXT("'"), FKeyDetails::NoFlags, 0, u'\''},
	{EKeys::Quote, TEXT("\""), TEXT("\""), FKeyDetails::NoFlags, 0, u'"'},
	{EKeys::Asterix, TEXT("*"), TEXT("*"), FKeyDetails::NoFlags, 0, u'*'},
	{EKeys::Ampersand, TEXT("&"), TEXT("&"), FKeyDetails::NoFlags, 0, u'&'},
	{EKeys::Caret, TEXT("^"), TEXT("^"), FKeyDetails::NoFlags, 0, u'^'},
	{EKeys::Dollar, TEXT("$"), TEXT("$"), FKeyDetails::NoFlags, 0, u'$'},
	{EKeys::Exclamation, TEXT("!"), TEXT("!"), FKeyDetails::NoFlags, 0, u'!'},
	{EKeys::Colon, TEXT(":"), TEXT(":"), FKeyDetails::NoFlags, 0, u':'},
	{EKeys::A_AccentGrave, TEXT("\u00e0"), TEXT("\u00e0"), FKeyDetails::NoFlags, 0, u'\u00e0'},
	{EKeys::E_AccentGrave, TEXT("\u00e8"), TEXT("\u00e8"), FKeyDetails::NoFlags, 0, u'\u00e8'},
	{EKeys::E_AccentAigu, TEXT("\u00e9"), TEXT("\u00e9"), FKeyDetails::NoFlags, 0, u'\u00e9'},
	{EKeys::C_Cedille, TEXT("\u00e7"), TEXT("\u00e7"), FKeyDetails::NoFlags, 0, u'\u00e7'},
	{EKeys::Section, TEXT("\u00a7"), TEXT("\u00a7"), FKeyDetails::NoFlags, 0, u'\u00a7'},
};

const TMap<FKey, FKeyDetails>& GetDetailsOfKeys()
{
	static const TMap<FKey, FKeyDetails> Details = []
	{
		TMap<FKey, FKeyDetails> Result;
		for (const FKeyRow& Row : GKeyRows)
		{
			Result.Add(
				Row.Key, FKeyDetails(Row.Key, FText::FromString(Row.LongName), FText::FromString(Row.ShortName), Row.Flags));
		}
		return Result;
	}();
	return Details;
}

}

bool FKey::IsValid() const
{
	return EKeys::GetKeyDetails(*this) != nullptr;
}

bool FKey::IsModifierKey() const
{
	const FKeyDetails* Details = EKeys::GetKeyDetails(*this);
	return Details && Details->IsModifierKey();
}

bool FKey::IsMouseButton() const
{
	const FKeyDetails* Details = EKeys::GetKeyDetails(*this);
	return Details && Details->IsMouseButton();
}

bool FKey::IsAxis1D() const
{
	const FKeyDetails* Details = EKeys::GetKeyDetails(*this);
	return Details && Details->IsAxis1D();
}

bool FKey::IsAxis2D() const
{
	const FKeyDetails* Details = EKeys::GetKeyDetails(*this);
	return Details && Details->IsAxis2D();
}

FText FKey::GetDisplayName(bool bLongDisplayName) const
{
	const FKeyDetails* Details = EKeys::GetKeyDetails(*this);
	return Details ? Details->GetDisplayName(bLongDisplayName) : FText::FromName(KeyName);
}

void EKeys::GetAllKeys(TArray<FKey>& OutKeys)
{
	for (const FKeyRow& Row : GKeyRows)
	{
		OutKeys.Add(Row.Key);
	}
}

const FKeyDetails* EKeys::GetKeyDetails(const FKey Key)
{
	return GetDetailsOfKeys().Find(Key);
}

FInputKeyManager& FInputKeyManager::Get()
{
	static FInputKeyManager Manager;
	return Manager;
}

FInputKeyManager::FInputKeyManager()
{
	for (const FKeyRow& Row : GKeyRows)
	{
		if (Row.KeyCode != 0)
		{
			KeysByCode.Add(Row.KeyCode, Row.Key);
			CodesByKey.Add(Row.Key, Row.KeyCode);
		}
		if (Row.Character != 0)
		{
			KeysByCharacter.Add(Row.Character, Row.Key);
			CharactersByKey.Add(Row.Key, Row.Character);
		}
	}
}

FKey FInputKeyManager::GetKeyFromCodes(const uint32 KeyCode, const uint32 CharCode) const
{
	if (const FKey* Key = KeysByCode.Find(KeyCode))
	{
		return *Key;
	}
	const FKey* Key = KeysByCharacter.Find(CharCode);
	return Key ? *Key : EKeys::Invalid;
}

void FInputKeyManager::GetCodesFromKey(const FKey Key, const uint32*& OutKeyCode, const uint32*& OutCharCode) const
{
	OutKeyCode = CodesByKey.Find(Key);
	OutCharCode = CharactersByKey.Find(Key);
}
