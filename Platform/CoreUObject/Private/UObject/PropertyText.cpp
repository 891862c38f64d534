#include "UObject/PropertyText.h"

#include "Logging/LogMacros.h"
#include "Misc/Char.h"
#include "Misc/OutputDevice.h"
#include "Misc/Parse.h"
#include "UObject/PropertyPortFlags.h"

DEFINE_LOG_CATEGORY_STATIC(LogProperty, Log, All);

namespace
{
bool IsWordPart(TCHAR Char)
{
	return FChar::IsAlnum(Char) || Char == u'_' || Char == u'-' || Char == u'+' || Char == u'.' || Char == u':' || Char == u'/';
}
}

TCHAR FTextReader::Peek()
{
	while (FChar::IsWhitespace(*Text))
	{
		++Text;
	}
	return *Text;
}

bool FTextReader::TakeIf(TCHAR Char)
{
	const bool bFound = Peek() == Char;
	Text += bFound ? 1 : 0;
	return bFound;
}

FString FTextReader::TakeWord()
{
	Peek();
	const TCHAR* const Begin = Text;
	while (IsWordPart(*Text))
	{
		++Text;
	}
	return FString(static_cast<int32>(Text - Begin), Begin);
}

FString FTextReader::TakeDelimited()
{
	FString Value;
	int32 NumRead = 0;
	if (Peek() == u'"' && FParse::QuotedString(Text, Value, &NumRead))
	{
		Text += NumRead;
		return Value;
	}
	const TCHAR* const Begin = Text;
	int32 Depth = 0;
	while (*Text && (Depth > 0 || (*Text != u',' && *Text != u')')))
	{
		Depth += *Text == u'(' ? 1 : *Text == u')' ? -1 : 0;
		++Text;
	}
	return FString(static_cast<int32>(Text - Begin), Begin).TrimEnd();
}

FString FTextReader::TakeRest()
{
	const FString Value(Text);
	Text += Value.Len();
	return Value;
}

const TCHAR* FTextReader::Fail(FOutputDevice* ErrorText, const TCHAR* Message)
{
	if (ErrorText)
	{
		ErrorText->Log(ELogVerbosity::Warning, Message);
	}
	else
	{
		UE_LOG(LogProperty, Warning, TEXT("%s"), Message);
	}
	return nullptr;
}

void AppendQuotedIfDelimited(FString& ValueStr, const FString& Value, int32 PortFlags)
{
	ValueStr += PortFlags & PPF_Delimited ? TEXT("\"") + Value.ReplaceCharWithEscapedChar() + TEXT("\"") : Value;
}
