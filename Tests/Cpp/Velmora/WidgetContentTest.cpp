#include "Velmora/WidgetContent.h"

#include "LogCapture.h"
#include "Velmora/WidgetTree.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

TEST(WidgetContent, WidgetWithoutContentWarns)
{
	const FLogCapture Log(TEXT("Velmora"));

	SetContent(SNew(SBorder), SNew(STextBlock));

	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("Velmora: Warning: SetContent On Type: STextBlock ")}));
}

TEST(WidgetContent, ContentWidgetsTakeTheirChild)
{
	for (const char* Type : {"SBorder", "SCheckBox", "SBox", "SButton"})
	{
		const std::string Root = std::string("{ \"") + Type + "\": { \"Content\": { \"STextBlock\": { \"Text\": \"in\" } } } }";
		const FString Tree = Outline(BuildTree(Root.c_str()));
		EXPECT_TRUE(Tree.Contains(TEXT("STextBlock"))) << Type << ": " << TCHAR_TO_UTF8(*Tree);
	}
}
