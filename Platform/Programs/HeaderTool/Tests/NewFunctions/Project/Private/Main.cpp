#include "CoreMinimal.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

#include <cstdio>

// Prints "Class.Function" for each reflected function of this program, in the order of the names.
int main()
{
	ProcessNewlyLoadedUObjects();
	TArray<FString> Names;
	for (const UClass* Class : TObjectRange<UClass>())
	{
		if (Class->GetOutermost()->GetName() == TEXT("/Script/ListFunctions"))
		{
			for (TFieldIterator<UFunction> It(Class); It; ++It)
			{
				Names.Add(Class->GetName() + TEXT(".") + It->GetName());
			}
		}
	}
	Names.Sort();
	std::printf("%s", FTCHARToUTF8(*FString::Join(Names, TEXT(" "))).Get());
	return 0;
}
