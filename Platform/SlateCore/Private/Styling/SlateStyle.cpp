#include "Styling/SlateStyle.h"

#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateStyle, Log, All);

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
{
}

FSlateStyleSet::~FSlateStyleSet() = default;

void FSlateStyleSet::WarnOnce(const TCHAR* Kind, FName PropertyName) const
{
	bool bKnown = false;
	Warned.Add(PropertyName, &bKnown);
	if (!bKnown)
	{
		UE_LOG(LogSlateStyle, Warning, TEXT("Unable to find %s '%s' in style set '%s'."), Kind, *PropertyName.ToString(),
			*StyleSetName.ToString());
	}
}

const ISlateStyle* FSlateStyleSet::GetParentStyle() const
{
	return ParentStyleName.IsNone() ? nullptr : FSlateStyleRegistry::FindSlateStyle(ParentStyleName);
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(const FName PropertyName) const
{
	if (const TUniquePtr<FSlateBrush>* Brush = Brushes.Find(PropertyName))
	{
		return Brush->Get();
	}
	const ISlateStyle* Parent = GetParentStyle();
	return Parent ? Parent->GetOptionalBrush(PropertyName) : nullptr;
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName) const
{
	if (const FSlateBrush* Brush = GetOptionalBrush(PropertyName))
	{
		return Brush;
	}
	WarnOnce(TEXT("brush"), PropertyName);
	return FStyleDefaults::GetDefaultBrush();
}

TOptional<FSlateFontInfo> FSlateStyleSet::FindFont(const FName PropertyName) const
{
	if (const FSlateFontInfo* Font = Fonts.Find(PropertyName))
	{
		return *Font;
	}
	if (const TSharedRef<FSlateWidgetStyle>* Style = WidgetStyles.Find(PropertyName))
	{
		if ((*Style)->GetTypeName() == FTextBlockStyle::TypeName)
		{
			return static_cast<const FTextBlockStyle&>(Style->Get()).Font;
		}
	}
	const ISlateStyle* Parent = GetParentStyle();
	return Parent ? Parent->FindFont(PropertyName) : TOptional<FSlateFontInfo>();
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName PropertyName) const
{
	const TOptional<FSlateFontInfo> Font = FindFont(PropertyName);
	if (Font.IsSet())
	{
		return Font.GetValue();
	}
	WarnOnce(TEXT("font"), PropertyName);
	return FCoreStyle::GetDefaultFontStyle("Regular", 10);
}

TOptional<FSlateColor> FSlateStyleSet::FindColor(const FName PropertyName) const
{
	if (const FSlateColor* Color = Colors.Find(PropertyName))
	{
		return *Color;
	}
	const ISlateStyle* Parent = GetParentStyle();
	return Parent ? Parent->FindColor(PropertyName) : TOptional<FSlateColor>();
}

FSlateColor FSlateStyleSet::GetSlateColor(const FName PropertyName) const
{
	const TOptional<FSlateColor> Color = FindColor(PropertyName);
	if (Color.IsSet())
	{
		return Color.GetValue();
	}
	WarnOnce(TEXT("colour"), PropertyName);
	return FSlateColor(FLinearColor::White);
}

FLinearColor FSlateStyleSet::GetColor(const FName PropertyName) const
{
	return GetSlateColor(PropertyName).GetSpecifiedColor();
}

TOptional<float> FSlateStyleSet::FindFloat(const FName PropertyName) const
{
	if (const float* Value = Floats.Find(PropertyName))
	{
		return *Value;
	}
	const ISlateStyle* Parent = GetParentStyle();
	return Parent ? Parent->FindFloat(PropertyName) : TOptional<float>();
}

float FSlateStyleSet::GetFloat(const FName PropertyName) const
{
	const TOptional<float> Value = FindFloat(PropertyName);
	if (!Value.IsSet())
	{
		WarnOnce(TEXT("float"), PropertyName);
	}
	return Value.Get(0.0f);
}

const FMargin* FSlateStyleSet::FindMargin(const FName PropertyName) const
{
	if (const FMargin* Margin = Margins.Find(PropertyName))
	{
		return Margin;
	}
	const ISlateStyle* Parent = GetParentStyle();
	return Parent ? Parent->FindMargin(PropertyName) : nullptr;
}

const FMargin& FSlateStyleSet::GetMargin(const FName PropertyName) const
{
	if (const FMargin* Margin = FindMargin(PropertyName))
	{
		return *Margin;
	}
	WarnOnce(TEXT("margin"), PropertyName);
	static const FMargin NoMargin;
	return NoMargin;
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(
	const FName DesiredTypeName, const FName StyleName, bool bWarn) const
{
	const TSharedRef<FSlateWidgetStyle>* Own = WidgetStyles.Find(StyleName);
	if (Own && (*Own)->GetTypeName() == DesiredTypeName)
	{
		return &Own->Get();
	}
	const ISlateStyle* Parent = GetParentStyle();
	const FSlateWidgetStyle* Inherited = Parent ? Parent->GetWidgetStyleInternal(DesiredTypeName, StyleName, false) : nullptr;
	if (!Inherited && bWarn)
	{
		WarnOnce(*DesiredTypeName.ToString(), StyleName);
	}
	return Inherited;
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension) const
{
	return ContentRootDir / RelativePath + Extension;
}

void FSlateStyleSet::Set(const FName PropertyName, FSlateBrush* InBrush)
{
	Brushes.Add(PropertyName, TUniquePtr<FSlateBrush>(InBrush));
}
