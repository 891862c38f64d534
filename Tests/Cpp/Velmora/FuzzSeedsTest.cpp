#include "Dom/JsonObject.h"
#include "HAL/FileManager.h"
#include "SlateTestWindow.h"
#include "Velmora/KeyTables.h"
#include "Velmora/PythonRecorder.h"
#include "Velmora/ToolDescription.h"
#include "Velmora/VelmoraGenerator.h"
#include "Velmora/WidgetTree.h"

#include <gtest/gtest.h>

namespace
{
TArray<FString> FindSeeds(const TCHAR* Target)
{
	const FString Folder = FString(KESTRIX_FUZZ_SEEDS) / Target;
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*.json")), true, false);
	for (FString& Name : Names)
	{
		Name = Folder / Name;
	}
	return Names;
}
}

TEST(FuzzSeeds, EveryKeyStandsOnEveryWidget)
{
	const TArray<FString> Seeds = FindSeeds(TEXT("VelmoraGenerator"));
	int32 NumWidgets = 0;
	for (const FString& Seed : Seeds)
	{
		FString Error;
		const TSharedPtr<FJsonObject> Description = LoadJsonFile(Seed, Error);
		ASSERT_TRUE(Description.IsValid()) << TCHAR_TO_UTF8(*Error);
		const auto Root = Description->GetObjectField(TEXT("Root"))->Values.CreateConstIterator();
		if (Root.Value()->AsObject()->Values.Num() < BehaviorKeys.Num())
		{
			continue;
		}
		++NumWidgets;
		for (const FString& Key : BehaviorKeys)
		{
			EXPECT_TRUE(Root.Value()->AsObject()->HasField(Key)) << TCHAR_TO_UTF8(*Seed) << ": " << TCHAR_TO_UTF8(*Key);
		}
	}
	EXPECT_EQ(NumWidgets, WidgetTypes.Num());
}

TEST(FuzzSeeds, EveryToolCanBeShown)
{
	const FPythonRecorder Python;
	for (const FString& Seed : FindSeeds(TEXT("VelmoraGenerator")))
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Seed));
		const TSharedRef<SWidget> Tool = GenerateWidgetFromFile(Seed, TEXT("Root"), nullptr);
		FSlateTestWindow Window(Tool);

		EXPECT_GE(Tool->GetDesiredSize().X, 0.0);
		EXPECT_GE(Tool->GetDesiredSize().Y, 0.0);
	}
}
