#include "Fonts/FontCache.h"

#include "Fonts/CompositeFont.h"
#include "Fonts/FontSystem.h"
#include "Fonts/LongTexts.h"
#include "Fonts/SizedFont.h"
#include "Fonts/SlateFontInfo.h"
#include "Fonts/TextCache.h"
#include "Fonts/TextShaper.h"

namespace
{

constexpr int32 MaxFonts = 256;

struct FSizedFontKey
{
	const FCompositeFont* CompositeFont;
	FName Face;
	int32 Size;
	float Scale;
	FFontOutlineSettings Outline;

	bool operator==(const FSizedFontKey& Other) const
	{
		return CompositeFont == Other.CompositeFont && Face == Other.Face && Size == Other.Size && Scale == Other.Scale &&
			Outline == Other.Outline;
	}
	friend uint32 GetTypeHash(const FSizedFontKey& Key)
	{
		const uint32 OfFace = HashCombine(PointerHash(Key.CompositeFont), GetTypeHash(Key.Face));
		return HashCombine(OfFace, HashCombine(GetTypeHash(Key.Size), GetTypeHash(Key.Scale)));
	}
};

}

class FSlateFontCache::FImplementation
{
public:
	FImplementation()
		: Shaper(FontSystem)
		, LongTexts(Shaper)
	{
	}

	const FSlateSizedFont& GetFont(const FSlateFontInfo& FontInfo, float Scale);
	FShapedGlyphSequenceRef Shape(const TCHAR* Text, int32 Length, const FSlateFontInfo& FontInfo, float Scale);

	FSlateFontSystem FontSystem;
	FSlateTextShaper Shaper;
	FSlateTextCache Texts;
	FSlateLongTexts LongTexts;
	TMap<FSizedFontKey, TUniquePtr<FSlateSizedFont>> Fonts;
	const FSlateSizedFont* LastFont = nullptr;
	uint32 NextFontId = 0;
};

const FSlateSizedFont& FSlateFontCache::FImplementation::GetFont(const FSlateFontInfo& FontInfo, float Scale)
{
	if (LastFont && LastFont->Is(FontInfo, Scale))
	{
		return *LastFont;
	}

	const FSizedFontKey Key{
		FontInfo.CompositeFont.Get(), FontInfo.TypefaceFontName, FontInfo.Size, Scale, FontInfo.OutlineSettings};
	if (const TUniquePtr<FSlateSizedFont>* Known = Fonts.Find(Key))
	{
		LastFont = Known->Get();
		return *LastFont;
	}

	if (Fonts.Num() >= MaxFonts)
	{
		Texts.Empty();
		LongTexts.Empty();
		Fonts.Empty();
		Shaper.ForgetFallbackFonts();
	}
	LastFont = Fonts.Add(Key, MakeUnique<FSlateSizedFont>(FontSystem, FontInfo, Scale, NextFontId++)).Get();
	return *LastFont;
}

FShapedGlyphSequenceRef FSlateFontCache::FImplementation::Shape(
	const TCHAR* Text, int32 Length, const FSlateFontInfo& FontInfo, float Scale)
{
	const FSlateSizedFont& Font = GetFont(FontInfo, Scale);
	if (Length > FSlateLongTexts::MinLength)
	{
		return LongTexts.Shape(Text, Length, Font);
	}
	if (const FShapedGlyphSequenceRef* Known = Texts.Find(Text, Length, Font.GetId()))
	{
		return *Known;
	}

	return Texts.Add(Font.GetId(), Shaper.Shape(Text, Length, Font));
}

FSlateFontCache::FSlateFontCache()
	: Implementation(MakeUnique<FImplementation>())
{
}

FSlateFontCache::~FSlateFontCache() = default;

FShapedGlyphSequenceRef FSlateFontCache::ShapeBidirectionalText(const TCHAR* InText, const int32 InTextStart,
	const int32 InTextLen, const FSlateFontInfo& InFontInfo, const float InFontScale) const
{
	return Implementation->Shape(InText + InTextStart, InTextLen, InFontInfo, InFontScale);
}

uint16 FSlateFontCache::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	const FSlateSizedFont& Font = Implementation->GetFont(InFontInfo, FontScale);
	return uint16(Font.GetAscent() + Font.GetDescent());
}

int16 FSlateFontCache::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return int16(-Implementation->GetFont(InFontInfo, FontScale).GetDescent());
}

int32 FSlateFontCache::GetNumCachedTexts() const
{
	return Implementation->Texts.Num();
}

uint64 FSlateFontCache::GetNumShapedTexts() const
{
	return Implementation->Shaper.GetNumShapedTexts();
}

uint64 FSlateFontCache::GetNumShapedCharacters() const
{
	return Implementation->Shaper.GetNumShapedCharacters();
}
