#pragma once

#include "CoreMinimal.h"

/** Keys that decorate the widget in whose object they stand. */
extern const TArray<FString> BehaviorKeys;

/** Keys that create a widget. */
extern const TArray<FString> WidgetTypes;

/** How a row of the inborn keys tests a widget's type. Case is ignored. */
enum class EWidgetTypeTest : uint8
{
	Is,
	StartsWith,
	Any,
};

/** Keys that a widget's builder, or the slot pass of its panel, has consumed by the time the walk comes to them. */
struct FInbornKeys
{
	EWidgetTypeTest Test;

	/** The row holds for each of these types; empty for `Any`. */
	TArray<FString> WidgetTypes;

	/** No key at all stands for every key. */
	TArray<FString> Keys;

	/** A key of the row that is on its way out, and the key to use instead. Empty where there is none. */
	FString DeprecatedKey;
	FString ReplacementKey;
};

/** The inborn keys in the order in which they are tried. */
const TArray<FInbornKeys>& GetInbornKeys();

/** Tells whether a key of a widget was consumed before the walk came to it, so that nobody need warn of it. */
bool InbornDecorate(const FString& WidgetType, const FString& Key);

bool IsBehaviorKey(const FString& Key);
bool IsWidgetTypeKey(const FString& Key);

/** "Aka", in any case. */
bool IsAkaKey(const FString& Key);

/** "Slots" in exactly this case. */
bool IsSlotsKey(const FString& Key);

/** "Content" in exactly this case. */
bool IsContentKey(const FString& Key);

/** The comparison of keys and widget types: whole words without regard to case. */
bool IsSameKey(const FString& A, const TCHAR* B);
