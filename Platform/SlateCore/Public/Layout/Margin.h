#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

/** Space around a widget, in slate units: left, top, right, bottom. */
struct FMargin
{
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	constexpr FMargin() = default;
	constexpr FMargin(float UniformMargin)
		: Left(UniformMargin)
		, Top(UniformMargin)
		, Right(UniformMargin)
		, Bottom(UniformMargin)
	{
	}
	constexpr FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{
	}
	constexpr FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	FMargin operator*(float Scale) const { return FMargin(Left * Scale, Top * Scale, Right * Scale, Bottom * Scale); }
	FMargin operator+(const FMargin& Other) const
	{
		return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom);
	}
	FMargin operator-(const FMargin& Other) const
	{
		return FMargin(Left - Other.Left, Top - Other.Top, Right - Other.Right, Bottom - Other.Bottom);
	}
	bool operator==(const FMargin& Other) const
	{
		return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom;
	}
	bool operator!=(const FMargin& Other) const { return !(*this == Other); }

	FVector2D GetTopLeft() const { return FVector2D(Left, Top); }
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }

	/** The room that the margin takes along one axis, both sides together. */
	template <EOrientation Orientation>
	float GetTotalSpaceAlong() const
	{
		return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom;
	}
};
