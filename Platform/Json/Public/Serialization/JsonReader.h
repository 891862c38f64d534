#pragma once

#include "CoreMinimal.h"
#include "Serialization/JsonTypes.h"

class FJsonSerializer;
class FJsonValue;

template <class CharType = TCHAR>
class TJsonReader;

/**
 * Holds a JSON text (RFC 8259, with an object or array at the root) and says after reading what was wrong with it. Comments
 * and trailing commas are refused; control characters within a string are read as they stand. Reading uses no recursion, and
 * containers may be nested 5,000 levels deep.
 */
template <>
class JSON_API TJsonReader<TCHAR>
{
public:
	explicit TJsonReader(FString InText);
	~TJsonReader();

	/** What was wrong, with line and character; empty while nothing was. */
	const FString& GetErrorMessage() const { return ErrorMessage; }

	/** The place of the error in the text, both counted from 1; 0 while there was none. */
	uint32 GetLineNumber() const { return LineNumber; }
	uint32 GetCharacterNumber() const { return CharacterNumber; }

private:
	friend FJsonSerializer;

	/**
	 * Reads the whole text.
	 *
	 * @param RootType  What the root must be: an object, an array, or None for either.
	 * @return The root, or null with the error message set and one Warning in LogJsonReader.
	 */
	TSharedPtr<FJsonValue> Read(EJson RootType);

	/** Remembers and logs an error at a position in the text. */
	void Fail(const TCHAR* Message, int32 Offset);

	FString Text;
	FString ErrorMessage;
	uint32 LineNumber = 0;
	uint32 CharacterNumber = 0;
};

template <class CharType = TCHAR>
class TJsonReaderFactory
{
public:
	static TSharedRef<TJsonReader<CharType>> Create(FString JsonString)
	{
		return MakeShared<TJsonReader<CharType>>(MoveTemp(JsonString));
	}
};
