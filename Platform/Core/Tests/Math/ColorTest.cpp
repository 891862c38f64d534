#include "Math/Color.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "Printers.h"

// Colours are linear: (0.5, 0.5, 0.5) shows as about 188 of 255.
TEST(Color, HalfTheLightShowsAs188)
{
	EXPECT_EQ(FLinearColor(0.5f, 0.5f, 0.5f).ToFColor(true), FColor(188, 188, 188, 255));
	EXPECT_EQ(FLinearColor(0.5f, 0.5f, 0.5f, 0.5f).ToFColor(false), FColor(128, 128, 128, 128));
}

// FLinearColor(FColor) decodes sRGB, ToFColor(true) encodes it.
TEST(Color, EncodingUndoesDecodingForEveryByte)
{
	for (int32 Byte = 0; Byte < 256; ++Byte)
	{
		const FColor Color(uint8(Byte), 0, uint8(255 - Byte), uint8(Byte));
		EXPECT_EQ(FLinearColor(Color).ToFColor(true), Color);
		EXPECT_EQ(Color.ReinterpretAsLinear().ToFColor(false), Color);
	}
	EXPECT_NEAR(FLinearColor(FColor(188, 0, 0)).R, 0.5f, 0.003f);
}

// In memory FColor is B, G, R, A.
TEST(Color, LiesInMemoryAsBlueGreenRedAlpha)
{
	const FColor Color(1, 2, 3, 4);
	const uint8 Expected[] = {3, 2, 1, 4};
	EXPECT_EQ(std::memcmp(&Color, Expected, 4), 0);
	EXPECT_EQ(Color.ToPackedARGB(), 0x04010203u);
	EXPECT_EQ(FColor(0x04010203u), Color);
}

TEST(Color, ClampsWhatABytesCannotHold)
{
	EXPECT_EQ(FLinearColor(-1.0f, 2.0f, HUGE_VALF, std::nanf("")).ToFColor(true), FColor(0, 255, 255, 0));
}

TEST(Color, ReadsHexadecimalDigits)
{
	EXPECT_EQ(FColor::FromHex(TEXT("#F80")), FColor(255, 136, 0));
	EXPECT_EQ(FColor::FromHex(TEXT("ff8000")), FColor(255, 128, 0));
	EXPECT_EQ(FColor::FromHex(TEXT("#01020304")), FColor(1, 2, 3, 4));
	EXPECT_EQ(FColor::FromHex(TEXT("12345")), FColor(0, 0, 0, 0));
	EXPECT_EQ(FColor(1, 2, 3, 4).ToHex(), TEXT("01020304"));
}

TEST(Color, PrintsItsChannels)
{
	EXPECT_EQ(FLinearColor(1.0f, 0.5f, 0.0f).ToString(), TEXT("(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"));
	EXPECT_EQ(FColor(1, 2, 3).ToString(), TEXT("(R=1,G=2,B=3,A=255)"));
}

TEST(Color, ConvertsHueSaturationAndValue)
{
	EXPECT_EQ(FLinearColor(0.0f, 1.0f, 1.0f).HSVToLinearRGB(), FLinearColor::Red);
	EXPECT_EQ(FLinearColor(120.0f, 1.0f, 1.0f).HSVToLinearRGB(), FLinearColor::Green);
	EXPECT_EQ(FLinearColor(240.0f, 1.0f, 0.5f, 0.25f).HSVToLinearRGB(), FLinearColor(0.0f, 0.0f, 0.5f, 0.25f));
	EXPECT_EQ(FLinearColor::Yellow.LinearRGBToHSV(), FLinearColor(60.0f, 1.0f, 1.0f));
	EXPECT_EQ(FLinearColor::Gray.LinearRGBToHSV(), FLinearColor(0.0f, 0.0f, 0.5f));
}

TEST(Color, HueSurvivesTheWayThereAndBack)
{
	for (float Hue = 0.0f; Hue < 360.0f; Hue += 15.0f)
	{
		const FLinearColor Back = FLinearColor(Hue, 0.75f, 0.5f).HSVToLinearRGB().LinearRGBToHSV();
		EXPECT_TRUE(Back.Equals(FLinearColor(Hue, 0.75f, 0.5f), 0.01f)) << Hue;
	}
}
