#include "Velmora/WidgetTree.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(WidgetTree, ChildThatIsNotThereFailsTheTestAndNotTheProcess)
{
	EXPECT_NONFATAL_FAILURE(ChildOf(BuildTree(R"({ "SVerticalBox": {} })"), 2), "SVerticalBox has no child 2");
}

TEST(WidgetTree, WidgetOfAnotherTypeFailsTheTestAndNotTheProcess)
{
	EXPECT_NONFATAL_FAILURE(
		As<STextBlock>(BuildTree(R"({ "SBox": {} })"))->GetText(), "expected STextBlock, found SBox");
}

TEST(WidgetTree, TextThatIsNoDescriptionFailsTheTestAndNotTheProcess)
{
	EXPECT_NONFATAL_FAILURE(BuildTree("{}"), "no root object: {}");
}
