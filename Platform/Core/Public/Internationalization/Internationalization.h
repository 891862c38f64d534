#pragma once

#include "Internationalization/Text.h"

/** The table of the texts that have a namespace and a key. */
class CORE_API FInternationalization
{
public:
	static FInternationalization& Get();

	/** The one text of that namespace, key and source; what LOCTEXT and NSLOCTEXT give. */
	FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* Text, const TCHAR* Namespace, const TCHAR* Key);

private:
	FInternationalization() = default;
};

#define NSLOCTEXT(Namespace, Key, Literal) \
	FInternationalization::Get().ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText( \
		TEXT(Literal), TEXT(Namespace), TEXT(Key))

/** Wants LOCTEXT_NAMESPACE to be defined by the source file. */
#define LOCTEXT(Key, Literal) NSLOCTEXT(LOCTEXT_NAMESPACE, Key, Literal)
