#include "ImageUtils.h"

#include <png.h>

#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogImageUtils, Log, All);

void FImageUtils::PNGCompressImageArray(
	int32 ImageWidth, int32 ImageHeight, const TArrayView64<const FColor>& SrcData, TArray64<uint8>& DstData)
{
	DstData.Empty();
	check(ImageWidth > 0 && ImageHeight > 0);
	check(SrcData.Num() == int64(ImageWidth) * ImageHeight);

	png_image Image = {};
	Image.version = PNG_IMAGE_VERSION;
	Image.width = static_cast<png_uint_32>(ImageWidth);
	Image.height = static_cast<png_uint_32>(ImageHeight);
	Image.format = PNG_FORMAT_BGRA;

	// Room for the largest file that these pixels can become.
	png_alloc_size_t Size = PNG_IMAGE_PNG_SIZE_MAX(Image);
	DstData.SetNumUninitialized(static_cast<int32>(Size));
	if (!png_image_write_to_memory(
			&Image, DstData.GetData(), &Size, /* convert_to_8_bit */ 0, SrcData.GetData(), /* row_stride */ 0, nullptr))
	{
		UE_LOG(LogImageUtils, Error, TEXT("A picture of %d x %d could not be compressed: %s"), ImageWidth, ImageHeight,
			*FString(Image.message));
		DstData.Empty();
		return;
	}
	DstData.SetNum(static_cast<int32>(Size));
}
