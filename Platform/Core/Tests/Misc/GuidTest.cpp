#include "Misc/Guid.h"

#include <gtest/gtest.h>

#include "CoreMinimal.h"

namespace
{
constexpr FGuid GGuid(0x00000001, 0x0203AABB, 0xCCDDEEFF, 0x09080706);
}

// FGuid::ToString() is 32 upper-case hex digits without hyphens.
TEST(Guid, PrintsDigitsUnlessToldOtherwise)
{
	EXPECT_TRUE(GGuid.ToString().Equals(TEXT("000000010203AABBCCDDEEFF09080706")));
	EXPECT_TRUE(GGuid.ToString(EGuidFormats::DigitsWithHyphensLower).Equals(TEXT("00000001-0203-aabb-ccdd-eeff09080706")));
	EXPECT_TRUE(GGuid.ToString(EGuidFormats::HexValuesInBraces)
					.Equals(TEXT("{0x00000001,0x0203,0xAABB,{0xCC,0xDD,0xEE,0xFF,0x09,0x08,0x07,0x06}}")));
}

// Parse also takes the hyphen, brace and bracket forms.
TEST(Guid, ParsesEveryFormThatItPrints)
{
	for (int32 Format = 0; Format <= int32(EGuidFormats::UniqueObjectGuid); ++Format)
	{
		FGuid Parsed;
		EXPECT_TRUE(FGuid::Parse(GGuid.ToString(EGuidFormats(Format)), Parsed)) << Format;
		EXPECT_TRUE(Parsed == GGuid) << Format;
	}
}

TEST(Guid, RefusesOtherTextsAndLeavesTheResultAlone)
{
	FGuid Parsed = GGuid;
	for (const TCHAR* Text : {TEXT(""), TEXT("000000010203AABBCCDDEEFF0908070"), TEXT("000000010203AABBCCDDEEFF090807066"),
			 TEXT("000000010203AABBCCDDEEFF0908070G"), TEXT("{00000001-0203-AABB-CCDD-EEFF09080706)")})
	{
		EXPECT_FALSE(FGuid::Parse(Text, Parsed));
	}
	EXPECT_TRUE(Parsed == GGuid);
}

TEST(Guid, NewOnesDiffer)
{
	const FGuid First = FGuid::NewGuid();
	EXPECT_TRUE(First.IsValid());
	EXPECT_TRUE(First != FGuid::NewGuid());
	EXPECT_FALSE(FGuid().IsValid());
}
