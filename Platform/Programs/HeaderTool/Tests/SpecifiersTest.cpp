#include <gtest/gtest.h>

#include "ParsedHeader.h"
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
	EXPECT_EQ(ApplySpecifiers(ESpecifierTarget::Property, {{"editanywhere", {}, 1}, {"Category", {"A|B"}, 1}}, Flags, MetaData),
		nullptr);
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

TEST(Specifiers, TakeListsUnquotedTextsAndLiteralsInARow)
{
	const FParsedHeader Parsed("#include \"Thing.generated.h\"\nUCLASS(HideCategories = (Physics, \"Old Stuff\"), meta = (Words "
							   "= \"one \" \"two\", Bare = A|B, Alone))\n"
							   "class UThing : public UObject\n{\nGENERATED_BODY()\n};\n");
	ASSERT_EQ(Parsed.Errors, std::vector<std::string>());
	const FMetaData& MetaData = Parsed.Header().Classes[0].MetaData;
	EXPECT_EQ(*FindMetaData(MetaData, "HideCategories"), "Physics Old Stuff");
	EXPECT_EQ(*FindMetaData(MetaData, "Words"), "one two");
	EXPECT_EQ(*FindMetaData(MetaData, "Bare"), "A|B");
	EXPECT_EQ(*FindMetaData(MetaData, "alone"), "");
	EXPECT_EQ(FindMetaData(MetaData, "Absent"), nullptr);
}
