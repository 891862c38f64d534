#pragma once

#include "CoreMinimal.h"

struct FCompositeFont;

/** An outline around each letter. */
struct SLATECORE_API FFontOutlineSettings
{
	explicit FFontOutlineSettings(int32 InOutlineSize = 0, const FLinearColor& InColor = FLinearColor::Black)
		: OutlineSize(InOutlineSize)
		, OutlineColor(InColor)
	{
	}

	bool operator==(const FFontOutlineSettings& Other) const
	{
		return OutlineSize == Other.OutlineSize && OutlineColor == Other.OutlineColor;
	}

	static const FFontOutlineSettings NoOutline;

	/** Slate units; 0 for none. */
	int32 OutlineSize;
	FLinearColor OutlineColor;
};

/** A face of a font at a size. */
struct SLATECORE_API FSlateFontInfo
{
	FSlateFontInfo() = default;

	/** @param InTypefaceFontName  A face of the composite font; an unknown one gives the first. */
	FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize,
		const FName& InTypefaceFontName = NAME_None, const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings())
		: CompositeFont(MoveTemp(InCompositeFont))
		, TypefaceFontName(InTypefaceFontName)
		, Size(InSize)
		, OutlineSettings(InOutlineSettings)
	{
	}

	/** The pixels of an em at a scale of 1: points are counted at 96 to the inch. Never below 1. */
	float GetPixelSize() const { return FMath::Max(float(Size) * 96.0f / 72.0f, 1.0f); }

	bool IsIdenticalTo(const FSlateFontInfo& Other) const
	{
		return CompositeFont == Other.CompositeFont && TypefaceFontName == Other.TypefaceFontName && Size == Other.Size &&
			OutlineSettings == Other.OutlineSettings;
	}
	bool operator==(const FSlateFontInfo& Other) const { return IsIdenticalTo(Other); }
	bool operator!=(const FSlateFontInfo& Other) const { return !IsIdenticalTo(Other); }

	/** Without one the default font is used. */
	TSharedPtr<const FCompositeFont> CompositeFont;
	FName TypefaceFontName;
	/** Points at 96 dots per inch: size 9 is 12 pixels. */
	int32 Size = 0;
	FFontOutlineSettings OutlineSettings;
};
