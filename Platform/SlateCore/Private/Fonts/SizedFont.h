#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

#include <pango/pangocairo.h>

class FSlateFontFace;
class FSlateFontSystem;

/** A font info at a scale, with all that shaping needs of it. */
class FSlateSizedFont
{
public:
	FSlateSizedFont(FSlateFontSystem& FontSystem, const FSlateFontInfo& InFontInfo, float InScale, uint32 InId);
	FSlateSizedFont(const FSlateSizedFont&) = delete;
	FSlateSizedFont& operator=(const FSlateSizedFont&) = delete;
	~FSlateSizedFont();

	bool Is(const FSlateFontInfo& OtherInfo, float OtherScale) const
	{
		return Scale == OtherScale && FontInfo.IsIdenticalTo(OtherInfo);
	}

	uint32 GetId() const { return Id; }
	const FSlateFontInfo& GetFontInfo() const { return FontInfo; }
	const PangoFontDescription* GetDescription() const { return Description; }
	const TSharedPtr<FSlateFontFace>& GetFace() const { return Face; }

	/** For text of one simple script, which needs no itemisation. */
	const PangoAnalysis& GetAnalysis() const { return Analysis; }

	/** Whole pixels above and below the baseline. */
	int32 GetAscent() const { return Ascent; }
	int32 GetDescent() const { return Descent; }
	int32 GetOutlineWidth() const { return OutlineWidth; }

private:
	FSlateFontInfo FontInfo;
	float Scale;
	uint32 Id;
	PangoFontDescription* Description;
	TSharedPtr<FSlateFontFace> Face;
	PangoAnalysis Analysis = {};
	int32 Ascent;
	int32 Descent;
	int32 OutlineWidth;
};
