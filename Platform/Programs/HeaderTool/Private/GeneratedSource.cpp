#include "GeneratedCode.h"

#include "DefaultValues.h"
#include "Specifiers.h"

#include <cstdio>
#include <set>
#include <sstream>

namespace
{
std::string CStringLiteral(const std::string& Text)
{
	std::string Literal = "\"";
	for (const char Sign : Text)
	{
		switch (Sign)
		{
			case '\n':
				Literal += "\\n";
				break;
			case '\t':
				Literal += "\\t";
				break;
			case '\r':
				break;
			case '"':
			case '\\':
				Literal += '\\';
				Literal += Sign;
				break;
			default:
				Literal += Sign;
		}
	}
	return Literal + "\"";
}

std::string JoinFlags(const std::vector<std::string>& Flags, const char* None)
{
	std::string Text;
	for (const std::string& Flag : Flags)
	{
		Text += (Text.empty() ? "" : " | ") + Flag;
	}
	return Text.empty() ? None : Text;
}

/** "UVelmoraData" as "VelmoraData". */
std::string WithoutPrefix(const std::string& Name)
{
	return Name.substr(1);
}

class FSourceWriter
{
public:
	FSourceWriter(const FModuleInfo& InModule, const FHeaderInfo& InHeader, const FTypeRegistry& InRegistry)
		: Module(InModule)
		, Header(InHeader)
		, Registry(InRegistry)
	{
	}

	std::string Write()
	{
		Out << "// Written by HeaderTool from " << Header.ModulePath << ". Changes here are lost.\n\n";
		WriteIncludes();
		for (const FEnumInfo& Enum : Header.Enums)
		{
			WriteEnum(Enum);
		}
		for (const FStructInfo& Struct : Header.Structs)
		{
			WriteStruct(Struct);
		}
		for (const FClassInfo& Class : Header.Classes)
		{
			WriteClass(Class);
		}
		return Out.str();
	}

private:
	// What the source needs to see

	void CollectType(const FTypeRef& Type)
	{
		const FKnownType* const Known = Registry.Find(Type.Name);
		if (Known)
		{
			Includes.insert(Known->Include);
			if (Known->Kind == ETypeKind::Enum && Known->EnumForm != EEnumForm::EnumClass)
			{
				EnumDeclarations.insert(
					"template <>\n" + (Known->Api.empty() ? "" : Known->Api + " ") + "UEnum* StaticEnum<" + Type.Name + ">();\n");
			}
		}
		for (const FTypeRef& Argument : Type.Arguments)
		{
			CollectType(Argument);
		}
	}

	void WriteIncludes()
	{
		for (const FStructInfo& Struct : Header.Structs)
		{
			for (const FPropertyInfo& Property : Struct.Properties)
			{
				CollectType(Property.Type);
			}
		}
		for (const FClassInfo& Class : Header.Classes)
		{
			for (const FPropertyInfo& Property : Class.Properties)
			{
				CollectType(Property.Type);
			}
			for (const FFunctionInfo& Function : Class.Functions)
			{
				CollectType(Function.ReturnType);
				for (const FPropertyInfo& Parameter : Function.Parameters)
				{
					CollectType(Parameter.Type);
				}
			}
		}
		Includes.erase(Header.IncludePath);

		Out << "#include \"" << Header.IncludePath << "\"\n\n#include \"UObject/GeneratedCppIncludes.h\"\n";
		for (const std::string& Include : Includes)
		{
			Out << "#include \"" << Include << "\"\n";
		}
		Out << "\n";
		for (const std::string& Declaration : EnumDeclarations)
		{
			Out << Declaration << "\n";
		}
	}

	// Lists

	/** A static array of metadata, and its name; "{}" if there is none. */
	std::string WriteMetaData(const std::string& Name, const FMetaData& MetaData)
	{
		if (MetaData.empty())
		{
			return "{}";
		}
		Out << "\t\tstatic const FMetaDataPair " << Name << "[] = {\n";
		for (const auto& Pair : MetaData)
		{
			Out << "\t\t\t{ " << CStringLiteral(Pair.first) << ", " << CStringLiteral(Pair.second) << " },\n";
		}
		Out << "\t\t};\n";
		return Name;
	}

