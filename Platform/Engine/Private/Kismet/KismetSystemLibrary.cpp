#include "Kismet/KismetSystemLibrary.h"

#include "UObject/UObjectGlobals.h"

void UKismetSystemLibrary::CollectGarbage()
{
	RequestGarbageCollection();
}
