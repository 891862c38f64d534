#include "TokenReader.h"

#include <algorithm>

namespace
{
/** A literal without its quotes and escapes. */
std::string Unescaped(std::string_view Literal)
{
	std::string Text;
	for (size_t Index = 1; Index + 1 < Literal.size(); ++Index)
	{
		if (Literal[Index] == '\\' && Index + 2 < Literal.size())
		{
			++Index;
			Text += Literal[Index] == 'n' ? '\n' : Literal[Index] == 't' ? '\t' : Literal[Index];
		}
		else
		{
			Text += Literal[Index];
		}
	}
	return Text;
}
}

const FToken& FTokenReader::Ahead(size_t Count) const
{
	return Tokens[std::min(Place + Count, Tokens.size() - 1)];
}

FToken FTokenReader::Take()
{
	FToken Token = Current();
	Place += !AtEnd();
	return Token;
}

bool FTokenReader::TakeIf(std::string_view Text)
{
	const bool bFound = Current().Is(Text);
	Place += bFound;
	return bFound;
}

void FTokenReader::Fail(int Line, const std::string& Text)
{
	if (!bFailed)
	{
		Error = {File, Line, Text};
		bFailed = true;
		Place = Tokens.size() - 1;
	}
}

std::string FTokenReader::Quoted(const FToken& Token)
{
	return Token.Kind == ETokenKind::End ? "the end of the file" : "'" + std::string(Token.Text) + "'";
}

bool FTokenReader::Expect(std::string_view Text, const std::string& Where)
{
	if (TakeIf(Text))
	{
		return true;
	}
	Fail(Current().Line, "expected '" + std::string(Text) + "' " + Where + ", found " + Quoted(Current()));
	return false;
}

std::string FTokenReader::ExpectIdentifier(const std::string& What)
{
	if (Current().Kind == ETokenKind::Identifier)
	{
		return std::string(Take().Text);
	}
	Fail(Current().Line, "expected " + What + ", found " + Quoted(Current()));
	return std::string();
}

void FTokenReader::SkipBalanced(std::string_view Open, std::string_view Close)
{
	for (int Depth = 1; Depth > 0 && !AtEnd();)
	{
		const FToken Token = Take();
		Depth += Token.Is(Open) ? 1 : Token.Is(Close) ? -1 : 0;
	}
}

std::string FTokenReader::SourceBetween(size_t Begin, size_t End) const
{
	std::string Text(Source.substr(Begin, End - Begin));
	Text.erase(Text.find_last_not_of(" \t\r\n") + 1);
	return Text;
}

std::string FTokenReader::ParseSpecifierValue()
{
	if (Current().Kind == ETokenKind::String)
	{
		std::string Text;
		while (Current().Kind == ETokenKind::String)
		{
			Text += Unescaped(Take().Text);
		}
		return Text;
	}
	const size_t Begin = Current().Begin;
	size_t End = Begin;
	while (!AtEnd() && !Current().Is(",") && !Current().Is(")"))
	{
		End = Current().Begin + Current().Text.size();
		Take();
	}
	return SourceBetween(Begin, End);
}

std::vector<FSpecifier> FTokenReader::ParseSpecifiers(const std::string& Macro, FMetaData& OutMetaData)
{
	std::vector<FSpecifier> Specifiers;
	Expect("(", "behind " + Macro);
	while (!bFailed && !Current().Is(")"))
	{
		FSpecifier Specifier;
		Specifier.Line = Current().Line;
		Specifier.Key = ExpectIdentifier("a specifier of " + Macro);
		if (Specifier.Key == "meta" || Specifier.Key == "Meta")
		{
			Expect("=", "behind meta");
			ParseMetaData(Macro, OutMetaData);
		}
		else
		{
			if (TakeIf("="))
			{
				ParseSpecifierValues(Macro, Specifier);
			}
			Specifiers.push_back(Specifier);
		}
		if (!TakeIf(",") && !Current().Is(")"))
		{
			Fail(Current().Line, "expected ',' or ')' in the specifiers of " + Macro + ", found " + Quoted(Current()));
		}
	}
	Expect(")", "behind the specifiers of " + Macro);
	return Specifiers;
}

void FTokenReader::ParseSpecifierValues(const std::string& Macro, FSpecifier& Specifier)
{
	if (!TakeIf("("))
	{
		Specifier.Values.push_back(ParseSpecifierValue());
		return;
	}
	while (!bFailed && !Current().Is(")"))
	{
		Specifier.Values.push_back(ParseSpecifierValue());
		if (!TakeIf(",") && !Current().Is(")"))
		{
			Fail(Current().Line, "expected ',' or ')' in the values of '" + Specifier.Key + "', found " + Quoted(Current()));
		}
	}
	Expect(")", "behind the values of '" + Specifier.Key + "' of " + Macro);
}

void FTokenReader::ParseMetaData(const std::string& Macro, FMetaData& OutMetaData)
{
	Expect("(", "behind meta =");
	while (!bFailed && !Current().Is(")"))
	{
		const std::string Key = ExpectIdentifier("a key in the metadata of " + Macro);
		const std::string Value = TakeIf("=") ? ParseSpecifierValue() : std::string();
		SetMetaData(OutMetaData, Key, Value);
		if (!TakeIf(",") && !Current().Is(")"))
		{
			Fail(Current().Line, "expected ',' or ')' in the metadata of " + Macro + ", found " + Quoted(Current()));
		}
	}
	Expect(")", "behind the metadata of " + Macro);
}

FTypeRef FTokenReader::ParseType()
{
	FTypeRef Type;
	Type.bConst = TakeIf("const");
	while (TakeIf("class") || TakeIf("struct") || TakeIf("enum") || TakeIf("typename"))
	{
	}
	Type.Name = ExpectIdentifier("a type");
	while (!bFailed && Current().Is("::"))
	{
		Take();
		Type.Name += "::" + ExpectIdentifier("a name behind '::'");
	}
	if (!bFailed && TakeIf("<"))
	{
		do
		{
			Type.Arguments.push_back(ParseType());
		} while (!bFailed && TakeIf(","));
		Expect(">", "behind the arguments of '" + Type.Name + "'");
	}
	Type.bConst |= TakeIf("const");
	if (TakeIf("*"))
	{
		Type.bPointer = true;
		TakeIf("const");
		if (Current().Is("*"))
		{
			Fail(Current().Line, "expected a pointer to an object, found a pointer to a pointer to '" + Type.Name + "'");
		}
	}
	Type.bReference = TakeIf("&");
	return Type;
}
