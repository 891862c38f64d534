#include <gtest/gtest.h>

#include "Specifiers.h"

TEST(ToolTip, LosesTheSignsOfTheComment)
{
	EXPECT_EQ(FormatToolTip("/** One line. */"), "One line.");
	EXPECT_EQ(FormatToolTip("// First.\n// Second.\n"), "First.\nSecond.");
	EXPECT_EQ(FormatToolTip(""), "");
}

TEST(ToolTip, KeepsIndentationThatMeansSomething)
{
	EXPECT_EQ(FormatToolTip("/**\n\t * Does it.\n\t *\n\t * @param X  Across,\n\t *           in units.\n\t */"),
		"Does it.\n\n@param X  Across,\n          in units.");
}

TEST(Specifiers, KnowTheirFlagsInAnyCase)
{
	std::vector<std::string> Flags;
	FMetaData MetaData;
	EXPECT_EQ(ApplySpecifiers(ESpecifierTarget::Property, {{"editanywhere", {}, 1}, {"Category", {"A|B"}, 1}}, Flags, MetaData), nullptr);
	EXPECT_EQ(Flags, std::vector<std::string>({"CPF_Edit"}));
	EXPECT_EQ(MetaData, FMetaData({{"Category", "A|B"}}));
}

TEST(Specifiers, ReportTheFirstThatIsUnknown)
{
	std::vector<std::string> Flags;
	FMetaData MetaData;
	const std::vector<FSpecifier> Specifiers = {{"BlueprintPure", {}, 1}, {"Nonsense", {}, 2}};
	const FSpecifier* const Unknown = ApplySpecifiers(ESpecifierTarget::Function, Specifiers, Flags, MetaData);
	ASSERT_NE(Unknown, nullptr);
	EXPECT_EQ(Unknown->Key, "Nonsense");
}
