#pragma once

#include "CoreMinimal.h"

class ISlateStyle;

/** The style sets that are known by name. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);

	/** The set, or null. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

private:
	static TMap<FName, const ISlateStyle*>& GetRegistry();
};
