#pragma once

#include <map>
#include <string>
#include <vector>

/** Key and value in the order of writing. */
using FMetaData = std::vector<std::pair<std::string, std::string>>;

/** A type as a header spells it. */
struct FTypeRef
{
	/** With its qualification: "EColour::Type". */
	std::string Name;
	std::vector<FTypeRef> Arguments;
	bool bConst = false;
	/** The object that is pointed to is const. */
	bool bPointer = false;
	bool bReference = false;

	/** C++ without const and reference at the top. */
	std::string ValueText() const;
	/** All of it. */
	std::string FullText() const;
};

struct FPropertyInfo
{
	/** Without the "_DEPRECATED" that C++ shows. */
	std::string Name;
	FTypeRef Type;
	int Line = 0;
	/** "CPF_Edit" and so on. */
	std::vector<std::string> Flags;
	FMetaData MetaData;
	/** Text of a C array's length, empty for a single value. */
	std::string ArrayDim;
	bool bBitField = false;
	/** Source of the default value of a parameter, empty if it has none. */
	std::string Default;

	bool HasFlag(const std::string& Flag) const;
	std::string CppName() const { return HasFlag("CPF_Deprecated") ? Name + "_DEPRECATED" : Name; }
};

struct FFunctionInfo
{
	std::string Name;
	int Line = 0;
	std::vector<std::string> Flags;
	FMetaData MetaData;
	std::vector<FPropertyInfo> Parameters;
	/** Name "void" if nothing is returned. */
	FTypeRef ReturnType;
	bool bStatic = false;
	bool bConst = false;

	bool HasFlag(const std::string& Flag) const;
	bool ReturnsValue() const { return ReturnType.Name != "void" || ReturnType.bPointer; }
};

/** Which constructors a class has, seen from a class derived from it. */
enum class EConstructor
{
	/** The tool writes it; it takes an object initializer. */
	Generated,
	ObjectInitializer,
	Default,
};

struct FClassInfo
{
	std::string Name;
	std::string Super;
	std::string Api;
	int Line = 0;
	int BodyLine = 0;
	bool bLegacyBody = false;
	bool bMinimalApi = false;
	EConstructor Constructor = EConstructor::Generated;
	std::vector<std::string> Flags;
	std::string ConfigName;
	FMetaData MetaData;
	std::vector<FFunctionInfo> Functions;
	std::vector<FPropertyInfo> Properties;
};

struct FStructInfo
{
	std::string Name;
	std::string Super;
	int Line = 0;
	int BodyLine = 0;
	bool bNoExport = false;
	std::vector<std::string> Flags;
	FMetaData MetaData;
	std::vector<FPropertyInfo> Properties;
};

struct FEnumEntryInfo
{
	std::string Name;
	FMetaData MetaData;
};

enum class EEnumForm
{
	Regular,
	Namespaced,
	EnumClass,
};

struct FEnumInfo
{
	/** Without "::Type". */
	std::string Name;
	int Line = 0;
	EEnumForm Form = EEnumForm::EnumClass;
	/** Empty if it is not written down. */
	std::string Underlying;
	/** The enum's own name within its namespace. */
	std::string InnerName;
	std::vector<FEnumEntryInfo> Entries;
	FMetaData MetaData;

	std::string CppType() const { return Form == EEnumForm::Namespaced ? Name + "::" + InnerName : Name; }
};

struct FHeaderInfo
{
	/** As given on the command line; errors use it. */
	std::string File;
	/** As sources include it: "Velmora/VelmoraData.h". */
	std::string IncludePath;
	/** Within the module: "Private/Velmora/VelmoraData.h". */
	std::string ModulePath;
	bool bIncludesGenerated = false;
	std::vector<FClassInfo> Classes;
	std::vector<FStructInfo> Structs;
	std::vector<FEnumInfo> Enums;

	bool IsReflected() const { return !Classes.empty() || !Structs.empty() || !Enums.empty(); }
	/** "VelmoraData" */
	std::string BaseName() const;
};

struct FModuleInfo
{
	std::string Name;
	/** "KESTRIX_API", empty for a program. */
	std::string Api;
	std::vector<FHeaderInfo> Headers;

	std::string Package() const { return "/Script/" + Name; }
};
