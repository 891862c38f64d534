#include "TypeRegistry.h"

#include "DefaultValues.h"
#include "Specifiers.h"

#include <set>
#include <sstream>

namespace
{
const std::map<std::string, ETypeKind> GCoreTypes = {
	{"bool", ETypeKind::Bool},
	{"int8", ETypeKind::Integer},
	{"int16", ETypeKind::Integer},
	{"int32", ETypeKind::Integer},
	{"int64", ETypeKind::Integer},
	{"uint8", ETypeKind::Integer},
	{"uint16", ETypeKind::Integer},
	{"uint32", ETypeKind::Integer},
	{"uint64", ETypeKind::Integer},
	{"float", ETypeKind::Float},
	{"double", ETypeKind::Float},
	{"FString", ETypeKind::String},
	{"FName", ETypeKind::Name},
	{"FText", ETypeKind::Text},
	{"TArray", ETypeKind::Array},
	{"TSet", ETypeKind::Set},
	{"TMap", ETypeKind::Map},
};

const std::map<std::string, const char*> GIntrinsicClasses = {
	{"UObject", "UObject/Object.h"},
	{"UPackage", "UObject/Package.h"},
	{"UField", "UObject/Class.h"},
	{"UStruct", "UObject/Class.h"},
	{"UScriptStruct", "UObject/Class.h"},
	{"UFunction", "UObject/Class.h"},
	{"UEnum", "UObject/Class.h"},
	{"UClass", "UObject/Class.h"},
};

/** What the visual scripting of the editor has no pin for. */
const std::set<std::string> GNoScriptTypes = {"int8", "int16", "uint16", "uint32", "uint64"};

const char* ConstructorText(EConstructor Constructor)
{
	return Constructor == EConstructor::Generated ? "Generated"
		: Constructor == EConstructor::Default	  ? "Default"
												  : "ObjectInitializer";
}

const char* FormText(EEnumForm Form)
{
	return Form == EEnumForm::EnumClass ? "EnumClass" : Form == EEnumForm::Namespaced ? "Namespaced" : "Regular";
}

std::string OrDash(const std::string& Text)
{
	return Text.empty() ? "-" : Text;
}

std::string DashOr(const std::string& Text)
{
	return Text == "-" ? std::string() : Text;
}

bool IsContainer(ETypeKind Kind)
{
	return Kind == ETypeKind::Array || Kind == ETypeKind::Set || Kind == ETypeKind::Map;
}

class FChecker
{
public:
	FChecker(const FTypeRegistry& InRegistry, std::vector<FError>& InErrors)
		: Registry(InRegistry)
		, Errors(InErrors)
	{
	}

	void CheckHeader(const FHeaderInfo& Header)
	{
		File = Header.File;
		for (const FClassInfo& Class : Header.Classes)
		{
			const FKnownType* const Super = Registry.Find(Class.Super);
			if (!Super || Super->Kind != ETypeKind::Object)
			{
				Fail(Class.Line, "'" + Class.Name + "': expected a UCLASS as parent, found '" + Class.Super + "'");
			}
			for (const FPropertyInfo& Property : Class.Properties)
			{
				CheckProperty(Property, Class.Name);
			}
			for (const FFunctionInfo& Function : Class.Functions)
			{
				CheckFunction(Function, Class.Name + "::" + Function.Name);
			}
		}
		for (const FStructInfo& Struct : Header.Structs)
		{
			const FKnownType* const Super = Registry.Find(Struct.Super);
			if (!Struct.Super.empty() && (!Super || Super->Kind != ETypeKind::Struct))
			{
				Fail(Struct.Line, "'" + Struct.Name + "': expected a USTRUCT as parent, found '" + Struct.Super + "'");
			}
			for (const FPropertyInfo& Property : Struct.Properties)
			{
				CheckProperty(Property, Struct.Name);
			}
		}
	}

private:
	void Fail(int Line, const std::string& Text) { Errors.push_back({File, Line, Text}); }

	void CheckProperty(const FPropertyInfo& Property, const std::string& Owner)
	{
		const std::string Place = "'" + Owner + "::" + Property.Name + "'";
		if (Property.Type.bReference)
		{
			Fail(Property.Line, Place + ": expected a value, found the reference '" + Property.Type.FullText() + "'");
			return;
		}
		CheckType(Property.Type, Property.Line, Place);
	}

