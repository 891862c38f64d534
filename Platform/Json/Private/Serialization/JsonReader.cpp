#include "Serialization/JsonReader.h"

#include "Dom/JsonValue.h"
#include "JsonGlobals.h"
#include "Serialization/JsonParser.h"

namespace
{
constexpr int32 GMaxCharactersAroundError = 60;

/** The line around an offset; a long one is cut to what surrounds the offset. */
FString GetExcerpt(const FString& Text, int32 LineBegin, int32 Offset)
{
	int32 LineEnd = Offset;
	while (LineEnd < Text.Len() && Text[LineEnd] != TEXT('\n'))
	{
		++LineEnd;
	}
	if (LineEnd > LineBegin && Text[LineEnd - 1] == TEXT('\r'))
	{
		--LineEnd;
	}

	const auto IsSecondOfPair = [&Text](int32 Index)
	{
		return Index < Text.Len() && (Text[Index] & 0xFC00) == 0xDC00;
	};
	int32 Begin = FMath::Max(LineBegin, Offset - GMaxCharactersAroundError);
	int32 End = FMath::Min(LineEnd, Offset + GMaxCharactersAroundError);
	Begin += Begin > LineBegin && IsSecondOfPair(Begin) ? 1 : 0;
	End += End < LineEnd && IsSecondOfPair(End) ? 1 : 0;

	const FString Middle = Text.Mid(Begin, End - Begin).TrimStartAndEnd();
	return (Begin > LineBegin ? TEXT("...") : TEXT("")) + Middle + (End < LineEnd ? TEXT("...") : TEXT(""));
}
}

TJsonReader<TCHAR>::TJsonReader(FString InText)
	: Text(MoveTemp(InText))
{
}

TJsonReader<TCHAR>::~TJsonReader() = default;

TSharedPtr<FJsonValue> TJsonReader<TCHAR>::Read(EJson RootType)
{
	FJsonSyntaxError Error;
	const TSharedPtr<FJsonValue> Root = ParseJsonText(Text, Error);
	if (!Root.IsValid())
	{
		Fail(Error.Message, Error.Offset);
		return nullptr;
	}

	if (RootType != EJson::None && Root->Type != RootType)
	{
		const TCHAR* Expected = RootType == EJson::Object ? TEXT("Open Curly Brace token expected, but not found.")
														  : TEXT("Open Square Brace token expected, but not found.");
		Fail(Expected, Text.Len() - Text.TrimStart().Len());
		return nullptr;
	}
	return Root;
}

void TJsonReader<TCHAR>::Fail(const TCHAR* Message, int32 Offset)
{
	LineNumber = 1;
	int32 LineBegin = 0;
	for (int32 Index = 0; Index < Offset; ++Index)
	{
		if (Text[Index] == TEXT('\n'))
		{
			++LineNumber;
			LineBegin = Index + 1;
		}
	}
	CharacterNumber = uint32(Offset - LineBegin) + 1;
	ErrorMessage = FString::Printf(TEXT("%s Line: %u Ch: %u"), Message, LineNumber, CharacterNumber);

	UE_LOG(LogJsonReader, Warning, TEXT("%s In: %s"), *ErrorMessage, *GetExcerpt(Text, LineBegin, Offset));
}