	/** A static array of the properties of a type, and its name; "{}" if there is none. */
	std::string WriteProperties(const std::string& Name, const std::string& Owner, const std::vector<FPropertyInfo>& Properties)
	{
		if (Properties.empty())
		{
			return "{}";
		}
		std::vector<std::string> MetaData;
		for (const FPropertyInfo& Property : Properties)
		{
			MetaData.push_back(WriteMetaData(Name + "_" + Property.Name + "_MetaData", Property.MetaData));
		}
		Out << "\t\tstatic const FPropertyParams " << Name << "[] = {\n";
		for (size_t Index = 0; Index < Properties.size(); ++Index)
		{
			const FPropertyInfo& Property = Properties[Index];
			const std::string Offset = Property.bBitField ? "0" : "STRUCT_OFFSET(" + Owner + ", " + Property.CppName() + ")";
			Out << "\t\t\t{ " << CStringLiteral(Property.Name) << ", &NewProperty<"
				<< (Property.bBitField ? "bool" : Property.Type.ValueText()) << ">, " << Offset << ", "
				<< JoinFlags(Property.Flags, "CPF_None") << ", " << MetaData[Index];
			if (Property.bBitField)
			{
				Out << ", 1, sizeof(" << Property.Type.Name << "), [](void* Container) { static_cast<" << Owner
					<< "*>(Container)->" << Property.CppName() << " = 1; }";
			}
			else if (!Property.ArrayDim.empty())
			{
				Out << ", " << Property.ArrayDim;
			}
			Out << " },\n";
		}
		Out << "\t\t};\n";
		return Name;
	}

	FMetaData WithModulePath(FMetaData MetaData) const
	{
		SetMetaData(MetaData, "ModuleRelativePath", Header.ModulePath);
		return MetaData;
	}

	/** The function that makes the type at its first call, and the static that has it called. */
	void WriteAccessor(const std::string& Type, const std::string& Template, const std::string& Function,
		const std::string& Statics, const std::string& Name)
	{
		Out << Template << Type << "* " << Function << "()\n{\n";
		Out << "\tstatic " << Type << "* Result = nullptr;\n";
		Out << "\treturn Result ? Result : " << Statics << "::Construct(Result);\n}\n\n";
		Out << "static const UECodeGen::FAutoRegister AutoRegister_" << Name << "(&" << Function << ");\n\n";
	}

	// Enumerations

	void WriteEnum(const FEnumInfo& Enum)
	{
		const std::string Statics = "Z_Construct_UEnum_" + Enum.Name + "_Statics";
		const char* const Form = Enum.Form == EEnumForm::EnumClass ? "EnumClass"
			: Enum.Form == EEnumForm::Namespaced				   ? "Namespaced"
																   : "Regular";
		const std::string Scope = Enum.Form == EEnumForm::Regular ? "" : Enum.Name + "::";
		Out << "struct " << Statics << "\n{\n\tstatic UEnum* Construct(UEnum*& OutEnum)\n\t{\n\t\tusing namespace UECodeGen;\n\n";
		std::vector<std::string> EntryMetaData;
		for (const FEnumEntryInfo& Entry : Enum.Entries)
		{
			EntryMetaData.push_back(WriteMetaData(Entry.Name + "_MetaData", Entry.MetaData));
		}
		Out << "\t\tstatic const FEnumEntry Entries[] = {\n";
		for (size_t Index = 0; Index < Enum.Entries.size(); ++Index)
		{
			const std::string& Name = Enum.Entries[Index].Name;
			Out << "\t\t\t{ " << CStringLiteral(Name) << ", static_cast<int64>(" << Scope << Name << "), " << EntryMetaData[Index]
				<< " },\n";
		}
		Out << "\t\t};\n";
		const std::string MetaData = WriteMetaData("MetaData", WithModulePath(Enum.MetaData));
		Out << "\t\tstatic const FEnumParams Enum = { " << CStringLiteral(Module.Package()) << ", " << CStringLiteral(Enum.Name)
			<< ", " << CStringLiteral(Enum.CppType()) << ", UEnum::ECppForm::" << Form << ", Entries, " << MetaData << " };\n";
		Out << "\t\treturn ConstructEnum(OutEnum, Enum);\n\t}\n};\n\n";
		WriteAccessor("UEnum", "template <>\n", "StaticEnum<" + Enum.CppType() + ">", Statics, Enum.Name);
	}

