#pragma once

#include "UObject/UnrealType.h"
