#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/Margin.h"
#include "Layout/Visibility.h"
#include "Types/SlateEnums.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/Notifications/SProgressBar.h"

// One JSON value of a description becomes one Slate value. Each parser tells success by its result; what its output holds
// after a failure is said at each. Failures are logged in the category Velmora and never stop anything.

/** A number from outside as a float; what lies beyond the range of floats becomes the nearest finite one. */
float ToFloat(double Number);

/** A number from outside cut to an integer; what lies beyond the range becomes the nearest integer inside. */
int32 ToInt32(double Number);

/** "HAlign_Fill" or "Fill", and so for Left, Center, Right. HAlign_Fill on failure. */
bool ParseHAlign(const TSharedPtr<FJsonValue>& Value, EHorizontalAlignment& Out);

/** "VHAlign_Fill" or "Fill", "VAlign_Top" or "Top", and so for Center, Bottom. VAlign_Fill on failure. */
bool ParseVAlign(const TSharedPtr<FJsonValue>& Value, EVerticalAlignment& Out);

/** "Orient_Horizontal" or "Horizontal", or a text with "Orient_Vertical" or "Vertical" in it. Orient_Horizontal on failure. */
bool ParseOrientation(const TSharedPtr<FJsonValue>& Value, EOrientation& Out);

/** "Visible", "Collapsed", "Hidden", "HitTestInvisible" or "SelfHitTestInvisible", in any case. Untouched, without a message, on failure. */
bool FindVisibility(const FString& Name, EVisibility& Out);

/** What to tell whoever gave another name. */
extern const TCHAR* const VisibilityHelp;

/** As FindVisibility, with the message. Visible on failure. */
bool ParseVisibility(const TSharedPtr<FJsonValue>& Value, EVisibility& Out);

/** "LeftToRight", "RightToLeft", "FillFromCenter", "TopToBottom" or "BottomToTop". Untouched on failure. */
bool ParseBarFillType(const TSharedPtr<FJsonValue>& Value, EProgressBarFillType::Type& Out);

/** "FixedPosition", "FixedSize" or "Fill". FixedPosition on failure. */
bool ParseResizeMode(const TSharedPtr<FJsonValue>& Value, ESplitterResizeMode::Type& Out);

/** "AllowPerCharacterWrapping" or "PerCharacter", "DefaultWrapping" or "Default". DefaultWrapping on failure. */
bool ParseTextWrappingPolicy(const TSharedPtr<FJsonValue>& Value, ETextWrappingPolicy& Out);

/** "Center", "Right", and left for every other string. Left on failure, which only a value that is no string is. */
bool ParseJustification(const TSharedPtr<FJsonValue>& Value, ETextJustify::Type& Out);

/** A JSON number. Anything else leaves Out as it was and is not reported. */
bool GetNumberValue(const TSharedPtr<FJsonValue>& Value, float& Out);

/**
 * A number for all sides, or an array of one (all sides), two (horizontal, vertical) or four (left, top, right, bottom).
 *
 * @param OutValues  The numbers as the author gave them; empty on failure.
 * @param OutMargin  Untouched on failure.
 */
bool ParsePaddingValues(const TSharedPtr<FJsonValue>& Value, TArray<float>& OutValues, FMargin& OutMargin);

/** The margin of one, two or four numbers. */
FMargin MakeMargin(const TArray<float>& Numbers);

/** The same forms as ParsePaddingValues. Untouched on failure. */
bool ParseMargin(const TSharedPtr<FJsonValue>& Value, FMargin& Out);

/** An array of three or four numbers, linear R, G, B and A, 1 being full. Magenta on failure, so that it shows at once. */
bool ParseLinearColorValues(const TSharedPtr<FJsonValue>& Value, FLinearColor& Out);

/** An array of two numbers. Zero on failure. */
bool ParseVector2D(const TSharedPtr<FJsonValue>& Value, FVector2D& Out);

/** An array of three numbers. Zero on failure. */
bool ParseVector(const TSharedPtr<FJsonValue>& Value, FVector& Out);

/** An array of numbers, cut to integers; entries that are none are reported and skipped. Fails only without an array. */
bool ParseIntArray(const TSharedPtr<FJsonValue>& Value, TArray<int32>& Out);

/** An array of strings. Empty on failure. */
bool ParseComboBoxOptionsSource(const TSharedPtr<FJsonValue>& Value, TArray<FString>& Out);

/** Also gives one shared copy of each string, in the same order. */
bool ParseComboBoxOptionsSource(
	const TSharedPtr<FJsonValue>& Value, TArray<FString>& Out, TArray<TSharedPtr<FString>>& OutShared);

/** An array of arrays of strings; entries that are no array are skipped. Empty on failure. */
bool ParseStrArray2D(const TSharedPtr<FJsonValue>& Value, TArray<TArray<FString>>& Out);

/** The array [column, row] of integers under "Column_Row" of an object. -1 and -1 on failure. */
bool ParseColumnRow(const TSharedPtr<FJsonObject>& Object, int32& OutColumn, int32& OutRow);

/** The array of pairs [column, value] under "FillColumn" of an object. Pairs in front of a wrong entry are kept. */
bool ParseFillColumn(const TSharedPtr<FJsonObject>& Object, TMap<int32, float>& Out);

/** The property's name behind "<<Data." in the string "Value" of an object, blanks left out; empty if there is none. */
FString GetBindingName(const TSharedPtr<FJsonObject>& Object);
