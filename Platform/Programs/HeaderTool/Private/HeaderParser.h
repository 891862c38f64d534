#pragma once

#include "Model.h"
#include "Tokenizer.h"

#include <string_view>

/**
 * Reads what a header reflects.
 *
 * @param OutHeader  Has its File set; the rest is filled in.
 * @return False with OutError for the first thing that is not as it should be.
 */
bool ParseHeader(std::string_view Source, FHeaderInfo& OutHeader, FError& OutError);
