#include "CoreMinimal.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "TextTest"

TEST(Text, FromStringGivesItsStringBackUnchanged)
{
	EXPECT_TRUE(FText::FromString(TEXT("Größe {0} `")).ToString().Equals(TEXT("Größe {0} `")));
	EXPECT_TRUE(FText::FromName(TEXT("Some_3")).ToString().Equals(TEXT("Some_3")));
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::FromString(TEXT(" \t")).IsEmptyOrWhitespace());
}

TEST(Text, EqualToComparesTextsAndIdenticalToTheirIdentity)
{
	const FText First = FText::FromString(TEXT("a"));
	const FText Second = FText::FromString(TEXT("a"));
	const FText Copy = First;
	EXPECT_TRUE(First.EqualTo(Second));
	EXPECT_FALSE(First.IdenticalTo(Second));
	EXPECT_TRUE(First.IdenticalTo(Copy));
	EXPECT_FALSE(First.EqualTo(FText::FromString(TEXT("A"))));
	EXPECT_TRUE(First.EqualToCaseIgnored(FText::FromString(TEXT("A"))));
	EXPECT_TRUE(FText().IdenticalTo(FText::GetEmpty()));
}

TEST(Text, LocalizedLiteralsOfOneKeyAreIdentical)
{
	const auto Make = []
	{
		return LOCTEXT("Save", "Save");
	};
	EXPECT_TRUE(Make().IdenticalTo(Make()));
	EXPECT_TRUE(Make().IdenticalTo(NSLOCTEXT("TextTest", "Save", "Save")));
	EXPECT_FALSE(Make().IdenticalTo(LOCTEXT("Other", "Save")));
	EXPECT_EQ(INVTEXT("abc").ToString(), TEXT("abc"));
}

TEST(Text, FormatFillsOrderedPlaces)
{
	const FText Name = FText::FromString(TEXT("Tool"));
	EXPECT_EQ(FText::Format(INVTEXT("{0} of {1}, {0}"), Name, 3).ToString(), TEXT("Tool of 3, Tool"));
	EXPECT_EQ(FText::Format(INVTEXT("{0} {1} {x} {"), Name).ToString(), TEXT("Tool {1} {x} {"));
	EXPECT_EQ(FText::Format(INVTEXT("`{0`} ``{0}"), Name).ToString(), TEXT("{0} `Tool"));
}

TEST(Text, FormatFillsNamedPlaces)
{
	FFormatNamedArguments Arguments;
	Arguments.Add(TEXT("Name"), FText::FromString(TEXT("Tool")));
	Arguments.Add(TEXT("Count"), 1234567);
	EXPECT_EQ(FText::Format(INVTEXT("{Name}: {Count}"), Arguments).ToString(), TEXT("Tool: 1,234,567"));
	EXPECT_EQ(FText::FormatNamed(INVTEXT("{A}-{B}"), TEXT("A"), 1, TEXT("B"), 2.5f).ToString(), TEXT("1-2.5"));
}

TEST(Text, AsNumberGroupsThousandsAndKeepsThreeFractionalDigits)
{
	EXPECT_EQ(FText::AsNumber(-1234567).ToString(), TEXT("-1,234,567"));
	EXPECT_EQ(FText::AsNumber(1234.56789).ToString(), TEXT("1,234.568"));
	EXPECT_EQ(FText::AsNumber(2.0).ToString(), TEXT("2"));
	EXPECT_EQ(FText::AsNumber(MAX_uint64).ToString(), TEXT("18,446,744,073,709,551,615"));
}

TEST(Text, CompareToFollowsTheAlphabetBeforeTheCase)
{
	EXPECT_LT(FText::FromString(TEXT("apple")).CompareTo(FText::FromString(TEXT("Banana"))), 0);
	EXPECT_NE(FText::FromString(TEXT("a")).CompareTo(FText::FromString(TEXT("A"))), 0);
	EXPECT_EQ(FText::FromString(TEXT("a")).CompareToCaseIgnored(FText::FromString(TEXT("A"))), 0);
}

#undef LOCTEXT_NAMESPACE
