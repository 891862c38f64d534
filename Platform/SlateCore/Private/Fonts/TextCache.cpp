#include "Fonts/TextCache.h"

namespace
{

/** In UTF-16 units, each of which takes some thirty bytes; a text by itself counts as so many more. */
constexpr int64 MaxWeightOfGeneration = 320 * 1024;
constexpr int64 WeightOfText = 64;

/** Mixes eight bytes at a time by multiplication. */
uint32 HashText(const TCHAR* Text, int32 Length, uint32 Seed)
{
	constexpr uint64 Multiplier = 0x9E3779B97F4A7C15;
	uint64 Hash = (uint64(Seed) << 32 | uint32(Length)) * Multiplier;
	int32 Index = 0;
	for (; Index + 4 <= Length; Index += 4)
	{
		uint64 Four;
		FMemory::Memcpy(&Four, Text + Index, sizeof(Four));
		Hash = (Hash ^ Four) * Multiplier;
		Hash ^= Hash >> 29;
	}
	for (; Index < Length; ++Index)
	{
		Hash = (Hash ^ Text[Index]) * Multiplier;
	}
	return uint32(Hash >> 32);
}

}

FSlateTextCache::FKey::FKey(const TCHAR* InText, int32 InLength, uint32 InFontId)
	: Text(InText)
	, Length(InLength)
	, FontId(InFontId)
	, Hash(HashText(InText, InLength, InFontId))
{
}

bool FSlateTextCache::FKey::operator==(const FKey& Other) const
{
	return Hash == Other.Hash && FontId == Other.FontId && Length == Other.Length &&
		FMemory::Memcmp(Text, Other.Text, SIZE_T(Length) * sizeof(TCHAR)) == 0;
}

FSlateTextCache::FSlateTextCache()
	: Texts(MaxWeightOfGeneration)
{
}

const FShapedGlyphSequenceRef* FSlateTextCache::Find(const TCHAR* Text, int32 Length, uint32 FontId)
{
	return Texts.Find(FKey(Text, Length, FontId));
}

const FShapedGlyphSequenceRef& FSlateTextCache::Add(uint32 FontId, const FShapedGlyphSequenceRef& Shaped)
{
	const FKey Key(*Shaped->GetText(), Shaped->GetText().Len(), FontId);
	return Texts.Add(Key, FShapedGlyphSequenceRef(Shaped), WeightOfText + Key.Length);
}
