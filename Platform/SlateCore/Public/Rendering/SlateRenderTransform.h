#pragma once

#include "Math/TransformCalculus2D.h"

/** A transform that changes how a widget is painted and leaves its layout alone. */
typedef FTransform2D FSlateRenderTransform;
