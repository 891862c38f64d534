#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Math/Color.h"

/** Pictures in memory as the bytes of image files. */
class ENGINE_API FImageUtils
{
public:
	/**
	 * Makes a PNG file of 8 bits for each of the four channels.
	 *
	 * @param SrcData  ImageWidth * ImageHeight pixels, top row first.
	 * @param DstData  The bytes of the file; empty, with a log line, if there is no pixel, or another number of them.
	 */
	static void PNGCompressImageArray(
		int32 ImageWidth, int32 ImageHeight, const TArrayView64<const FColor>& SrcData, TArray64<uint8>& DstData);
};
