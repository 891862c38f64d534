#pragma once

#include "Containers/UnrealString.h"

class FOutputDevice;

/** Walks over exported text. Blanks between its parts do not count. */
class FTextReader
{
public:
	explicit FTextReader(const TCHAR* InText)
		: Text(InText)
	{
	}

	/** The next character behind blanks; 0 at the end. */
	TCHAR Peek();
	bool TakeIf(TCHAR Char);
	/** Letters, digits and the signs that numbers, names and paths have; may be empty. */
	FString TakeWord();
	/** A text in quotes with escapes, or everything up to ',' or ')' outside of brackets. */
	FString TakeDelimited();
	/** All that is left. */
	FString TakeRest();

	const TCHAR* Place() const { return Text; }
	void Continue(const TCHAR* NewPlace) { Text = NewPlace; }

	/** Writes a Warning and returns null. */
	static const TCHAR* Fail(FOutputDevice* ErrorText, const TCHAR* Message);

private:
	const TCHAR* Text;
};

/** In quotes, with escapes, when it stands inside of something (PPF_Delimited). */
void AppendQuotedIfDelimited(FString& ValueStr, const FString& Value, int32 PortFlags);
