#include "Internationalization/Internationalization.h"

#include <mutex>

namespace
{
/** Namespace, key and source of a text that the code names. */
struct FTextIdentity
{
	FString Namespace;
	FString Key;
	FString Source;

	bool operator==(const FTextIdentity& Other) const
	{
		return Key.Equals(Other.Key) && Namespace.Equals(Other.Namespace) && Source.Equals(Other.Source);
	}

	friend uint32 GetTypeHash(const FTextIdentity& Identity)
	{
		return HashCombine(GetTypeHash(Identity.Key), GetTypeHash(Identity.Namespace));
	}
};

struct FLocalizedTexts
{
	std::mutex Mutex;
	TMap<FTextIdentity, FText> Texts;
};

FLocalizedTexts& GetLocalizedTexts()
{
	static FLocalizedTexts& Texts = *new FLocalizedTexts;
	return Texts;
}
}

FInternationalization& FInternationalization::Get()
{
	static FInternationalization Instance;
	return Instance;
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(
	const TCHAR* Text, const TCHAR* Namespace, const TCHAR* Key)
{
	FLocalizedTexts& Localized = GetLocalizedTexts();
	const std::lock_guard<std::mutex> Lock(Localized.Mutex);
	FText& Result = Localized.Texts.FindOrAdd(FTextIdentity{Namespace, Key, Text});
	if (Result.IsEmpty())
	{
		Result = FText::FromString(Text);
	}
	return Result;
}
