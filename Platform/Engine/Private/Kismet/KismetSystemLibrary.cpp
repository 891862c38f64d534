#include "Kismet/KismetSystemLibrary.h"

#include "UObject/UObjectGlobals.h"

void UKismetSystemLibrary::CollectGarbage()
{
	RequestGarbageCollection();
}

void UKismetSystemLibrary::QuitEditor()
{
	RequestEngineExit(TEXT("A script said so."));
}
