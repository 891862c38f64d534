#pragma once

#include "CoreMinimal.h"

/** A uniform scale followed by a translation: all that layout ever does to a widget. */
class FSlateLayoutTransform
{
public:
	explicit FSlateLayoutTransform(float InScale = 1.0f, const FVector2D& InTranslation = FVector2D(0.0, 0.0))
		: Translation(InTranslation)
		, Scale(InScale)
	{
	}
	explicit FSlateLayoutTransform(const FVector2D& InTranslation)
		: Translation(InTranslation)
		, Scale(1.0f)
	{
	}

	float GetScale() const { return Scale; }
	const FVector2D& GetTranslation() const { return Translation; }

	FVector2D TransformPoint(const FVector2D& Point) const { return Point * Scale + Translation; }

	/** This transform first, then the other. */
	FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& Other) const
	{
		return FSlateLayoutTransform(Scale * Other.Scale, Other.TransformPoint(Translation));
	}

	bool operator==(const FSlateLayoutTransform& Other) const { return Scale == Other.Scale && Translation == Other.Translation; }
	bool operator!=(const FSlateLayoutTransform& Other) const { return !(*this == Other); }

private:
	FVector2D Translation;
	float Scale;
};
