#pragma once

#include "CoreMinimal.h"

/** Names one face of one font. */
struct FFontData
{
	FFontData() = default;
	explicit FFontData(const FString& InFontFilename)
		: FontFilename(InFontFilename)
	{
	}

	const FString& GetFontFilename() const { return FontFilename; }

	bool operator==(const FFontData& Other) const { return FontFilename == Other.FontFilename; }

private:
	/** A font file, or a Fontconfig name such as "Roboto:bold:italic". */
	FString FontFilename;
};

/** A face under the name by which styles ask for it ("Regular", "Bold"). */
struct FTypefaceEntry
{
	FTypefaceEntry() = default;
	FTypefaceEntry(const FName InFontName, const FString& InFilename)
		: Name(InFontName)
		, Font(InFilename)
	{
	}

	FName Name;
	FFontData Font;
};

/** The faces of a font family; the first stands in for any name that is not there. */
struct FTypeface
{
	FTypeface& AppendFont(const FName InFontName, const FString& InFilename)
	{
		Fonts.Emplace(InFontName, InFilename);
		return *this;
	}

	TArray<FTypefaceEntry> Fonts;
};

/** A font as styles use it. Characters that a face lacks come from the system's other fonts. */
struct FCompositeFont
{
	FTypeface DefaultTypeface;
};

/** A composite font that belongs to no asset. */
struct FStandaloneCompositeFont : public FCompositeFont
{
};
