#pragma once

#include "CoreMinimal.h"

class SWidget;
class SWindow;

/** Which widget a driver means; see UEditorDriver. */
struct FWidgetDescription
{
	FString Tab;
	FString Type;
	FString Text;
	int32 Index = 0;

	/** As it stands in a message: `SButton "Find" in "Regex Tester"`. */
	FString ToString() const;
};

namespace WidgetFinder
{
/** The content of the tab, or of the window, of that name; null when there is none. */
TSharedPtr<SWidget> FindRoot(const FString& Tab);

/** The window in which the tab of that name, or which itself, is; null when there is none. */
TSharedPtr<SWindow> FindWindow(const FString& Tab);

/** All widgets of that description, in the order of the tree. */
TArray<TSharedRef<SWidget>> FindAll(const FWidgetDescription& Description);

/** The one that is meant. @param OutError Says what was not found and what there is instead. */
TSharedPtr<SWidget> Find(const FWidgetDescription& Description, FString& OutError);

/** The text that a widget shows, itself or the first one within it. */
FString GetShownText(SWidget& Widget);

/** `SButton "Find"`, with "#name" before the text when the widget has an Aka name. */
FString Describe(SWidget& Widget);

/** The tree below a widget as text. */
FString Dump(SWidget& Root);
}
