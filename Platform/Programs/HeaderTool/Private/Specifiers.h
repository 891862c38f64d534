#pragma once

#include "Model.h"

#include <string>
#include <vector>

/** One entry of UCLASS(...) and its like: Key, Key = Value or Key = (A, B). */
struct FSpecifier
{
	std::string Key;
	std::vector<std::string> Values;
	int Line = 0;

	std::string Value() const { return Values.empty() ? std::string() : Values.front(); }
};

/** What one specifier means. Unused columns are empty. */
struct FSpecifierRule
{
	const char* Key;
	/** Flags that it sets, separated by blanks. */
	const char* Flags;
	const char* MetaKey;
	/** Value of the metadata; empty takes what is written behind "=". */
	const char* MetaValue;
};

enum class ESpecifierTarget
{
	Class,
	Struct,
	Enum,
	Function,
	Property,
};

/**
 * Turns specifiers (other than meta) into flags and metadata by the table of the target.
 *
 * @return The first specifier that the table does not know, null if it knows all.
 */
const FSpecifier* ApplySpecifiers(ESpecifierTarget Target, const std::vector<FSpecifier>& Specifiers,
	std::vector<std::string>& OutFlags, FMetaData& OutMetaData);

/** "UCLASS" and so on. */
const char* GetMacroName(ESpecifierTarget Target);

void SetMetaData(FMetaData& MetaData, const std::string& Key, const std::string& Value);
const std::string* FindMetaData(const FMetaData& MetaData, const std::string& Key);

/** The text of a comment, without its signs and the indentation that all its lines share. */
std::string FormatToolTip(const std::string& Comment);
