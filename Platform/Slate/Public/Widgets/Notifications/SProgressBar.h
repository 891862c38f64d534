#pragma once

// The ways in which a progress bar fills (EProgressBarFillType).
#include "Types/SlateEnums.h"
