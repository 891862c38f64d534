#include "HeaderParser.h"

#include "Specifiers.h"

#include <algorithm>
#include <optional>
#include <set>

namespace
{
enum class EAccess
{
	Public,
	Protected,
	Private,
};

const std::set<std::string_view> GUnsupportedMacros = { "UINTERFACE", "GENERATED_IINTERFACE_BODY", "GENERATED_UINTERFACE_BODY", "UDELEGATE",
	"DECLARE_DYNAMIC_DELEGATE", "DECLARE_DYNAMIC_MULTICAST_DELEGATE" };

const std::set<std::string_view> GMemberMacros = { "UPROPERTY", "UFUNCTION", "GENERATED_BODY", "GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY" };

const std::set<std::string_view> GBitFieldTypes = { "uint8", "uint16", "uint32", "uint64", "int8", "int16", "int32", "int64" };

/** A recursive descent over the tokens. The first complaint sets bFailed, and everything then runs out quickly. */
class FHeaderParser
{
public:
	FHeaderParser(std::string_view InSource, FHeaderInfo& InHeader, FError& InError)
		: Source(InSource)
		, Tokens(Tokenize(InSource))
		, Header(InHeader)
		, Error(InError)
	{
	}

	bool Run()
	{
		while (!bFailed && !AtEnd())
		{
			ParseTopLevel();
		}
		if (!bFailed && Header.IsReflected() && !Header.bIncludesGenerated)
		{
			Fail(FirstReflectedLine(), "expected #include \"" + GeneratedName() + "\" as the last include of a header with reflected types, found none");
		}
		return !bFailed;
	}

private:
	// Tokens

	const FToken& Current() const { return Tokens[Place]; }
	const FToken& Ahead(size_t Count) const { return Tokens[std::min(Place + Count, Tokens.size() - 1)]; }
	bool AtEnd() const { return Current().Kind == ETokenKind::End; }

	FToken Take()
	{
		FToken Token = Current();
		Place += !AtEnd();
		return Token;
	}

	bool TakeIf(std::string_view Text)
	{
		const bool bFound = Current().Is(Text);
		Place += bFound;
		return bFound;
	}

	void Fail(int Line, const std::string& Text)
	{
		if (!bFailed)
		{
			Error = { Header.File, Line, Text };
			bFailed = true;
			Place = Tokens.size() - 1;
		}
	}

	static std::string Quoted(const FToken& Token)
	{
		return Token.Kind == ETokenKind::End ? "the end of the file" : "'" + std::string(Token.Text) + "'";
	}

	bool Expect(std::string_view Text, const std::string& Where)
	{
		if (TakeIf(Text))
		{
			return true;
		}
		Fail(Current().Line, "expected '" + std::string(Text) + "' " + Where + ", found " + Quoted(Current()));
		return false;
	}

	std::string ExpectIdentifier(const std::string& What)
	{
		if (Current().Kind == ETokenKind::Identifier)
		{
			return std::string(Take().Text);
		}
		Fail(Current().Line, "expected " + What + ", found " + Quoted(Current()));
		return std::string();
	}

	/** Behind the opening sign: goes behind the closing one. */
	void SkipBalanced(std::string_view Open, std::string_view Close)
	{
		for (int Depth = 1; Depth > 0 && !AtEnd();)
		{
			const FToken Token = Take();
			Depth += Token.Is(Open) ? 1 : Token.Is(Close) ? -1 : 0;
		}
	}

	std::string SourceBetween(size_t Begin, size_t End) const
	{
		std::string Text(Source.substr(Begin, End - Begin));
		Text.erase(Text.find_last_not_of(" \t\r\n") + 1);
		return Text;
	}

	// The file

	std::string GeneratedName() const { return Header.BaseName() + ".generated.h"; }

	int FirstReflectedLine() const
	{
		int Line = 1 << 30;
		for (const FClassInfo& Class : Header.Classes)
		{
			Line = std::min(Line, Class.Line);
		}
		for (const FStructInfo& Struct : Header.Structs)
		{
			Line = std::min(Line, Struct.Line);
		}
		for (const FEnumInfo& Enum : Header.Enums)
		{
			Line = std::min(Line, Enum.Line);
		}
		return Line;
	}

