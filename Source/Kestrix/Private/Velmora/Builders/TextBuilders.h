#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class SEditableTextBox;
class SMultiLineEditableTextBox;
class STextBlock;

// Widgets that show or take text. What they show, and how, is decoration; a builder reads only what no setter reaches.

TSharedRef<STextBlock> ParseSTextBlock(const TSharedPtr<FJsonObject>& Object);

/** Reads the commands "OnTextChanged" and "OnTextCommitted". */
TSharedRef<SEditableTextBox> ParseSEditableTextBox(const TSharedPtr<FJsonObject>& Object);

/** Reads "Padding", "Margin", "AlwaysShowScrollbars" and the commands "OnTextChanged" and "OnTextCommitted". */
TSharedRef<SMultiLineEditableTextBox> ParseSMultiLineEditableTextBox(const TSharedPtr<FJsonObject>& Object);
