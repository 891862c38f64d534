#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class SVelmoraWidget;
class SWidget;

/** The place of a widget that is to be built. */
struct FWidgetSite
{
	/** The widget's own object. Its builder reads what Slate wants at construction and leaves everything where it is. */
	const TSharedPtr<FJsonObject>& Object;

	/** The widget around the new one. The null widget where a builder asks for nested content of its own. */
	const TSharedRef<SWidget>& Parent;

	int32 Depth;

	/** Of the place, without the new widget's type. */
	const FString& Path;

	SVelmoraWidget* Context;
};

/**
 * Makes the widget of a type key.
 *
 * @param Key  In any case.
 * @return Null if the key creates nothing here. Unless that is by design, it is logged.
 */
TSharedPtr<SWidget> RunWidgetBuilder(const FString& Key, const FWidgetSite& Site);
