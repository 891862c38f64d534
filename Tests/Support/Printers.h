#pragma once

#include <ostream>

#include <gtest/gtest.h>

#include "CoreMinimal.h"

/** How GoogleTest shows values of the engine's types. */
void PrintTo(const FString& Value, std::ostream* Stream);
void PrintTo(const FName& Value, std::ostream* Stream);
void PrintTo(const FText& Value, std::ostream* Stream);
void PrintTo(const FVector2D& Value, std::ostream* Stream);
void PrintTo(const FLinearColor& Value, std::ostream* Stream);
void PrintTo(const FColor& Value, std::ostream* Stream);

template <typename ElementType, typename AllocatorType>
void PrintTo(const TArray<ElementType, AllocatorType>& Value, std::ostream* Stream)
{
	*Stream << '[';
	for (int32 Index = 0; Index < Value.Num(); ++Index)
	{
		*Stream << (Index ? ", " : "") << testing::PrintToString(Value[Index]);
	}
	*Stream << ']';
}
