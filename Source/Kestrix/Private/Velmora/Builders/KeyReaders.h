#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Layout/Margin.h"
#include "Velmora/StyleParsers.h"

// What builders read from a widget's object: the value of a key, or the key's default where the key is missing.

/** A text, or what converts to one. Empty by default. */
FString ReadString(const FJsonObject& Object, const FString& Key);

/** A text that the author wrote as a text; a value of another JSON type is none. Empty by default. */
FString ReadTypedString(const FJsonObject& Object, const FString& Key);

/** A bool, or what converts to one. False by default. */
bool ReadBool(const FJsonObject& Object, const FString& Key);

/** A margin, zero by default. A wrong value is reported and gives the default. */
FMargin ReadMargin(const FJsonObject& Object, const FString& Key);

/** A colour. A wrong value is reported and gives magenta. */
FLinearColor ReadColor(const FJsonObject& Object, const FString& Key, const FLinearColor& Default);

/** A widget style of type T. A wrong value is reported. False, with Out untouched, if there is no style. */
template <typename T>
bool ReadWidgetStyle(const FJsonObject& Object, const FString& Key, const T*& Out)
{
	const TSharedPtr<FJsonValue> Value = Object.TryGetField(Key);
	return Value.IsValid() && ParseWidgetStyle(Value, Out);
}
