#pragma once

#include "UObject/Field.h"

/** "bUseGrid2D" as "Use Grid 2D": blanks before capitals and digits that begin a word, without the b of a bool. */
FString NameToDisplayString(const FString& Name, bool bIsBool);

/** The metadata DisplayName, otherwise the name made readable. */
FText DisplayNameOf(const FFieldMetaData& MetaData, const FString& Name, bool bIsBool);

/** The metadata ShortTooltip if a short one is wanted, the metadata ToolTip, otherwise the display name. */
FText ToolTipOf(const FFieldMetaData& MetaData, const FText& DisplayName, bool bShort);
