#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Types/WidgetActiveTimerDelegate.h"

// A widget's event runs a line of Python: the command template of a description with the event's values filled in. The
// interpreter runs it inside the event and reports its errors itself. A command may close the tool or change the very
// widget that fired it, so a handler touches nothing after the run.
//
// Values are put in as Python source without any escaping: a text that holds the closing quotes ends the literal.

/** Fills every "%WidgetPath", in any case, with the path in double quotes. */
FString FillWidgetPath(const FString& Template, const FString& WidgetPath);

/** Runs the command at each click, unless it is empty. */
FOnClicked MakeClickHandler(const FString& Command);

/** Runs the command with every "%" replaced by True or False; an undetermined check box is False. */
FOnCheckStateChanged MakeCheckHandler(const FString& Command);

/** Runs the command with every "%" replaced by the text in triple single quotes. An empty text runs nothing. */
FOnTextChanged MakeTextChangedHandler(const FString& Command);

/** As MakeTextChangedHandler; what made the field commit does not matter. */
FOnTextCommitted MakeTextCommittedHandler(const FString& Command);

/** Runs the command every frame for as long as the widget lives, warning of that if the settings say so. */
FWidgetActiveTimerDelegate MakeTickHandler(const FString& Command);
