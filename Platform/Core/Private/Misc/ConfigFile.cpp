#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"

namespace
{
/** Where an unquoted "//" begins; the length of the line without one. */
int32 FindComment(const FString& Line)
{
	bool bQuoted = false;
	for (int32 Index = 0; Index + 1 < Line.Len(); ++Index)
	{
		bQuoted ^= Line[Index] == TEXT('"');
		if (!bQuoted && Line[Index] == TEXT('/') && Line[Index + 1] == TEXT('/'))
		{
			return Index;
		}
	}
	return Line.Len();
}

bool NeedsQuotes(const FString& Value)
{
	if (Value.IsEmpty())
	{
		return false;
	}
	for (const TCHAR Char : Value)
	{
		if (Char == TEXT('"') || Char == TEXT('{') || Char == TEXT('}') || Char == TEXT('\n') || Char == TEXT('\r'))
		{
			return true;
		}
	}
	const bool bOuterBlank = FChar::IsWhitespace(Value[0]) || FChar::IsWhitespace(Value[Value.Len() - 1]);
	return bOuterBlank || Value.Contains(TEXT("//")) || Value[Value.Len() - 1] == TEXT('\\');
}

FString ReadValue(const FString& Text)
{
	const FString Trimmed = Text.TrimStartAndEnd();
	FString Value;
	return FParse::QuotedString(*Trimmed, Value) ? Value : Trimmed;
}

FString WriteValue(const FString& Value)
{
	return NeedsQuotes(Value) ? TEXT("\"") + Value.ReplaceCharWithEscapedChar() + TEXT("\"") : Value;
}

/** Calls the visitor with section, key and value of each line that has them. Lines before the first section do not count. */
template <typename VisitorType>
void ForEachValue(const FString& Contents, VisitorType Visitor)
{
	TArray<FString> Lines;
	Contents.ParseIntoArrayLines(Lines);

	FString Section;
	bool bInSection = false;
	for (const FString& RawLine : Lines)
	{
		const FString Line = RawLine.TrimStartAndEnd();
		int32 Equals = INDEX_NONE;
		if (Line.IsEmpty() || Line[0] == TEXT(';'))
		{
			continue;
		}
		if (Line[0] == TEXT('[') && Line[Line.Len() - 1] == TEXT(']'))
		{
			Section = Line.Mid(1, Line.Len() - 2);
			bInSection = true;
			continue;
		}
		if (bInSection && Line.FindChar(TEXT('='), Equals))
		{
			const FString Value = Line.Mid(Equals + 1);
			Visitor(Section, Line.Left(Equals).TrimStartAndEnd(), ReadValue(Value.Left(FindComment(Value))));
		}
	}
}

/** Exact comparison: a change of case is a change. */
bool AreSame(const TArray<FString>& A, const TArray<FString>& B)
{
	if (A.Num() != B.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < A.Num(); ++Index)
	{
		if (!A[Index].Equals(B[Index]))
		{
			return false;
		}
	}
	return true;
}

void Combine(TArray<FString>& Values, TCHAR Command, const FString& Value)
{
	switch (Command)
	{
		case TEXT('+'):
			Values.AddUnique(Value);
			break;
		case TEXT('.'):
			Values.Add(Value);
			break;
		case TEXT('-'):
			Values.Remove(Value);
			break;
		case TEXT('!'):
			Values.Empty();
			break;
		default:
			Values = {Value};
	}
}

bool IsCommand(TCHAR Char)
{
	return Char == TEXT('+') || Char == TEXT('.') || Char == TEXT('-') || Char == TEXT('!');
}
}

const FConfigSection* FConfigFile::FindSection(const TCHAR* Section) const
{
	return Sections.Find(Section);
}

bool FConfigFile::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const
{
	const FConfigSection* const Found = FindSection(Section);
	const TArray<FString>* const Values = Found ? Found->Find(Key) : nullptr;
	if (!Values || Values->IsEmpty())
	{
		return false;
	}
	Value = Values->Last();
	return true;
}

void FConfigFile::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values)
{
	TArray<FString>& Present = Sections.FindOrAdd(Section).FindOrAdd(Key);
	if (!AreSame(Present, Values))
	{
		Present = Values;
		Dirty = true;
	}
}

bool FConfigFile::RemoveKey(const TCHAR* Section, const TCHAR* Key)
{
	FConfigSection* const Found = Sections.Find(Section);
	const bool bRemoved = Found && Found->Remove(Key) > 0;
	Dirty |= bRemoved;
	return bRemoved;
}

bool FConfigFile::RemoveSection(const TCHAR* Section)
{
	const bool bRemoved = Sections.Remove(Section) > 0;
	Dirty |= bRemoved;
	return bRemoved;
}

void FConfigFile::ProcessInputFileContents(const FString& Contents)
{
	ForEachValue(Contents,
		[this](const FString& Section, const FString& Key, const FString& Value)
		{ Sections.FindOrAdd(Section).FindOrAdd(Key).Add(Value); });
}

void FConfigFile::CombineFromBuffer(const FString& Contents)
{
	ForEachValue(Contents,
		[this](const FString& Section, const FString& Key, const FString& Value)
		{
			const TCHAR Command = !Key.IsEmpty() && IsCommand(Key[0]) ? Key[0] : TEXT('=');
			Combine(Sections.FindOrAdd(Section).FindOrAdd(Key.Mid(Command == TEXT('=') ? 0 : 1)), Command, Value);
		});
}

void FConfigFile::Overlay(const FConfigFile& Other)
{
	for (const TPair<FString, FConfigSection>& Section : Other.Sections)
	{
		for (const TPair<FString, TArray<FString>>& Key : Section.Value)
		{
			Sections.FindOrAdd(Section.Key).Add(Key.Key, Key.Value);
		}
	}
}

FString FConfigFile::Render(const FConfigFile& Defaults) const
{
	FString Text;
	for (const TPair<FString, FConfigSection>& Section : Sections)
	{
		FString Lines;
		const FConfigSection* const DefaultSection = Defaults.FindSection(*Section.Key);
		for (const TPair<FString, TArray<FString>>& Key : Section.Value)
		{
			const TArray<FString>* const DefaultValues = DefaultSection ? DefaultSection->Find(Key.Key) : nullptr;
			if (DefaultValues && AreSame(*DefaultValues, Key.Value))
			{
				continue;
			}
			for (const FString& Value : Key.Value)
			{
				Lines += Key.Key + TEXT("=") + WriteValue(Value) + LINE_TERMINATOR;
			}
		}
		if (!Lines.IsEmpty())
		{
			Text += TEXT("[") + Section.Key + TEXT("]") LINE_TERMINATOR + Lines + LINE_TERMINATOR;
		}
	}
	return Text;
}
