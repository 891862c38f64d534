#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/** What stands in for looks that nobody named. */
class SLATECORE_API FStyleDefaults
{
public:
	/** A plain white box. */
	static const FSlateBrush* GetDefaultBrush();

	/** A brush that draws nothing. */
	static const FSlateBrush* GetNoBrush();
};
