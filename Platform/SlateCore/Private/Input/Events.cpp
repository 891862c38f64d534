#include "Input/Events.h"

FPointerEvent::FPointerEvent(const FVector2D& InScreenSpacePosition, const FVector2D& InLastScreenSpacePosition,
	const TSet<FKey>& InPressedButtons, const FKey& InEffectingButton, float InWheelDelta,
	const FModifierKeysState& InModifierKeys)
	: FInputEvent(InModifierKeys, false)
	, ScreenSpacePosition(InScreenSpacePosition)
	, LastScreenSpacePosition(InLastScreenSpacePosition)
	, PressedButtons(&InPressedButtons)
	, EffectingButton(InEffectingButton)
	, WheelDelta(InWheelDelta)
{
}
