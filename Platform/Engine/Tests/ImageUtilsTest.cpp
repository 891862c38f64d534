#include "ImageUtils.h"

#include <png.h>

#include "LogCapture.h"

#include <gtest/gtest.h>

namespace
{
TArray<FColor> Decode(const TArray64<uint8>& File, int32& OutWidth, int32& OutHeight)
{
	png_image Image = {};
	Image.version = PNG_IMAGE_VERSION;
	EXPECT_TRUE(png_image_begin_read_from_memory(&Image, File.GetData(), SIZE_T(File.Num()))) << Image.message;
	Image.format = PNG_FORMAT_BGRA;
	OutWidth = int32(Image.width);
	OutHeight = int32(Image.height);

	TArray<FColor> Pixels;
	Pixels.SetNum(OutWidth * OutHeight);
	EXPECT_TRUE(png_image_finish_read(&Image, nullptr, Pixels.GetData(), 0, nullptr)) << Image.message;
	return Pixels;
}
}

TEST(ImageUtils, PngHoldsEveryPixelWithItsAlpha)
{
	const TArray<FColor> Pixels = {FColor(255, 0, 0, 255), FColor(0, 255, 0, 128), FColor(0, 0, 255, 1), FColor(10, 20, 30, 255),
		FColor(0, 0, 0, 255), FColor(255, 255, 255, 254)};

	TArray64<uint8> File;
	FImageUtils::PNGCompressImageArray(3, 2, Pixels, File);

	int32 Width = 0;
	int32 Height = 0;
	EXPECT_EQ(Decode(File, Width, Height), Pixels);
	EXPECT_EQ(Width, 3);
	EXPECT_EQ(Height, 2);
}

TEST(ImageUtilsDeathTest, NumberOfPixelsThatDoesNotFitIsFatal)
{
	const TArray<FColor> Pixels = {FColor(255, 0, 0, 255)};
	TArray64<uint8> File;
	EXPECT_DEATH(FImageUtils::PNGCompressImageArray(0, 0, {}, File), "ImageWidth > 0");
	EXPECT_DEATH(FImageUtils::PNGCompressImageArray(2, 1, Pixels, File), "SrcData.Num\\(\\) ==");
}
