#pragma once

#include "CoreMinimal.h"

class FJsonValue;
class SVelmoraWidget;
class SWidget;

/** Switches the generator's detailed lines on. The module sets it at start from the setting "LogCreateWidget". */
extern bool bLogCreateWidget;

/**
 * Builds the widget tree that a description file holds under a key.
 *
 * @param RootKey  Of its object only the first field counts.
 * @param Context  The tool widget that will hold the tree; it registers the named widgets. May be null.
 * @return Never fails: what cannot be built is a widget that says why.
 */
TSharedRef<SWidget> GenerateWidgetFromFile(const FString& FilePath, const FString& RootKey, SVelmoraWidget* Context);

/**
 * Handles one field of a description in the context of a widget: decorates the widget, names it, fills it, or makes a new
 * one from the field and everything below it.
 *
 * @param Depth  Nesting, 0 at the root. Indents log lines.
 * @param Path   Place in the tree, e.g. "/SVerticalBox/Slots_0".
 * @return The new widget, or Parent if the field made none.
 */
TSharedRef<SWidget> Build(const FString& Key, TSharedPtr<FJsonValue> Value, TSharedRef<SWidget> Parent, int32 Depth,
	const FString& Path, SVelmoraWidget* Context);

/** A widget that shows a message in the place of a tool. */
TSharedRef<SWidget> MakeErrorWidget(const FString& Message);

/** One tab per level of nesting, for log lines. */
FString GetIndent(int32 Depth);