	// Structures

	void WriteStruct(const FStructInfo& Struct)
	{
		const std::string Statics = "Z_Construct_UScriptStruct_" + Struct.Name + "_Statics";
		Out << "struct " << Statics
			<< "\n{\n\tstatic UScriptStruct* Construct(UScriptStruct*& OutStruct)\n\t{\n\t\tusing namespace UECodeGen;\n\n";
		const std::string Properties = WriteProperties("Properties", Struct.Name, Struct.Properties);
		const std::string MetaData = WriteMetaData("MetaData", WithModulePath(Struct.MetaData));
		const std::string Super = Struct.Super.empty() ? "nullptr" : "&TBaseStructure<" + Struct.Super + ">::Get";
		Out << "\t\tstatic const FStructParams Struct = { " << CStringLiteral(Module.Package()) << ", "
			<< CStringLiteral(WithoutPrefix(Struct.Name)) << ", " << Super << ", " << JoinFlags(Struct.Flags, "STRUCT_NoFlags")
			<< ", TCppStructOps<" << Struct.Name << ">::Get(), " << Properties << ", " << MetaData << " };\n";
		Out << "\t\treturn ConstructStruct(OutStruct, Struct);\n\t}\n};\n\n";
		const std::string Function =
			Struct.bNoExport ? "TBaseStructure<" + Struct.Name + ">::Get" : Struct.Name + "::StaticStruct";
		WriteAccessor("UScriptStruct", "", Function, Statics, Struct.Name);
	}

	// Classes

	/** Parameters with their defaults noted, and the return value behind them. */
	std::vector<FPropertyInfo> BlockOf(const FFunctionInfo& Function) const
	{
		std::vector<FPropertyInfo> Block = Function.Parameters;
		if (Function.ReturnsValue())
		{
			FPropertyInfo ReturnValue;
			ReturnValue.Name = "ReturnValue";
			ReturnValue.Type = Function.ReturnType;
			ReturnValue.Flags = {"CPF_Parm", "CPF_OutParm", "CPF_ReturnParm"};
			if (Function.ReturnType.bConst)
			{
				ReturnValue.Flags.push_back("CPF_ConstParm");
			}
			Block.push_back(ReturnValue);
		}
		return Block;
	}

	FMetaData MetaDataOf(const FFunctionInfo& Function) const
	{
		FMetaData MetaData = Function.MetaData;
		for (const FPropertyInfo& Parameter : Function.Parameters)
		{
			if (!Parameter.Default.empty())
			{
				SetMetaData(MetaData, "CPP_Default_" + Parameter.Name,
					ConvertDefaultValue(Parameter.Type, Parameter.Default, Registry).value_or(""));
			}
		}
		return WithModulePath(MetaData);
	}

	/** The packed block that ProcessEvent takes. */
	void WriteBlock(const FFunctionInfo& Function)
	{
		Out << "\tstruct " << Function.Name << "_Parms\n\t{\n";
		for (const FPropertyInfo& Property : BlockOf(Function))
		{
			Out << "\t\t" << Property.Type.ValueText() << " " << Property.Name << ";\n";
		}
		Out << "\t};\n\n";
	}

	void WriteThunk(const FClassInfo& Class, const FFunctionInfo& Function, const std::string& Statics)
	{
		const bool bHasBlock = !BlockOf(Function).empty();
		Out << "DEFINE_FUNCTION(" << Class.Name << "::exec" << Function.Name << ")\n{\n";
		if (bHasBlock)
		{
			Out << "\tauto& Parms = *reinterpret_cast<" << Statics << "::" << Function.Name << "_Parms*>(Stack.Locals);\n";
		}
		const std::string Receiver = Function.bStatic ? Class.Name + "::" : "static_cast<" + Class.Name + "*>(Context)->";
		Out << "\t" << (Function.ReturnsValue() ? "Parms.ReturnValue = " : "") << Receiver << Function.Name << "(";
		for (const FPropertyInfo& Parameter : Function.Parameters)
		{
			Out << (&Parameter == &Function.Parameters.front() ? "" : ", ") << "Parms." << Parameter.Name;
		}
		Out << ");\n}\n\n";
	}

