#pragma once

#include "CoreMinimal.h"

/**
 * The name for a text that comes from outside.
 *
 * The engine ends at a text that is longer than a name may be; this reports it with one error line and gives no name.
 *
 * @return NAME_None for an empty text, for "None", and for one of more than 1,023 characters.
 */
FName NameOfText(const FString& Text);