	void CheckFunction(const FFunctionInfo& Function, const std::string& Name)
	{
		const bool bForScripts = Function.HasFlag("FUNC_BlueprintCallable");
		if (bForScripts && !FindMetaData(Function.MetaData, "Category"))
		{
			Fail(Function.Line, "'" + Name + "': expected a Category of a BlueprintCallable function, found none");
		}
		for (const FPropertyInfo& Parameter : Function.Parameters)
		{
			const std::string Place = "parameter '" + Parameter.Name + "' of '" + Name + "'";
			CheckParameter(Parameter.Type, Parameter.Line, Place, bForScripts);
			if (!Parameter.Default.empty() && !ConvertDefaultValue(Parameter.Type, Parameter.Default, Registry))
			{
				Fail(Parameter.Line,
					Place + ": expected a default value that can be told from its text, found '" + Parameter.Default + "'");
			}
		}
		if (Function.ReturnsValue())
		{
			CheckParameter(Function.ReturnType, Function.Line, "return value of '" + Name + "'", bForScripts);
		}
	}

	void CheckParameter(const FTypeRef& Type, int Line, const std::string& Place, bool bForScripts)
	{
		if (CheckType(Type, Line, Place) && bForScripts)
		{
			CheckScriptType(Type, Line, Place);
		}
	}

	void CheckScriptType(const FTypeRef& Type, int Line, const std::string& Place)
	{
		if (GNoScriptTypes.count(Type.Name))
		{
			Fail(Line, Place + ": expected a type that a BlueprintCallable function can have, found '" + Type.Name + "'");
			return;
		}
		for (const FTypeRef& Argument : Type.Arguments)
		{
			CheckScriptType(Argument, Line, Place);
		}
	}

	bool CheckType(const FTypeRef& Type, int Line, const std::string& Place)
	{
		const ETypeKind Kind = Registry.KindOf(Type);
		if (Kind == ETypeKind::Unknown)
		{
			Fail(Line, Place + ": expected " + Expectation(Type) + ", found '" + Type.ValueText() + "'");
			return false;
		}
		if (!IsContainer(Kind))
		{
			return true;
		}
		const size_t Wanted = Kind == ETypeKind::Map ? 2 : 1;
		if (Type.Arguments.size() != Wanted)
		{
			Fail(Line,
				Place + ": expected " + std::to_string(Wanted) + " type arguments of '" + Type.Name + "', found '" +
					Type.ValueText() + "'");
			return false;
		}
		for (const FTypeRef& Argument : Type.Arguments)
		{
			if (IsContainer(Registry.KindOf(Argument)))
			{
				Fail(Line, Place + ": expected no container inside of a container, found '" + Type.ValueText() + "'");
				return false;
			}
			if (!CheckType(Argument, Line, Place))
			{
				return false;
			}
		}
		if (Kind != ETypeKind::Array && Registry.KindOf(Type.Arguments[0]) == ETypeKind::Text)
		{
			Fail(Line, Place + ": expected a type with a hash as key, found '" + Type.ValueText() + "'");
			return false;
		}
		return true;
	}

	std::string Expectation(const FTypeRef& Type) const
	{
		const FKnownType* const Known = Registry.Find(Type.Name);
		if (Known && Known->Kind == ETypeKind::Object && !Type.bPointer)
		{
			return "a pointer to the class";
		}
		if (Type.bPointer)
		{
			return "a pointer to a UCLASS";
		}
		return "a core type, a UENUM, a USTRUCT or a pointer to a UCLASS";
	}

	const FTypeRegistry& Registry;
	std::vector<FError>& Errors;
	std::string File;
};
}

FTypeRegistry::FTypeRegistry()
{
	for (const auto& Pair : GIntrinsicClasses)
	{
		FKnownType Type;
		Type.Kind = ETypeKind::Object;
		Type.Include = Pair.second;
		Types[Pair.first] = Type;
	}
}

void FTypeRegistry::AddModule(const FModuleInfo& Module)
{
	std::string Error;
	AddManifest(WriteManifest(Module), Error);
}

