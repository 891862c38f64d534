#pragma once

/**
 * Delegates call functions that are bound at run time.
 *
 *	DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
 *	DECLARE_DELEGATE_RetVal(FReply, FOnClicked);
 *	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnMapChanged, UWorld*, int32);
 *	DECLARE_EVENT_OneParam(FTabManager, FOnTabClosed, TSharedRef<SDockTab>);
 */

#include "Delegates/DelegateCombinations.h"
#include "Delegates/DelegateSignatureImpl.inl"
#include "Delegates/IDelegateInstance.h"

using FSimpleDelegate = TDelegate<void()>;
using FSimpleMulticastDelegate = TMulticastDelegate<void()>;
