#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class FJsonValue;
class SWidget;

/** Type names of the widgets that take the colours of a compound widget. */
extern const TArray<FString> CompoundWidgetTypes;

/** One row of the decoration table, as documentation shows it. */
struct FDecorationColumns
{
	FString Key;

	/** What the value is read as. */
	FString Value;

	/** The widget types that take the key, in the order of the tests. */
	TArray<FString> WidgetTypes;

	/** The value is read only for a widget that takes the key. */
	bool bTypeTestFirst = false;

	/** What a value that cannot be read comes to. */
	enum class EBadValue : uint8
	{
		/** The reader's default is applied. */
		Default,
		/** The key counts as one without a setter. */
		Unhandled,
		/** Nothing more happens. */
		Ignored,
	};
	EBadValue BadValue = EBadValue::Default;

	/** A warning on top of the reader's own message, with the key behind it. Mostly empty. */
	FString BadValueWarning;

	/** A widget that does not take the key ignores it without a word. */
	bool bIgnoredByOthers = false;
};

/** What a key is applied to. */
struct FDecorationSite
{
	SWidget& Widget;
	const FString& Key;
	const FString& WidgetType;
};

/** One key: what its value is read as, and which widgets take it. */
struct FDecoration
{
	FDecorationColumns Columns;

	/** False if no setter took the key. */
	TFunction<bool(const FDecorationColumns& Columns, const FDecorationSite& Site, const TSharedPtr<FJsonValue>& Value)> Apply;
};

/** The decorations in the order in which keys are compared. */
const TArray<FDecoration>& GetDecorations();
