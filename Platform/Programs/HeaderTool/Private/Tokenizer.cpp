#include "Tokenizer.h"

#include <cctype>

std::string FError::Format() const
{
	return File + "(" + std::to_string(Line) + "): Error: " + Text;
}

namespace
{
bool IsIdentifierStart(char Sign)
{
	return std::isalpha(static_cast<unsigned char>(Sign)) || Sign == '_';
}

bool IsIdentifierPart(char Sign)
{
	return std::isalnum(static_cast<unsigned char>(Sign)) || Sign == '_';
}

std::string_view Trimmed(std::string_view Text)
{
	while (!Text.empty() && std::isspace(static_cast<unsigned char>(Text.front())))
	{
		Text.remove_prefix(1);
	}
	while (!Text.empty() && std::isspace(static_cast<unsigned char>(Text.back())))
	{
		Text.remove_suffix(1);
	}
	return Text;
}

enum class ECondition
{
	Active,
	Inactive,
	Undecided,
};

ECondition Decide(std::string_view Expression)
{
	if (Expression == "1" || Expression == "!CPP" || Expression == "WITH_EDITOR" || Expression == "WITH_EDITORONLY_DATA")
	{
		return ECondition::Active;
	}
	return Expression == "0" || Expression == "CPP" ? ECondition::Inactive : ECondition::Undecided;
}

ECondition Opposite(ECondition Condition)
{
	switch (Condition)
	{
		case ECondition::Active:
			return ECondition::Inactive;
		case ECondition::Inactive:
			return ECondition::Active;
		default:
			return ECondition::Undecided;
	}
}

class FTokenizer
{
public:
	explicit FTokenizer(std::string_view InSource)
		: Source(InSource)
	{
	}

	std::vector<FToken> Run()
	{
		while (SkipToToken())
		{
			ReadToken();
		}
		FToken End;
		End.Line = Line;
		End.Begin = Source.size();
		Tokens.push_back(End);
		return std::move(Tokens);
	}

private:
	char Peek(size_t Ahead = 0) const { return Place + Ahead < Source.size() ? Source[Place + Ahead] : '\0'; }

	void Advance(size_t Count)
	{
		for (; Count && Place < Source.size(); --Count)
		{
			Line += Source[Place++] == '\n';
		}
	}

	void AdvanceTo(size_t End) { Advance(End - Place); }

	/** Spaces and comments. The comment before a token belongs to it; two line comments in a row make one. */
	bool SkipToToken()
	{
		while (Place < Source.size())
		{
			if (std::isspace(static_cast<unsigned char>(Peek())))
			{
				Advance(1);
			}
			else if (Peek() == '/' && Peek(1) == '/')
			{
				const size_t Begin = Place;
				AdvanceTo(std::min(Source.find('\n', Place), Source.size()));
				if (bBlockComment || Line > CommentLine + 1)
				{
					Comment.clear();
				}
				Comment += std::string(Source.substr(Begin, Place - Begin)) + "\n";
				CommentLine = Line;
				bBlockComment = false;
			}
			else if (Peek() == '/' && Peek(1) == '*')
			{
				const size_t Begin = Place;
				const size_t End = Source.find("*/", Place + 2);
				AdvanceTo(End == std::string_view::npos ? Source.size() : End + 2);
				Comment = Source.substr(Begin, Place - Begin);
				bBlockComment = true;
			}
			else
			{
				return true;
			}
		}
		return false;
	}

	void ReadToken()
	{
		const size_t Begin = Place;
		const int BeginLine = Line;
		ETokenKind Kind = ETokenKind::Symbol;
		if (Peek() == '#')
		{
			ReadDirective();
			return;
		}
		if (IsIdentifierStart(Peek()))
		{
			Kind = ETokenKind::Identifier;
			while (IsIdentifierPart(Peek()))
			{
				Advance(1);
			}
		}
		else if (std::isdigit(static_cast<unsigned char>(Peek())) ||
			(Peek() == '.' && std::isdigit(static_cast<unsigned char>(Peek(1)))))
		{
			Kind = ETokenKind::Number;
			while (IsIdentifierPart(Peek()) || Peek() == '.' ||
				((Peek() == '-' || Peek() == '+') && std::tolower(Source[Place - 1]) == 'e'))
			{
				Advance(1);
			}
		}
		else if (Peek() == '"' || Peek() == '\'')
		{
			Kind = ETokenKind::String;
			const char Quote = Peek();
			Advance(1);
			while (Place < Source.size() && Peek() != Quote && Peek() != '\n')
			{
				Advance(Peek() == '\\' ? 2 : 1);
			}
			Advance(1);
		}
		else
		{
			Advance(Peek() == ':' && Peek(1) == ':' ? 2 : 1);
		}
		Add(Kind, Begin, BeginLine);
	}

	void ReadDirective()
	{
		const size_t Begin = Place;
		const int BeginLine = Line;
		while (Place < Source.size() && Peek() != '\n')
		{
			Advance(Peek() == '\\' ? 2 : 1);
		}
		std::string_view Text = Trimmed(Source.substr(Begin + 1, Place - Begin - 1));
		const size_t NameEnd = std::min(Text.find_first_of(" \t(\"<!"), Text.size());
		const std::string_view Name = Text.substr(0, NameEnd);
		std::string_view Rest = Trimmed(Text.substr(NameEnd));
		Rest = Trimmed(Rest.substr(0, std::min(Rest.find("//"), Rest.size())));

		if (Name == "if")
		{
			Conditions.push_back(Decide(Rest));
		}
		else if (Name == "ifdef" || Name == "ifndef")
		{
			Conditions.push_back(ECondition::Undecided);
		}
		else if (Name == "else" && !Conditions.empty())
		{
			Conditions.back() = Opposite(Conditions.back());
		}
		else if (Name == "elif" && !Conditions.empty())
		{
			Conditions.back() = ECondition::Undecided;
		}
		else if (Name == "endif" && !Conditions.empty())
		{
			Conditions.pop_back();
		}
		else
		{
			Add(ETokenKind::Directive, Begin, BeginLine);
			return;
		}
		Comment.clear();
	}

	void Add(ETokenKind Kind, size_t Begin, int BeginLine)
	{
		FToken Token;
		for (const ECondition Condition : Conditions)
		{
			if (Condition == ECondition::Inactive)
			{
				Comment.clear();
				return;
			}
			Token.bUndecided |= Condition == ECondition::Undecided;
		}
		Token.Kind = Kind;
		Token.Text = Source.substr(Begin, Place - Begin);
		Token.Line = BeginLine;
		Token.Begin = Begin;
		Token.Comment = std::move(Comment);
		Comment.clear();
		Tokens.push_back(std::move(Token));
	}

	std::string_view Source;
	size_t Place = 0;
	int Line = 1;
	std::string Comment;
	int CommentLine = 0;
	bool bBlockComment = false;
	std::vector<ECondition> Conditions;
	std::vector<FToken> Tokens;
};
}

std::vector<FToken> Tokenize(std::string_view Source)
{
	return FTokenizer(Source).Run();
}