	void ParseTopLevel()
	{
		const FToken Token = Take();
		if (Token.Kind == ETokenKind::Directive)
		{
			ParseInclude(Token);
		}
		else if (Token.Kind != ETokenKind::Identifier)
		{
			return;
		}
		else if (Token.Is("UCLASS") || Token.Is("USTRUCT") || Token.Is("UENUM"))
		{
			RefuseUndecided(Token);
			Token.Is("UCLASS") ? ParseClass(Token) : Token.Is("USTRUCT") ? ParseStruct(Token) : ParseEnum(Token);
		}
		else if (GMemberMacros.count(Token.Text))
		{
			Fail(Token.Line, "expected " + std::string(Token.Text) + " inside of a UCLASS or USTRUCT, found it outside");
		}
		else if (IsUnsupported(Token.Text))
		{
			Fail(Token.Line, "expected UCLASS, USTRUCT or UENUM, found '" + std::string(Token.Text) + "', which is not supported");
		}
	}

	static bool IsUnsupported(std::string_view Text)
	{
		return std::any_of(GUnsupportedMacros.begin(), GUnsupportedMacros.end(), [Text](std::string_view Macro) { return Text.substr(0, Macro.size()) == Macro; });
	}

	void ParseInclude(const FToken& Token)
	{
		const size_t Begin = Token.Text.find('"');
		const size_t End = Token.Text.rfind('"');
		if (Token.Text.find("include") == std::string_view::npos)
		{
			return;
		}
		if (Header.bIncludesGenerated)
		{
			Fail(Token.Line, "expected \"" + GeneratedName() + "\" to be the last include, found " + std::string(Token.Text) + " behind it");
			return;
		}
		const std::string_view Suffix = ".generated.h";
		if (Begin == std::string_view::npos || End - Begin < Suffix.size())
		{
			return;
		}
		const std::string_view File = Token.Text.substr(Begin + 1, End - Begin - 1);
		if (File.size() >= Suffix.size() && File.substr(File.size() - Suffix.size()) == Suffix)
		{
			if (File != GeneratedName())
			{
				Fail(Token.Line, "expected #include \"" + GeneratedName() + "\", found \"" + std::string(File) + "\"");
			}
			Header.bIncludesGenerated = true;
		}
	}

	void RefuseUndecided(const FToken& Token)
	{
		if (Token.bUndecided)
		{
			Fail(Token.Line, std::string(Token.Text) + ": expected no preprocessor condition around it but WITH_EDITOR or WITH_EDITORONLY_DATA, found one");
		}
	}

	// Specifiers

