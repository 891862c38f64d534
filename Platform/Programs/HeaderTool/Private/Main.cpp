#include "GeneratedCode.h"
#include "HeaderParser.h"
#include "TypeRegistry.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

// HeaderTool --module <Name> --root <folder> --output <folder> [--api <MACRO>] [--imports <manifest>...] --headers <header>...
//
// Reads the reflected headers of one module and writes <Header>.generated.h, <Header>.gen.cpp, <Name>.init.gen.cpp and
// <Name>.manifest to the output folder. A file whose text is the same stays untouched.

namespace
{
struct FOptions
{
	std::map<std::string, std::vector<std::string>> Values;

	std::string Get(const std::string& Name) const
	{
		const auto It = Values.find(Name);
		return It == Values.end() || It->second.empty() ? std::string() : It->second.front();
	}

	const std::vector<std::string>& List(const std::string& Name) { return Values[Name]; }
};

bool ReadFile(const std::string& Path, std::string& OutText)
{
	std::ifstream File(Path, std::ios::binary);
	OutText.assign(std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>());
	return File.good() || File.eof();
}

bool WriteIfChanged(const std::string& Path, const std::string& Text)
{
	std::string OldText;
	if (std::filesystem::exists(Path) && ReadFile(Path, OldText) && OldText == Text)
	{
		return true;
	}
	std::ofstream File(Path, std::ios::binary | std::ios::trunc);
	File << Text;
	File.close();
	if (!File)
	{
		std::fprintf(
			stderr, "%s(1): Error: expected to be able to write the file, found that it cannot be written\n", Path.c_str());
	}
	return bool(File);
}

/** Sources include a header by its path below Public or Private, in a folder of its own below the root otherwise. */
std::string IncludePathOf(const std::string& ModulePath)
{
	for (const char* Folder : {"Public/", "Private/", "Classes/", "Tests/"})
	{
		if (ModulePath.rfind(Folder, 0) == 0)
		{
			return ModulePath.substr(std::string(Folder).size());
		}
	}
	return ModulePath;
}

bool ParseHeaders(const FOptions& Options, const std::vector<std::string>& Files, FModuleInfo& Module)
{
	bool bSuccess = true;
	for (const std::string& File : Files)
	{
		FHeaderInfo Header;
		Header.File = File;
		Header.ModulePath = std::filesystem::path(File).lexically_relative(Options.Get("root")).generic_string();
		Header.IncludePath = IncludePathOf(Header.ModulePath);
		std::string Source;
		FError Error{File, 1, "expected a header that can be read, found none"};
		if (!ReadFile(File, Source) || !ParseHeader(Source, Header, Error))
		{
			std::fprintf(stderr, "%s\n", Error.Format().c_str());
			bSuccess = false;
			continue;
		}
		const auto HasSameName = [&Header](const FHeaderInfo& Other)
		{
			return Other.BaseName() == Header.BaseName();
		};
		const auto Other = std::find_if(Module.Headers.begin(), Module.Headers.end(), HasSameName);
		if (Header.IsReflected() && Other != Module.Headers.end())
		{
			std::fprintf(stderr,
				"%s(1): Error: expected a name that no other reflected header of the module has, found that of %s\n",
				File.c_str(), Other->File.c_str());
			bSuccess = false;
		}
		if (Header.IsReflected())
		{
			Module.Headers.push_back(std::move(Header));
		}
	}
	return bSuccess;
}

bool ReadManifests(const std::vector<std::string>& Files, FTypeRegistry& Registry)
{
	for (const std::string& File : Files)
	{
		std::string Text;
		std::string Error = "expected a manifest that can be read, found none";
		if (!ReadFile(File, Text) || !Registry.AddManifest(Text, Error))
		{
			std::fprintf(stderr, "%s(1): Error: %s\n", File.c_str(), Error.c_str());
			return false;
		}
	}
	return true;
}

bool WriteModule(const FModuleInfo& Module, const FTypeRegistry& Registry, const std::string& Folder)
{
	bool bSuccess = true;
	for (const FHeaderInfo& Header : Module.Headers)
	{
		bSuccess &=
			WriteIfChanged(Folder + "/" + Header.BaseName() + ".generated.h", WriteGeneratedHeader(Module, Header, Registry));
		bSuccess &= WriteIfChanged(Folder + "/" + Header.BaseName() + ".gen.cpp", WriteGeneratedSource(Module, Header, Registry));
	}
	bSuccess &= WriteIfChanged(Folder + "/" + Module.Name + ".init.gen.cpp", WriteModuleSource(Module));
	return bSuccess && WriteIfChanged(Folder + "/" + Module.Name + ".manifest", FTypeRegistry::WriteManifest(Module));
}
}

int main(int ArgumentCount, char** Arguments)
{
	FOptions Options;
	std::string Name;
	for (int Index = 1; Index < ArgumentCount; ++Index)
	{
		const std::string Argument = Arguments[Index];
		if (Argument.rfind("--", 0) == 0)
		{
			Name = Argument.substr(2);
			Options.Values[Name];
		}
		else
		{
			Options.Values[Name].push_back(Argument);
		}
	}
	if (Options.Get("module").empty() || Options.Get("output").empty())
	{
		std::fprintf(stderr,
			"HeaderTool --module <Name> --root <folder> --output <folder> [--api <MACRO>] [--imports <manifest>...] --headers "
			"<header>...\n");
		return 1;
	}

	FModuleInfo Module;
	Module.Name = Options.Get("module");
	Module.Api = Options.Get("api");
	FTypeRegistry Registry;
	bool bSuccess = ReadManifests(Options.List("imports"), Registry);
	bSuccess &= ParseHeaders(Options, Options.List("headers"), Module);
	Registry.AddModule(Module);
	if (bSuccess)
	{
		for (const FError& Error : CheckModule(Module, Registry))
		{
			std::fprintf(stderr, "%s\n", Error.Format().c_str());
			bSuccess = false;
		}
	}
	if (!bSuccess)
	{
		return 1;
	}
	std::error_code Ignored;
	std::filesystem::create_directories(Options.Get("output"), Ignored);
	return WriteModule(Module, Registry, Options.Get("output")) ? 0 : 1;
}
