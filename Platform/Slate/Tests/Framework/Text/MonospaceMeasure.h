#pragma once

#include "Framework/Text/TextMeasure.h"
#include "Math/UnrealMathUtility.h"

/** Every UTF-16 unit is 10 wide, every row 20 high. */
class FMonospaceMeasure final : public ITextMeasure
{
public:
	virtual float GetLineHeight() const override { return 20.0f; }
	virtual float GetWidth(const FString& Row, int32 NumCharacters) const override { return NumCharacters * 10.0f; }

	virtual int32 GetNumFitting(const FString& Row, float Width) const override
	{
		return FMath::Min(FMath::FloorToInt(Width / 10.0f), Row.Len());
	}

	virtual int32 GetNearestIndex(const FString& Row, float Distance) const override
	{
		return FMath::Clamp(FMath::RoundToInt(Distance / 10.0f), 0, Row.Len());
	}
};
