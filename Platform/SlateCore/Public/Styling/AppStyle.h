#pragma once

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"

/** The looks of the running application: the core style, until the application sets one of its own. */
class SLATECORE_API FAppStyle
{
public:
	static const ISlateStyle& Get();
	static const FName GetAppStyleSetName();

	static const FSlateBrush* GetBrush(FName PropertyName) { return Get().GetBrush(PropertyName); }
	static FSlateFontInfo GetFontStyle(FName PropertyName) { return Get().GetFontStyle(PropertyName); }

	/** The set must stay registered for as long as it is in use. */
	static void SetAppStyleSetName(const FName& InName);
};
