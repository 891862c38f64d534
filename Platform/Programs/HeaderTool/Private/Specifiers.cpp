#include "Specifiers.h"

#include <algorithm>
#include <sstream>

namespace
{
// clang-format off
const FSpecifierRule GClassRules[] = {
	// Key                    Flags                                         Metadata             Value
	{ "Abstract",             "CLASS_Abstract",                             "",                  "" },
	{ "BlueprintType",        "",                                           "BlueprintType",     "true" },
	{ "NotBlueprintType",     "",                                           "NotBlueprintType",  "true" },
	{ "Blueprintable",        "",                                           "IsBlueprintBase",   "true" },
	{ "NotBlueprintable",     "",                                           "IsBlueprintBase",   "false" },
	{ "Transient",            "CLASS_Transient",                            "",                  "" },
	{ "Const",                "CLASS_Const",                                "",                  "" },
	{ "Config",               "CLASS_Config",                               "",                  "" },
	{ "DefaultConfig",        "CLASS_DefaultConfig",                        "",                  "" },
	{ "MinimalAPI",           "CLASS_MinimalAPI",                           "",                  "" },
	{ "NotPlaceable",         "CLASS_NotPlaceable",                         "",                  "" },
	{ "EditInlineNew",        "CLASS_EditInlineNew",                        "",                  "" },
	{ "DefaultToInstanced",   "CLASS_DefaultToInstanced",                   "",                  "" },
	{ "CollapseCategories",   "CLASS_CollapseCategories",                   "",                  "" },
	{ "HideDropdown",         "CLASS_HideDropDown",                         "",                  "" },
	{ "Hidden",               "CLASS_Hidden",                               "",                  "" },
	{ "Deprecated",           "CLASS_Deprecated",                           "",                  "" },
	{ "HideCategories",       "",                                           "HideCategories",    "" },
	{ "ShowCategories",       "",                                           "ShowCategories",    "" },
	{ "ClassGroup",           "",                                           "ClassGroupNames",   "" },
	{ "DisplayName",          "",                                           "DisplayName",       "" },
};

const FSpecifierRule GStructRules[] = {
	{ "noexport",             "STRUCT_NoExport",                            "",                  "" },
	{ "BlueprintType",        "",                                           "BlueprintType",     "true" },
	{ "Atomic",               "STRUCT_Atomic",                              "",                  "" },
	{ "Immutable",            "STRUCT_Immutable STRUCT_Atomic",             "",                  "" },
	{ "DisplayName",          "",                                           "DisplayName",       "" },
};

const FSpecifierRule GEnumRules[] = {
	{ "BlueprintType",        "",                                           "BlueprintType",     "true" },
	{ "DisplayName",          "",                                           "DisplayName",       "" },
};

const FSpecifierRule GFunctionRules[] = {
	{ "BlueprintCallable",    "FUNC_BlueprintCallable",                     "",                  "" },
	{ "BlueprintPure",        "FUNC_BlueprintCallable FUNC_BlueprintPure",  "",                  "" },
	{ "Exec",                 "FUNC_Exec",                                  "",                  "" },
	{ "CallInEditor",         "",                                           "CallInEditor",      "true" },
	{ "Category",             "",                                           "Category",          "" },
	{ "DisplayName",          "",                                           "DisplayName",       "" },
};

const FSpecifierRule GPropertyRules[] = {
	{ "EditAnywhere",         "CPF_Edit",                                   "",                  "" },
	{ "EditDefaultsOnly",     "CPF_Edit CPF_DisableEditOnInstance",         "",                  "" },
	{ "EditInstanceOnly",     "CPF_Edit CPF_DisableEditOnTemplate",         "",                  "" },
	{ "VisibleAnywhere",      "CPF_Edit CPF_EditConst",                     "",                  "" },
	{ "VisibleDefaultsOnly",  "CPF_Edit CPF_EditConst CPF_DisableEditOnInstance", "",            "" },
	{ "VisibleInstanceOnly",  "CPF_Edit CPF_EditConst CPF_DisableEditOnTemplate", "",            "" },
	{ "BlueprintReadWrite",   "CPF_BlueprintVisible",                       "",                  "" },
	{ "BlueprintReadOnly",    "CPF_BlueprintVisible CPF_BlueprintReadOnly", "",                  "" },
	{ "Transient",            "CPF_Transient",                              "",                  "" },
	{ "DuplicateTransient",   "CPF_DuplicateTransient",                     "",                  "" },
	{ "NonTransactional",     "CPF_NonTransactional",                       "",                  "" },
	{ "Config",               "CPF_Config",                                 "",                  "" },
	{ "GlobalConfig",         "CPF_Config CPF_GlobalConfig",                "",                  "" },
	{ "Instanced",            "CPF_InstancedReference",                     "EditInline",        "true" },
	{ "SaveGame",             "CPF_SaveGame",                               "",                  "" },
	{ "NoClear",              "CPF_NoClear",                                "",                  "" },
	{ "EditFixedSize",        "CPF_EditFixedSize",                          "",                  "" },
	{ "Interp",               "CPF_Edit CPF_BlueprintVisible CPF_Interp",   "",                  "" },
	{ "AssetRegistrySearchable", "CPF_AssetRegistrySearchable",             "",                  "" },
	{ "SimpleDisplay",        "CPF_SimpleDisplay",                          "",                  "" },
	{ "AdvancedDisplay",      "CPF_AdvancedDisplay",                        "",                  "" },
	{ "Category",             "",                                           "Category",          "" },
	{ "DisplayName",          "",                                           "DisplayName",       "" },
};
// clang-format on

struct FTarget
{
	const char* MacroName;
	const FSpecifierRule* Begin;
	const FSpecifierRule* End;
};

FTarget GetTarget(ESpecifierTarget Target)
{
	switch (Target)
	{
		case ESpecifierTarget::Class:
			return {"UCLASS", std::begin(GClassRules), std::end(GClassRules)};
		case ESpecifierTarget::Struct:
			return {"USTRUCT", std::begin(GStructRules), std::end(GStructRules)};
		case ESpecifierTarget::Enum:
			return {"UENUM", std::begin(GEnumRules), std::end(GEnumRules)};
		case ESpecifierTarget::Function:
			return {"UFUNCTION", std::begin(GFunctionRules), std::end(GFunctionRules)};
		case ESpecifierTarget::Property:
			return {"UPROPERTY", std::begin(GPropertyRules), std::end(GPropertyRules)};
	}
	return {};
}

bool EqualsIgnoringCase(const std::string& Left, const std::string& Right)
{
	return std::equal(
		Left.begin(), Left.end(), Right.begin(), Right.end(), [](char A, char B) { return std::tolower(A) == std::tolower(B); });
}

std::string Joined(const std::vector<std::string>& Values)
{
	std::string Text;
	for (const std::string& Value : Values)
	{
		Text += (Text.empty() ? "" : " ") + Value;
	}
	return Text;
}
}

