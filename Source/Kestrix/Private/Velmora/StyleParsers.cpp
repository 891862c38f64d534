#include "Velmora/StyleParsers.h"

#include "Fonts/SlateFontInfo.h"
#include "KestrixLog.h"
#include "Misc/DefaultValueHelper.h"
#include "NameOfText.h"
#include "Styling/CoreStyle.h"
#include "Velmora/KeyTables.h"
#include "Velmora/VelmoraGenerator.h"

namespace
{
/** A string field; where it is missing or no text, the JSON accessor says so in its own category. */
bool ReadString(const FJsonObject& Object, const TCHAR* Key, FString& Out)
{
	if (Object.TryGetStringField(Key, Out))
	{
		return true;
	}
	Out = Object.GetStringField(Key);
	return false;
}

/** The style set and the name in it that an object gives. */
bool ReadStyleReference(const FJsonValue& Value, const TCHAR* Parser, const TCHAR* NameKey, FString& OutStyle, FString& OutName)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Value.TryGetObject(Object))
	{
		UE_LOG(Velmora, Error, TEXT("%s JsonValue Type Error, Need Object"), Parser);
		return false;
	}
	return ReadString(**Object, TEXT("Style"), OutStyle) && ReadString(**Object, NameKey, OutName);
}

bool UseFallbackFont(FSlateFontInfo& Out)
{
	Out = FAppStyle::Get().GetFontStyle("DefaultFont.Italic.12");
	UE_LOG(Velmora, Warning, TEXT("ParseFontInfo Default Font used"));
	return false;
}

/**
 * A font name with a size at its end, "Name.12". The key in front of the size is as long as the text behind the dot, so
 * that a name with a size resolves through the faces of the default font only.
 */
struct FSizedFontName
{
	explicit FSizedFontName(const FString& StyleName)
		: Key(NameOfText(StyleName))
	{
		int32 Dot = INDEX_NONE;
		int32 Number = INDEX_NONE;
		if (StyleName.FindLastChar(TEXT('.'), Dot) && FDefaultValueHelper::ParseInt(StyleName.Mid(Dot + 1), Number) &&
			Number != INDEX_NONE)
		{
			Size = Number;
			Key = NameOfText(StyleName.Left(StyleName.Len() - Dot - 1));
		}
	}

	bool HasSize() const { return Size != INDEX_NONE; }

	FName Key;
	int32 Size = INDEX_NONE;
};

FSlateFontInfo GetEditorFont(const FSizedFontName& Name)
{
	FSlateFontInfo Font = FAppStyle::Get().GetFontStyle(Name.Key);
	if (Name.HasSize())
	{
		Font.Size = Name.Size;
	}
	return Font;
}

/** "DefaultFont", or "DefaultFont.<Face>.<Size>"; any other name is looked up like those of the editor's style. */
FSlateFontInfo GetCoreFont(const FString& StyleName, const FSizedFontName& Name)
{
	int32 First = INDEX_NONE;
	int32 Last = INDEX_NONE;
	const bool bHasDot = StyleName.FindChar(TEXT('.'), First) && StyleName.FindLastChar(TEXT('.'), Last);
	if (!StyleName.StartsWith(TEXT("DefaultFont")) || (bHasDot && First == Last))
	{
		return GetEditorFont(Name);
	}
	const FString Face = bHasDot ? StyleName.Mid(First + 1, Last - First - 1) : FString(TEXT("Regular"));
	return FCoreStyle::GetDefaultFontStyle(NameOfText(Face), Name.Size, FFontOutlineSettings());
}
}

bool ParseFontInfo(const TSharedPtr<FJsonValue>& Value, FSlateFontInfo& Out)
{
	if (!Value.IsValid())
	{
		return false;
	}
	FString Style;
	FString StyleName;
	if (!ReadStyleReference(*Value, TEXT("ParseFontInfo"), TEXT("StyleName"), Style, StyleName))
	{
		return UseFallbackFont(Out);
	}
	UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("ParseFontInfo Style %s, FontStyle: %s"), *Style, *StyleName);
	if (!IsEditorStyleSet(Style))
	{
		UE_LOG(Velmora, Warning, TEXT("Style: %s Not Support yet"), *Style);
		return UseFallbackFont(Out);
	}
	const FSizedFontName Name(StyleName);
	Out = IsSameKey(Style, TEXT("FCoreStyle")) ? GetCoreFont(StyleName, Name) : GetEditorFont(Name);
	return true;
}

bool ParseStyleBrush(const TSharedPtr<FJsonValue>& Value, const FSlateBrush*& Out)
{
	FString Style;
	FString Brush;
	if (ReadStyleReference(*Value, TEXT("ParseStyleBrush"), TEXT("Brush"), Style, Brush))
	{
		if (IsEditorStyleSet(Style))
		{
			Out = FAppStyle::Get().GetBrush(NameOfText(Brush));
			return true;
		}
		UE_LOG(Velmora, Warning, TEXT("Style: %s Not Support yet. Supperted Style: FEditorStyle, FCoreStyle and FAppStyle."),
			*Style);
	}
	Out = FAppStyle::Get().GetBrush("NoBorder");
	UE_LOG(Velmora, Warning, TEXT("Parse Image Brush failed, Default Image was used."));
	return false;
}

bool IsEditorStyleSet(const FString& Style)
{
	return IsSameKey(Style, TEXT("FCoreStyle")) || IsSameKey(Style, TEXT("FEditorStyle")) || IsSameKey(Style, TEXT("FAppStyle"));
}

bool ParseWidgetStyleName(const TSharedPtr<FJsonValue>& Value, FName& Out)
{
	FString Style;
	FString StyleName;
	if (ReadStyleReference(*Value, TEXT("ParseWidgetStyle"), TEXT("StyleName"), Style, StyleName))
	{
		UE_CLOG(bLogCreateWidget, Velmora, Log, TEXT("ParseWidgetStyle Style %s, FontStyle: %s"), *Style, *StyleName);
		if (IsEditorStyleSet(Style))
		{
			Out = NameOfText(StyleName);
			return true;
		}
		UE_LOG(Velmora, Warning, TEXT("Style: %s Not Support yet"), *Style);
	}
	UE_LOG(Velmora, Warning, TEXT("ParseFontInfo Default Font used"));
	return false;
}
