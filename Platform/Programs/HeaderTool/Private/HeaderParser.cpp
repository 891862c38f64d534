#include "HeaderParser.h"

#include "MemberParser.h"

#include <algorithm>
#include <set>

namespace
{
const std::set<std::string_view> GUnsupportedMacros = {"UINTERFACE", "GENERATED_IINTERFACE_BODY", "GENERATED_UINTERFACE_BODY",
	"UDELEGATE", "DECLARE_DYNAMIC_DELEGATE", "DECLARE_DYNAMIC_MULTICAST_DELEGATE"};

const std::set<std::string_view> GMemberMacros = {
	"UPROPERTY", "UFUNCTION", "GENERATED_BODY", "GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY"};

class FHeaderParser : private FMemberParser
{
public:
	FHeaderParser(std::string_view InSource, FHeaderInfo& InHeader, FError& InError)
		: FMemberParser(InSource, InHeader.File, InError)
		, Header(InHeader)
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
			Fail(FirstReflectedLine(),
				"expected #include \"" + GeneratedName() + "\" as the last include of a header with reflected types, found none");
		}
		return !bFailed;
	}

private:
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
			Fail(
				Token.Line, "expected UCLASS, USTRUCT or UENUM, found '" + std::string(Token.Text) + "', which is not supported");
		}
	}

	static bool IsUnsupported(std::string_view Text)
	{
		return std::any_of(GUnsupportedMacros.begin(), GUnsupportedMacros.end(),
			[Text](std::string_view Macro) { return Text.substr(0, Macro.size()) == Macro; });
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
			Fail(Token.Line,
				"expected \"" + GeneratedName() + "\" to be the last include, found " + std::string(Token.Text) + " behind it");
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
			Fail(Enum.Line,
				"'" + Enum.Name + "': expected uint8 as underlying type of a BlueprintType enumeration, found '" +
					Enum.Underlying + "'");
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
			Fail(Current().Line,
				"expected ',' or '}' behind entry '" + Entry.Name + "' of '" + Enum.Name + "', found " + Quoted(Current()));
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
					Fail(Function.Line,
						"'" + Class.Name + "::" + Function.Name +
							"': expected one function of that name, found another in line " + std::to_string(Other.Line) +
							" (reflected functions cannot be overloaded)");
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
		else if (Token.Is(Class.Name) && Ahead(1).Is("(") && !Previous().Is("~"))
		{
			const bool bTakesNothing = Ahead(2).Is(")") || (Ahead(2).Is("void") && Ahead(3).Is(")"));
			const bool bTakesInitializer =
				(Ahead(2).Is("const") && Ahead(3).Is("FObjectInitializer")) || Ahead(2).Is("FObjectInitializer");
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

	FHeaderInfo& Header;
};
}

bool ParseHeader(std::string_view Source, FHeaderInfo& OutHeader, FError& OutError)
{
	return FHeaderParser(Source, OutHeader, OutError).Run();
}
