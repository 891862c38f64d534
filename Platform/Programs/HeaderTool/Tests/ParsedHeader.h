#pragma once

#include "GeneratedCode.h"
#include "HeaderParser.h"
#include "TypeRegistry.h"

/** A module "Game" of one header "Public/Things/Thing.h" with the given text; complaints are kept as the tool prints them. */
struct FParsedHeader
{
	explicit FParsedHeader(const std::string& Source)
	{
		FHeaderInfo Header;
		Header.File = "/Game/Public/Things/Thing.h";
		Header.ModulePath = "Public/Things/Thing.h";
		Header.IncludePath = "Things/Thing.h";
		std::string Unused;
		Registry.AddManifest(
			"struct FVector UObject/NoExportTypes.h\nstruct FVector2D UObject/NoExportTypes.h\nstruct FRotator "
			"UObject/NoExportTypes.h\n"
			"struct FLinearColor UObject/NoExportTypes.h\nstruct FGuid UObject/NoExportTypes.h\n"
			"class UOther Other/Other.h ObjectInitializer\nenum EOther::Type Other/Other.h Namespaced - OTHER_API\n",
			Unused);
		Module.Name = "Game";
		Module.Api = "GAME_API";
		FError Error;
		if (!ParseHeader(Source, Header, Error))
		{
			Errors.push_back(Error.Format());
			return;
		}
		Module.Headers.push_back(Header);
		Registry.AddModule(Module);
		for (const FError& CheckError : CheckModule(Module, Registry))
		{
			Errors.push_back(CheckError.Format());
		}
	}

	const FHeaderInfo& Header() const { return Module.Headers.front(); }
	std::string GeneratedHeader() const { return WriteGeneratedHeader(Module, Header(), Registry); }
	std::string GeneratedSource() const { return WriteGeneratedSource(Module, Header(), Registry); }

	FModuleInfo Module;
	FTypeRegistry Registry;
	std::vector<std::string> Errors;
};
