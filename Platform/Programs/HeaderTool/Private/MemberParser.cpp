#include "MemberParser.h"

#include <algorithm>
#include <set>

namespace
{
const std::set<std::string_view> GBitFieldTypes = {"uint8", "uint16", "uint32", "uint64", "int8", "int16", "int32", "int64"};

const char* AccessFlag(EAccess Access, bool bFunction)
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

bool EndsWithApi(std::string_view Text)
{
	return Text.size() > 4 && Text.substr(Text.size() - 4) == "_API";
}
}

std::vector<FSpecifier> FMemberParser::ApplyMacro(
	ESpecifierTarget Target, const FToken& Macro, std::vector<std::string>& OutFlags, FMetaData& OutMetaData)
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

void FMemberParser::RefuseUndecided(const FToken& Token)
{
	if (Token.bUndecided)
	{
		Fail(Token.Line,
			std::string(Token.Text) +
				": expected no preprocessor condition around it but WITH_EDITOR or WITH_EDITORONLY_DATA, found one");
	}
}

FPropertyInfo FMemberParser::ParseProperty(const FToken& Macro, EAccess Access)
{
	FPropertyInfo Property;
	Property.Line = Macro.Line;
	ApplyMacro(ESpecifierTarget::Property, Macro, Property.Flags, Property.MetaData);
	TakeIf("mutable");
	Property.Type = ParseType();
	Property.Name = ExpectIdentifier("the name of a property");
	const std::string Suffix = "_DEPRECATED";
	if (Property.Name.size() > Suffix.size() &&
		Property.Name.compare(Property.Name.size() - Suffix.size(), Suffix.size(), Suffix) == 0)
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
			Fail(Property.Line,
				"'" + Property.Name + "': expected an integer type for a bitfield, found '" + Property.Type.Name + "'");
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

	if (Access == EAccess::Private && Property.HasFlag("CPF_BlueprintVisible") &&
		!FindMetaData(Property.MetaData, "AllowPrivateAccess"))
	{
		Fail(Property.Line,
			"'" + Property.Name +
				"': expected a public or protected property or the metadata AllowPrivateAccess, found a private "
				"BlueprintReadWrite or BlueprintReadOnly property");
	}
	Property.Flags.push_back(AccessFlag(Access, false));
	return Property;
}

void FMemberParser::SkipInitializer()
{
	for (int Depth = 0; !AtEnd() && (Depth > 0 || !Current().Is(";"));)
	{
		const FToken Token = Take();
		Depth += Token.Is("(") || Token.Is("{") ? 1 : Token.Is(")") || Token.Is("}") ? -1 : 0;
	}
}

FFunctionInfo FMemberParser::ParseFunction(const FToken& Macro, EAccess Access)
{
	FFunctionInfo Function;
	Function.Line = Macro.Line;
	ApplyMacro(ESpecifierTarget::Function, Macro, Function.Flags, Function.MetaData);

	bool bVirtual = false;
	ParseFunctionDecorations(Function, bVirtual);
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
	bool bFinal = false;
	ParseFunctionEnd(Function, bFinal);

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
	const auto IsOut = [](const FPropertyInfo& Parameter)
	{
		return Parameter.HasFlag("CPF_OutParm");
	};
	const bool bHasOut = std::any_of(Function.Parameters.begin(), Function.Parameters.end(), IsOut);
	if (bHasOut)
	{
		Function.Flags.push_back("FUNC_HasOutParms");
	}
	if (Function.HasFlag("FUNC_BlueprintPure") && bVoid && !bHasOut)
	{
		Fail(Function.Line,
			"'" + Function.Name + "': expected a return value or an out parameter of a BlueprintPure function, found none");
	}
	return Function;
}

void FMemberParser::ParseFunctionDecorations(FFunctionInfo& Function, bool& bOutVirtual)
{
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
			bOutVirtual = bMore = true;
		}
		else if (TakeIf("inline") || TakeIf("FORCEINLINE") || TakeIf("explicit") || (EndsWithApi(Current().Text) && Take().Line))
		{
			bMore = true;
		}
	}
}

void FMemberParser::ParseFunctionEnd(FFunctionInfo& Function, bool& bOutFinal)
{
	Function.bConst = TakeIf("const");
	while (Current().Is("override") || Current().Is("final"))
	{
		bOutFinal |= Take().Is("final");
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
}

FPropertyInfo FMemberParser::ParseParameter(const std::string& FunctionName)
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
