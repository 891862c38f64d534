#pragma once

#include "CoreMinimal.h"

/** How the sizes of the parts of a splitter follow a dragged handle. */
namespace ESplitterResizeMode
{
enum Type : int
{
	/** The parts beside the handle change; all others keep their place. */
	FixedPosition,
	/** The parts behind the handle keep their size. */
	FixedSize,
	/** The parts behind the handle share what is left. */
	Fill,
};
}