	std::string ParseSpecifierValue()
	{
		if (Current().Kind == ETokenKind::String)
		{
			return Unescaped(Take().Text);
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

	static std::string Unescaped(std::string_view Literal)
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

	/** "(...)" of a macro. What is under meta goes into OutMetaData at once. */
	std::vector<FSpecifier> ParseSpecifiers(const std::string& Macro, FMetaData& OutMetaData)
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

	void ParseSpecifierValues(const std::string& Macro, FSpecifier& Specifier)
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

	void ParseMetaData(const std::string& Macro, FMetaData& OutMetaData)
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

	std::vector<FSpecifier> ApplyMacro(ESpecifierTarget Target, const FToken& Macro, std::vector<std::string>& OutFlags, FMetaData& OutMetaData)
	{
		const std::string ToolTip = FormatToolTip(Macro.Comment);
		const std::vector<FSpecifier> Specifiers = ParseSpecifiers(GetMacroName(Target), OutMetaData);
		const FSpecifier* const Unknown = ApplySpecifiers(Target, Specifiers, OutFlags, OutMetaData);
		if (Unknown)
		{
			Fail(Unknown->Line, "expected a specifier of " + std::string(GetMacroName(Target)) + ", found '" + Unknown->Key + "'");
		}
		if (!ToolTip.empty() && !FindMetaData(OutMetaData, "ToolTip"))
		{
			SetMetaData(OutMetaData, "ToolTip", ToolTip);
		}
		return Specifiers;
	}

	// Types

	/** "class", "struct" and "enum" before a name, and what the compiler alone cares about. */
	void SkipDecorations()
	{
		while (TakeIf("class") || TakeIf("struct") || TakeIf("enum") || TakeIf("typename"))
		{
		}
	}

	FTypeRef ParseType()
	{
		FTypeRef Type;
		Type.bConst = TakeIf("const");
		SkipDecorations();
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

	// Enumerations

	void ParseEnum(const FToken& Macro)
	{
		FEnumInfo Enum;
		Enum.Line = Macro.Line;
		std::vector<std::string> Flags;
		ApplyMacro(ESpecifierTarget::Enum, Macro, Flags, Enum.MetaData);

		if (TakeIf("namespace"))
		{
			Enum.Form = EEnumForm::Namespaced;
			Enum.Name = ExpectIdentifier("the name of the enumeration's namespace");
			Expect("{", "behind 'namespace " + Enum.Name + "'");
			Expect("enum", "in 'namespace " + Enum.Name + "'");
			Enum.InnerName = ExpectIdentifier("the name of the enumeration");
		}
		else
		{
			Expect("enum", "behind UENUM");
			Enum.Form = TakeIf("class") || TakeIf("struct") ? EEnumForm::EnumClass : EEnumForm::Regular;
			Enum.Name = ExpectIdentifier("the name of the enumeration");
		}
		if (TakeIf(":"))
		{
			Enum.Underlying = ExpectIdentifier("the underlying type of '" + Enum.Name + "'");
		}
		if (Enum.Form == EEnumForm::EnumClass && Enum.Underlying.empty() && FindMetaData(Enum.MetaData, "BlueprintType"))
		{
			Fail(Enum.Line, "'" + Enum.Name + "': expected uint8 as underlying type of a BlueprintType enumeration, found none");
		}
		if (!Enum.Underlying.empty() && Enum.Underlying != "uint8" && FindMetaData(Enum.MetaData, "BlueprintType"))
		{
			Fail(Enum.Line, "'" + Enum.Name + "': expected uint8 as underlying type of a BlueprintType enumeration, found '" + Enum.Underlying + "'");
		}
		Expect("{", "behind the name of '" + Enum.Name + "'");
		while (!bFailed && !Current().Is("}"))
		{
			ParseEnumEntry(Enum);
		}
		Expect("}", "behind the entries of '" + Enum.Name + "'");
		if (!bFailed)
		{
			Header.Enums.push_back(Enum);
		}
	}

	void ParseEnumEntry(FEnumInfo& Enum)
	{
		FEnumEntryInfo Entry;
		const std::string ToolTip = FormatToolTip(Current().Comment);
		Entry.Name = ExpectIdentifier("an entry of '" + Enum.Name + "'");
		if (TakeIf("="))
		{
			for (int Depth = 0; !AtEnd() && (Depth > 0 || (!Current().Is(",") && !Current().Is("}") && !Current().Is("UMETA")));)
			{
				const FToken Token = Take();
				Depth += Token.Is("(") ? 1 : Token.Is(")") ? -1 : 0;
			}
		}
		if (TakeIf("UMETA"))
		{
			for (const FSpecifier& Specifier : ParseSpecifiers("UMETA", Entry.MetaData))
			{
				SetMetaData(Entry.MetaData, Specifier.Key, Specifier.Value());
			}
		}
		if (!ToolTip.empty())
		{
			SetMetaData(Entry.MetaData, "ToolTip", ToolTip);
		}
		if (!TakeIf(",") && !Current().Is("}"))
		{
			Fail(Current().Line, "expected ',' or '}' behind entry '" + Entry.Name + "' of '" + Enum.Name + "', found " + Quoted(Current()));
		}
		Enum.Entries.push_back(Entry);
	}

	// Structures

	void ParseStruct(const FToken& Macro)
	{
		FStructInfo Struct;
		Struct.Line = Macro.Line;
		ApplyMacro(ESpecifierTarget::Struct, Macro, Struct.Flags, Struct.MetaData);
		Struct.bNoExport = std::find(Struct.Flags.begin(), Struct.Flags.end(), "STRUCT_NoExport") != Struct.Flags.end();
		Expect("struct", "behind USTRUCT");
		std::string Api;
		Struct.Name = ParseTypeName(Api);
		if (!bFailed && Struct.Name[0] != 'F')
		{
			Fail(Struct.Line, "'" + Struct.Name + "': expected a structure's name to begin with F, found '" + Struct.Name + "'");
		}
		TakeIf("final");
		if (TakeIf(":"))
		{
			TakeIf("public");
			Struct.Super = ExpectIdentifier("the parent of '" + Struct.Name + "'");
		}
		Expect("{", "behind the name of '" + Struct.Name + "'");

		const std::string Name = Struct.Name;
		for (EAccess Access = EAccess::Public; !bFailed && !Current().Is("}");)
		{
			const FToken Token = Current();
			if (Token.Is("UFUNCTION"))
			{
				Fail(Token.Line, "'" + Name + "': expected UPROPERTY in a USTRUCT, found UFUNCTION");
			}
			else if (Token.Is("UPROPERTY"))
			{
				Take();
				Struct.Properties.push_back(ParseProperty(Token, Access));
			}
			else if (Token.Is("GENERATED_BODY") || Token.Is("GENERATED_USTRUCT_BODY"))
			{
				Take();
				Struct.BodyLine = Token.Line;
				SkipArguments();
			}
			else
			{
				SkipMember(Access, Name);
			}
		}
		Expect("}", "behind the members of '" + Name + "'");
		if (!bFailed && !Struct.bNoExport && !Struct.BodyLine)
		{
			Fail(Struct.Line, "'" + Name + "': expected GENERATED_BODY() at the start of the structure, found none");
		}
		if (!bFailed)
		{
			Header.Structs.push_back(Struct);
		}
	}

	/** "KESTRIX_API FName" or "FName". */
	std::string ParseTypeName(std::string& OutApi)
	{
		std::string Name = ExpectIdentifier("a name");
		while (!bFailed && Current().Kind == ETokenKind::Identifier && !Current().Is("final"))
		{
			OutApi = Name;
			Name = std::string(Take().Text);
		}
		return Name;
	}

	// Classes

	void ParseClass(const FToken& Macro)
	{
		FClassInfo Class;
		Class.Line = Macro.Line;
		for (const FSpecifier& Specifier : ApplyMacro(ESpecifierTarget::Class, Macro, Class.Flags, Class.MetaData))
		{
			if (Specifier.Key == "Config" || Specifier.Key == "config")
			{
				Class.ConfigName = Specifier.Value();
			}
			else if (Specifier.Key == "Blueprintable")
			{
				SetMetaData(Class.MetaData, "BlueprintType", "true");
			}
		}
		Class.bMinimalApi = std::find(Class.Flags.begin(), Class.Flags.end(), "CLASS_MinimalAPI") != Class.Flags.end();
		Expect("class", "behind UCLASS");
		Class.Name = ParseTypeName(Class.Api);
		TakeIf("final");
		if (!bFailed && Class.Name[0] != 'U' && Class.Name[0] != 'A')
		{
			Fail(Class.Line, "'" + Class.Name + "': expected a class's name to begin with U or A, found '" + Class.Name + "'");
		}
		Expect(":", "and a parent class behind '" + Class.Name + "'");
		Expect("public", "before the parent of '" + Class.Name + "'");
		Class.Super = ExpectIdentifier("the parent of '" + Class.Name + "'");
		while (!bFailed && TakeIf(","))
		{
			Expect("public", "before a further parent of '" + Class.Name + "'");
			ParseType();
		}
		Expect("{", "behind the parents of '" + Class.Name + "'");

		for (EAccess Access = EAccess::Private; !bFailed && !Current().Is("}");)
		{
			ParseClassMember(Class, Access);
		}
		Expect("}", "behind the members of '" + Class.Name + "'");
		if (!bFailed && !Class.BodyLine)
		{
			Fail(Class.Line, "'" + Class.Name + "': expected GENERATED_BODY() at the start of the class, found none");
		}
		if (!bFailed)
		{
			Header.Classes.push_back(Class);
		}
	}

	void ParseClassMember(FClassInfo& Class, EAccess& Access)
	{
		const FToken Token = Current();
		if (Token.Is("UFUNCTION"))
		{
			Take();
			RefuseUndecided(Token);
			FFunctionInfo Function = ParseFunction(Token, Access);
			for (const FFunctionInfo& Other : Class.Functions)
			{
				if (Other.Name == Function.Name)
				{
					Fail(Function.Line, "'" + Class.Name + "::" + Function.Name + "': expected one function of that name, found another in line "
						+ std::to_string(Other.Line) + " (reflected functions cannot be overloaded)");
				}
			}
			Class.Functions.push_back(std::move(Function));
		}
		else if (Token.Is("UPROPERTY"))
		{
			Take();
			RefuseUndecided(Token);
			Class.Properties.push_back(ParseProperty(Token, Access));
		}
		else if (Token.Is("GENERATED_BODY") || Token.Is("GENERATED_UCLASS_BODY"))
		{
			Take();
			Class.BodyLine = Token.Line;
			Class.bLegacyBody = Token.Is("GENERATED_UCLASS_BODY");
			Access = Class.bLegacyBody ? EAccess::Public : EAccess::Private;
			SkipArguments();
			if (Class.bLegacyBody)
			{
				Class.Constructor = EConstructor::ObjectInitializer;
			}
		}
		else if (Token.Is(Class.Name) && Ahead(1).Is("(") && (Place == 0 || !Tokens[Place - 1].Is("~")))
		{
			const bool bTakesNothing = Ahead(2).Is(")") || (Ahead(2).Is("void") && Ahead(3).Is(")"));
			const bool bTakesInitializer = (Ahead(2).Is("const") && Ahead(3).Is("FObjectInitializer")) || Ahead(2).Is("FObjectInitializer");
			if (bTakesInitializer)
			{
				Class.Constructor = EConstructor::ObjectInitializer;
			}
			else if (bTakesNothing && Class.Constructor == EConstructor::Generated)
			{
				Class.Constructor = EConstructor::Default;
			}
			SkipMember(Access, Class.Name);
		}
		else
		{
			SkipMember(Access, Class.Name);
		}
	}

	void SkipArguments()
	{
		if (Expect("(", "behind GENERATED_BODY"))
		{
			SkipBalanced("(", ")");
		}
	}

	/** One token or bracket of what is not reflected; notes access specifiers. */
	void SkipMember(EAccess& Access, const std::string& Owner)
	{
		const FToken Token = Take();
		if (Ahead(0).Is(":") && (Token.Is("public") || Token.Is("protected") || Token.Is("private")))
		{
			Access = Token.Is("public") ? EAccess::Public : Token.Is("protected") ? EAccess::Protected : EAccess::Private;
			Take();
		}
		else if (Token.Is("{"))
		{
			SkipBalanced("{", "}");
		}
		else if (Token.Is("("))
		{
			SkipBalanced("(", ")");
		}
		else if (Token.Is("UCLASS") || Token.Is("USTRUCT") || Token.Is("UENUM"))
		{
			Fail(Token.Line, "'" + Owner + "': expected " + std::string(Token.Text) + " outside of other types, found it inside");
		}
		else if (AtEnd() && !bFailed)
		{
			Fail(Token.Line, "expected '}' behind the members of '" + Owner + "', found the end of the file");
		}
	}

	static const char* AccessFlag(EAccess Access, bool bFunction)
	{
		switch (Access)
		{
			case EAccess::Public:
				return bFunction ? "FUNC_Public" : "CPF_NativeAccessSpecifierPublic";
			case EAccess::Protected:
				return bFunction ? "FUNC_Protected" : "CPF_NativeAccessSpecifierProtected";
			default:
				return bFunction ? "FUNC_Private" : "CPF_NativeAccessSpecifierPrivate";
		}
	}

	// Properties

	FPropertyInfo ParseProperty(const FToken& Macro, EAccess Access)
	{
		FPropertyInfo Property;
		Property.Line = Macro.Line;
		ApplyMacro(ESpecifierTarget::Property, Macro, Property.Flags, Property.MetaData);
		TakeIf("mutable");
		Property.Type = ParseType();
		Property.Name = ExpectIdentifier("the name of a property");
		const std::string Suffix = "_DEPRECATED";
		if (Property.Name.size() > Suffix.size() && Property.Name.compare(Property.Name.size() - Suffix.size(), Suffix.size(), Suffix) == 0)
		{
			Property.Name.resize(Property.Name.size() - Suffix.size());
			Property.Flags.push_back("CPF_Deprecated");
		}
		if (TakeIf("["))
		{
			const size_t Begin = Current().Begin;
			while (!AtEnd() && !Current().Is("]"))
			{
				Take();
			}
			Property.ArrayDim = SourceBetween(Begin, Current().Begin);
			Expect("]", "behind the length of '" + Property.Name + "'");
		}
		if (TakeIf(":"))
		{
			Property.bBitField = true;
			if (!GBitFieldTypes.count(Property.Type.Name))
			{
				Fail(Property.Line, "'" + Property.Name + "': expected an integer type for a bitfield, found '" + Property.Type.Name + "'");
			}
			if (!TakeIf("1"))
			{
				Fail(Current().Line, "'" + Property.Name + "': expected a bitfield of 1 bit, found " + Quoted(Current()));
			}
		}
		if (TakeIf("="))
		{
			SkipInitializer();
		}
		else if (TakeIf("{"))
		{
			SkipBalanced("{", "}");
		}
		Expect(";", "behind property '" + Property.Name + "'");

		if (Access == EAccess::Private && Property.HasFlag("CPF_BlueprintVisible") && !FindMetaData(Property.MetaData, "AllowPrivateAccess"))
		{
			Fail(Property.Line, "'" + Property.Name + "': expected a public or protected property or the metadata AllowPrivateAccess, found a private BlueprintReadWrite or BlueprintReadOnly property");
		}
		Property.Flags.push_back(AccessFlag(Access, false));
		return Property;
	}

	void SkipInitializer()
	{
		for (int Depth = 0; !AtEnd() && (Depth > 0 || !Current().Is(";"));)
		{
			const FToken Token = Take();
			Depth += Token.Is("(") || Token.Is("{") ? 1 : Token.Is(")") || Token.Is("}") ? -1 : 0;
		}
	}

	// Functions

	FFunctionInfo ParseFunction(const FToken& Macro, EAccess Access)
	{
		FFunctionInfo Function;
		Function.Line = Macro.Line;
		ApplyMacro(ESpecifierTarget::Function, Macro, Function.Flags, Function.MetaData);

		bool bVirtual = false;
		for (bool bMore = true; bMore && !bFailed;)
		{
			bMore = false;
			if (Current().Is("UE_DEPRECATED"))
			{
				Take();
				Expect("(", "behind UE_DEPRECATED");
				SkipBalanced("(", ")");
				bMore = true;
			}
			else if (TakeIf("static"))
			{
				Function.bStatic = bMore = true;
			}
			else if (TakeIf("virtual"))
			{
				bVirtual = bMore = true;
			}
			else if (TakeIf("inline") || TakeIf("FORCEINLINE") || TakeIf("explicit") || (EndsWithApi(Current().Text) && Take().Line))
			{
				bMore = true;
			}
		}
		Function.ReturnType = ParseType();
		const bool bVoid = Function.ReturnType.Name == "void" && !Function.ReturnType.bPointer;
		Function.Name = ExpectIdentifier("the name of a function");
		Expect("(", "behind function '" + Function.Name + "'");
		if (Current().Is("void") && Ahead(1).Is(")"))
		{
			Take();
		}
		while (!bFailed && !Current().Is(")"))
		{
			Function.Parameters.push_back(ParseParameter(Function.Name));
			if (!TakeIf(",") && !Current().Is(")"))
			{
				Fail(Current().Line, "expected ',' or ')' behind a parameter of '" + Function.Name + "', found " + Quoted(Current()));
			}
		}
		Expect(")", "behind the parameters of '" + Function.Name + "'");
		Function.bConst = TakeIf("const");
		bool bFinal = false;
		while (Current().Is("override") || Current().Is("final"))
		{
			bFinal |= Take().Is("final");
		}
		if (TakeIf("{"))
		{
			SkipBalanced("{", "}");
		}
		else
		{
			if (TakeIf("="))
			{
				Take();
			}
			Expect(";", "behind function '" + Function.Name + "'");
		}

		Function.Flags.push_back("FUNC_Native");
		Function.Flags.push_back(AccessFlag(Access, true));
		if (!bVirtual || bFinal)
		{
			Function.Flags.push_back("FUNC_Final");
		}
		if (Function.bStatic)
		{
			Function.Flags.push_back("FUNC_Static");
		}
		if (Function.bConst)
		{
			Function.Flags.push_back("FUNC_Const");
		}
		const auto IsOut = [](const FPropertyInfo& Parameter) { return Parameter.HasFlag("CPF_OutParm"); };
		const bool bHasOut = std::any_of(Function.Parameters.begin(), Function.Parameters.end(), IsOut);
		if (bHasOut)
		{
			Function.Flags.push_back("FUNC_HasOutParms");
		}
		if (Function.HasFlag("FUNC_BlueprintPure") && bVoid && !bHasOut)
		{
			Fail(Function.Line, "'" + Function.Name + "': expected a return value or an out parameter of a BlueprintPure function, found none");
		}
		return Function;
	}

	static bool EndsWithApi(std::string_view Text)
	{
		return Text.size() > 4 && Text.substr(Text.size() - 4) == "_API";
	}

	FPropertyInfo ParseParameter(const std::string& FunctionName)
	{
		FPropertyInfo Parameter;
		bool bRef = false;
		if (TakeIf("UPARAM"))
		{
			for (const FSpecifier& Specifier : ParseSpecifiers("UPARAM", Parameter.MetaData))
			{
				if (Specifier.Key == "ref")
				{
					bRef = true;
				}
				else if (Specifier.Key == "DisplayName")
				{
					SetMetaData(Parameter.MetaData, Specifier.Key, Specifier.Value());
				}
				else
				{
					Fail(Specifier.Line, "expected ref, DisplayName or meta in UPARAM, found '" + Specifier.Key + "'");
				}
			}
		}
		Parameter.Line = Current().Line;
		Parameter.Type = ParseType();
		Parameter.Name = ExpectIdentifier("the name of a parameter of '" + FunctionName + "'");
		if (Current().Is("["))
		{
			Fail(Current().Line, "'" + FunctionName + "': expected a TArray, found the C array '" + Parameter.Name + "'");
		}
		if (TakeIf("="))
		{
			const size_t Begin = Current().Begin;
			size_t End = Begin;
			for (int Depth = 0; !AtEnd() && (Depth > 0 || (!Current().Is(",") && !Current().Is(")")));)
			{
				const FToken Token = Take();
				End = Token.Begin + Token.Text.size();
				Depth += Token.Is("(") || Token.Is("{") ? 1 : Token.Is(")") || Token.Is("}") ? -1 : 0;
			}
			Parameter.Default = SourceBetween(Begin, End);
		}

		Parameter.Flags.push_back("CPF_Parm");
		if (Parameter.Type.bConst)
		{
			Parameter.Flags.push_back("CPF_ConstParm");
		}
		if (Parameter.Type.bReference)
		{
			Parameter.Flags.push_back("CPF_OutParm");
		}
		if (bRef || (Parameter.Type.bReference && Parameter.Type.bConst && !Parameter.Type.bPointer))
		{
			Parameter.Flags.push_back("CPF_ReferenceParm");
		}
		return Parameter;
	}

	std::string_view Source;
	std::vector<FToken> Tokens;
	size_t Place = 0;
	FHeaderInfo& Header;
	FError& Error;
	bool bFailed = false;
};
}

bool ParseHeader(std::string_view Source, FHeaderInfo& OutHeader, FError& OutError)
{
	return FHeaderParser(Source, OutHeader, OutError).Run();
}
