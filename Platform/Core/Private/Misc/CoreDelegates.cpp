#include "Misc/CoreDelegates.h"

FCoreDelegates::FShouldLaunchUrl FCoreDelegates::ShouldLaunchUrl;
FSimpleMulticastDelegate FCoreDelegates::OnHandleSystemError;
FSimpleMulticastDelegate FCoreDelegates::OnPostEngineInit;
FSimpleMulticastDelegate FCoreDelegates::OnMainLoopSleep;
FSimpleMulticastDelegate FCoreDelegates::OnMainLoopWake;
FSimpleMulticastDelegate FCoreDelegates::OnEnginePreExit;
