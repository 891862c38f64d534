#pragma once

#include "UObject/ObjectMacros.h"
#include "UObject/Stack.h"
