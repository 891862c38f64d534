#include "NameOfText.h"

#include "KestrixLog.h"

FName NameOfText(const FString& Text)
{
	if (Text.Len() >= NAME_SIZE)
	{
		UE_LOG(PythonKX, Error, TEXT("A name has at most %d characters, found %d: \"%s...\""), NAME_SIZE - 1, Text.Len(),
			*Text.Left(64));
		return NAME_None;
	}
	return FName(*Text);
}