std::string FTypeRegistry::WriteManifest(const FModuleInfo& Module)
{
	std::ostringstream Text;
	for (const FHeaderInfo& Header : Module.Headers)
	{
		for (const FClassInfo& Class : Header.Classes)
		{
			Text << "class " << Class.Name << " " << Header.IncludePath << " " << ConstructorText(Class.Constructor) << "\n";
		}
		for (const FStructInfo& Struct : Header.Structs)
		{
			Text << "struct " << Struct.Name << " " << Header.IncludePath << "\n";
		}
		for (const FEnumInfo& Enum : Header.Enums)
		{
			Text << "enum " << Enum.CppType() << " " << Header.IncludePath << " " << FormText(Enum.Form) << " "
				 << OrDash(Enum.Underlying) << " " << OrDash(Module.Api) << "\n";
		}
	}
	return Text.str();
}

bool FTypeRegistry::AddManifest(std::string_view Text, std::string& OutError)
{
	std::istringstream Lines{std::string(Text)};
	for (std::string Line; std::getline(Lines, Line);)
	{
		std::istringstream Words(Line);
		std::string Word;
		std::string Name;
		FKnownType Type;
		Words >> Word >> Name >> Type.Include;
		if (Word == "class")
		{
			Type.Kind = ETypeKind::Object;
			std::string Constructor;
			Words >> Constructor;
			Type.Constructor = Constructor == "Default" ? EConstructor::Default : EConstructor::ObjectInitializer;
		}
		else if (Word == "struct")
		{
			Type.Kind = ETypeKind::Struct;
		}
		else if (Word == "enum")
		{
			Type.Kind = ETypeKind::Enum;
			std::string Form;
			Words >> Form >> Type.Underlying >> Type.Api;
			Type.EnumForm = Form == "EnumClass" ? EEnumForm::EnumClass
				: Form == "Namespaced"			? EEnumForm::Namespaced
												: EEnumForm::Regular;
			Type.Underlying = DashOr(Type.Underlying);
			Type.Api = DashOr(Type.Api);
		}
		if (Type.Kind == ETypeKind::Unknown || !Words)
		{
			OutError = "expected class, struct or enum with its name and header, found '" + Line + "'";
			return false;
		}
		Types[Name] = Type;
	}
	return true;
}

const FKnownType* FTypeRegistry::Find(const std::string& Name) const
{
	const auto It = Types.find(Name);
	return It == Types.end() ? nullptr : &It->second;
}

ETypeKind FTypeRegistry::KindOf(const FTypeRef& Type) const
{
	const auto Core = GCoreTypes.find(Type.Name);
	if (Core != GCoreTypes.end())
	{
		return Type.bPointer ? ETypeKind::Unknown : Core->second;
	}
	if (Type.Arguments.size() == 1 && !Type.bPointer)
	{
		const FKnownType* const Inner = Find(Type.Arguments[0].Name);
		const ETypeKind InnerKind = Inner && !Type.Arguments[0].bPointer ? Inner->Kind : ETypeKind::Unknown;
		if (Type.Name == "TEnumAsByte")
		{
			return InnerKind == ETypeKind::Enum ? ETypeKind::ByteEnum : ETypeKind::Unknown;
		}
		if (InnerKind != ETypeKind::Object)
		{
			return ETypeKind::Unknown;
		}
		return Type.Name == "TSubclassOf"	? ETypeKind::Class
			: Type.Name == "TWeakObjectPtr" ? ETypeKind::Weak
			: Type.Name == "TObjectPtr"		? ETypeKind::Object
											: ETypeKind::Unknown;
	}
	const FKnownType* const Known = Find(Type.Name);
	if (!Known || !Type.Arguments.empty())
	{
		return ETypeKind::Unknown;
	}
	if (Known->Kind == ETypeKind::Object)
	{
		return !Type.bPointer ? ETypeKind::Unknown : Type.Name == "UClass" ? ETypeKind::Class : ETypeKind::Object;
	}
	return Type.bPointer ? ETypeKind::Unknown : Known->Kind;
}

std::vector<FError> CheckModule(const FModuleInfo& Module, const FTypeRegistry& Registry)
{
	std::vector<FError> Errors;
	FChecker Checker(Registry, Errors);
	for (const FHeaderInfo& Header : Module.Headers)
	{
		Checker.CheckHeader(Header);
	}
	return Errors;
}
