#pragma once

#include "Model.h"
#include "TypeRegistry.h"

#include <string>

/** Text of <Header>.generated.h: what GENERATED_BODY stands for in the classes and structures of the header. */
std::string WriteGeneratedHeader(const FModuleInfo& Module, const FHeaderInfo& Header, const FTypeRegistry& Registry);

/** Text of <Header>.gen.cpp: thunks, descriptions and registration of the header's types. */
std::string WriteGeneratedSource(const FModuleInfo& Module, const FHeaderInfo& Header, const FTypeRegistry& Registry);

/** Text of <Module>.init.gen.cpp, which takes in the sources of all reflected headers. */
std::string WriteModuleSource(const FModuleInfo& Module);
