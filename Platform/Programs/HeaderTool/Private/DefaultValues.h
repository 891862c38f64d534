#pragma once

#include "TypeRegistry.h"

#include <optional>
#include <string>

/**
 * Turns a C++ default value into the text of the metadata CPP_Default_<Parameter>, in the formats that the editor's readers know:
 * "1.000000" for a float, "true", "None" for a name or null pointer, "(X=0.000,Y=0.000)" for FVector2D, "1.000000,2.000000,3.000000"
 * for FVector and FRotator, "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" for FLinearColor, an enumeration's entry without its type.
 *
 * @return Nothing for a value that cannot be told without running C++.
 */
std::optional<std::string> ConvertDefaultValue(const FTypeRef& Type, const std::string& Source, const FTypeRegistry& Registry);
