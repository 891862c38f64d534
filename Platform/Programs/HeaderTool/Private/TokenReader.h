#pragma once

#include "Model.h"
#include "Specifiers.h"
#include "Tokenizer.h"

/**
 * Walks over the tokens of a header and reads what all of its parts have in common: types, and the lists behind macros. The
 * first complaint sets bFailed and goes to the end, so that all loops run out.
 */
class FTokenReader
{
protected:
	FTokenReader(std::string_view InSource, const std::string& InFile, FError& InError)
		: Source(InSource)
		, Tokens(Tokenize(InSource))
		, File(InFile)
		, Error(InError)
	{
	}

	const FToken& Current() const { return Tokens[Place]; }
	const FToken& Previous() const { return Tokens[Place ? Place - 1 : 0]; }
	const FToken& Ahead(size_t Count) const;
	bool AtEnd() const { return Current().Kind == ETokenKind::End; }

	FToken Take();
	bool TakeIf(std::string_view Text);
	void Fail(int Line, const std::string& Text);
	/** For messages: in quotes, or "the end of the file". */
	static std::string Quoted(const FToken& Token);
	bool Expect(std::string_view Text, const std::string& Where);
	std::string ExpectIdentifier(const std::string& What);
	/** Behind the opening sign: goes behind the closing one. */
	void SkipBalanced(std::string_view Open, std::string_view Close);
	/** What is written between two places, without blanks at its end. */
	std::string SourceBetween(size_t Begin, size_t End) const;

	/** "(...)" of a macro. What is under meta goes into OutMetaData at once. */
	std::vector<FSpecifier> ParseSpecifiers(const std::string& Macro, FMetaData& OutMetaData);
	/** "const TMap<FName, UObject*>&" */
	FTypeRef ParseType();

	bool bFailed = false;

private:
	std::string ParseSpecifierValue();
	void ParseSpecifierValues(const std::string& Macro, FSpecifier& Specifier);
	void ParseMetaData(const std::string& Macro, FMetaData& OutMetaData);

	std::string_view Source;
	std::vector<FToken> Tokens;
	size_t Place = 0;
	std::string File;
	FError& Error;
};
