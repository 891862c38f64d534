#pragma once

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"

/** A style set that is filled by Set calls. It owns the brushes given to it. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName);
	virtual ~FSlateStyleSet() override;

	virtual const FName& GetStyleSetName() const override { return StyleSetName; }
	virtual const FSlateBrush* GetBrush(const FName PropertyName) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName) const override;
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName) const override;
	virtual FSlateColor GetSlateColor(const FName PropertyName) const override;
	virtual FLinearColor GetColor(const FName PropertyName) const override;
	virtual float GetFloat(const FName PropertyName) const override;
	virtual const FMargin& GetMargin(const FName PropertyName) const override;

	/** A registered set in which names that this one lacks are looked up. */
	void SetParentStyleName(const FName& InParentStyleName) { ParentStyleName = InParentStyleName; }

	/** The folder against which RootToContentDir resolves the pictures of brushes. */
	void SetContentRoot(const FString& InContentRootDir) { ContentRootDir = InContentRootDir; }
	FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension = TEXT("")) const;

	void Set(const FName PropertyName, FSlateBrush* InBrush);
	void Set(const FName PropertyName, const FSlateFontInfo& InFont) { Fonts.Add(PropertyName, InFont); }
	void Set(const FName PropertyName, const FSlateColor& InColor) { Colors.Add(PropertyName, InColor); }
	void Set(const FName PropertyName, const FLinearColor& InColor) { Colors.Add(PropertyName, FSlateColor(InColor)); }
	void Set(const FName PropertyName, float InFloat) { Floats.Add(PropertyName, InFloat); }
	void Set(const FName PropertyName, const FMargin& InMargin) { Margins.Add(PropertyName, InMargin); }

	template <typename StyleType, typename = decltype(StyleType::TypeName)>
	void Set(const FName PropertyName, const StyleType& InStyle)
	{
		WidgetStyles.Add(PropertyName, MakeShared<StyleType>(InStyle));
	}

protected:
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(
		const FName DesiredTypeName, const FName StyleName, bool bWarn) const override;
	virtual TOptional<FSlateFontInfo> FindFont(const FName PropertyName) const override;
	virtual TOptional<FSlateColor> FindColor(const FName PropertyName) const override;
	virtual TOptional<float> FindFloat(const FName PropertyName) const override;
	virtual const FMargin* FindMargin(const FName PropertyName) const override;

	/** Says once for each name that it is not there. */
	void WarnOnce(const TCHAR* Kind, FName PropertyName) const;

private:
	const ISlateStyle* GetParentStyle() const;

	FName StyleSetName;
	FName ParentStyleName;
	FString ContentRootDir;
	TMap<FName, TUniquePtr<FSlateBrush>> Brushes;
	TMap<FName, FSlateFontInfo> Fonts;
	TMap<FName, FSlateColor> Colors;
	TMap<FName, float> Floats;
	TMap<FName, FMargin> Margins;
	TMap<FName, TSharedRef<FSlateWidgetStyle>> WidgetStyles;
	mutable TSet<FName> Warned;
};
