#include "Fonts/SlateFontInfo.h"

const FFontOutlineSettings FFontOutlineSettings::NoOutline;
