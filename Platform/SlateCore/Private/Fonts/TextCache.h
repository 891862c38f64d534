#pragma once

#include "CoreMinimal.h"
#include "Caching/GenerationMap.h"
#include "Fonts/FontCache.h"

/** Shaped texts by font and text, bounded in memory. */
class FSlateTextCache
{
public:
	FSlateTextCache();

	/** Null when the text is not kept. */
	const FShapedGlyphSequenceRef* Find(const TCHAR* Text, int32 Length, uint32 FontId);
	const FShapedGlyphSequenceRef& Add(uint32 FontId, const FShapedGlyphSequenceRef& Shaped);

	void Empty() { Texts.Empty(); }
	int32 Num() const { return Texts.Num(); }

private:
	/** Points at a text that lies in the sequence which the key leads to, or at the text that is asked for. */
	struct FKey
	{
		FKey(const TCHAR* InText, int32 InLength, uint32 InFontId);

		bool operator==(const FKey& Other) const;
		friend uint32 GetTypeHash(const FKey& Key) { return Key.Hash; }

		const TCHAR* Text;
		int32 Length;
		uint32 FontId;
		uint32 Hash;
	};

	TGenerationMap<FKey, FShapedGlyphSequenceRef> Texts;
};
