#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Math/Vector4.h"
#include "Styling/SlateColor.h"

class FWidgetStyle;

namespace ESlateBrushDrawType
{
/** How a brush fills the box that it is drawn in. */
enum Type
{
	/** Nothing is drawn. */
	NoDrawType,
	/** Nine parts: corners keep their size, sides and centre stretch. */
	Box,
	/** As Box without the centre. */
	Border,
	/** The picture stretched, or tiled. Without a picture the box is filled with the tint. */
	Image,
	/** A filled box with round corners and an outline; needs no picture. */
	RoundedBox,
};
}

namespace ESlateBrushTileType
{
enum Type
{
	NoTile,
	Horizontal,
	Vertical,
	Both,
};
}

namespace ESlateBrushImageType
{
enum Type
{
	NoImage,
	/** A picture of pixels. */
	FullColor,
	/** The same here as FullColor. */
	Linear,
	/** A drawing that is rasterised at the size it is shown at. */
	Vector,
};
}

namespace ESlateBrushRoundingType
{
enum Type
{
	/** The corner radii as given. */
	FixedRadius,
	/** Every corner by half of the smaller side. */
	HalfHeightRadius,
};
}

/** Corners and outline of a rounded box. Lengths are slate units. */
struct FSlateBrushOutlineSettings
{
	FSlateBrushOutlineSettings() = default;
	explicit FSlateBrushOutlineSettings(float InUniformRadius)
		: CornerRadii(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
	{
	}
	explicit FSlateBrushOutlineSettings(FVector4 InRadius)
		: CornerRadii(InRadius)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
	{
	}
	FSlateBrushOutlineSettings(const FSlateColor& InColor, float InWidth)
		: Color(InColor)
		, Width(InWidth)
	{
	}
	FSlateBrushOutlineSettings(float InUniformRadius, const FSlateColor& InColor, float InWidth)
		: FSlateBrushOutlineSettings(
			  FVector4(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius), InColor, InWidth)
	{
	}
	FSlateBrushOutlineSettings(FVector4 InRadius, const FSlateColor& InColor, float InWidth)
		: CornerRadii(InRadius)
		, Color(InColor)
		, Width(InWidth)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
	{
	}

	bool operator==(const FSlateBrushOutlineSettings& Other) const
	{
		return CornerRadii == Other.CornerRadii && Color == Other.Color && Width == Other.Width &&
			RoundingType == Other.RoundingType;
	}

	/** Top left, top right, bottom right, bottom left. */
	FVector4 CornerRadii = FVector4(0.0, 0.0, 0.0, 0.0);
	/** The outline runs inside of the box. */
	FSlateColor Color = FLinearColor::Transparent;
	float Width = 0.0f;
	ESlateBrushRoundingType::Type RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
};

/** How the background or the picture of a widget is drawn. */
struct SLATECORE_API FSlateBrush
{
	FSlateBrush() = default;

	/** The size in slate units that a widget which shows just this brush wants to have. */
	FVector2D ImageSize = FVector2D(32.0, 32.0);

	/** For Box and Border: the width of the corner parts as fractions of the picture's size. */
	FMargin Margin;

	/** Multiplies the picture, or is the fill. */
	FSlateColor TintColor = FLinearColor::White;

	FSlateBrushOutlineSettings OutlineSettings;

	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;

	const FVector2D& GetImageSize() const { return ImageSize; }
	const FMargin& GetMargin() const { return Margin; }
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }
	ESlateBrushTileType::Type GetTiling() const { return Tiling; }
	ESlateBrushImageType::Type GetImageType() const { return ImageType; }

	/** The name by which the renderer knows the picture: the path of its file. None for a plain fill. */
	FName GetResourceName() const { return ResourceName; }
	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const { return TintColor.GetColor(InWidgetStyle); }

	bool operator==(const FSlateBrush& Other) const
	{
		return ImageSize == Other.ImageSize && Margin == Other.Margin && TintColor == Other.TintColor &&
			OutlineSettings == Other.OutlineSettings && DrawAs == Other.DrawAs && Tiling == Other.Tiling &&
			ImageType == Other.ImageType && ResourceName == Other.ResourceName;
	}
	bool operator!=(const FSlateBrush& Other) const { return !(*this == Other); }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin,
		ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize,
		const FSlateColor& InTint = FLinearColor::White)
		: ImageSize(InImageSize)
		, Margin(InMargin)
		, TintColor(InTint)
		, DrawAs(InDrawType)
		, Tiling(InTiling)
		, ImageType(InImageType)
		, ResourceName(InResourceName)
	{
	}

	FName ResourceName;
};
