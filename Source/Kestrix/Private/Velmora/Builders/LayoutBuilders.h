#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class SBorder;
class SBox;
class SHorizontalBox;
class SScrollBox;
class SVerticalBox;

// Widgets that carry others. The walk fills and decorates them; a builder reads only what Slate wants at construction.

TSharedRef<SBox> ParseSBox(const TSharedPtr<FJsonObject>& Object);
TSharedRef<SHorizontalBox> ParseSHorizontalBox(const TSharedPtr<FJsonObject>& Object);
TSharedRef<SScrollBox> ParseSScrollBox(const TSharedPtr<FJsonObject>& Object);
TSharedRef<SVerticalBox> ParseSVerticalBox(const TSharedPtr<FJsonObject>& Object);

/** Reads "BorderImage", an object with "Style", the name of a style set, and "Brush". An unknown set draws a warning. */
TSharedRef<SBorder> ParseSBorder(const TSharedPtr<FJsonObject>& Object);
