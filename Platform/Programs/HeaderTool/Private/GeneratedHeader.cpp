#include "GeneratedCode.h"

#include <cctype>
#include <sstream>

namespace
{
/** "Kestrix_VelmoraData_h": differs between the headers of a program, and begins the names of its macros. */
std::string FileId(const FModuleInfo& Module, const FHeaderInfo& Header)
{
	std::string Id = Module.Name + "_" + Header.IncludePath;
	for (char& Sign : Id)
	{
		Sign = std::isalnum(static_cast<unsigned char>(Sign)) ? Sign : '_';
	}
	return Id;
}

/** Collects the lines of a macro and joins them with backslashes. */
class FMacro
{
public:
	explicit FMacro(const std::string& Name)
		: Text("#define " + Name)
	{
	}

	void Add(const std::string& Line) { Text += " \\\n\t" + Line; }
	std::string Finish() const { return Text + "\n"; }

private:
	std::string Text;
};

std::string ApiPrefix(const FModuleInfo& Module)
{
	return Module.Api.empty() ? std::string() : Module.Api + " ";
}

std::string WriteClassBody(
	const FModuleInfo& Module, const FHeaderInfo& Header, const FClassInfo& Class, const FTypeRegistry& Registry)
{
	FMacro Macro(FileId(Module, Header) + "_" + std::to_string(Class.BodyLine) +
		(Class.bLegacyBody ? "_GENERATED_BODY_LEGACY" : "_GENERATED_BODY"));
	if (Class.bMinimalApi && !Module.Api.empty())
	{
		Macro.Add("DECLARE_CLASS_MINIMAL_API(" + Class.Name + ", " + Class.Super + ", " + Module.Api + ")");
	}
	else
	{
		Macro.Add("DECLARE_CLASS(" + Class.Name + ", " + Class.Super + ")");
	}
	if (Class.bLegacyBody)
	{
		Macro.Add(ApiPrefix(Module) + "explicit " + Class.Name +
			"(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());");
	}
	else if (Class.Constructor == EConstructor::Generated)
	{
		const FKnownType* const Super = Registry.Find(Class.Super);
		const bool bPassOn = !Super || Super->Constructor != EConstructor::Default;
		Macro.Add("explicit " + Class.Name + "(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())");
		Macro.Add(bPassOn ? "\t: Super(ObjectInitializer)" : "\t: Super()");
		Macro.Add("{");
		Macro.Add("}");
	}
	Macro.Add((Class.Constructor == EConstructor::Default ? "DEFINE_DEFAULT_CONSTRUCTOR_CALL("
														  : "DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(") +
		Class.Name + ")");
	Macro.Add("friend struct Z_Construct_UClass_" + Class.Name + "_Statics;");
	for (const FFunctionInfo& Function : Class.Functions)
	{
		Macro.Add("DECLARE_FUNCTION(exec" + Function.Name + ");");
	}
	if (!Class.bLegacyBody)
	{
		Macro.Add("private:");
	}
	return Macro.Finish();
}

std::string WriteStructBody(const FModuleInfo& Module, const FHeaderInfo& Header, const FStructInfo& Struct)
{
	FMacro Macro(FileId(Module, Header) + "_" + std::to_string(Struct.BodyLine) + "_GENERATED_BODY");
	if (!Struct.Super.empty())
	{
		Macro.Add("using Super = " + Struct.Super + ";");
	}
	Macro.Add("friend struct Z_Construct_UScriptStruct_" + Struct.Name + "_Statics;");
	Macro.Add(ApiPrefix(Module) + "static UScriptStruct* StaticStruct();");
	return Macro.Finish();
}
}

std::string WriteGeneratedHeader(const FModuleInfo& Module, const FHeaderInfo& Header, const FTypeRegistry& Registry)
{
	std::ostringstream Text;
	const std::string Guard = FileId(Module, Header) + "_GENERATED";
	Text << "// Written by HeaderTool from " << Header.ModulePath << ". Changes here are lost.\n\n";
	Text << "#ifdef " << Guard << "\n#error \"" << Header.BaseName() << ".generated.h is included twice: add '#pragma once' to "
		 << Header.BaseName() << ".h\"\n#endif\n#define " << Guard << "\n\n";
	Text << "#include \"UObject/ReflectedTypeAccessors.h\"\n#include \"UObject/UObjectGlobals.h\"\n\n";
	for (const FClassInfo& Class : Header.Classes)
	{
		Text << WriteClassBody(Module, Header, Class, Registry) << "\n";
	}
	for (const FStructInfo& Struct : Header.Structs)
	{
		if (!Struct.bNoExport)
		{
			Text << WriteStructBody(Module, Header, Struct) << "\n";
		}
	}
	for (const FEnumInfo& Enum : Header.Enums)
	{
		// The other forms cannot be declared ahead.
		if (Enum.Form == EEnumForm::EnumClass)
		{
			Text << "enum class " << Enum.Name << (Enum.Underlying.empty() ? "" : " : " + Enum.Underlying) << ";\n";
			Text << "template <>\n" << ApiPrefix(Module) << "UEnum* StaticEnum<" << Enum.Name << ">();\n\n";
		}
	}
	Text << "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " << FileId(Module, Header) << "\n";
	return Text.str();
}
