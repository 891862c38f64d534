#pragma once

#include "TokenReader.h"

enum class EAccess
{
	Public,
	Protected,
	Private,
};

/** Reads the reflected members of classes and structures, each from behind its macro on. */
class FMemberParser : protected FTokenReader
{
protected:
	using FTokenReader::FTokenReader;

	/** Reads the specifiers of a macro; its comment becomes the metadata ToolTip. */
	std::vector<FSpecifier> ApplyMacro(
		ESpecifierTarget Target, const FToken& Macro, std::vector<std::string>& OutFlags, FMetaData& OutMetaData);
	/** A reflected type or member must not depend on a condition that the tool cannot decide. */
	void RefuseUndecided(const FToken& Token);
	FPropertyInfo ParseProperty(const FToken& Macro, EAccess Access);
	FFunctionInfo ParseFunction(const FToken& Macro, EAccess Access);

private:
	void SkipInitializer();
	/** "static", "virtual" and the like before a function. */
	void ParseFunctionDecorations(FFunctionInfo& Function, bool& bOutVirtual);
	/** "const", "override", body or semicolon behind a function. */
	void ParseFunctionEnd(FFunctionInfo& Function, bool& bOutFinal);
	FPropertyInfo ParseParameter(const std::string& FunctionName);
};
