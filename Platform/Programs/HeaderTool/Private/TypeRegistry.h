#pragma once

#include "Model.h"
#include "Tokenizer.h"

#include <map>
#include <string>
#include <string_view>

enum class ETypeKind
{
	Unknown,
	Bool,
	Integer,
	Float,
	String,
	Name,
	Text,
	Enum,
	/** An enumeration in a TEnumAsByte. */
	ByteEnum,
	Struct,
	Object,
	/** UClass* or TSubclassOf. */
	Class,
	Weak,
	Array,
	Set,
	Map,
};

/** A class, structure or enumeration of this module or of one that it imports. */
struct FKnownType
{
	ETypeKind Kind = ETypeKind::Unknown;
	std::string Include;
	/** Only of enumerations. */
	EEnumForm EnumForm = EEnumForm::EnumClass;
	std::string Underlying;
	std::string Api;
	/** Only of classes. */
	EConstructor Constructor = EConstructor::ObjectInitializer;
};

/**
 * All types that headers may use. A module's manifest is a text file with one line per type:
 *
 *	class UVelmoraData Velmora/VelmoraData.h Generated
 *	struct FVector UObject/NoExportTypes.h
 *	enum EDrawDebugTrace::Type Kismet/KismetSystemLibrary.h Namespaced - ENGINE_API
 */
class FTypeRegistry
{
public:
	/** Begins with what the object system itself declares. */
	FTypeRegistry();

	void AddModule(const FModuleInfo& Module);
	/** False with a message if the text is no manifest. */
	bool AddManifest(std::string_view Text, std::string& OutError);
	static std::string WriteManifest(const FModuleInfo& Module);

	/** Null if nobody declares it. */
	const FKnownType* Find(const std::string& Name) const;
	ETypeKind KindOf(const FTypeRef& Type) const;

private:
	std::map<std::string, FKnownType> Types;
};

/** Refuses what reflection cannot carry. One error per declaration at most. */
std::vector<FError> CheckModule(const FModuleInfo& Module, const FTypeRegistry& Registry);
