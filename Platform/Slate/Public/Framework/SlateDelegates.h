#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState);
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);

/** Told with the offset as a fraction of the whole content. */
DECLARE_DELEGATE_OneParam(FOnUserScrolled, float);
