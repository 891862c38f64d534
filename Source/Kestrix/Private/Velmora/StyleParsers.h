#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"

struct FSlateBrush;
struct FSlateFontInfo;

// References to fonts, brushes and widget styles of a style set. The rules of ValueParsers.h hold here, too.

/**
 * An object with "Style", the name of a style set, and "StyleName", a font of it: "DefaultFont.<Face>.<Size>" of
 * "FCoreStyle", or any font name of "FCoreStyle", "FEditorStyle" or "FAppStyle". An italic of twelve points on failure.
 */
bool ParseFontInfo(const TSharedPtr<FJsonValue>& Value, FSlateFontInfo& Out);

/** An object with "Style", the name of a style set, and "Brush", a brush of it. The brush "NoBorder" on failure. */
bool ParseStyleBrush(const TSharedPtr<FJsonValue>& Value, const FSlateBrush*& Out);

/** "FEditorStyle", "FCoreStyle" or "FAppStyle": the names of style sets that all lead to the editor's one. */
bool IsEditorStyleSet(const FString& Style);

/** The name of a widget style: an object with "Style", the name of a style set, and "StyleName". */
bool ParseWidgetStyleName(const TSharedPtr<FJsonValue>& Value, FName& Out);

/** The widget style of type T that an object with "Style" and "StyleName" names. Untouched on failure. */
template <typename T>
bool ParseWidgetStyle(const TSharedPtr<FJsonValue>& Value, const T*& Out)
{
	FName StyleName;
	if (!ParseWidgetStyleName(Value, StyleName))
	{
		return false;
	}
	Out = &FAppStyle::Get().GetWidgetStyle<T>(StyleName);
	return true;
}
