#pragma once

#include <string>
#include <string_view>
#include <vector>

/** One complaint, at a line of a header. */
struct FError
{
	std::string File;
	int Line = 0;
	std::string Text;

	/** "file(line): Error: text", as compilers and editors know it. */
	std::string Format() const;
};

enum class ETokenKind
{
	Identifier,
	Number,
	/** With its quotes. */
	String,
	/** A single sign, or "::". */
	Symbol,
	/** A whole preprocessor line that is not about conditions. */
	Directive,
	End,
};

struct FToken
{
	ETokenKind Kind = ETokenKind::End;
	std::string_view Text;
	int Line = 0;
	/** Place in the source, for cutting out what stands between tokens. */
	size_t Begin = 0;
	/** The comment right before the token, with its signs. */
	std::string Comment;
	/** Inside an #if that the tool cannot decide. */
	bool bUndecided = false;

	bool Is(std::string_view Other) const { return Kind != ETokenKind::String && Text == Other; }
};

/**
 * Splits a header into tokens. Of conditional parts it knows "0", "1", "CPP", "!CPP" and the editor's WITH_EDITOR and
 * WITH_EDITORONLY_DATA, and leaves out what they switch off. The tokens point into Source.
 */
std::vector<FToken> Tokenize(std::string_view Source);