	std::string WriteFunctions(const FClassInfo& Class)
	{
		if (Class.Functions.empty())
		{
			return "{}";
		}
		std::ostringstream Rows;
		for (const FFunctionInfo& Function : Class.Functions)
		{
			const std::string Block = Function.Name + "_Parms";
			const bool bHasBlock = !BlockOf(Function).empty();
			const std::string Properties = WriteProperties(Function.Name + "_Properties", Block, BlockOf(Function));
			const std::string MetaData = WriteMetaData(Function.Name + "_MetaData", MetaDataOf(Function));
			Rows << "\t\t\t{ " << CStringLiteral(Function.Name) << ", &" << Class.Name << "::exec" << Function.Name << ", "
				 << JoinFlags(Function.Flags, "FUNC_None") << ", " << (bHasBlock ? "sizeof(" + Block + ")" : "0") << ", "
				 << (bHasBlock ? "alignof(" + Block + ")" : "1") << ", " << Properties << ", " << MetaData << " },\n";
		}
		Out << "\t\tstatic const FFunctionParams Functions[] = {\n" << Rows.str() << "\t\t};\n";
		return "Functions";
	}

	void WriteClass(const FClassInfo& Class)
	{
		const std::string Statics = "Z_Construct_UClass_" + Class.Name + "_Statics";
		Out << "struct " << Statics << "\n{\n";
		for (const FFunctionInfo& Function : Class.Functions)
		{
			if (!BlockOf(Function).empty())
			{
				WriteBlock(Function);
			}
		}
		Out << "\tstatic UClass* Construct(UClass*& OutClass)\n\t{\n\t\tusing namespace UECodeGen;\n\n";
		const std::string Functions = WriteFunctions(Class);
		const std::string Properties = WriteProperties("Properties", Class.Name, Class.Properties);
		FMetaData ClassMetaData = Class.MetaData;
		SetMetaData(ClassMetaData, "IncludePath", Header.IncludePath);
		const std::string MetaData = WriteMetaData("MetaData", WithModulePath(ClassMetaData));
		std::vector<std::string> Flags = Class.Flags;
		Flags.push_back("CLASS_Native");
		if (!Class.Api.empty())
		{
			Flags.push_back("CLASS_RequiredAPI");
		}
		Out << "\t\tstatic const FClassParams Class = { " << CStringLiteral(Module.Package()) << ", "
			<< CStringLiteral(WithoutPrefix(Class.Name)) << ", &" << Class.Super << "::StaticClass, "
			<< JoinFlags(Flags, "CLASS_None") << ", sizeof(" << Class.Name << "), alignof(" << Class.Name << "), &" << Class.Name
			<< "::__DefaultConstructor, &" << Class.Name << "::AddReferencedObjects, " << Functions << ", " << Properties << ", "
			<< MetaData;
		if (!Class.ConfigName.empty())
		{
			Out << ", " << CStringLiteral(Class.ConfigName);
		}
		Out << " };\n\t\treturn ConstructClass(OutClass, Class);\n\t}\n};\n\n";
		for (const FFunctionInfo& Function : Class.Functions)
		{
			WriteThunk(Class, Function, Statics);
		}
		WriteAccessor("UClass", "", Class.Name + "::StaticClass", Statics, Class.Name);
	}

	const FModuleInfo& Module;
	const FHeaderInfo& Header;
	const FTypeRegistry& Registry;
	std::ostringstream Out;
	std::set<std::string> Includes;
	std::set<std::string> EnumDeclarations;
};
}

std::string WriteGeneratedSource(const FModuleInfo& Module, const FHeaderInfo& Header, const FTypeRegistry& Registry)
{
	std::string Text = FSourceWriter(Module, Header, Registry).Write();
	Text.erase(Text.find_last_not_of('\n') + 2);
	return Text;
}

std::string WriteModuleSource(const FModuleInfo& Module)
{
	std::string Text = "// Written by HeaderTool for module " + Module.Name + ". Changes here are lost.\n\n";
	for (const FHeaderInfo& Header : Module.Headers)
	{
		if (Header.IsReflected())
		{
			Text += "#include \"" + Header.BaseName() + ".gen.cpp\"\n";
		}
	}
	return Text;
}
