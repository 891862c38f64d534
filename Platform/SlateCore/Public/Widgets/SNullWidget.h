#pragma once

#include "CoreMinimal.h"

class SWidget;

/** A widget that is nothing: it stands where a child could be. It is shared, so it has no parent. */
class SLATECORE_API SNullWidget
{
public:
	static const TSharedRef<SWidget> NullWidget;
};
