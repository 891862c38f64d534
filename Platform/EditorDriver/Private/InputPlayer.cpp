#include "InputPlayer.h"

#include "Framework/Application/SlateApplication.h"
#include "LaunchEngineLoop.h"
#include "Misc/App.h"
#include "Widgets/SWindow.h"

namespace
{
FSlateApplication& App()
{
	return FSlateApplication::Get();
}

struct FKeyCodes
{
	uint32 Key = 0;
	uint32 Character = 0;

	explicit FKeyCodes(const FKey& InKey)
	{
		const uint32* KeyCode = nullptr;
		const uint32* CharacterCode = nullptr;
		FInputKeyManager::Get().GetCodesFromKey(InKey, KeyCode, CharacterCode);
		Key = KeyCode ? *KeyCode : 0;
		Character = CharacterCode ? *CharacterCode : 0;
	}
};

void HoldModifiers(const InputPlayer::FChord& Chord)
{
	App().GetPlatformApplication()->SetModifierKeys(
		FModifierKeysState(Chord.bShift, false, Chord.bControl, false, Chord.bAlt, false, Chord.bCommand, false, false));
}

/** Other names under which people know keys. */
FString GetKeyName(const FString& Name)
{
	static const TMap<FString, FString> Aliases = {
		{TEXT("Space"), TEXT("SpaceBar")},
		{TEXT("Esc"), TEXT("Escape")},
		{TEXT("Backspace"), TEXT("BackSpace")},
		{TEXT("Del"), TEXT("Delete")},
		{TEXT("Return"), TEXT("Enter")},
	};
	const FString* Alias = Aliases.Find(Name);
	return Alias ? *Alias : Name;
}
}

void InputPlayer::Run(double Seconds)
{
	// The script that asks has run until here, and may have changed anything.
	App().RequestFrame();
	const double End = FApp::GetCurrentTime() + Seconds;
	do
	{
		GEngineLoop.Tick();
		GEngineLoop.WaitForWork(FMath::Clamp(End - FApp::GetCurrentTime(), 0.0, FEngineLoop::LongestSleep));
	} while (FApp::GetCurrentTime() < End && !IsEngineExitRequested());
}

void InputPlayer::MoveMouse(const FVector2D& DesktopPlace)
{
	App().GetPlatformApplication()->Cursor->SetPosition(FMath::RoundToInt32(DesktopPlace.X), FMath::RoundToInt32(DesktopPlace.Y));
	App().OnMouseMove();
	Run(0.0);
}

void InputPlayer::Press(EMouseButtons::Type Button, bool bDoubleClick)
{
	const FVector2D Place = App().GetCursorPos();
	const FWidgetPath Under = App().LocateWindowUnderMouse(Place, App().GetInteractiveTopLevelWindows());
	const TSharedPtr<FGenericWindow> Native = Under.TopLevelWindow.IsValid() ? Under.TopLevelWindow->GetNativeWindow() : nullptr;
	if (bDoubleClick)
	{
		App().OnMouseDoubleClick(Native, Button, Place);
	}
	else
	{
		App().OnMouseDown(Native, Button, Place);
	}
	Run(0.0);
}

void InputPlayer::Release(EMouseButtons::Type Button)
{
	App().OnMouseUp(Button, App().GetCursorPos());
	Run(0.0);
}

void InputPlayer::Wheel(float Delta)
{
	App().OnMouseWheel(Delta, App().GetCursorPos());
	Run(0.0);
}

bool InputPlayer::TypeCharacter(TCHAR Character)
{
	const bool bTaken = App().OnKeyChar(Character, false);
	Run(0.0);
	return bTaken;
}

bool InputPlayer::FChord::Parse(const FString& Text, FChord& OutChord, FString& OutUnknown)
{
	TArray<FString> Parts;
	Text.ParseIntoArray(Parts, TEXT("+"));
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		const FString& Part = Parts[Index];
		const bool bLast = Index == Parts.Num() - 1;
		if (!bLast && (Part == TEXT("Ctrl") || Part == TEXT("Control")))
		{
			OutChord.bControl = true;
		}
		else if (!bLast && Part == TEXT("Shift"))
		{
			OutChord.bShift = true;
		}
		else if (!bLast && Part == TEXT("Alt"))
		{
			OutChord.bAlt = true;
		}
		else if (!bLast && (Part == TEXT("Cmd") || Part == TEXT("Command")))
		{
			OutChord.bCommand = true;
		}
		else
		{
			OutChord.Key = FKey(*GetKeyName(Part));
			if (!bLast || !OutChord.Key.IsValid())
			{
				OutUnknown = Part;
				return false;
			}
		}
	}
	OutUnknown = Text;
	return OutChord.Key.IsValid();
}

void InputPlayer::KeyDown(const FChord& Chord, bool bRepeat)
{
	const FKeyCodes Codes(Chord.Key);
	HoldModifiers(Chord);
	App().OnKeyDown(Codes.Key, Codes.Character, bRepeat);
	if (Codes.Character >= TEXT(' ') && !Chord.bControl && !Chord.bAlt && !Chord.bCommand)
	{
		const TCHAR Character = static_cast<TCHAR>(Codes.Character);
		App().OnKeyChar(Chord.bShift ? FChar::ToUpper(Character) : FChar::ToLower(Character), bRepeat);
	}
	Run(0.0);
}

void InputPlayer::KeyUp(const FChord& Chord)
{
	const FKeyCodes Codes(Chord.Key);
	App().OnKeyUp(Codes.Key, Codes.Character, false);
	HoldModifiers(FChord());
	Run(0.0);
}
