#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"

/** Writes down what a text field tells, in order: "changed abc", "committed abc OnEnter". */
class FTextFieldLog
{
public:
	FOnTextChanged MakeOnTextChanged()
	{
		return FOnTextChanged::CreateLambda([this](const FText& Text) { Lines.Add(TEXT("changed ") + Text.ToString()); });
	}

	FOnTextCommitted MakeOnTextCommitted()
	{
		return FOnTextCommitted::CreateLambda(
			[this](const FText& Text, ETextCommit::Type Type)
			{
				const TCHAR* const Names[] = {TEXT("Default"), TEXT("OnEnter"), TEXT("OnUserMovedFocus"), TEXT("OnCleared")};
				Lines.Add(TEXT("committed ") + Text.ToString() + TEXT(" ") + Names[Type]);
			});
	}

	/** What was told since the last call. */
	TArray<FString> Take() { return MoveTemp(Lines); }

private:
	TArray<FString> Lines;
};
