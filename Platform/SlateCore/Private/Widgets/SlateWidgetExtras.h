#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"

class FActiveTimerHandle;
class ISlateMetaData;
class IToolTip;

/** What few widgets have; kept apart so that the many others do not pay for it. */
struct FSlateWidgetExtras
{
	TSharedPtr<IToolTip> ToolTip;
	TAttribute<TOptional<EMouseCursor::Type>> Cursor;
	FName Tag;
	TArray<TSharedRef<ISlateMetaData>> MetaData;
	TArray<TSharedRef<FActiveTimerHandle>> ActiveTimers;
};
