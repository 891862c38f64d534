#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplicationMessageHandler.h"
#include "InputCoreTypes.h"

class SWidget;

/** Plays a user's input: reports to the application what a platform would report, and lets a frame pass after each. */
namespace InputPlayer
{
/** Lets frames pass: at least one, and as many as the time takes. */
void Run(double Seconds);

void MoveMouse(const FVector2D& DesktopPlace);
void Press(EMouseButtons::Type Button, bool bDoubleClick = false);
void Release(EMouseButtons::Type Button);
void Wheel(float Delta);

/** @return Whether a widget took the character. */
bool TypeCharacter(TCHAR Character);

/** Keys that are held while another is pressed. */
struct FChord
{
	FKey Key;
	bool bShift = false;
	bool bControl = false;
	bool bAlt = false;
	bool bCommand = false;

	/** @return False, with the part that is no key, for a text that is no chord. */
	static bool Parse(const FString& Text, FChord& OutChord, FString& OutUnknown);
};

/** A press; a printing key without Ctrl and Alt also types its character. */
void KeyDown(const FChord& Chord, bool bRepeat);
void KeyUp(const FChord& Chord);
}