const FSpecifier* ApplySpecifiers(ESpecifierTarget Target, const std::vector<FSpecifier>& Specifiers,
	std::vector<std::string>& OutFlags, FMetaData& OutMetaData)
{
	const FTarget Table = GetTarget(Target);
	for (const FSpecifier& Specifier : Specifiers)
	{
		const FSpecifierRule* const Rule = std::find_if(Table.Begin, Table.End,
			[&Specifier](const FSpecifierRule& Candidate) { return EqualsIgnoringCase(Candidate.Key, Specifier.Key); });
		if (Rule == Table.End)
		{
			return &Specifier;
		}
		std::istringstream Flags(Rule->Flags);
		for (std::string Flag; Flags >> Flag;)
		{
			if (std::find(OutFlags.begin(), OutFlags.end(), Flag) == OutFlags.end())
			{
				OutFlags.push_back(Flag);
			}
		}
		if (*Rule->MetaKey)
		{
			SetMetaData(OutMetaData, Rule->MetaKey, *Rule->MetaValue ? Rule->MetaValue : Joined(Specifier.Values));
		}
	}
	return nullptr;
}

const char* GetMacroName(ESpecifierTarget Target)
{
	return GetTarget(Target).MacroName;
}

void SetMetaData(FMetaData& MetaData, const std::string& Key, const std::string& Value)
{
	for (auto& Pair : MetaData)
	{
		if (EqualsIgnoringCase(Pair.first, Key))
		{
			Pair.second = Value;
			return;
		}
	}
	MetaData.emplace_back(Key, Value);
}

const std::string* FindMetaData(const FMetaData& MetaData, const std::string& Key)
{
	for (const auto& Pair : MetaData)
	{
		if (EqualsIgnoringCase(Pair.first, Key))
		{
			return &Pair.second;
		}
	}
	return nullptr;
}

std::string FormatToolTip(const std::string& Comment)
{
	std::vector<std::string> Lines;
	std::istringstream Stream(Comment);
	for (std::string Line; std::getline(Stream, Line);)
	{
		// The signs of the comment become blanks or go, so that what is indented on purpose stays so.
		size_t Begin = Line.find_first_not_of(" \t");
		Begin = Begin == std::string::npos ? Line.size() : Begin;
		Line.erase(0, Begin);
		for (const char* Sign : {"/**", "/*", "*/", "///", "//", "*"})
		{
			if (Line.rfind(Sign, 0) == 0)
			{
				Line.erase(0, std::string(Sign).size());
				break;
			}
		}
		const size_t CommentEnd = Line.rfind("*/");
		if (CommentEnd != std::string::npos)
		{
			Line.erase(CommentEnd);
		}
		Line.erase(Line.find_last_not_of(" \t\r*") + 1);
		Lines.push_back(Line);
	}

	size_t Indentation = std::string::npos;
	for (const std::string& Line : Lines)
	{
		if (!Line.empty())
		{
			Indentation = std::min(Indentation, Line.find_first_not_of(" \t"));
		}
	}
	std::string Text;
	for (const std::string& Line : Lines)
	{
		Text += (Line.empty() ? Line : Line.substr(Indentation)) + "\n";
	}
	Text.erase(0, std::min(Text.find_first_not_of('\n'), Text.size()));
	Text.erase(Text.find_last_not_of('\n') + 1);
	return Text;
}
