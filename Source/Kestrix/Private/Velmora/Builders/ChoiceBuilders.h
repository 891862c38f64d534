#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class SButton;
class SCheckBox;
class SVelmoraWidget;

/**
 * Reads "ButtonColorAndOpacity", "TextStyle", "ButtonStyle" and the command "OnClick", in which "%WidgetPath" is the
 * button's own path in double quotes. The setting "SButtonHorizontalPadding" widens or narrows every button.
 *
 * @param Path  Of the place of the button, without the button.
 */
TSharedRef<SButton> ParseSButton(const TSharedPtr<FJsonObject>& Object, const FString& Path, SVelmoraWidget* Context);

/** Reads "Padding", "HAlign", "IsChecked", "CheckBoxStyle" and the command "OnCheckStateChanged". */
TSharedRef<SCheckBox> ParseSCheckBox(const TSharedPtr<FJsonObject>& Object);
